// What of each game's sample files an evening is spent with. Paths begin at the folder of the home.
#pragma once

#include <array>
#include <string>
#include <vector>

namespace zentar::window_tests {

// A line of a log that can come into a transcript, as it stands there.
struct LogLine {
    std::string text;
    int speaker = 0;  // the name box of who says it; 0: the game
};

struct EveningGame {
    int option;        // the control that chooses it
    std::string name;  // as the program calls it
    std::string folder;
    std::string mod;  // the first one
    std::string otherMod;
    std::string shots;                        // folder
    std::string demos;                        // folder
    std::vector<std::string> demoExtensions;  // by how many blanks end the entry in the list

    std::string shot;
    std::string otherShot;

    // Entries of the list of demos, and what is done with them.
    std::string played;
    std::string renamed;
    std::string mapped;
    std::string map;  // of that one
    std::string copied;
    std::string phrase;  // a pre-made one, which some demos hold

    std::string log;
    std::vector<std::string> players;  // as the scan finds them
    std::vector<LogLine> said;
};

// In the program's order.
const std::array<EveningGame, 3>& EveningGames();
inline const EveningGame& EveningQuake2() { return EveningGames()[1]; }

// The file of an entry in the list of demos.
std::string DemoFile(const EveningGame& game, const std::string& entry);
// The entry of a file; empty for what is no demo of the game's first mod.
std::string DemoEntry(const EveningGame& game, const std::string& file);

}  // namespace zentar::window_tests
