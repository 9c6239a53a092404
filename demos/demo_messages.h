// The messages of the Demos tab, whole.
#pragma once

#include <string_view>

#include "platform/result.h"
#include "platform/window_services.h"

namespace zentar::messages {

// The selected file has the extension of a demo of the game ("Quake2"), but not its content.
Message OfferNotADemoRename(std::string_view game);
// The user wanted that rename, and it failed.
Message NotADemoRenameFailed(FileError why);

}  // namespace zentar::messages
