// The frame "Chat Transcript" of the Misc tab: finding the names of the players in a console dump
// or log, and making a transcript of what they say.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/command_guard.h"
#include "core/program_state.h"
#include "platform/platform.h"
#include "platform/result.h"
#include "transcripts/chat_frame_controls.h"
#include "transcripts/player_boxes.h"

namespace zentar {

class ChatFrame {
  public:
    // Binds the controls' events.
    ChatFrame(ProgramState& state, const Platform& platform, const ChatFrameControls& controls);
    ChatFrame(const ChatFrame&) = delete;
    ChatFrame& operator=(const ChatFrame&) = delete;

    // Says whose chat it is.
    void Arrange(const GameInfo& game);

    void cmdScanForNames_Click();
    void cmdClearNames_Click();
    void cmdCreateTranscript_Click();
    void txtPlayer_Change();
    void txtPlayer_DblClick(std::size_t box);
    void txtTranscriptMessages_DblClick();
    void chkTranscriptHTML_Click();
    void chkTranscriptGameplay_Click();

  private:
    void BindButtons();
    void BindBoxes();
    std::string ModFolder();
    bool GameFolderIsThere();
    std::optional<std::string> ChooseLogToScan();
    void ScanLog(const std::string& path);
    std::optional<std::vector<std::string>> NamesIn(const std::string& path);
    std::optional<std::string> LogToTranscribe();
    TranscriptOptions OptionsFor(const std::string& source, bool html) const;
    void Transcribe(const TranscriptOptions& options, const std::string& source);
    Status Open(const std::string& transcript, bool html);

    ProgramState& state_;
    Platform platform_;
    ChatFrameControls controls_;
    PlayerBoxes boxes_;
    // What the next transcript is made of: the log that was scanned last and held names, or that
    // the last transcript was made of. Empty for nothing.
    std::string source_;
    // The system's colour dialog, file dialogs and message boxes let other procedures run.
    CommandGuard guard_;
};

}  // namespace zentar
