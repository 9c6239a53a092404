#include "ui/chat_frame_table.h"

#include <array>
#include <iterator>

#include "core/settings.h"
#include "ui/resource.h"

namespace zentar {
namespace {

const ControlRow kAboveNames[] = {
    {.id = IDC_fraChat,
     .kind = ControlKind::Frame,
     .parent = IDC_pagMisc,
     .rect = {282, 4, 304, 450},
     .caption = "Quake2 Chat Transcript"},
    {.id = IDC_cmdScanForNames,
     .kind = ControlKind::Button,
     .parent = IDC_fraChat,
     .rect = {12, 20, 136, 25},
     .caption = "Scan For Names",
     .tooltip = "Click here to scan a logfile or condump for all participating player names."},
    {.id = IDC_cmdClearNames,
     .kind = ControlKind::Button,
     .parent = IDC_fraChat,
     .rect = {156, 20, 136, 25},
     .caption = "Clear",
     .tooltip = "Click here to clear all player names (and hold Shift to also clear colours).",
     .flags = StartsDisabled},
};

const ControlRow kBelowNames[] = {
    {.id = IDC_chkTranscriptHTML,
     .kind = ControlKind::CheckBox,
     .parent = IDC_fraChat,
     .rect = {12, 330, 280, 34},
     .caption = "Create transcript as HTML code instead of plain text.",
     .tooltip = "If checked, the transcript will be in the colours specified when you "
                "double-click the names.",
     .flags = StartsChecked},
    {.id = IDC_labColourUsed,
     .kind = ControlKind::Label,
     .parent = IDC_fraChat,
     .rect = {29, 370, 84, 18},
     .caption = "Colour used:"},
    {.id = IDC_txtTranscriptMessages,
     .kind = ControlKind::TextBox,
     .parent = IDC_fraChat,
     .rect = {117, 367, 60, 21},
     .caption = "msgs",
     .tooltip = "Shows the colour used for game messages.",
     .flags = ReadOnly,
     .name = "Colour used for game messages"},
    {.id = IDC_chkTranscriptGameplay,
     .kind = ControlKind::CheckBox,
     .parent = IDC_fraChat,
     .rect = {12, 392, 280, 20},
     .caption = "Include game messages.",
     .tooltip = "If checked, gameplay messages (in addition to speech) are included in the "
                "transcript."},
    {.id = IDC_cmdCreateTranscript,
     .kind = ControlKind::Button,
     .parent = IDC_fraChat,
     .rect = {12, 416, 136, 25},
     .caption = "Create Transcript",
     .tooltip = "Click here to create a chat transcript."},
};

// What a screen reader calls the boxes.
constexpr std::array<const char*, kPlayerBoxes> kBoxNames = {
    "Player 1",  "Player 2",  "Player 3",  "Player 4",  "Player 5",  "Player 6",
    "Player 7",  "Player 8",  "Player 9",  "Player 10", "Player 11", "Player 12",
    "Player 13", "Player 14", "Player 15", "Player 16", "Player 17", "Player 18",
    "Player 19", "Player 20", "Player 21", "Player 22", "Player 23", "Player 24"};

// Two columns, the first twelve on the left.
ControlRow NameBox(int box) {
    constexpr int kInColumn = static_cast<int>(kPlayerBoxes) / 2;
    return {.id = IDC_txtPlayer1 + box,
            .kind = ControlKind::TextBox,
            .parent = IDC_fraChat,
            .rect = {box < kInColumn ? 12 : 156, 51 + box % kInColumn * 23, 136, 21},
            .tooltip = "Name of a player whose speech you wish to include in the transcript.",
            .name = kBoxNames[static_cast<std::size_t>(box)]};
}

std::vector<ControlRow> AllRows() {
    std::vector<ControlRow> rows(std::begin(kAboveNames), std::end(kAboveNames));
    for (int box = 0; box < static_cast<int>(kPlayerBoxes); ++box) {
        rows.push_back(NameBox(box));
    }
    rows.insert(rows.end(), std::begin(kBelowNames), std::end(kBelowNames));
    return rows;
}

}  // namespace

const std::vector<ControlRow>& ChatFrameControlRows() {
    static const std::vector<ControlRow> rows = AllRows();
    return rows;
}

}  // namespace zentar
