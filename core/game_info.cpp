#include "core/game_info.h"

namespace zentar {
namespace {

// A stretch of map names: a stem alone, or the stem with each number from first to last.
struct MapNameRun {
    std::string_view stem;
    int first = 0;
    int last = -1;  // below first: the stem stands alone
};

using MapNameRuns = std::vector<MapNameRun>;

const MapNameRuns& Quake1Maps() {
    static const MapNameRuns runs = {{"ctf", 1, 8}, {"dm", 1, 6},  {"end"},       {"e1m", 1, 8},
                                     {"e2m", 1, 7}, {"e3m", 1, 7}, {"e4m", 1, 8}, {"start"}};
    return runs;
}

const MapNameRuns& Quake2Maps() {
    static const MapNameRuns runs = {
        {"base", 1, 3},   {"base64"},      {"biggun"},      {"boss", 1, 2}, {"bunk1"},
        {"city", 1, 3},   {"city64"},      {"command"},     {"cool1"},      {"fact", 1, 3},
        {"hangar", 1, 2}, {"jail", 1, 5},  {"lab"},         {"match1"},     {"mine", 1, 4},
        {"mintro"},       {"power", 1, 2}, {"q2ctf", 1, 4}, {"q2ctf4a"},    {"q2ctf", 5, 8},
        {"q2dm", 1, 8},   {"security"},    {"sewer64"},     {"space"},      {"strike"},
        {"train"},        {"ware", 1, 2},  {"waste", 1, 3}};
    return runs;
}

// The two key names find the demos of one network generation: the 1.17-era game spells it wrongly.
const MapNameRuns& Quake3Maps() {
    static const MapNameRuns runs = {{"g_synchronousClients"},
                                     {"g_syncronousClients"},
                                     {"q3ctf", 1, 4},
                                     {"q3dm", 0, 18},
                                     {"q3tourney", 1, 6}};
    return runs;
}

}  // namespace

std::string GameInfo::BaseArgument() const { return " \"" + std::string(baseMod) + "\""; }

std::vector<std::string> GameInfo::MapNames() const {
    const MapNameRuns& runs = id == kQuake1   ? Quake1Maps()
                              : id == kQuake2 ? Quake2Maps()
                                              : Quake3Maps();
    std::vector<std::string> names;
    for (const MapNameRun& run : runs) {
        if (run.last < run.first) {
            names.emplace_back(run.stem);
        }
        for (int number = run.first; number <= run.last; ++number) {
            names.push_back(std::string(run.stem) + std::to_string(number));
        }
    }
    return names;
}

const std::array<GameInfo, kGameCount>& AllGames() {
    static const std::array<GameInfo, kGameCount> games = {{
        {kQuake1, "glquake.exe", "id1", ".dem", "", "", "Quake 1"},
        {kQuake2, "quake2.exe", "baseq2", ".dm2", "demos\\", "scrnshot\\", "Quake 2"},
        {kQuake3, "quake3.exe", "baseq3", ".dm3", "demos\\", "screenshots\\", "Quake 3"},
    }};
    return games;
}

int GameIndex(std::string_view id) {
    for (std::size_t i = 0; i < kGameCount; ++i) {
        if (AllGames()[i].id == id) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

}  // namespace zentar
