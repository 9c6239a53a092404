// The messages about copying and moving demos, whole.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/window_services.h"

namespace zentar {

enum class TransferVerb : std::uint8_t { Copy, Move };

namespace messages {

// Sizes in bytes, their digits grouped by `separator`. `drive` is a letter.
Message NoSpaceForDemo(TransferVerb verb, const std::string& drive, std::uint64_t length,
                       std::uint64_t space, std::string_view separator);
Message ReallyTransferDemo(TransferVerb verb);
Message DemoExistsInRemoteFolder();
Message OverwriteReadOnlyDemo();
// `mod` is where the original still is.
Message DemoNotTransferred(TransferVerb verb, const std::string& mod);
Message DemoPartlyTransferred(TransferVerb verb, const std::string& mod);
// The copy is there, and so is the original, which could not be deleted.
Message MovedDemoNotDeleted(const std::string& mod);

}  // namespace messages
}  // namespace zentar
