// The kinds of message boxes that commands show.
#pragma once

#include <string>

#include "platform/window_services.h"

namespace zentar::messages {

// A question before something that cannot be taken back. No is the default.
Message Confirmation(std::string text);
// A command could not do what it was to do.
Message Failure(std::string text);
// The same, with a question about how to go on. No is the default.
Message FailureWithQuestion(std::string text);
// A command stopped half-way.
Message CriticalFailure(std::string text);

}  // namespace zentar::messages
