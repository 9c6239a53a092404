// The names of demos: on disk, and in the list.
//
// The list shows a demo without its extension. Quake 3 writes demos under three extensions; the
// list tells the two newer ones by blanks at the end of the entry, one for .dm_48, two for .dm_66.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zentar {

inline constexpr std::string_view kDm3 = ".dm3";
inline constexpr std::string_view kDm48 = ".dm_48";
inline constexpr std::string_view kDm66 = ".dm_66";

// The entry that stands for a file in the list of a game whose demos have `extension` (".dem",
// ".dm2" or ".dm3"); nothing when the file is no demo of that game by its name, or when blanks at
// the end of that name would lead from the entry to another file.
std::optional<std::string> DemoEntry(std::string_view fileName, std::string_view extension);

// The file behind an entry. `folder` ends in a backslash.
std::string RealPath(std::string_view folder, std::string_view entry, std::string_view extension);

// The extension of the file behind an entry.
std::string_view RealExtension(std::string_view entry, std::string_view extension);

// The blanks at the end of the entries of files with that extension.
std::string_view EntryMarkers(std::string_view realExtension);

}  // namespace zentar
