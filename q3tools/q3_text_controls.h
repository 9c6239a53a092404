// The controls of the Q3 Text tab.
#pragma once

#include <array>
#include <cstddef>

#include "core/settings.h"
#include "platform/controls.h"

namespace zentar {

inline constexpr std::size_t kQ3Colours = 8;

struct Q3TextControls {
    RichTextBox& rtbQ3Text;
    // Black, red, green, yellow, blue, cyan, magenta, white.
    std::array<Button*, kQ3Colours> cmdColour;
    std::array<OptionButton*, kQ3TextTypes> optQ3Text;  // in the order of their numbers
    CheckBox& chkQ3TextKeyfox;
    CheckBox& chkQ3TextOSP;
    TextBox& txtQ3TextCode;
    Button& cmdQ3TextSave;
    Button& cmdQ3TextOpen;
    Button& cmdQ3TextClipboard;
    Button& cmdQ3TextQ3Config;
    CheckBox& chkQ3TextAddSlash;
};

}  // namespace zentar
