// The frame "Selected Demo Properties".
#pragma once

#include <string>

#include "core/program_state.h"
#include "demos/demo_info.h"
#include "demos/demos_tab_controls.h"
#include "platform/locale.h"

namespace zentar {

class DemoProperties {
  public:
    DemoProperties(const DemosTabControls& controls, Locale& locale)
        : controls_(controls), locale_(locale) {}

    // Places the labels: for Quake 3 below the version label, for the other games without it.
    void Arrange(bool quake3);
    // No demo is selected.
    void Reset();
    // A demo was selected, whose file is there or not; its content is not read yet.
    void ShowFile(const DemoInfo& demo, bool isThere);
    // Its content was read.
    void ShowHeader(const DemoInfo& demo);

  private:
    void EnableAll(bool enabled);

    const DemosTabControls& controls_;
    Locale& locale_;
};

}  // namespace zentar
