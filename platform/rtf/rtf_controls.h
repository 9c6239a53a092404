// What the control words of rich text mean to a reader of characters and colours.
#pragma once

#include <string_view>

namespace zentar {

// The character that a control stands for, a control character for one that breaks the text; 0 for
// any other control.
char32_t CharacterOfControl(std::string_view name);

// Whether the rest of its group is something else than text that the editor shows: fonts, pictures,
// page headers and the like.
bool BeginsOtherThanText(std::string_view name);

}  // namespace zentar
