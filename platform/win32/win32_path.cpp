#include "platform/win32/win32_path.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

#include "platform/win32/win32_text.h"

namespace zentar {
namespace {

constexpr std::wstring_view kLocalPrefix = LR"(\\?\)";
constexpr std::wstring_view kSharePrefix = LR"(\\?\UNC\)";
constexpr std::size_t kLongestName = 255;

bool IsLetter(wchar_t c) { return (c >= L'A' && c <= L'Z') || (c >= L'a' && c <= L'z'); }

bool SameText(std::wstring_view one, std::wstring_view other) {
    return CompareStringOrdinal(one.data(), static_cast<int>(one.size()), other.data(),
                                static_cast<int>(other.size()), TRUE) == CSTR_EQUAL;
}

// The names between the separators, with "." and ".." resolved.
std::vector<std::wstring_view> Names(std::wstring_view path) {
    std::vector<std::wstring_view> names;
    for (std::size_t at = 0; at < path.size();) {
        const std::size_t end = std::min(path.find(L'\\', at), path.size());
        const std::wstring_view name = path.substr(at, end - at);
        at = end + 1;
        if (name == L"..") {
            if (!names.empty()) {
                names.pop_back();
            }
        } else if (!name.empty() && name != L".") {
            names.push_back(name);
        }
    }
    return names;
}

std::wstring Join(std::wstring start, const std::vector<std::wstring_view>& names) {
    for (std::size_t i = 0; i < names.size(); ++i) {
        start.append(i == 0 ? L"" : L"\\").append(names[i]);
    }
    return start;
}

std::optional<std::wstring> NativeShare(std::wstring_view path) {
    const std::vector<std::wstring_view> names = Names(path);
    const bool device = !names.empty() && (names[0] == L"?" || path.starts_with(L".\\"));
    if (device || names.size() < 2) {
        return std::nullopt;
    }
    return Join(std::wstring(kSharePrefix), names);
}

// The length of the part of a native path that names its drive or share.
std::size_t RootLength(std::wstring_view path) {
    if (!path.starts_with(kSharePrefix)) {
        return std::min(path.size(), kLocalPrefix.size() + 2);
    }
    const std::size_t server = path.find(L'\\', kSharePrefix.size());
    return server == std::wstring_view::npos ? path.size()
                                             : std::min(path.find(L'\\', server + 1), path.size());
}

bool IsDeviceName(std::wstring_view name) {
    std::wstring_view stem = name.substr(0, std::min(name.find(L'.'), name.size()));
    stem = stem.substr(0, stem.find_last_not_of(L' ') + 1);
    constexpr std::array<std::wstring_view, 6> kPlain = {L"con", L"prn",    L"aux",
                                                         L"nul", L"conin$", L"conout$"};
    if (std::any_of(kPlain.begin(), kPlain.end(),
                    [&](std::wstring_view device) { return SameText(stem, device); })) {
        return true;
    }
    // The superscript digits count as digits here.
    constexpr std::wstring_view kDigits = L"123456789\u00B9\u00B2\u00B3";
    return stem.size() == 4 && kDigits.find(stem[3]) != std::wstring_view::npos &&
           (SameText(stem.substr(0, 3), L"com") || SameText(stem.substr(0, 3), L"lpt"));
}

}  // namespace

std::optional<std::wstring> NativePath(std::string_view path) {
    std::wstring wide = Widen(path);
    std::replace(wide.begin(), wide.end(), L'/', L'\\');
    if (wide.find(L'\0') != std::wstring::npos) {
        return std::nullopt;
    }
    if (wide.starts_with(L"\\\\")) {
        return NativeShare(std::wstring_view(wide).substr(2));
    }
    const bool absolute =
        wide.size() >= 3 && IsLetter(wide[0]) && wide[1] == L':' && wide[2] == L'\\';
    // A colon further on would mean a hidden stream of a file of another name.
    if (!absolute || wide.find(L':', 2) != std::wstring::npos) {
        return std::nullopt;
    }
    const std::wstring_view whole = wide;
    return Join(std::wstring(kLocalPrefix).append(whole.substr(0, 3)), Names(whole.substr(3)));
}

std::wstring WithoutPrefix(std::wstring_view path) {
    if (path.starts_with(kSharePrefix)) {
        return std::wstring(L"\\\\").append(path.substr(kSharePrefix.size()));
    }
    return std::wstring(path.substr(path.starts_with(kLocalPrefix) ? kLocalPrefix.size() : 0));
}

std::wstring PlainPath(const std::wstring& nativePath) {
    const std::wstring plain = WithoutPrefix(nativePath);
    std::array<wchar_t, MAX_PATH> read{};
    const DWORD length = GetFullPathNameW(plain.c_str(), MAX_PATH, read.data(), nullptr);
    const bool same = length < read.size() && std::wstring_view(read.data(), length) == plain;
    return same ? plain : nativePath;
}

bool MayBeCreated(std::wstring_view nativePath) {
    const std::wstring_view name = nativePath.substr(nativePath.rfind(L'\\') + 1);
    if (name.empty() || name.size() > kLongestName || name.back() == L'.' || name.back() == L' ') {
        return false;
    }
    const bool legal = std::all_of(name.begin(), name.end(), [](wchar_t c) {
        return c >= L' ' && std::wstring_view(L"<>:\"/|?*").find(c) == std::wstring_view::npos;
    });
    return legal && !IsDeviceName(name);
}

std::wstring TemporaryFolderPath() {
    std::wstring folder(MAX_PATH + 1, L'\0');
    folder.resize(GetTempPathW(static_cast<DWORD>(folder.size()), folder.data()));
    return folder;
}

bool OnSameRoot(std::wstring_view one, std::wstring_view other) {
    return SameText(one.substr(0, RootLength(one)), other.substr(0, RootLength(other)));
}

bool DifferInCaseOnly(std::wstring_view one, std::wstring_view other) {
    return one != other && SameText(one, other);
}

bool EndsInSeparator(std::string_view path) { return path.ends_with('\\') || path.ends_with('/'); }

}  // namespace zentar
