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

// Without a caret in the text, stripping its code gives the text back. The OSP mods' black is no
// code of the game.
void CheckThereAndBack(std::string_view bytes) {
    constexpr std::array<ColourRef, 8> kColours = {kQ3Black, kQ3Red,  kQ3Green,   kQ3Yellow,
                                                   kQ3Blue,  kQ3Cyan, kQ3Magenta, kQ3White};
    RichText text;
    std::string plain;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const char letter = static_cast<char>(bytes[i] & 0x7F);
        const char character = letter == '^' ? 'c' : letter;
        text.endColour = kColours[static_cast<unsigned char>(bytes[i + 1]) % kColours.size()];
        text.runs.push_back({std::string(1, character), text.endColour});
        plain += character;
    }
    for (int type = 0; type < 6; ++type) {
        const std::string code =
            BuildQ3TextCode(text, {.type = static_cast<Q3TextType>(type), .keyfox = true});
        Require(StripColourCodes(code).ends_with(" " + plain));
        Require(code.size() <= plain.size() * 4 + 32);
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
    CheckThereAndBack(bytes);
    return 0;
}
