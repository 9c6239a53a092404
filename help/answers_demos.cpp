#include "help/answers.h"

namespace zentar {
namespace {

constexpr std::string_view kRefreshing =
    "(1) Click the \"Demos\" tab.\r\n"
    "(2) Press F5 in the list, or right-click it and select \"Refresh List\".\r\n"
    "(3) If the list is empty, and thus greyed, check \"List all available demos.\" or, if it is "
    "checked already, select your game again from the \"Game\" menu.\r\n"
    "(4) The line below the list tells you how many demos are listed, and how many there are in "
    "all.  If these differ, the demo filter is hiding some: check \"List all available demos.\" to "
    "see them.";

constexpr std::string_view kProperties =
    "(1) Click the \"Demos\" tab.\r\n"
    "(2) Click the demo in the list.\r\n"
    "(3) Look at \"Selected Demo Properties\" for its file size, its date, the name of its level "
    "and its map.  For Quake 3, the game version that the demo is meant for is shown as well.\r\n"
    "(4) Quake 3 demos of v1.29f and higher are compressed, so their map and level name can't be "
    "shown.\r\n"
    "(5) If Zentar says that the file is not really a demo, answer \"Yes\" to add an exclamation "
    "mark to the end of its name, so that it isn't listed any more, or \"No\" to leave it as it "
    "is.";

constexpr std::string_view kFiltering =
    "(1) Click the \"Demos\" tab.\r\n"
    "(2) Uncheck \"List all available demos.\"\r\n"
    "(3) Select \"contain\" to list the demos with a certain phrase in them, or \"do not contain\" "
    "to list those without it.\r\n"
    "(4) Type the phrase (the name of a player or map, or some speech) and click \"Go\" or press "
    "Enter.\r\n"
    "(5) If the phrase is in the list of pre-made phrases, double-click it there instead, or "
    "select it and press Enter.\r\n"
    "(6) The phrase must be exact, capital letters included.  If there is no phrase, all demos are "
    "listed.\r\n"
    "(7) For Quake 3, the pre-made phrase g_syncronousClients finds the demos of v1.17, and "
    "g_synchronousClients those of v1.27h.\r\n"
    "(8) Quake 3 demos of v1.29f and higher are compressed, so no speech or names can be found in "
    "them.  Selecting one greys the filter until you select a demo of another kind.\r\n"
    "(9) Check \"List all available demos.\" to see all your demos again.";

constexpr std::string_view kPlaying =
    "(1) Click the \"Demos\" tab.\r\n"
    "(2) Double-click the demo in the list, or select it and press Enter, or right-click it and "
    "select \"Play This Demo\".  If that is greyed for a demo of v1.29f or higher, the other two "
    "still work.\r\n"
    "(3) Answer \"Yes\" when asked (in Expert Mode you are not).\r\n"
    "(4) Zentar starts the game with the mod that is selected.  It starts minimised, so click it "
    "in the taskbar if it stays that way.\r\n"
    "(5) A Quake 3 demo of v1.17 needs the game's v1.17 executable in your Quake 3 folder, named "
    "\"quake3-117.exe\".  One of v1.27h needs \"quake3-127h.exe\".  No other version will do.\r\n"
    "(6) While a v1.17 demo plays, Zentar hides \"pak4.pk3\" to \"pak6.pk3\" from the game.  They "
    "are put back after you exit Quake 3, and until then you can't exit Zentar.\r\n"
    "(7) If the demo doesn't play, click the \"First Aid\" tab and then \"[ALL] Demos are not "
    "playing back correctly.\"";

constexpr std::string_view kRenaming =
    "(1) Click the \"Demos\" tab.\r\n"
    "(2) Click the demo in the list.\r\n"
    "(3) Press F2, or right-click it and select \"Rename This Demo\".\r\n"
    "(4) Type the new name without its extension and click \"OK\".  These characters can't be "
    "used: \\ / | < > : ? * and the double quote.\r\n"
    "(5) A name that another demo already has is refused, so nothing can get overwritten.";

constexpr std::string_view kRenamingWithMap =
    "(1) Click the \"Demos\" tab.\r\n"
    "(2) Right-click the demo in the list and select \"Rename With Map\".\r\n"
    "(3) The demo gets its map put before its name: the demo duel of the map q2dm1 becomes "
    "[q2dm1]_duel.  If another demo already has that name, nothing is renamed.\r\n"
    "(4) The entry is greyed if the demo already begins with its map, and for Quake 3 demos of "
    "v1.29f and higher, whose map can't be read.\r\n"
    "(5) After you have selected one of the latter, the entry stays greyed for Quake 1 and Quake 2 "
    "demos, too, until you select an older Quake 3 demo or start Zentar again.";

constexpr std::string_view kDeleting =
    "(1) Click the \"Demos\" tab.\r\n"
    "(2) Click the demo in the list.\r\n"
    "(3) Press Delete or Backspace, or right-click it and select \"Delete This Demo\".\r\n"
    "(4) Answer \"Yes\" when asked.  In Expert Mode (see \"Preferences...\" in the \"Program\" "
    "menu) you are only asked if the file is read-only.  Deleted demos don't go to the Recycle "
    "Bin.\r\n"
    "(5) To have the next demo selected each time, select \"Preferences...\" from the \"Program\" "
    "menu and check \"Automatically select the next demo after deleting the current.\"";

constexpr std::string_view kDeletingListed =
    "(1) Click the \"Demos\" tab.\r\n"
    "(2) See to it that only the demos that you want to delete are listed.  The topic \"Listing "
    "All Demos That Meet A Specific Criteria\" tells you how.\r\n"
    "(3) Right-click the list and select \"Delete All Listed Demos\".\r\n"
    "(4) Answer \"Yes\" when asked.  In Expert Mode you are only asked if some of the files are "
    "read-only: answer \"No\" to keep those.\r\n"
    "(5) Demos that are not listed stay.  Deleted demos don't go to the Recycle Bin.  If some of "
    "them couldn't be deleted, Zentar tells you how many.";

constexpr std::string_view kTransferring =
    "(1) Click the \"Demos\" tab.\r\n"
    "(2) If you haven't yet chosen a Remote Folder, select \"Preferences...\" from the \"Program\" "
    "menu and click the \"...\" button to choose one.\r\n"
    "(3) Right-click the demo in the list and select \"Copy To Remote Folder\" or \"Move To Remote "
    "Folder\".\r\n"
    "(4) Answer \"Yes\" when asked (in Expert Mode you are not).\r\n"
    "(5) If the Remote Folder already has a demo with that name, answer \"Yes\" to overwrite it or "
    "\"No\" to keep it (asked in Expert Mode, too).\r\n"
    "(6) A sound tells you that it is done.  If anything goes wrong, Zentar says so and your "
    "original stays where it is.\r\n"
    "(7) When a demo is moved to another drive, it is copied first, and its original is only "
    "deleted once the copy is there, whole.";

constexpr std::string_view kInstalling =
    "(1) Click the \"Misc\" tab.\r\n"
    "(2) Click \"Q2\" or \"Q3\", depending on the game that the demos are for.  Quake 1 demos "
    "don't tell their mod, so they can't be installed.\r\n"
    "(3) Unzip the demos into a folder of their own, if they are zipped.\r\n"
    "(4) Click the \"Install Demos\" button.\r\n"
    "(5) Select the folder with the demos and click \"OK\".  Its sub-folders are not looked "
    "into.\r\n"
    "(6) Each demo is moved to the \"demos\" folder of the mod that it was recorded in.  Zentar "
    "then tells you how many were installed.\r\n"
    "(7) A demo stays where it was if you don't have its mod, or if the mod already has another "
    "demo with its name.\r\n"
    "(8) Quake 3 demos of v1.29f and higher don't tell their mod and are always moved to "
    "\"baseq3\".";

constexpr std::string_view kFindingMap =
    "(1) Click the \"Demos\" tab.\r\n"
    "(2) Right-click the demo in the list and point at \"Search Internet For Map\".\r\n"
    "(3) Select what to search for.  The entries show it by example: \"Find: q2ctf1 + McKinley "
    "Revival\" means your demo's map and the name of its level.\r\n"
    "(4) \"Find: McKinley Revival\" means the name of its level only, and \"Find: q2ctf\" its map "
    "only.\r\n"
    "(5) Your web browser opens with the results.  Download the map there and put it where its "
    "instructions tell you to.\r\n"
    "(6) The entry is greyed for Quake 3 demos of v1.29f and higher, whose map can't be read.\r\n"
    "(7) After you have selected one of those, it stays greyed for Quake 1 and Quake 2 demos, too, "
    "until you select an older Quake 3 demo or start Zentar again.";

constexpr HelpTopic kTopics[] = {
    {"Refreshing The Demos List", kRefreshing},
    {"Viewing A Demo's Properties (Map, Name, etc)", kProperties},
    {"Listing All Demos That Meet A Specific Criteria", kFiltering},
    {"Playing Back A Demo", kPlaying},
    {"Renaming A Demo", kRenaming},
    {"Renaming A Demo With Its Map As Prefix", kRenamingWithMap},
    {"Deleting A Demo", kDeleting},
    {"Deleting All Listed Demos", kDeletingListed},
    {"Copying/Moving A Demo To The Remote Folder", kTransferring},
    {"Installing A Folder Of Demos To Its Quake Folder", kInstalling},
    {"Finding A Map Needed To Play Back A Demo", kFindingMap},
};

}  // namespace

std::span<const HelpTopic> DemoTopics() { return kTopics; }

}  // namespace zentar
