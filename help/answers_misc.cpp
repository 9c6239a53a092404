#include "help/answers.h"

namespace zentar {
namespace {

constexpr std::string_view kTranscript =
    "(1) Have the game save its console: type \"condump chat\" into it in Quake 2, or \"\\condump "
    "chat.txt\" in Quake 3.  Quake 1 saves a logfile if it is started with \"-condebug\".\r\n"
    "(2) Click \"Q1\", \"Q2\" or \"Q3\" to select the game that the condump or logfile is from, "
    "and then click the \"Misc\" tab.\r\n"
    "(3) Click \"Scan For Names\".  A note tells you that the scan isn't always right: hold down "
    "Shift while you click its \"OK\" to skip it in future.\r\n"
    "(4) Select the condump or logfile.  Zentar replaces the names in the boxes by those of up to "
    "24 players.  If it finds none, it offers to delete the file: answer \"No\" to keep it.\r\n"
    "(5) Delete the names of players whose speech you don't want, and any that are no players.  "
    "You can also type names yourself.  The speech of others is left out.\r\n"
    "(6) Check \"Create transcript as HTML code instead of plain text.\" for colours.  "
    "Double-click "
    "a name, or press F4 in it, to choose the colour of its speech; an empty box gives the "
    "background.\r\n"
    "(7) Check \"Include game messages.\" if you want more than speech.  For HTML code, "
    "double-click \"msgs\" to choose their colour.\r\n"
    "(8) Click \"Create Transcript\".  If you haven't scanned a condump or logfile, select it "
    "now.  Names move up into empty boxes, but colours stay with their boxes.\r\n"
    "(9) The transcript is saved beside the condump or logfile, with \"(transcript)\" added to its "
    "name, and opened.  An older transcript with that name is replaced.\r\n"
    "(10) The condump or logfile stays, with an empty line added to its end.  For a transcript of "
    "another one, scan that for names first.\r\n"
    "(11) Click \"Clear\" to empty all the names, or hold down Shift while you click it to reset "
    "their colours and the background as well.";

constexpr std::string_view kConfigEditing =
    "(1) Exit Quake 3 if it is running: it writes its config file anew by itself, and your changes "
    "would be lost.\r\n"
    "(2) Click the \"Misc\" tab.\r\n"
    "(3) Click \"Edit Quake3 Config\".  It doesn't matter which game is currently selected.\r\n"
    "(4) Zentar rewrites \"q3config.cfg\" in your \"baseq3\" folder so that each setting has a "
    "line of its own, and opens it in Notepad.  A read-only file becomes writable.\r\n"
    "(5) A file that Zentar has rewritten before, and Quake 3 hasn't since, is just opened.\r\n"
    "(6) Change the settings, and save the file in Notepad.\r\n"
    "(7) If Zentar says that the file doesn't exist, start Quake 3 once so that it creates it.";

constexpr std::string_view kBackingUp =
    "(1) Click the \"Misc\" tab.\r\n"
    "(2) Check \"Include name, model, sex, handicap, and railgun values when backing up.\" if you "
    "want more than your progress and awards.\r\n"
    "(3) Click \"Backup\".\r\n"
    "(4) Type a name for the backup and click \"Save\".  If a backup with that name exists, answer "
    "\"Yes\" to overwrite it (in Expert Mode you are only asked if it is read-only).\r\n"
    "(5) A sound tells you that it is done.  Quake 3's own settings are not changed.\r\n"
    "(6) Backups belong in the \"Single-Player Backups\" folder of your Quake 3 folder, which is "
    "the "
    "one that you are shown.";

constexpr std::string_view kRestoring =
    "(1) Exit Quake 3 if it is running: it would overwrite the restored game.\r\n"
    "(2) Click the \"Misc\" tab.\r\n"
    "(3) To keep the game that you are playing at present, back it up first.\r\n"
    "(4) Check \"Include name, model, sex, handicap, and railgun values when backing up.\" to "
    "restore these as well, if they were backed up.\r\n"
    "(5) Click \"Restore\" and answer \"Yes\" when asked (in Expert Mode you are only asked if "
    "\"q3config.cfg\" is read-only).\r\n"
    "(6) Select the backup and click \"Open\".  A sound tells you that it is done.\r\n"
    "(7) The backed-up settings are added to the end of \"q3config.cfg\", where they count more "
    "than those before them.  The backup itself stays as it is.";

constexpr std::string_view kRenamingBackup =
    "(1) Click the \"Misc\" tab.\r\n"
    "(2) Click \"Backup\", which shows all your backups.\r\n"
    "(3) Click the backup in question once and press F2.\r\n"
    "(4) Type the new name and press Enter.  If the old name ends in \".cfg\", so must the new "
    "one.\r\n"
    "(5) Click \"Cancel\", so that nothing gets backed up.";

constexpr std::string_view kDeletingBackup =
    "(1) Click the \"Misc\" tab.\r\n"
    "(2) Click \"Backup\", which shows all your backups.\r\n"
    "(3) Click the backup in question once and press Delete.  Windows might ask you whether you "
    "are sure.\r\n"
    "(4) Click \"Cancel\", so that nothing gets backed up.";

constexpr HelpTopic kTopics[] = {
    {"Creating A Chat Transcript", kTranscript},
    {"User-Friendly \"Q3Config.cfg\" Editing", kConfigEditing},
    {"Backing Up A Quake 3 Single-Player Game", kBackingUp},
    {"Restoring A Backed-Up Quake 3 Single-Player Game", kRestoring},
    {"Renaming A Backed-Up Quake 3 Single-Player Game", kRenamingBackup},
    {"Deleting A Backed-Up Quake 3 Single-Player Game", kDeletingBackup},
};

}  // namespace

std::span<const HelpTopic> MiscToolTopics() { return kTopics; }

}  // namespace zentar
