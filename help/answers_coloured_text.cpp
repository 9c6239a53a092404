#include "help/answers.h"

namespace zentar {
namespace {

constexpr std::string_view kCreating =
    "(1) Click the \"Q3 Text\" tab.\r\n"
    "(2) Type your name or speech into the orange box.  Avoid double quotes, which Quake 3 can't "
    "have there: they turn into apostrophes, and your whole text turns black again.\r\n"
    "(3) Select the characters whose colour you wish to change, and click one of the eight colour "
    "boxes.  If nothing is selected, the colour counts for what you type next.\r\n"
    "(4) Select what the text is for: \"Player name.\", \"Server name.\", \"Public speech.\", "
    "\"Team speech.\", \"Attacker speech.\" or \"Target speech.\"\r\n"
    "(5) Check \"Make black text compatible with Quake 3 'OSP' mods.\" if you play those.\r\n"
    "(6) Check \"Make all text compatible with 'Keyfox' from its maker's web site.\" only if the "
    "code is for that program: it is shorter and isn't bound to a key.\r\n"
    "(7) Click \"Clipboard\" to copy the code.  If you want to paste it into Quake 3's console, "
    "check \"Include a leading backslash when copying to clipboard.\" first.\r\n"
    "(8) Or exit Quake 3 and click \"Q3Config\" to add the code to the end of \"q3config.cfg\".\r\n"
    "(9) Answer \"Yes\" when asked.  In Expert Mode you are only asked if \"q3config.cfg\" is "
    "read-only.\r\n"
    "(10) Speech is bound to the Pause key for you to test it: press that in the game to say it.";

constexpr std::string_view kSaving =
    "(1) Click the \"Q3 Text\" tab.\r\n"
    "(2) Click \"Save As...\".  It is greyed while there is no text.\r\n"
    "(3) Type a name, or keep the one suggested, and click \"Save\".  The suggestion is your text, "
    "with codes in square brackets for characters that file names can't have.\r\n"
    "(4) If a coloured text with that name exists, answer \"Yes\" to overwrite it (in Expert Mode "
    "you are only asked if it is read-only).\r\n"
    "(5) The coloured text that you saved or opened last is there again when you next start "
    "Zentar.";

constexpr std::string_view kOpening =
    "(1) Click the \"Q3 Text\" tab.\r\n"
    "(2) If there is a text in the orange box that you want to keep, save it first: it gets "
    "replaced.\r\n"
    "(3) Click \"Open...\".\r\n"
    "(4) Select the coloured text and click \"Open\".\r\n"
    "(5) Select what the text is for (\"Player name.\" for instance), as this isn't saved with it.";

constexpr std::string_view kRenaming =
    "(1) Click the \"Q3 Text\" tab.\r\n"
    "(2) Click \"Open...\", which shows all your coloured texts.\r\n"
    "(3) Click the coloured text in question once and press F2.\r\n"
    "(4) Type the new name and press Enter.  If the old name ends in \".ini\", so must the new "
    "one.\r\n"
    "(5) Click \"Cancel\", so that nothing gets opened.";

constexpr std::string_view kDeleting =
    "(1) Click the \"Q3 Text\" tab.\r\n"
    "(2) Click \"Open...\", which shows all your coloured texts.\r\n"
    "(3) Click the coloured text in question once and press Delete.  Windows might ask you whether "
    "you are sure.\r\n"
    "(4) Click \"Cancel\", so that nothing gets opened.";

constexpr HelpTopic kTopics[] = {
    {"Creating A Coloured Name Or Speech Message", kCreating},
    {"Saving Your Coloured Text For Later Editing", kSaving},
    {"Opening Your Saved Coloured Text For Re-Editing", kOpening},
    {"Renaming Your Saved Coloured Text", kRenaming},
    {"Deleting Unwanted Saved Coloured Text", kDeleting},
};

}  // namespace

std::span<const HelpTopic> ColouredTextTopics() { return kTopics; }

}  // namespace zentar
