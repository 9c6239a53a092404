#include <array>
#include <string>

#include "core/program_info.h"
#include "help/answers.h"

namespace zentar {
namespace {

// Names the program, its makers and their web site.
std::string AuthorDetails() {
    return std::string(kVersionLine) + "\r\n\r\nMade by:\r\n" + std::string(kAuthors) +
           "\r\n\r\nWeb site:\r\n" + std::string(kWebSite) +
           "\r\n\r\n"
           "Questions, ideas and reports of problems are always welcome.  Please send them through "
           "the web site above.\r\n\r\n"
           "LEGAL INFORMATION\r\n\r\n"
           "Zentar is provided as it is, without warranty of any kind.  You use it at your own "
           "risk: its makers can't be held liable for any loss or damage that comes from using "
           "it.\r\n\r\n"
           "Zentar deletes, renames and moves files, and modifies games, but only when you tell it "
           "to.  Please keep copies of the files that matter to you.\r\n\r\n"
           "Zentar is not part of the Quake games and contains none of their files, so you need "
           "the "
           "games themselves to use it.  Quake, Quake 2, Quake 3: Arena and all other names of "
           "products and companies belong to their respective owners.\r\n\r\n"
           "Click the \"Back\" button below to see all the help topics.";
}

constexpr std::string_view kGames =
    "Zentar supports these games, each with all of its mods:\r\n\r\n"
    "Quake 1, the OpenGL version (\"glquake.exe\").\r\n"
    "Quake 2 (\"quake2.exe\").\r\n"
    "Quake 3: Arena (\"quake3.exe\").\r\n\r\n"
    "Zentar must know where your games are.  To tell it, select a game from the \"Game\" menu and "
    "then select \"Specify Folder...\" from the same menu.  \"Current Folders\" shows what Zentar "
    "knows so far.\r\n\r\n"
    "Zentar works with one game and one of its mods at a time.  Click \"Q1\", \"Q2\" or \"Q3\" to "
    "switch to another game, and a folder below \"Mod Selection:\" to switch to another "
    "mod.\r\n\r\n"
    "The \"Shots\" tab is for the TGA, JPG and PCX screenshots of all three games.  The \"Demos\" "
    "tab is for their demos: \".dem\" files of Quake 1, \".dm2\" files of Quake 2, and \".dm3\", "
    "\".dm_48\" and \".dm_66\" files of Quake 3.\r\n\r\n"
    "Chat transcripts and First Aid are for all three games.  Demos can be installed for Quake 2 "
    "and Quake 3 only.  Coloured text, single-player backups and the config editor are for Quake 3 "
    "only.";

}  // namespace

std::span<const HelpTopic> ReadFirstTopics() {
    static const std::string author = AuthorDetails();
    static const std::array<HelpTopic, 2> topics = {{
        {kAuthorDetails, author},
        {"Which games does Zentar support?", kGames},
    }};
    return topics;
}

}  // namespace zentar
