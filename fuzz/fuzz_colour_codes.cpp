// The colour codes of Quake 3: taken out of game text, and put in for a coloured text.
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "fuzz/require.h"
#include "q3tools/colour_codes.h"
#include "tests/unit/q3tools/plain_strip.h"

namespace {

using namespace zentar;
using fuzz::Require;

constexpr ColourRef kOtherColour = 0x123456;

std::string Replaced(std::string text, std::string_view what, std::string_view with) {
    for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += with.size()) {
        text.replace(at, what.size(), with);
    }
    return text;
}

// The code of a text without a caret: stripped, it is the text again.
void CheckCode(const RichText& text, const std::string& plain, Q3TextType type) {
    const std::string bare = BuildQ3TextCode(text, {.type = type, .keyfox = true});
    Require(StripColourCodes(bare).ends_with(" " + plain), "bare");
    Require(bare.size() <= plain.size() * 4 + 32, "length");
    const std::string wrapped = BuildQ3TextCode(text, {.type = type});
    Require(StripColourCodes(wrapped).ends_with(plain + '"'), "wrapped");
    // The OSP mods' black is no code of the game.
    const std::string osp = BuildQ3TextCode(text, {.type = type, .osp = true});
    Require(Replaced(osp, "^8", type == Q3TextType::PlayerName ? "^^0" : "^0") == wrapped, "osp");
}

void CheckCodes(std::string_view bytes) {
    constexpr std::array<ColourRef, 9> kColours = {kQ3Black,   kQ3Red,   kQ3Green,
                                                   kQ3Yellow,  kQ3Blue,  kQ3Cyan,
                                                   kQ3Magenta, kQ3White, kOtherColour};
    RichText text;
    std::string plain;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const char letter = static_cast<char>(bytes[i] & 0x7F);
        const char character = letter == '^' ? 'c' : letter;
        const ColourRef colour =
            kColours[static_cast<unsigned char>(bytes[i + 1]) % kColours.size()];
        // The first character in a colour that the game does not have is left out.
        if (colour != kOtherColour || (!text.runs.empty() && text.endColour == kOtherColour)) {
            plain += character;
        }
        text.endColour = colour;
        text.runs.push_back({std::string(1, character), colour});
    }
    for (int type = 0; type < 6; ++type) {
        CheckCode(text, plain, static_cast<Q3TextType>(type));
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const std::string stripped = StripColourCodes(bytes);
    Require(stripped == PlainStrip(bytes));
    // Only carets and digits are taken out.
    const auto text = [](std::string all) {
        std::erase_if(all, [](char c) { return c == '^' || (c >= '0' && c <= '7'); });
        return all;
    };
    Require(text(stripped) == text(bytes));
    CheckCodes(bytes);
    return 0;
}
