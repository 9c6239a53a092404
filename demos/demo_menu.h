// What the popup menu of the demo list offers.
#pragma once

#include "core/program_state.h"
#include "demos/demo_info.h"

namespace zentar {

enum class PlayEntry : std::uint8_t { Off, On, Unchanged };

struct DemoMenu {
    PlayEntry play = PlayEntry::Off;
    bool fileCommands = false;  // delete, rename, copy, move
    bool renameWithMap = false;
    bool search = false;
};

// Whether the entry's name already begins with its map, as "[q3dm17]".
bool CarriesMapPrefix(const DemoInfo& demo);

// `generation` is that of the Quake 3 demo read last, whatever game is current now.
DemoMenu DecideDemoMenu(const DemoInfo& demo, Q3Generation generation);

}  // namespace zentar
