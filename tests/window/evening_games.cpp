#include "tests/window/evening_games.h"

#include "core/text.h"
#include "ui/resource.h"

namespace zentar::window_tests {
namespace {

EveningGame Quake1() {
    return {.option = IDC_optGameQuake1,
            .name = "Quake1",
            .folder = "Games/Quake/",
            .mod = "id1",
            .otherMod = "ctf",
            .shots = "Games/Quake/id1/",
            .demos = "Games/Quake/id1/",
            .demoExtensions = {".dem"},
            .shot = "quake00.pcx",
            .otherShot = "quake01.pcx",
            .played = "speedrun e1m1",
            .renamed = "no level name",
            .mapped = "dm3 duel",
            .map = "dm3",
            .copied = "дуэль",
            .phrase = "dm3",
            .log = "Games/Quake/id1/qconsole.log",
            .players = {"PackFile", "\xC5\xED\xE2\xE5\xF2", "Bob [\x90\x91]"},
            .said = {{"Playing registered version."},
                     {"PackFile: c:/games/quake/id1/pak0.pak : gfx.wad", 1},
                     {"Server using protocol 15"},
                     {"\xC5\xED\xE2\xE5\xF2 entered the game"},
                     {"\xC5\xED\xE2\xE5\xF2: hello there", 2},
                     {"Bob [\x90\x91]: hi \xC5\xED\xE2\xE5\xF2", 3},
                     {"Bob [\x90\x91] rides \xC5\xED\xE2\xE5\xF2's rocket"},
                     {"\xC5\xED\xE2\xE5\xF2: nice: one", 2}}};
}

// Its shots and demos are played with at greater length.
EveningGame Quake2() {
    return {.option = IDC_optGameQuake2,
            .name = "Quake2",
            .folder = "Games/Quake2/",
            .mod = "baseq2",
            .otherMod = "ctf",
            .shots = "Games/Quake2/baseq2/scrnshot/",
            .demos = "Games/Quake2/baseq2/demos/",
            .demoExtensions = {".dm2"},
            .shot = {},
            .otherShot = {},
            .played = {},
            .renamed = {},
            .mapped = {},
            .map = {},
            .copied = {},
            .phrase = "base1",
            .log = "Games/Quake2/baseq2/condump.txt",
            .players = {"Fred", "Bob <3", "Fragger"},
            .said = {{"==== InitGame ===="},
                     {"Fred entered the game"},
                     {"Bob <3 entered the game"},
                     {"Fred: gl & hf", 1},
                     {"Bob <3: you too <b>Fred</b>", 2},
                     {"Bob <3 was railed by Fred"},
                     {"(Fred): the armour is gone", 1},
                     {"Fragger: \"gg\"", 3},
                     {"fraglimit hit."},
                     {"Fred: gg", 1}}};
}

EveningGame Quake3() {
    return {.option = IDC_optGameQuake3,
            .name = "Quake3",
            .folder = "Games/Quake3/",
            .mod = "baseq3",
            .otherMod = "osp",
            .shots = "Games/Quake3/baseq3/screenshots/",
            .demos = "Games/Quake3/baseq3/demos/",
            .demoExtensions = {".dm3", ".dm_48", ".dm_66"},
            .shot = "shot0000.tga",
            .otherShot = "shot0001.tga",
            .played = "tourney ",
            .renamed = "untitled",
            .mapped = "tourney ",
            .map = "q3tourney2",
            .copied = "дуэль ",
            .phrase = "q3dm6",
            .log = "Games/Quake3/baseq3/qconsole.log",
            .players = {"InitGame", "EmberFox", "Ice (Rail)", "Ice"},
            .said = {{"logfile opened on Sat Nov 21 20:15:00 2026"},
                     {"InitGame: \\mapname\\q3dm17", 1},
                     {"EmberFox entered the game"},
                     {"EmberFox: hello", 2},
                     {"Ice (Rail): take the rail", 3},
                     {"Ice to EmberFox: psst", 2},
                     {"EmberFox: typed in the console", 2},
                     {"Ice was railgunned by EmberFox"},
                     {"ShutdownGame:"}}};
}

}  // namespace

const std::array<EveningGame, 3>& EveningGames() {
    static const std::array<EveningGame, 3> games = {Quake1(), Quake2(), Quake3()};
    return games;
}

std::string DemoFile(const EveningGame& game, const std::string& entry) {
    const std::size_t name = entry.find_last_not_of(' ') + 1;
    return game.demos + entry.substr(0, name) + game.demoExtensions.at(entry.size() - name);
}

std::string DemoEntry(const EveningGame& game, const std::string& file) {
    if (!file.starts_with(game.demos) || file.find('/', game.demos.size()) != std::string::npos) {
        return {};
    }
    for (std::size_t blanks = 0; blanks < game.demoExtensions.size(); ++blanks) {
        const std::string& extension = game.demoExtensions[blanks];
        if (EndsWithAnyCase(file, extension)) {
            const std::size_t length = file.size() - game.demos.size() - extension.size();
            return file.substr(game.demos.size(), length) + std::string(blanks, ' ');
        }
    }
    return {};
}

}  // namespace zentar::window_tests
