// The controls of the frame "Chat Transcript" of the Misc tab.
#pragma once

#include <array>

#include "core/settings.h"
#include "platform/controls.h"

namespace zentar {

struct ChatFrameControls {
    Frame& fraChat;
    std::array<TextBox*, kPlayerBoxes> txtPlayer;
    Button& cmdScanForNames;
    Button& cmdClearNames;
    Button& cmdCreateTranscript;
    CheckBox& chkTranscriptHTML;
    CheckBox& chkTranscriptGameplay;
    TextBox& txtTranscriptMessages;
    Label& labColourUsed;
};

}  // namespace zentar
