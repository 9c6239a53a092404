#include "tests/window/game_log.h"

#include <sstream>

#include "tests/window/zentar_home.h"

namespace zentar::window_tests {

void PrintTo(const GameStart& start, std::ostream* out) {
    *out << start.commandLine << " in " << start.folder << ", window " << start.state;
}

std::vector<GameStart> StartsIn(const std::filesystem::path& gameFolder) {
    std::istringstream log(ReadBytes(gameFolder / "standin.log"));
    const auto line = [&log] {
        std::string text;
        std::getline(log, text);
        return text.substr(0, text.find('\r'));
    };
    std::vector<GameStart> starts;
    while (log.peek() != std::istringstream::traits_type::eof()) {
        GameStart start{line(), line(), line()};
        if (line().empty() && !start.state.empty()) {
            starts.push_back(start);
        }
    }
    return starts;
}

void SetGameSeconds(const std::filesystem::path& gameFolder, int seconds) {
    WriteBytes(gameFolder / "standin.seconds", std::to_string(seconds));
}

}  // namespace zentar::window_tests
