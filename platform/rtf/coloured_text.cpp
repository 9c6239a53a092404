#include "platform/rtf/coloured_text.h"

#include <utility>

#include "platform/rtf/unicode.h"
#include "platform/utf16.h"
#include "platform/utf8.h"

namespace zentar {

bool StandsAsBlank(char32_t point) {
    constexpr char32_t kLineSeparator = 0x2028;
    constexpr char32_t kParagraphSeparator = 0x2029;
    return point < ' ' || point == 0x7F || point == kLineSeparator || point == kParagraphSeparator;
}

void ColouredText::Add(char32_t unit, ColourRef colour) {
    if (firstHalf_ && IsSecondHalf(unit)) {
        const char32_t high = std::exchange(firstHalf_, std::nullopt)->unit;
        Append(JoinHalves(high, unit), colour);
        return;
    }
    AppendAlone();
    if (IsFirstHalf(unit)) {
        firstHalf_ = {unit, colour};
    } else {
        Append(IsSecondHalf(unit) || unit > 0x10FFFF ? kReplacementCharacter : unit, colour);
    }
}

void ColouredText::AppendAlone() {
    if (const auto half = std::exchange(firstHalf_, std::nullopt)) {
        Append(kReplacementCharacter, half->colour);
    }
}

void ColouredText::Append(char32_t point, ColourRef colour) {
    if (IsFull()) {
        return;
    }
    ++count_;
    if (runs_.empty() || runs_.back().colour != colour) {
        runs_.push_back({.text = {}, .colour = colour});
    }
    std::string& text = runs_.back().text;
    if (StandsAsBlank(point)) {
        text += ' ';
        return;
    }
    AppendUtf8(text, point);
    endRuns_ = runs_.size();
    endLength_ = text.size();
}

std::vector<ColouredRun> ColouredText::Take() {
    AppendAlone();
    runs_.resize(endRuns_);
    if (!runs_.empty()) {
        runs_.back().text.resize(endLength_);
    }
    return std::move(runs_);
}

}  // namespace zentar
