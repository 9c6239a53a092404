#include "platform/win32/win32_text.h"

#include <cstddef>
#include <optional>

#include "platform/utf16.h"
#include "platform/utf8.h"

namespace zentar {
namespace {

void AppendUtf16(char32_t point, std::wstring& into) {
    if (point < 0x10000) {
        into.push_back(static_cast<wchar_t>(point));
        return;
    }
    into.push_back(static_cast<wchar_t>(FirstHalfOf(point)));
    into.push_back(static_cast<wchar_t>(SecondHalfOf(point)));
}

}  // namespace

void WidenInto(std::string_view utf8, std::wstring& into) {
    into.clear();
    into.reserve(utf8.size());
    while (!utf8.empty()) {
        const std::optional<Utf8Character> first = FirstUtf8(utf8);
        AppendUtf16(first ? first->point : kReplacementCharacter, into);
        utf8.remove_prefix(first ? first->length : 1);
    }
}

void NarrowInto(std::wstring_view utf16, std::string& into) {
    into.clear();
    into.reserve(utf16.size());
    for (std::size_t at = 0; at < utf16.size(); ++at) {
        char32_t point = utf16[at];
        if (IsFirstHalf(point) && at + 1 < utf16.size() && IsSecondHalf(utf16[at + 1])) {
            ++at;
            point = JoinHalves(point, utf16[at]);
        }
        AppendUtf8(into, point);
    }
}

std::wstring Widen(std::string_view utf8) {
    std::wstring text;
    WidenInto(utf8, text);
    return text;
}

std::string Narrow(std::wstring_view utf16) {
    std::string text;
    NarrowInto(utf16, text);
    return text;
}

}  // namespace zentar
