#include "core/game_text.h"

#include <cstddef>
#include <optional>

#include "platform/code_page.h"
#include "platform/utf8.h"

namespace zentar {
namespace {

// The length of the UTF-8 sequence that starts here, as its first byte says; cut at the text's end.
std::size_t SequenceLength(std::string_view text, std::size_t at) {
    const auto lead = static_cast<unsigned char>(text[at]);
    std::size_t length = 1;
    if (lead >= 0xF0) {
        length = 4;
    } else if (lead >= 0xE0) {
        length = 3;
    } else if (lead >= 0xC0) {
        length = 2;
    }
    return length < text.size() - at ? length : text.size() - at;
}

char32_t DecodeSequence(std::string_view sequence) {
    const auto lead = static_cast<unsigned char>(sequence[0]);
    if (sequence.size() == 1) {
        return lead;
    }
    char32_t point = lead & (0xFFU >> (sequence.size() + 1));
    for (const char c : sequence.substr(1)) {
        point = (point << 6U) | (static_cast<unsigned char>(c) & 0x3FU);
    }
    return point;
}

}  // namespace

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
    for (std::size_t at = 0; at < utf8.size();) {
        const std::string_view sequence = utf8.substr(at, SequenceLength(utf8, at));
        if (const auto byte = ByteOfCodePoint(DecodeSequence(sequence))) {
            bytes += static_cast<char>(*byte);
        } else {
            bytes += sequence;
        }
        at += sequence.size();
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
