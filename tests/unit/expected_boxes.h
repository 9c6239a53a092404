// The message boxes that many commands share, as the user sees them.
#pragma once

#include <string>

#include "platform/window_services.h"

namespace zentar {

inline Message Failure(const std::string& text) {
    return {"Error", text, MessageIcon::Exclamation};
}

inline Message Critical(const std::string& text) { return {"Error", text, MessageIcon::Critical}; }

inline Message Confirm(const std::string& text) {
    return {"Confirm", text, MessageIcon::Question, MessageButtons::YesNo, DefaultButton::Second};
}

inline Message ReadOnlyQuestion(const std::string& text) {
    return {"Error", text, MessageIcon::Exclamation, MessageButtons::YesNo, DefaultButton::Second};
}

// Of a game that a command needs.
inline Message FolderUnknown(const std::string& game) {
    return {"Folder Error",
            "The correct folder for " + game +
                " is not specified!\r\n\r\n"
                "Zentar can't carry out the requested task because it doesn't\r\n"
                "know where " +
                game + " is.  Ensure that " + game +
                " is selected under\r\n"
                "the \"Game\" menu, followed by \"Specify Folder\".  Then browse\r\n"
                "to your " +
                game + " folder and try this function again.  Good luck!",
            MessageIcon::Exclamation};
}

}  // namespace zentar
