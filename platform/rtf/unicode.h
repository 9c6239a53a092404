// UTF-8, character by character.
#pragma once

#include <string>
#include <string_view>

namespace zentar {

// Stands for what is no character.
inline constexpr char32_t kReplacementCharacter = 0xFFFD;

// `point` must be a character: neither a surrogate nor beyond U+10FFFF.
void AppendUtf8(std::string& text, char32_t point);

// Takes the first character off a text that is not empty. Of bytes that are no UTF-8 it takes one,
// which becomes U+FFFD.
char32_t TakeUtf8(std::string_view& text);

}  // namespace zentar
