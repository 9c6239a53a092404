#include "help/answers.h"

namespace zentar {
namespace {

constexpr std::string_view kSlowStart =
    "When Zentar starts, it lists the screenshots and demos of the mod that you used last.  This "
    "is usually done at once, but it takes longer if the demo filter is on, as every demo of that "
    "mod must then be read from beginning to end to find your phrase.  It also takes longer if the "
    "game is on a slow drive, such as one of a network or one that has to wake up first.\r\n\r\n"
    "To avoid it, check \"List all available demos.\" on the \"Demos\" tab before you exit Zentar. "
    " Or select \"Preferences...\" from the \"Program\" menu and check \"Automatically show all "
    "demos when initially switching to a different game mod.\", and the filter is turned off for "
    "you.\r\n\r\n"
    "If that doesn't help, there might be thousands of files to list.  Move those that you seldom "
    "need to the Remote Folder, or switch to another mod before you exit Zentar.";

constexpr std::string_view kSlowMods =
    "When you switch to another mod, Zentar lists its screenshots and demos.  If the demo filter "
    "is on, every demo of that mod must be read from beginning to end to find your phrase, which "
    "can take long if there are many.\r\n\r\n"
    "To avoid it, select \"Preferences...\" from the \"Program\" menu and check \"Automatically "
    "show all demos when initially switching to a different game mod.\"  The filter is then turned "
    "off each time you switch, and you can turn it on again when you need it.\r\n\r\n"
    "Or check \"List all available demos.\" on the \"Demos\" tab before you switch.";

constexpr std::string_view kNothingListed =
    "This is because you have not yet specified the correct path for your game folder.  Simply "
    "select \"Specify Folder...\" from the \"Game\" menu and all screenshots and demos will then "
    "be available for listing.";

constexpr std::string_view kNotEntire =
    "On the \"Shots\" tab, a screenshot is always shown in its entirety: it is made to fit its "
    "place there.  Enlarge Zentar's window to see it larger.\r\n\r\n"
    "In full size (\"Show Actual Screenshot\"), only a part can be seen if the screenshot is "
    "larger than your screen.  Hold down the left mouse button and drag the screenshot to see its "
    "other parts, or change to a higher screen resolution.\r\n\r\n"
    "If there is only an hourglass, just the preview image was to be shown and there is none yet.  "
    "Select \"Real.\" and then the screenshot, without holding down Shift.\r\n\r\n"
    "If there is no picture at all, the file is damaged or incomplete.  Take the screenshot again "
    "in the game.";

constexpr std::string_view kScrambled =
    "A preview image always has 320 x 240 pixels, however large its screenshot is.  So small text "
    "in it can't be read, and wide screenshots look narrow.  The screenshot itself is not "
    "affected: select \"Real.\" to see it as it is.\r\n\r\n"
    "A preview image can also show something other than its screenshot.  This happens if you have "
    "replaced the screenshot without using Zentar, or if two screenshots only differ in their "
    "extension, as these share one preview image.  View the screenshot in \"Real.\" mode, and its "
    "preview image is made anew.\r\n\r\n"
    "If a preview image is damaged, right-click its screenshot in the list and select \"Delete "
    "Preview Image\", and then view it in \"Real.\" mode.  \"Delete All Preview Images\" deletes "
    "all of them at once.  Your screenshots stay in either case.";

constexpr std::string_view kListAll =
    "There are two reasons for this.\r\n\r\n"
    "Zentar turns it on whenever you switch to another mod or game, so that you don't wonder where "
    "your demos are.  If you don't want that, select \"Preferences...\" from the \"Program\" menu "
    "and uncheck \"Automatically show all demos when initially switching to a different game "
    "mod.\"\r\n\r\n"
    "Zentar also turns it on when you select a \".dm_66\" demo, as Quake 3 v1.29f and higher "
    "records them.  These are compressed, so no phrase can be found in them and the demo filter is "
    "greyed.  Select a demo of another kind, and you can uncheck \"List all available demos.\" "
    "again.";

constexpr std::string_view kBlackName =
    "If you use black characters in your player name, Quake 3 shows an up-arrow (^) in another "
    "colour before them.  This is not a bug of Zentar: Quake 3 doesn't allow black in player names "
    "and removes its code (^0).  Zentar therefore uses a code that the game lets through (^^0), "
    "and the first of its two up-arrows is what you see.\r\n\r\n"
    "There is one such up-arrow for each string of black characters, so keep them together, or use "
    "another colour.\r\n\r\n"
    "If you play 'OSP' mods, check \"Make black text compatible with Quake 3 'OSP' mods.\" on the "
    "\"Q3 Text\" tab.  These have a black of their own (^8), which needs no up-arrow.\r\n\r\n"
    "Server names and speech are not affected: there, Quake 3 allows black.";

constexpr HelpTopic kTopics[] = {
    {"Zentar Seems Very Slow To Start When Launching", kSlowStart},
    {"Zentar Seems Very Slow When Switching Mods", kSlowMods},
    {"No Screenshots Or Demos Are Being Listed", kNothingListed},
    {"Screenshots Are Not Being Shown In Their Entirety", kNotEntire},
    {"Screenshot Previews Sometimes Look Scrambled", kScrambled},
    {"'List All Available Demos' Keeps Turning On By Itself", kListAll},
    {"Black Characters In Your Quake 3 Player Name", kBlackName},
};

}  // namespace

std::span<const HelpTopic> TroubleshootingTopics() { return kTopics; }

}  // namespace zentar
