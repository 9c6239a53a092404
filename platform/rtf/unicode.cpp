#include "platform/rtf/unicode.h"

#include <optional>

#include "platform/utf16.h"
#include "platform/utf8.h"

namespace zentar {

char32_t TakeUtf8(std::string_view& text) {
    const std::optional<Utf8Character> first = FirstUtf8(text);
    const bool valid = first && !IsFirstHalf(first->point) && !IsSecondHalf(first->point);
    text.remove_prefix(valid ? first->length : 1);
    return valid ? first->point : kReplacementCharacter;
}

}  // namespace zentar
