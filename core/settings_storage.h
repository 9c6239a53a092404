// Where the settings file is, and how a new text takes the place of the old one.
//
// As a rule zentar.ini is replaced in one step. Where the program was installed for everybody, its
// folder takes no new files from an ordinary user, who may write zentar.ini itself and the folder
// "data" only. There the new text goes whole into "data\zentar.ini.new" before it is written over
// the old one; if that is cut off, the text is taken from there.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/file_system.h"

namespace zentar {

// The last line of a settings file, with its end. What ends so is whole.
inline constexpr std::string_view kSettingsEnd =
    "// ===================================================================\r\n";

// `programFolder` ends in a backslash.
Result<std::unique_ptr<ReadableFile>> OpenSettings(FileSystem& files,
                                                   const std::string& programFolder);

// `text` ends in kSettingsEnd. Does nothing when the file is read-only. A failure leaves the old
// text, or the new one where OpenSettings finds it.
Status StoreSettings(FileSystem& files, const std::string& programFolder, std::string_view text);

}  // namespace zentar
