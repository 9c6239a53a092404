#include "demos/demo_transfer_messages.h"

#include "core/message_kinds.h"

namespace zentar::messages {
namespace {

constexpr std::string_view kDemo = "demo";

}  // namespace

Message ReallyTransferDemo(TransferVerb verb) {
    return Confirmation("Really " + VerbOf(verb) + " this demo to this folder?");
}

Message DemoExistsInRemoteFolder() { return ExistsInRemoteFolder(kDemo); }

Message OverwriteReadOnlyDemo() { return OverwriteReadOnly(kDemo); }

Message DemoNotTransferred(TransferVerb verb, const std::string& mod) {
    return NotTransferred(verb, kDemo, mod);
}

Message DemoPartlyTransferred(TransferVerb verb, const std::string& mod) {
    return PartlyTransferred(verb, "Demo could not be completely " + PastOf(verb), kDemo, mod);
}

Message MovedDemoNotDeleted(const std::string& mod) { return MovedNotDeleted(kDemo, mod); }

}  // namespace zentar::messages
