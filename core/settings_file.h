// zentar.ini, the one file that holds all settings: plain text in the program folder, a line a
// setting, "Key=Value" with nothing quoted and nothing trimmed. Paths stand in UTF-8, game text in
// its own bytes.
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/program_state.h"
#include "platform/controls.h"
#include "platform/file_system.h"

namespace zentar {

// The controls whose state is a setting.
struct SettingsControls {
    OptionButton& optModePreview;
    OptionButton& optModeReal;
    CheckBox& chkShowAllDemos;
    OptionButton& optTextNo;
    OptionButton& optTextYes;
    TextBox& txtDemoFilter;
    CheckBox& chkBackupAll;
    CheckBox& chkTranscriptHTML;
    CheckBox& chkTranscriptGameplay;
    std::array<TextBox*, kPlayerBoxes> txtPlayer;
    std::array<OptionButton*, kQ3TextTypes> optQ3Text;  // in the order of their numbers
    CheckBox& chkQ3TextKeyfox;
    CheckBox& chkQ3TextOSP;
};

// One line of the file.
struct SettingRow {
    std::string key;  // with its equals sign
    // Takes the value; a value that does not convert leaves the setting as it was.
    std::function<void(std::string_view)> read;
    std::function<std::string()> write;
};

// All settings in the order in which the file holds them. The rows refer to `state` and
// `controls`, which must outlive them.
std::vector<SettingRow> SettingRows(ProgramState& state, const SettingsControls& controls);

// Takes over whatever zentar.ini holds; without the file nothing changes. Lines that are no setting
// are skipped, and the last line of a key counts. Lines longer than kLongestSettingLine or with a
// NUL in them are no settings. Gives false when there is a file that could not be read to its end:
// saving over it would then lose what the user had set.
[[nodiscard]] bool LoadSettings(FileSystem& files, const std::string& programFolder,
                                const std::vector<SettingRow>& rows);

// Writes zentar.ini so that it is the old one or the new one, whole. Does nothing when the file is
// read-only: that is how a user freezes the settings. Failures are silent, and leave the old one.
void SaveSettings(FileSystem& files, const std::string& programFolder,
                  const std::vector<SettingRow>& rows);

// Longer than any path that Windows can hold, in UTF-8.
inline constexpr std::size_t kLongestSettingLine = std::size_t{128} * 1024;

}  // namespace zentar
