// The messages about demos, whole.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/result.h"
#include "platform/window_services.h"

namespace zentar::messages {

// The selected file has the extension of a demo of the game ("Quake2"), but not its content.
Message OfferNotADemoRename(std::string_view game);
// The user wanted that rename, and it failed.
Message NotADemoRenameFailed(FileError why);

// Deleting.
Message ReallyDeleteDemo();
Message ReallyDeleteAllListedDemos();
Message DeleteReadOnlyDemo();
Message DemoNotDeleted();
Message DemosNotDeleted(std::uint64_t kept, std::uint64_t listed);

// Renaming.
TextQuestion EnterNewDemoName(const std::string& name);

// The file of the selected demo is there, but cannot be read.
Message DemoIsUnreadable();

// Playing. `version` is "1.17" or "1.27h".
Message ReallyPlayDemo(std::string_view game);
Message OldGameNeeded(std::string_view version, std::string_view executable);
// A pack, without its extension, could not be put out of the old game's way.
Message PakNotHidden(std::string_view pak, FileError why);
Message GameNotStarted(std::string_view game, std::string_view executable);

// Searching for a map.
Message BrowserNotOpened();

// Installing: the title of the folder picker, and what has come of it.
std::string LocateDemosToInstall(std::string_view game);
Message DemosInstalled(std::string_view game, std::uint64_t installed, std::uint64_t found);

}  // namespace zentar::messages
