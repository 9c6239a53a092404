#include "help/answers.h"

namespace zentar {
namespace {

constexpr std::string_view kRefreshing =
    "(1) Click the \"Shots\" tab.\r\n"
    "(2) Press F5 in the list, or right-click it and select \"Refresh List\".\r\n"
    "(3) If the list is empty, and thus greyed, select your game again from the \"Game\" menu "
    "instead.\r\n"
    "(4) The line below the list counts your screenshots by their types.  An asterisk (*) after a "
    "name in the list marks a screenshot that has a preview image.";

constexpr std::string_view kViewing =
    "(1) Click the \"Shots\" tab.\r\n"
    "(2) Select \"Real.\" to see the screenshots themselves, or \"Preview.\" to see only their "
    "small preview images, which is faster.  \"Preview.\" is shown in red while only those are "
    "shown.\r\n"
    "(3) Click a screenshot in the list.  Whenever you view one in \"Real.\" mode, its preview "
    "image is made anew.  This is a \".zentar\" file of the same name in the same folder.\r\n"
    "(4) In \"Preview.\" mode, a screenshot without a preview image shows only an hourglass.  View "
    "it in \"Real.\" mode once to get one.\r\n"
    "(5) To see only the preview image of a screenshot in \"Real.\" mode, hold down Shift while "
    "you select it.  Press Shift anew for each one.\r\n"
    "(6) To see a screenshot in its full size, click its picture, press Enter in the list, or "
    "right-click it and select \"Show Actual Screenshot\".\r\n"
    "(7) In \"Preview.\" mode there is no full size: pressing Enter only beeps and flashes "
    "\"Preview.\" to point you at the view mode.\r\n"
    "(8) If the screenshot is larger than your screen, drag it with the mouse or use the arrow "
    "keys.  Press Space, Enter or Escape, right-click or double-click to return.\r\n"
    "(9) To see a screenshot's file size, date and dimensions, right-click it and select \"Show "
    "Shot Properties\".  The dimensions are known in \"Real.\" mode only.";

constexpr std::string_view kConverting =
    "(1) Click the \"Shots\" tab.\r\n"
    "(2) Select \"Real.\" and click a TGA or PCX screenshot in the list.\r\n"
    "(3) Right-click it and select \"Make JPG And Keep Original\", or \"Make JPG And Kill "
    "Original\" if you don't need the original any more.  The JPG is put beside it under the same "
    "name.\r\n"
    "(4) For the latter, answer \"Yes\" if the original is really to go.  If you answer \"No\", "
    "the JPG is made all the same but the original is kept.\r\n"
    "(5) If a JPG version already exists, answer \"Yes\" to overwrite it or \"No\" to leave "
    "everything as it is.\r\n"
    "(6) In Expert Mode you are asked neither question, as if you had answered \"Yes\".  In any "
    "case, you are asked before a read-only file is overwritten or deleted.\r\n"
    "(7) If \"Make JPG And Kill Original\" ends with your \"No\" to overwriting, it stays in "
    "force: the next JPG that you make kills its original, whichever entry you select.  Restart "
    "Zentar to prevent that.\r\n"
    "(8) At the end, Zentar shows the sizes of both files and how many bytes were saved.  The "
    "original is only deleted once its JPG is there, whole.";

constexpr std::string_view kWallpaper =
    "(1) Click the \"Shots\" tab.\r\n"
    "(2) Select \"Real.\" and click a screenshot in the list.\r\n"
    "(3) Right-click it and select \"Set As System Wallpaper\".  For a JPG screenshot, right-click "
    "its picture instead, straight after clicking its name.\r\n"
    "(4) If the entry is greyed for the picture of a JPG screenshot, click another screenshot and "
    "then this one again.\r\n"
    "(5) If Zentar has made wallpaper with this name before, answer \"Yes\" to overwrite it (in "
    "Expert Mode you are not asked).\r\n"
    "(6) The wallpaper is saved into your Windows folder, for instance as \"[Zentar] "
    "shot0001.bmp\".  Windows might ask for an administrator's permission first.\r\n"
    "(7) A sound tells you that it is done.  You may delete or rename the screenshot itself "
    "afterwards: the wallpaper stays.";

constexpr std::string_view kRenaming =
    "(1) Click the \"Shots\" tab.\r\n"
    "(2) Click the screenshot in the list.\r\n"
    "(3) Press F2, or right-click it and select \"Rename This Screenshot\".\r\n"
    "(4) Type the new name without its extension and click \"OK\".  These characters can't be "
    "used: \\ / | < > : ? * and the double quote.\r\n"
    "(5) The screenshot's preview image is renamed with it.  A name that another screenshot "
    "already has is refused, so no screenshot can get overwritten.";

constexpr std::string_view kDeleting =
    "(1) Click the \"Shots\" tab.\r\n"
    "(2) Click the screenshot in the list.\r\n"
    "(3) To delete it, press Delete or Backspace, or right-click it and select \"Delete This "
    "Screenshot\".  Its preview image is deleted with it.\r\n"
    "(4) To delete only its preview image, hold down Shift while you press Delete or Backspace, or "
    "right-click it and select \"Delete Preview Image\".  The screenshot stays.\r\n"
    "(5) Answer \"Yes\" when asked.  In Expert Mode (see \"Preferences...\" in the \"Program\" "
    "menu) you are only asked if the file is read-only.\r\n"
    "(6) Deleted files don't go to the Recycle Bin.  A preview image, however, is made anew when "
    "you next view its screenshot in \"Real.\" mode.\r\n"
    "(7) To have the next screenshot selected each time, select \"Preferences...\" from the "
    "\"Program\" menu and check \"Automatically select the next screenshot or image after deleting "
    "the current.\"";

constexpr std::string_view kDeletingType =
    "(1) Click the \"Shots\" tab.\r\n"
    "(2) Right-click the list and select \"Delete All TGA Shots\", \"Delete All PCX Shots\" or "
    "\"Delete All JPG Images\".  Their preview images are usually deleted with them.\r\n"
    "(3) Select \"Delete All Preview Images\" instead to delete all the preview images and no "
    "screenshots, or \"Delete All Images/Shots\" to delete everything that is listed and all the "
    "preview images.\r\n"
    "(4) Answer \"Yes\" when asked.  In Expert Mode you are only asked if some of the files are "
    "read-only: answer \"No\" to keep those.\r\n"
    "(5) Only the current mod's screenshots are deleted.  They don't go to the Recycle Bin.\r\n"
    "(6) Screenshots that only differ in their extension share one preview image.  If one of them "
    "loses it, view it in \"Real.\" mode to get a new one.";

constexpr std::string_view kDeletingWallpaper =
    "(1) Click the \"Shots\" tab.\r\n"
    "(2) Select a mod that has screenshots, right-click its list and select \"Delete Wallpaper "
    "Images\".  It is greyed if there are none to delete.\r\n"
    "(3) Answer \"Yes\" when asked (in Expert Mode you are not).  Windows might ask for an "
    "administrator's permission.\r\n"
    "(4) This deletes the wallpaper that was made by Zentar from your Windows folder and nothing "
    "else.  Your screenshots stay, and so does the desktop setting of Windows.";

constexpr std::string_view kTransferring =
    "(1) Click the \"Shots\" tab.\r\n"
    "(2) If you haven't yet chosen a Remote Folder, select \"Preferences...\" from the \"Program\" "
    "menu and click the \"...\" button to choose one.\r\n"
    "(3) Right-click the screenshot in the list and select \"Copy To Remote Folder\" or \"Move To "
    "Remote Folder\".\r\n"
    "(4) If you are moving it, answer \"Yes\" when asked (in Expert Mode you are not).\r\n"
    "(5) If the Remote Folder already has an image with that name, answer \"Yes\" to overwrite it "
    "or \"No\" to keep it (asked in Expert Mode, too).\r\n"
    "(6) A sound tells you that it is done.  If anything goes wrong, Zentar says so and your "
    "original stays where it is.\r\n"
    "(7) If the Remote Folder is on another drive, moving a screenshot leaves the original in its "
    "folder as well.  Preview images are never copied or moved.";

constexpr HelpTopic kTopics[] = {
    {"Refreshing The Screenshots List", kRefreshing},
    {"Viewing Your Game Screenshots", kViewing},
    {"Converting A Screenshot To JPG Format", kConverting},
    {"Setting A Screenshot As The System Wallpaper", kWallpaper},
    {"Renaming A Screenshot", kRenaming},
    {"Deleting A Screenshot (Or Its Preview Image)", kDeleting},
    {"Deleting All Screenshots Of A Certain Type", kDeletingType},
    {"Deleting All Wallpaper Images", kDeletingWallpaper},
    {"Copying/Moving A Screenshot To Remote Folder", kTransferring},
};

}  // namespace

std::span<const HelpTopic> ScreenshotTopics() { return kTopics; }

}  // namespace zentar
