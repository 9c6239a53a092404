#include "core/game_text.h"

#include <cstddef>
#include <optional>

#include "platform/code_page.h"
#include "platform/utf8.h"

namespace zentar {

std::string GameTextToUtf8(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    for (const char c : bytes) {
        AppendUtf8(text, CodePointOfByte(static_cast<unsigned char>(c)));
    }
    return text;
}

std::string Utf8ToGameText(std::string_view utf8) {
    std::string bytes;
    bytes.reserve(utf8.size());
    while (!utf8.empty()) {
        const std::optional<Utf8Character> first = FirstUtf8(utf8);
        const std::size_t length = first ? first->length : 1;
        const auto byte = first ? ByteOfCodePoint(first->point) : std::nullopt;
        if (byte) {
            bytes += static_cast<char>(*byte);
        } else {
            bytes += utf8.substr(0, length);
        }
        utf8.remove_prefix(length);
    }
    return bytes;
}

std::string GameTextOnOneLine(std::string_view bytes) {
    std::string line(bytes);
    for (char& c : line) {
        if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F) {
            c = ' ';
        }
    }
    return GameTextToUtf8(line);
}

}  // namespace zentar
