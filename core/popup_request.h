// A right click on a list, or the keyboard's wish for its menu: what both lists of files do before
// their menu opens.
#pragma once

#include <cstdint>

#include "platform/controls.h"
#include "platform/window_services.h"

namespace zentar {

class PopupRequest {
  public:
    // Selects the entry under the pointer, for which the menu is then opened. False when the menu
    // was asked for once more meanwhile, and has been shown.
    [[nodiscard]] bool SelectAtPointer(ListBox& list, WindowServices& windows) {
        const std::uint64_t request = ++requests_;
        list.SetFocus();
        windows.PumpPending();
        if (request != requests_) {
            return false;
        }
        list.SelectAtPointer();
        windows.PumpPending();
        return request == requests_;
    }

  private:
    std::uint64_t requests_ = 0;
};

}  // namespace zentar
