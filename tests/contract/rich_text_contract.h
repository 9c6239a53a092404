// Colours and contents for the assertions on boxes of text in many colours.
#pragma once

#include "tests/contract/controls_contract.h"

namespace zentar {

inline constexpr ColourRef kRed = 0x0000FF;
inline constexpr ColourRef kGreen = 0x00FF00;
inline constexpr ColourRef kOrange = 0x006CD8;

using Runs = std::vector<ColouredRun>;

// What a box gives back of runs that differ in colour from their neighbours.
inline RichText Rich(const Runs& runs) {
    return {runs, runs.empty() ? kBlack : runs.back().colour};
}

}  // namespace zentar
