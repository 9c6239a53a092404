#include "demos/demo_messages.h"

#include <string>

#include "core/text.h"

namespace zentar::messages {

Message OfferNotADemoRename(std::string_view game) {
    return {.title = "Error",
            .text = Lines({"The selected file is not really a " + std::string(game) + " demo!", "",
                           "Would you like me to add an \"!\" after its extension",
                           "to stop it accidentally showing up in this list again?"}),
            .icon = MessageIcon::Exclamation,
            .buttons = MessageButtons::YesNo,
            .defaultButton = DefaultButton::Second};
}

Message NotADemoRenameFailed(FileError why) {
    const std::string_view reason =
        why == FileError::AlreadyExists
            ? "There already is a file of that name with an \"!\" after its extension."
            : "The file may be in use, or its folder may be protected.";
    return {.title = "Error",
            .text = Lines({"The selected file couldn't be renamed.", "", reason}),
            .icon = MessageIcon::Exclamation};
}

}  // namespace zentar::messages
