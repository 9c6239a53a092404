// The messages about copying and moving demos, whole.
#pragma once

#include <string>

#include "core/transfer_messages.h"

namespace zentar::messages {

Message ReallyTransferDemo(TransferVerb verb);
Message DemoExistsInRemoteFolder();
Message OverwriteReadOnlyDemo();
// `mod` is where the original still is.
Message DemoNotTransferred(TransferVerb verb, const std::string& mod);
Message DemoPartlyTransferred(TransferVerb verb, const std::string& mod);
// The copy is there, and so is the original, which could not be deleted.
Message MovedDemoNotDeleted(const std::string& mod);

}  // namespace zentar::messages
