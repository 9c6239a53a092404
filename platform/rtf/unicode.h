// UTF-8, read character by character.
#pragma once

#include <string_view>

namespace zentar {

// Takes the first character off a text that is not empty. Of bytes that are no UTF-8 it takes one,
// which becomes U+FFFD.
char32_t TakeUtf8(std::string_view& text);

}  // namespace zentar
