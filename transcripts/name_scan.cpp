#include "transcripts/name_scan.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>

#include "core/settings.h"
#include "transcripts/speech_line.h"

namespace zentar {

std::vector<std::string> ScanForNames(ConsoleLines& lines, bool quake3) {
    std::vector<std::string> names;
    while (names.size() < kPlayerBoxes) {
        const std::optional<std::string_view> line = lines.Next();
        if (!line) {
            break;
        }
        std::optional<std::string> name = SpeakerOf(*line, quake3);
        // A box without a name is a free one, so nobody can be nameless.
        if (name && !name->empty() && std::find(names.begin(), names.end(), *name) == names.end()) {
            names.push_back(std::move(*name));
        }
    }
    return names;
}

}  // namespace zentar
