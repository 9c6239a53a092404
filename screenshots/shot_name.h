// The names of screenshots and of the files that go with them.
#pragma once

#include <string>
#include <string_view>

namespace zentar {

// Stands behind the name of a listed shot that has a preview image.
inline constexpr std::string_view kPreviewMarker = " *";

// ".zentar", the last characters of a preview image's name.
inline constexpr std::string_view kPreviewExtension = ".zentar";

// The last four characters, in lower case; a shorter name as it is.
std::string ShotExtension(std::string_view name);

// Whether a file of that name is a screenshot: a ".tga", ".jpg" or ".pcx" in any case.
bool IsShot(std::string_view name);

bool IsPreview(std::string_view name);

// Without its last four characters.
std::string_view BaseNameOf(std::string_view shot);

// "shot0001.tga" as "shot0001.zentar", "shot0001.jpg" and "[Zentar] shot0001.bmp".
std::string PreviewNameOf(std::string_view shot);
std::string JpgNameOf(std::string_view shot);
std::string WallpaperNameOf(std::string_view shot);

// Whether a file in the Windows folder is a wallpaper that the program made.
bool IsWallpaper(std::string_view name);

// A list entry without its marker, and whether it has one.
std::string ShotOfEntry(std::string_view entry);
bool IsMarked(std::string_view entry);

}  // namespace zentar
