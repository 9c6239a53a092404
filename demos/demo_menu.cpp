#include "demos/demo_menu.h"

#include "core/game_text.h"

namespace zentar {

bool CarriesMapPrefix(const DemoInfo& demo) {
    return demo.Item.starts_with("[" + GameTextToUtf8(demo.Map) + "]");
}

DemoMenu DecideDemoMenu(const DemoInfo& demo, Q3Generation generation) {
    if (demo.Item.empty()) {
        return {};
    }
    if (demo.NotADemo || demo.Unreadable) {
        return {.fileCommands = true};
    }
    if (generation == Q3Generation::V129f) {
        // Play stays as the menu showed it last.
        return {.play = PlayEntry::Unchanged, .fileCommands = true};
    }
    return {.play = PlayEntry::On,
            .fileCommands = true,
            .renameWithMap = !CarriesMapPrefix(demo),
            .search = true};
}

}  // namespace zentar
