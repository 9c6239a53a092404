// The table of all settings.

#include <array>
#include <optional>
#include <string>

#include "core/game_text.h"
#include "core/settings_file.h"
#include "core/settings_values.h"

namespace zentar {
namespace {

// Text taken as it stands.
SettingRow TextRow(std::string key, std::string& held) {
    return {std::move(key), [&held](std::string_view value) { held = value; },
            [&held] { return held; }};
}

SettingRow ByteRow(std::string key, std::uint8_t& held) {
    return {std::move(key),
            [&held](std::string_view value) { held = ParseByte(value).value_or(held); },
            [&held] { return std::to_string(held); }};
}

SettingRow NumberRow(std::string key, std::int32_t& held) {
    return {std::move(key),
            [&held](std::string_view value) { held = ParseLeadingNumber(value).value_or(held); },
            [&held] { return std::to_string(held); }};
}

// Anything but "0" means previews.
SettingRow PreviewRow(OptionButton& preview, OptionButton& real) {
    return {"Preview=",
            [&preview, &real](std::string_view value) {
                (value == "0" ? real : preview).SetSelected(true);
            },
            [&real] { return real.Selected() ? "0" : "1"; }};
}

SettingRow CheckBoxRow(std::string key, CheckBox& box) {
    return {std::move(key),
            [&box](std::string_view value) {
                if (const auto tick = ParseTick(value)) {
                    box.SetChecked(*tick);
                }
            },
            [&box] { return box.Checked() ? "1" : "0"; }};
}

SettingRow DemosTextRow(OptionButton& yes, OptionButton& no) {
    return {"DemosText=",
            [&yes, &no](std::string_view value) {
                if (const auto contain = ParseTruth(value)) {
                    yes.SetSelected(*contain);
                    if (!yes.Selected()) {
                        no.SetSelected(true);
                    }
                }
            },
            [&yes] { return yes.Selected() ? "True" : "False"; }};
}

// A control's text in UTF-8, a phrase of game text in the file.
SettingRow GameTextRow(std::string key, TextBox& box) {
    return {std::move(key), [&box](std::string_view value) { box.SetText(GameTextToUtf8(value)); },
            [&box] { return Utf8ToGameText(box.Text()); }};
}

void AppendGameRows(std::vector<SettingRow>& rows, ProgramState& state,
                    const SettingsControls& controls) {
    rows.push_back(ByteRow("Virgin=", state.settings.Virgin));
    rows.push_back(TextRow("Game=", state.settings.Game));
    rows.push_back(TextRow("Q1Folder=", state.games[0].GameFolder));
    rows.push_back(TextRow("Q2Folder=", state.games[1].GameFolder));
    rows.push_back(TextRow("Q3Folder=", state.games[2].GameFolder));
    rows.push_back(TextRow("CurMod1=", state.games[0].CurMod));
    rows.push_back(TextRow("CurMod2=", state.games[1].CurMod));
    rows.push_back(TextRow("CurMod3=", state.games[2].CurMod));
    rows.push_back(TextRow("Remote=", state.settings.Remote));
    rows.push_back(ByteRow("Expert=", state.settings.Expert));
    rows.push_back(PreviewRow(controls.optModePreview, controls.optModeReal));
    rows.push_back(ByteRow("AutoShowAll=", state.settings.AutoShowAll));
    rows.push_back(ByteRow("AutoNextShot=", state.settings.AutoNextShot));
    rows.push_back(ByteRow("AutoNextDemo=", state.settings.AutoNextDemo));
    rows.push_back(CheckBoxRow("BackupAll=", controls.chkBackupAll));
}

void AppendDemoRows(std::vector<SettingRow>& rows, const SettingsControls& controls) {
    rows.push_back(CheckBoxRow("DemosAll=", controls.chkShowAllDemos));
    rows.push_back(DemosTextRow(controls.optTextYes, controls.optTextNo));
    rows.push_back(GameTextRow("DemosFilter=", controls.txtDemoFilter));
}

void AppendTranscriptRows(std::vector<SettingRow>& rows, AppSettings& settings,
                          const SettingsControls& controls) {
    rows.push_back(ByteRow("ScanWarn=", settings.ScanWarn));
    rows.push_back(CheckBoxRow("TranscriptHTML=", controls.chkTranscriptHTML));
    rows.push_back(CheckBoxRow("TranscriptGameplay=", controls.chkTranscriptGameplay));
    rows.push_back(NumberRow("TranscriptMessages=", settings.TranscriptMessages));
    rows.push_back(NumberRow("TranscriptBackground=", settings.TranscriptBackground));
    for (std::size_t box = 0; box < kPlayerBoxes; ++box) {
        const std::string player = "Player" + std::to_string(box + 1);
        rows.push_back(GameTextRow(player + "Name=", *controls.txtPlayer[box]));
        rows.push_back(TextRow(player + "Colour=", settings.PlayerColour[box]));
    }
}

// Besides keeping the number, selects its option; other numbers select none.
SettingRow Q3TextTypeRow(std::uint8_t& held,
                         const std::array<OptionButton*, kQ3TextTypes>& options) {
    return {"Q3TextType=",
            [&held, options](std::string_view value) {
                const std::optional<std::uint8_t> type = ParseByte(value);
                if (!type) {
                    return;
                }
                if (*type < options.size()) {
                    options[*type]->SetSelected(true);
                }
                held = *type;
            },
            [&held] { return std::to_string(held); }};
}

void AppendQ3TextRows(std::vector<SettingRow>& rows, AppSettings& settings,
                      const SettingsControls& controls) {
    rows.push_back(Q3TextTypeRow(settings.Q3TextType, controls.optQ3Text));
    rows.push_back(CheckBoxRow("Q3TextKeyfox=", controls.chkQ3TextKeyfox));
    rows.push_back(CheckBoxRow("Q3TextOSP=", controls.chkQ3TextOSP));
    rows.push_back(TextRow("Q3TextText=", settings.Q3TextText));
}

}  // namespace

std::vector<SettingRow> SettingRows(ProgramState& state, const SettingsControls& controls) {
    std::vector<SettingRow> rows;
    AppendGameRows(rows, state, controls);
    AppendDemoRows(rows, controls);
    AppendTranscriptRows(rows, state.settings, controls);
    AppendQ3TextRows(rows, state.settings, controls);
    return rows;
}

}  // namespace zentar
