// The code of every short text, for each use and option, compared with one that grows character by
// character as one would write it down by hand.
#include <array>

#include <gtest/gtest.h>

#include "q3tools/colour_codes.h"

namespace zentar {
namespace {

constexpr std::array<char, 4> kCharacters = {'a', '^', '1', '\''};

struct Coloured {
    ColourRef colour;
    std::string_view code;  // empty where the game does not have the colour
};

constexpr std::array<Coloured, 10> kColours = {{{kQ3Black, "(black)"},
                                                {kQ3Red, "^1"},
                                                {kQ3Green, "^2"},
                                                {kQ3Yellow, "^3"},
                                                {kQ3Blue, "^4"},
                                                {kQ3Cyan, "^5"},
                                                {kQ3Magenta, "^6"},
                                                {kQ3White, "^7"},
                                                {0x123456, ""},
                                                {0x0000FE, ""}}};

// How black is written: in a player name, elsewhere, and for the OSP mods.
constexpr std::array<std::string_view, 3> kBlacks = {"^^0", "^0", "^8"};

constexpr std::array<std::string_view, 6> kWords = {"name ",     "sv_hostname ",   "say ",
                                                    "say_team ", "tell_attacker ", "tell_target "};

constexpr std::size_t kUses = 24;  // six types, with and without each of two options

Q3TextOptions UseOf(std::size_t number) {
    return {static_cast<Q3TextType>(number / 4), number % 2 == 1, number / 2 % 2 == 1};
}

// A text that grows, and what belongs between the command and its end for each way to write black.
struct Growing {
    RichText text;
    std::array<std::string, 3> codes;
    const Coloured* last = nullptr;
    std::size_t length = 0;

    void Add(char character, const Coloured& colour) {
        const bool changes = last != &colour;
        if (changes) {
            text.runs.push_back({"", colour.colour});
        }
        text.runs.back().text += character;
        text.endColour = colour.colour;
        for (std::size_t black = 0; black < kBlacks.size(); ++black) {
            std::string& code = codes[black];
            if (changes) {
                code += colour.colour == kQ3Black ? kBlacks[black] : colour.code;
            }
            if (!changes || !colour.code.empty()) {
                code += character;
            }
        }
        last = &colour;
        ++length;
    }

    std::string Expected(const Q3TextOptions& use) const {
        const bool isName = use.type == Q3TextType::PlayerName;
        const bool isSpeech = use.type >= Q3TextType::PublicSpeech;
        std::string code(use.keyfox ? "" : isSpeech ? "bind pause \"" : "seta ");
        code += kWords[static_cast<std::size_t>(use.type)];
        code += use.keyfox || isSpeech ? "" : "\"";
        code += codes[use.osp ? 2 : isName ? 0 : 1];
        code += last->colour == kQ3White ? "" : "^7";
        return code += use.keyfox ? "" : "\"";
    }
};

class EveryColouredText : public ::testing::Test {
  protected:
    void Check(const Growing& text, std::size_t use) {
        const Q3TextOptions options = UseOf(use);
        const std::string code = BuildQ3TextCode(text.text, options);
        ++checked_;
        if (code != text.Expected(options)) {
            ADD_FAILURE() << code << "\nis not\n" << text.Expected(options);
            failed_ = true;
        }
    }

    // Of every text that is one character longer; the longest get one use each, in turn.
    void CheckLonger(const Growing& shorter, std::size_t colours, std::size_t inEachUse,
                     std::size_t longest) {
        for (const char character : kCharacters) {
            for (std::size_t colour = 0; colour < colours && !failed_; ++colour) {
                Growing text = shorter;
                text.Add(character, kColours[colour]);
                if (text.length > inEachUse) {
                    Check(text, checked_ % kUses);
                }
                for (std::size_t use = 0; use < kUses && text.length <= inEachUse; ++use) {
                    Check(text, use);
                }
                if (text.length < longest) {
                    CheckLonger(text, colours, inEachUse, longest);
                }
            }
        }
    }

    std::size_t checked_ = 0;
    bool failed_ = false;
};

TEST_F(EveryColouredText, OfUpToThreeCharactersIsCodedForEachUse) {
    CheckLonger({}, 10, 3, 3);
    EXPECT_EQ(checked_, 24U * (40 + 40 * 40 + 40 * 40 * 40));
}

TEST_F(EveryColouredText, OfFourCharactersIsCoded) {
    CheckLonger({}, 9, 0, 4);
    EXPECT_EQ(checked_, 36U + 36 * 36 + 36 * 36 * 36 + 36 * 36 * 36 * 36);
}

}  // namespace
}  // namespace zentar
