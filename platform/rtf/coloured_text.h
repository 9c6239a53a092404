// Putting a text of many colours together, character by character.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "platform/rich_text.h"

namespace zentar {

// Whether a character ends a line or controls something; a blank stands in its place.
bool StandsAsBlank(char32_t point);

class ColouredText {
  public:
    explicit ColouredText(std::size_t most) : most_(most) {}

    // A character, or half of one: a surrogate, whose other half is added next; alone it becomes
    // U+FFFD. A blank that stands in another's place is left out at the text's end. Nothing is
    // added to a full text.
    void Add(char32_t unit, ColourRef colour);
    bool IsFull() const { return count_ >= most_; }
    // Ends the text.
    std::vector<ColouredRun> Take();

  private:
    struct Half {
        char32_t unit;
        ColourRef colour;
    };

    void Append(char32_t point, ColourRef colour);
    void AppendAlone();

    std::size_t most_;
    std::size_t count_ = 0;
    std::vector<ColouredRun> runs_;
    // Where the last character ends that stands for itself.
    std::size_t endRuns_ = 0;
    std::size_t endLength_ = 0;
    std::optional<Half> firstHalf_;
};

}  // namespace zentar
