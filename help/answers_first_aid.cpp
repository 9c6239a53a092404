#include "help/answers.h"

namespace zentar {
namespace {

constexpr std::string_view kIntroduction =
    "The \"First Aid\" tab lists sixteen known problems of the Quake games.  Each problem is "
    "called a symptom, and for most of them Zentar has a remedy that you can apply with one "
    "click.\r\n\r\n"
    "A remedy creates missing files or folders, moves or renames files that are in the way, "
    "changes a setting of Windows, or stops an annoying message of a game.  You could do all of "
    "that yourself, but it is easier this way.\r\n\r\n"
    "The beginning of each symptom tells you which game it belongs to: [Q1], [Q2] or [Q3], or "
    "[ALL] for every game.\r\n\r\n"
    "Looking at symptoms and remedies changes nothing.  Something is only done when you click one "
    "of the two buttons.\r\n\r\n"
    "Some remedies modify the game itself and can't be undone.  Their texts begin with a warning, "
    "so please read them, and keep a copy of your game's executable if you have any doubts.";

constexpr std::string_view kUsing =
    "(1) Click the \"First Aid\" tab.\r\n"
    "(2) Click \"Q1\", \"Q2\" or \"Q3\" to select the game that suffers from the symptom.\r\n"
    "(3) Click the symptom in the list.\r\n"
    "(4) Read the text below the list.  It tells you what causes the symptom and what each of its "
    "remedies does.\r\n"
    "(5) Click \"Apply Remedy #1\" or \"Apply Remedy #2\".  A button is greyed if there is no such "
    "remedy or nothing that it could do.\r\n"
    "(6) For the two multiplayer connection errors, \"Apply Remedy #1\" only selects Quake 3.  "
    "Zentar can't look for a newer version of the game: please do that yourself.\r\n"
    "(7) Answer the questions, if there are any.  Windows might ask for an administrator's "
    "permission.\r\n"
    "(8) A sound tells you that it is done, and a message or a different sound that it couldn't be "
    "done.\r\n"
    "(9) Stray files that are in use or protected stay where they are, without a word.\r\n"
    "(10) Start your game to see whether the symptom is gone.";

constexpr HelpTopic kTopics[] = {
    {"Introduction To First Aid", kIntroduction},
    {"How To Use First Aid", kUsing},
};

}  // namespace

std::span<const HelpTopic> FirstAidTopics() { return kTopics; }

}  // namespace zentar
