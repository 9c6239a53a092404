#include "core/message_kinds.h"

#include <utility>

namespace zentar::messages {

Message Confirmation(std::string text) {
    return {"Confirm", std::move(text), MessageIcon::Question, MessageButtons::YesNo,
            DefaultButton::Second};
}

Message Failure(std::string text) { return {"Error", std::move(text), MessageIcon::Exclamation}; }

Message FailureWithQuestion(std::string text) {
    return {"Error", std::move(text), MessageIcon::Exclamation, MessageButtons::YesNo,
            DefaultButton::Second};
}

Message CriticalFailure(std::string text) {
    return {"Error", std::move(text), MessageIcon::Critical};
}

}  // namespace zentar::messages
