#include "tests/doubles/file_names.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>

namespace zentar {
namespace {

// The character at `at`, which moves behind it; nothing when the bytes are not UTF-8.
std::optional<char32_t> NextCharacter(std::string_view text, std::size_t& at) {
    const auto first = static_cast<std::uint8_t>(text[at++]);
    if (first < 0x80)
        return first;
    const std::size_t more = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : 1;
    if (first < 0xC2 || first > 0xF4 || at + more > text.size())
        return std::nullopt;
    char32_t value = first & (0x3Fu >> more);
    for (std::size_t i = 0; i < more; ++i) {
        const auto next = static_cast<std::uint8_t>(text[at++]);
        if ((next & 0xC0) != 0x80)
            return std::nullopt;
        value = (value << 6) | (next & 0x3Fu);
    }
    constexpr std::array<char32_t, 4> kSmallest = {0, 0x80, 0x800, 0x10000};
    const bool surrogate = value >= 0xD800 && value < 0xE000;
    if (value < kSmallest[more] || surrogate || value > 0x10FFFF)
        return std::nullopt;
    return value;
}

bool Between(char32_t c, char32_t first, char32_t last) { return c >= first && c <= last; }

char32_t UpperGreek(char32_t c) {
    switch (c) {
        case 0x3AC:
            return 0x386;
        case 0x3C2:
            return 0x3A3;  // the sigma at the end of a word
        case 0x3CC:
            return 0x38C;
        case 0x3CD:
            return 0x38E;
        case 0x3CE:
            return 0x38F;
        default:
            break;
    }
    if (Between(c, 0x3AD, 0x3AF))
        return c - 0x25;
    if (Between(c, 0x3B1, 0x3CB))
        return c - 0x20;
    return c;
}

char32_t Upper(char32_t c) {
    if (Between(c, 'a', 'z'))
        return c - 0x20;
    if (Between(c, 0xE0, 0xFE) && c != 0xF7)
        return c - 0x20;
    if (c == 0xFF)
        return 0x178;
    if (Between(c, 0x100, 0x137) && c != 0x131)
        return c & ~char32_t{1};
    if (Between(c, 0x139, 0x148) || Between(c, 0x179, 0x17E))
        return c - (c % 2 == 0 ? 1 : 0);
    if (Between(c, 0x14A, 0x177))
        return c & ~char32_t{1};
    if (Between(c, 0x3AC, 0x3CE))
        return UpperGreek(c);
    if (Between(c, 0x430, 0x44F))
        return c - 0x20;
    if (Between(c, 0x450, 0x45F))
        return c - 0x50;
    return c;
}

std::string FoldAscii(std::string_view text) {
    std::string folded(text);
    for (char& c : folded) {
        if (c >= 'a' && c <= 'z')
            c = static_cast<char>(c - 0x20);
    }
    return folded;
}

// "con", "CON.txt" and "con .txt" all mean the device.
bool IsDeviceName(std::string_view name) {
    std::string stem = FoldAscii(name.substr(0, name.find('.')));
    while (!stem.empty() && stem.back() == ' ')
        stem.pop_back();
    constexpr std::array<std::string_view, 6> kDevices = {"CON", "PRN",    "AUX",
                                                          "NUL", "CONIN$", "CONOUT$"};
    if (std::find(kDevices.begin(), kDevices.end(), stem) != kDevices.end())
        return true;
    const bool port = stem.starts_with("COM") || stem.starts_with("LPT");
    return port && stem.size() == 4 && stem[3] >= '1' && stem[3] <= '9';
}

// The length of the root that an absolute path begins with, 0 for other paths.
std::size_t RootLength(std::string_view path) {
    if (path.starts_with("\\\\")) {
        const std::size_t share = path.find('\\', 2);
        if (share == std::string_view::npos || share == 2)
            return 0;
        const std::size_t end = path.find('\\', share + 1);
        return end == std::string_view::npos ? path.size() : end;
    }
    const bool drive = path.size() >= 3 && path[1] == ':' && path[2] == '\\';
    return drive && Between(Upper(static_cast<unsigned char>(path[0])), 'A', 'Z') ? 2 : 0;
}

}  // namespace

std::string FoldName(std::string_view name) {
    std::string folded;
    for (std::size_t at = 0; at < name.size();) {
        const std::size_t start = at;
        const std::optional<char32_t> c = NextCharacter(name, at);
        if (c && Upper(*c) < 0x80) {
            folded += static_cast<char>(Upper(*c));
        } else if (c && Upper(*c) < 0x800) {
            folded += static_cast<char>(0xC0 | (Upper(*c) >> 6));
            folded += static_cast<char>(0x80 | (Upper(*c) & 0x3F));
        } else {
            folded += name.substr(start, at - start);
        }
    }
    return folded;
}

bool IsPossibleName(std::string_view name) {
    constexpr std::size_t kLongestName = 255;
    if (name.empty() || name.back() == '.' || name.back() == ' ' || IsDeviceName(name)) {
        return false;
    }
    std::size_t units = 0;
    for (std::size_t at = 0; at < name.size();) {
        const std::optional<char32_t> c = NextCharacter(name, at);
        constexpr std::u32string_view kMeaningful = U"<>:\"/\\|?*";
        if (!c || *c < 0x20 || kMeaningful.find(*c) != kMeaningful.npos)
            return false;
        units += *c >= 0x10000 ? 2 : 1;
    }
    return units <= kLongestName;
}

Result<PathParts> SplitPath(std::string_view written) {
    std::string turned(written);
    std::replace(turned.begin(), turned.end(), '/', '\\');
    const std::string_view path = turned;
    const std::size_t rootLength = RootLength(path);
    if (rootLength == 0)
        return FileError::NotFound;
    PathParts parts;
    parts.root = path.substr(0, rootLength);
    parts.endsInBackslash = path.ends_with('\\');
    for (std::size_t at = rootLength; at < path.size();) {
        const std::size_t end = std::min(path.find('\\', at), path.size());
        const std::string_view name = path.substr(at, end - at);
        at = end + 1;
        if (name.empty() || name == ".")
            continue;
        if (name == "..") {
            if (!parts.names.empty())
                parts.names.pop_back();
            continue;
        }
        if (!IsPossibleName(name))
            return FileError::BadName;
        parts.names.emplace_back(name);
    }
    return parts;
}

}  // namespace zentar
