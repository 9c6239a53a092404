#include "platform/win32/win32_text.h"

#include <cstddef>
#include <cstdint>

#include "platform/utf8.h"

namespace zentar {
namespace {

constexpr std::uint32_t kReplacement = 0xFFFD;
constexpr std::uint32_t kFirstHigh = 0xD800;
constexpr std::uint32_t kFirstLow = 0xDC00;
constexpr std::uint32_t kLastSurrogate = 0xDFFF;

bool IsHigh(std::uint32_t unit) { return unit >= kFirstHigh && unit < kFirstLow; }
bool IsLow(std::uint32_t unit) { return unit >= kFirstLow && unit <= kLastSurrogate; }

// How many bytes follow a leading byte, or -1 when it cannot lead.
int FollowingBytes(std::uint8_t lead) {
    if (lead < 0x80) {
        return 0;
    }
    if (lead >= 0xC2 && lead <= 0xDF) {
        return 1;
    }
    if (lead >= 0xE0 && lead <= 0xEF) {
        return 2;
    }
    return lead >= 0xF0 && lead <= 0xF4 ? 3 : -1;
}

bool IsShortestForm(std::uint32_t point, int following) {
    constexpr std::uint32_t kSmallest[] = {0, 0x80, 0x800, 0x10000};
    return point >= kSmallest[following] && point <= 0x10FFFF;
}

// Takes one code point off the text at `at`, which it moves behind it.
std::uint32_t NextPoint(std::string_view text, std::size_t& at) {
    const auto lead = static_cast<std::uint8_t>(text[at++]);
    const int following = FollowingBytes(lead);
    if (following <= 0) {
        return following == 0 ? lead : kReplacement;
    }
    std::uint32_t point = lead & (0x3FU >> following);
    std::size_t next = at;
    for (int i = 0; i < following; ++i, ++next) {
        if (next >= text.size() || (static_cast<std::uint8_t>(text[next]) & 0xC0U) != 0x80U) {
            return kReplacement;
        }
        point = (point << 6U) | (static_cast<std::uint8_t>(text[next]) & 0x3FU);
    }
    if (!IsShortestForm(point, following)) {
        return kReplacement;
    }
    at = next;
    return point;
}

void AppendUtf16(std::uint32_t point, std::wstring& into) {
    if (point < 0x10000) {
        into.push_back(static_cast<wchar_t>(point));
        return;
    }
    into.push_back(static_cast<wchar_t>(kFirstHigh + ((point - 0x10000) >> 10U)));
    into.push_back(static_cast<wchar_t>(kFirstLow + ((point - 0x10000) & 0x3FFU)));
}

}  // namespace

void WidenInto(std::string_view utf8, std::wstring& into) {
    into.clear();
    into.reserve(utf8.size());
    for (std::size_t at = 0; at < utf8.size();) {
        AppendUtf16(NextPoint(utf8, at), into);
    }
}

void NarrowInto(std::wstring_view utf16, std::string& into) {
    into.clear();
    into.reserve(utf16.size());
    for (std::size_t at = 0; at < utf16.size(); ++at) {
        std::uint32_t point = utf16[at];
        if (IsHigh(point) && at + 1 < utf16.size() && IsLow(utf16[at + 1])) {
            ++at;
            point = 0x10000 + ((point - kFirstHigh) << 10U) + (utf16[at] - kFirstLow);
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
