#include "screenshots/shot_name.h"

#include <algorithm>

#include "core/text.h"

namespace zentar {
namespace {

constexpr std::size_t kExtensionLength = 4;
constexpr std::string_view kWallpaperBeginning = "[Zentar] ";

std::size_t BaseLength(std::string_view name) {
    return name.size() - std::min(name.size(), kExtensionLength);
}

}  // namespace

std::string ShotExtension(std::string_view name) {
    return LowerAscii(name.substr(BaseLength(name)));
}

bool IsShot(std::string_view name) {
    return EndsWithAnyCase(name, ".tga") || EndsWithAnyCase(name, ".jpg") ||
           EndsWithAnyCase(name, ".pcx");
}

bool IsPreview(std::string_view name) { return EndsWithAnyCase(name, kPreviewExtension); }

std::string_view BaseNameOf(std::string_view shot) { return shot.substr(0, BaseLength(shot)); }

std::string PreviewNameOf(std::string_view shot) {
    return std::string(BaseNameOf(shot)).append(kPreviewExtension);
}

std::string JpgNameOf(std::string_view shot) { return std::string(BaseNameOf(shot)) + ".jpg"; }

std::string WallpaperNameOf(std::string_view shot) {
    return std::string(kWallpaperBeginning).append(BaseNameOf(shot)) + ".bmp";
}

bool IsWallpaper(std::string_view name) {
    return EndsWithAnyCase(name, ".bmp") &&
           LowerAscii(name).starts_with(LowerAscii(kWallpaperBeginning));
}

std::string ShotOfEntry(std::string_view entry) {
    if (IsMarked(entry)) {
        entry.remove_suffix(kPreviewMarker.size());
    }
    return std::string(entry);
}

bool IsMarked(std::string_view entry) { return entry.ends_with(kPreviewMarker); }

}  // namespace zentar
