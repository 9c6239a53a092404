#include "firstaid/first_aid_messages.h"

#include "core/message_kinds.h"
#include "core/text.h"

namespace zentar::messages {
namespace {

constexpr const char* kLogitechTitle = "Change Logitech Setting";
constexpr const char* kLogitechWarning =
    "WARNING: Only use this function if you're using a Logitech mouse with a driver version of 8.4 "
    "or higher!";

}  // namespace

Message AutoexecExists(const GameId& game, const std::string& base) {
    return {"Error",
            Lines({"Your " + game + base + " folder already has an \"autoexec.cfg\" file!", "",
                   "As such, please edit this file with your custom commands and they",
                   "will be kept and not destroyed from game to game.  Would you like",
                   "to edit this file right now?"}),
            MessageIcon::Question, MessageButtons::YesNo, DefaultButton::Second};
}

Message AutoexecNotCreated() {
    return Failure(Lines({"The \"autoexec.cfg\" file couldn't be created.", "",
                          "The folder may be protected, or its drive may be full."}));
}

TextQuestion ChangeLogitechSetting(const std::string& current) {
    return {.title = kLogitechTitle,
            .prompt =
                Lines({kLogitechWarning, "",
                       "Enter a number for the new setting (currently set to " + current + "):", "",
                       "1 = Default setting for Windows.", "0 = Fix mousewheel for Quake games."}),
            .answer = ""};
}

Message LogitechSettingChanged() {
    return {kLogitechTitle,
            Lines({"The change has been successfully made!", "",
                   "However, a reboot is required for it to take effect.",
                   "Would you like to reboot your system right now?"}),
            MessageIcon::Question, MessageButtons::YesNo, DefaultButton::Second};
}

Message ExecutableNotChanged() {
    return Failure(Lines({"The game's executable couldn't be changed.", "",
                          "The game may be running, or the file may be write-protected."}));
}

Message DriverNotRenamed() {
    return Failure(Lines({"The \"opengl32\" file couldn't be renamed.", "",
                          "The game may be running, or its folder may be protected."}));
}

}  // namespace zentar::messages
