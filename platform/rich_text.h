// Text of which each character has a colour.
#pragma once

#include <string>
#include <vector>

#include "platform/colour.h"

namespace zentar {

// Characters of one colour that follow each other. UTF-8.
struct ColouredRun {
    std::string text;
    ColourRef colour = 0;

    bool operator==(const ColouredRun&) const = default;
};

// No run is empty.
struct RichText {
    std::vector<ColouredRun> runs;
    // Of the place behind the last character, where the next one would be typed.
    ColourRef endColour = 0;

    bool operator==(const RichText&) const = default;
};

// How much of a text a box shows and edits, in UTF-16 units. What a game takes at a time is far
// less; with more, some systems' editors need seconds for each key.
inline constexpr int kMostRichText = 16'384;

}  // namespace zentar
