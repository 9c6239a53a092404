#include "core/messages.h"

#include "core/message_kinds.h"
#include "core/program_info.h"
#include "core/text.h"

namespace zentar::messages {

std::string LocateGameFolder(const GameId& game) {
    return "Please locate your " + game + " folder:";
}

Message NotTheGameFolder(const GameId& game) {
    return Failure("You did not select your " + game + " folder!");
}

Message GameFolderUnknown(const GameId& game) {
    return {"Folder Error",
            Lines({"The correct folder for " + game + " is not specified!", "",
                   "Zentar can't carry out the requested task because it doesn't",
                   "know where " + game + " is.  Ensure that " + game + " is selected under",
                   "the \"Game\" menu, followed by \"Specify Folder\".  Then browse",
                   "to your " + game + " folder and try this function again.  Good luck!"}),
            MessageIcon::Exclamation};
}

Message CurrentFolders(const ProgramState& state) {
    std::string text;
    for (std::size_t i = 0; i < kGameCount; ++i) {
        if (i > 0) {
            text += "\r\n";
        }
        text += std::string(AllGames()[i].label) + "\t   " + state.games[i].GameFolder;
    }
    return {"Current Folders", text, MessageIcon::Information};
}

Message FirstRunWelcome() {
    return {"Welcome",
            Lines({"Welcome to Zentar!", "", "This appears to be your first time using Zentar.",
                   "As such, you will need to tell Zentar where your",
                   "Quake games are.  Do you want to do this now?"}),
            MessageIcon::Question, MessageButtons::YesNo};
}

Message AboutZentar() {
    return {"About Zentar",
            Lines({kVersionLine, "", "Made by: " + std::string(kAuthors),
                   "Contact: through the web site below", "Web site: " + std::string(kWebSite)}),
            MessageIcon::Information};
}

Message CannotExitYet() {
    return {"Can't Exit Yet",
            Lines({"You cannot exit Zentar at this time because you are either playing",
                   "a Quake3 v1.17 demo or are involved in a modem-to-modem game.",
                   "Please exit the demo or stop the game, and then you will be able to",
                   "safely exit Zentar."}),
            MessageIcon::Critical};
}

Message IllegalCharacters() {
    return Failure(Lines({"Can't rename due to illegal characters.", "",
                          "Filenames cannot have these characters",
                          R"(in them:   "   \   /   |   <   >   :   ?   *)"}));
}

Message NotRenamed(std::string_view thing, FileError why) {
    const std::string name(thing);
    switch (why) {
        case FileError::AlreadyExists:
            return Failure(Lines({"Can't rename due to another " + name + " having that name.", "",
                                  "Please choose another name and try again."}));
        case FileError::BadName:
            return Failure(Lines({"Can't rename due to Windows not allowing that name.", "",
                                  "It may be too long, or be a name that Windows",
                                  "keeps for itself (eg. con)."}));
        case FileError::NotFound:
            return IsGone(thing);
        default:
            return Failure(Lines({"This " + name + " couldn't be renamed.", "",
                                  "The file may be in use, or its folder may be protected."}));
    }
}

Message IsGone(std::string_view thing) {
    return Failure("This " + std::string(thing) + " is no longer in its folder.");
}

std::string LocateRemoteFolder() { return "Please specify a folder to be the Remote Folder:"; }

Message SwitchingToExpertMode() {
    return {"Confirm",
            Lines({"WARNING: You are now switching to Expert Mode!", "",
                   "This means that your actions will NOT be confirmed",
                   "under ANY circumstances!  Are you sure about this?"}),
            MessageIcon::Exclamation, MessageButtons::YesNo, DefaultButton::Second};
}

Message RemoteFolderInvalid() {
    return {"Folder Error",
            Lines({"Your Remote Folder selection is invalid!", "",
                   "Zentar can't carry out the requested task.",
                   "Please select \"Preferences...\" from the",
                   "\"Program\" menu and select a new Remote",
                   "Folder, and then try this function again."}),
            MessageIcon::Exclamation};
}

}  // namespace zentar::messages
