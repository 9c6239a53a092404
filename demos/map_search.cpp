#include "demos/map_search.h"

#include "core/game_text.h"
#include "core/program_info.h"
#include "demos/demo_messages.h"
#include "platform/shell.h"
#include "platform/window_services.h"

namespace zentar {
namespace {

// Browsers and shells take addresses of about 2,000 characters; no level has a name that long.
constexpr std::size_t kLongestWords = 1500;

bool StandsForItself(char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '-' ||
           c == '.' || c == '_' || c == '~' || c == '+';
}

// The UTF-8 of one character, or the byte itself where it begins none.
std::size_t CharacterLength(std::string_view text, std::size_t at) {
    std::size_t length = 1;
    while (at + length < text.size() && (static_cast<unsigned char>(text[at + length]) >> 6) == 2) {
        ++length;
    }
    return length;
}

std::string PercentEncoded(std::string_view character) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string encoded;
    for (const char c : character) {
        const auto byte = static_cast<unsigned char>(c);
        encoded += {'%', kDigits[byte >> 4], kDigits[byte & 15]};
    }
    return encoded;
}

}  // namespace

std::string MapSearchAddress(std::string_view words) {
    const std::string text = GameTextToUtf8(words);
    std::string encoded;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t length = CharacterLength(text, at);
        const std::string_view character = std::string_view(text).substr(at, length);
        const std::string next = length == 1 && StandsForItself(character[0])
                                     ? std::string(character)
                                     : PercentEncoded(character);
        if (encoded.size() + next.size() > kLongestWords) {
            break;
        }
        encoded += next;
        at += length;
    }
    return std::string(kMapSearch) + encoded;
}

void MapSearch::mnuDemosSearchAll_Click() {
    Open(list_.SelectedDemo().Map + "+" + list_.SelectedDemo().SearchTerm);
}

void MapSearch::mnuDemosSearchDesc_Click() { Open(list_.SelectedDemo().SearchTerm); }

void MapSearch::mnuDemosSearchMap_Click() { Open(list_.SelectedDemo().Map); }

void MapSearch::Open(const std::string& words) {
    if (!platform_.shell.OpenAddress(MapSearchAddress(words)).Ok()) {
        platform_.windows.Ask(messages::BrowserNotOpened());
    }
}

}  // namespace zentar
