// The boxes with the names of the players whose speech a transcript keeps, and the colours in which
// it shows them.
//
// A box shows a name as characters; outside of it the name is game text. The colours that the user
// chose are settings; the boxes show them only while transcripts are made as HTML.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "core/program_state.h"
#include "transcripts/chat_frame_controls.h"
#include "transcripts/transcript_writer.h"

namespace zentar {

class PlayerBoxes {
  public:
    PlayerBoxes(ProgramState& state, const ChatFrameControls& controls);

    bool AllEmpty() const;
    void Show(const std::vector<std::string>& names);
    void ClearNames();
    // Forgets the colours of speech and the background.
    void ClearColours();
    // Moves the names to the front; the colours stay with their boxes.
    void Compact();

    // In the user's colours, or in the system's.
    void ShowColours(bool html);
    void SetBackground(ColourRef colour);
    void SetSpeech(std::size_t box, ColourRef colour);
    void SetMessages(ColourRef colour);

    std::optional<ColourRef> Background() const;
    std::optional<ColourRef> Speech(std::size_t box) const;
    std::optional<ColourRef> Messages() const;
    std::array<ChosenPlayer, kPlayerBoxes> ChosenPlayers() const;

  private:
    std::string Name(std::size_t box) const;
    void ShowBackground(Colour colour);

    ProgramState& state_;
    ChatFrameControls controls_;
};

}  // namespace zentar
