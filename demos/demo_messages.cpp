#include "demos/demo_messages.h"

#include "core/message_kinds.h"
#include "core/program_info.h"
#include "core/text.h"

namespace zentar::messages {
namespace {

constexpr std::string_view kInUseOrProtected =
    "The file may be in use, or its folder may be protected.";

}  // namespace

Message OfferNotADemoRename(std::string_view game) {
    return FailureWithQuestion(
        Lines({"The selected file is not really a " + std::string(game) + " demo!", "",
               "Would you like me to add an \"!\" after its extension",
               "to stop it accidentally showing up in this list again?"}));
}

Message NotADemoRenameFailed(FileError why) {
    const std::string_view reason =
        why == FileError::AlreadyExists
            ? "There already is a file of that name with an \"!\" after its extension."
            : kInUseOrProtected;
    return Failure(Lines({"The selected file couldn't be renamed.", "", reason}));
}

Message ReallyDeleteDemo() { return Confirmation("Really delete this demo?"); }

Message ReallyDeleteAllListedDemos() { return Confirmation("Really delete all listed demos?"); }

Message DeleteReadOnlyDemo() {
    return FailureWithQuestion(
        Lines({"This demo couldn't be deleted due to being set as read-only.",
               "Would you like me to remove this setting to force the deletion?"}));
}

Message DemoNotDeleted() {
    return Failure(Lines({"This demo couldn't be deleted.", "", kInUseOrProtected}));
}

Message DemosNotDeleted(std::uint64_t kept, std::uint64_t listed) {
    return Failure(Lines(
        {std::to_string(kept) + " out of " + std::to_string(listed) + " demos couldn't be deleted.",
         "", "They may be read-only or in use, or their folder may be protected."}));
}

TextQuestion EnterNewDemoName(const std::string& name) {
    return {
        .title = "Rename Demo",
        .prompt = Lines({"Enter new name for \"" + name + "\".", "(Do not type the extension)."}),
        .answer = name};
}

Message DemoIsUnreadable() {
    return Failure(Lines({"This demo can't be read at this time.", "", kInUseOrProtected}));
}

Message ReallyPlayDemo(std::string_view game) {
    return Confirmation("Really start " + std::string(game) + " and play this demo?");
}

Message OldGameNeeded(std::string_view version, std::string_view executable) {
    const std::string number(version);
    return Failure(
        Lines({"Zentar cannot play back this Quake 3 demo at this time.", "",
               "This Q3 demo is of v" + number + "-compatible format, and thus you need",
               "the v" + number + " Quake 3 executable to be in your Quake 3 folder to",
               "play it.  Also, the executable must be named \"" + std::string(executable) + "\".",
               "", "Please visit " + std::string(kWebSite) + " to download",
               "the executable (zipped format, file size is 805 K), and try again."}));
}

Message PakNotHidden(std::string_view pak, FileError why) {
    const std::string name(pak);
    const std::string reason = why == FileError::AlreadyExists
                                   ? "There already is a \"" + name + ".zentar\" beside it."
                                   : std::string(kInUseOrProtected);
    return Failure(Lines({"Zentar cannot play back this Quake 3 demo at this time.", "",
                          "The file \"" + name + ".pk3\" must not be there while Quake 3",
                          "v1.17 runs, and it couldn't be renamed.", "", reason}));
}

Message GameNotStarted(std::string_view game, std::string_view executable) {
    return Failure(Lines({"Zentar couldn't start " + std::string(game) + ".", "",
                          "Please make sure that \"" + std::string(executable) + "\" can be",
                          "started from its folder, and try again."}));
}

Message BrowserNotOpened() {
    return Failure(Lines({"Zentar couldn't open your web browser.", "",
                          "Please make sure that Windows has one set for web pages."}));
}

std::string LocateDemosToInstall(std::string_view game) {
    return "Please locate the folder with the unzipped " + std::string(game) + " demos:";
}

Message DemosInstalled(std::string_view game, std::uint64_t installed, std::uint64_t found) {
    const std::string sum = "Number of demos successfully installed: " + std::to_string(installed) +
                            " out of " + std::to_string(found) + ".";
    if (installed == found) {
        return {.title = "Done", .text = sum, .icon = MessageIcon::Information};
    }
    return {.title = "Done",
            .text = Lines({sum, "", "Some demos could not be installed because you do",
                           "not have the required " + std::string(game) + " mod that is needed to",
                           "play them back."}),
            .icon = MessageIcon::Exclamation};
}

}  // namespace zentar::messages
