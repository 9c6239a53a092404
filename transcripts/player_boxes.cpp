#include "transcripts/player_boxes.h"

#include <algorithm>

#include "core/game_text.h"
#include "core/settings_values.h"

namespace zentar {
namespace {

constexpr std::int32_t kNone = -1;

// Negative numbers are no colours.
std::optional<ColourRef> StoredColour(std::int32_t number) {
    if (number < 0) {
        return std::nullopt;
    }
    return static_cast<ColourRef>(number) & 0xFFFFFFU;
}

Colour Or(const std::optional<ColourRef>& colour, SystemColour otherwise) {
    return colour ? Colour(*colour) : Colour(otherwise);
}

}  // namespace

PlayerBoxes::PlayerBoxes(ProgramState& state, const ChatFrameControls& controls)
    : state_(state), controls_(controls) {}

std::string PlayerBoxes::Name(std::size_t box) const {
    return Utf8ToGameText(controls_.txtPlayer[box]->Text());
}

bool PlayerBoxes::AllEmpty() const {
    return std::all_of(controls_.txtPlayer.begin(), controls_.txtPlayer.end(),
                       [](const TextBox* box) { return box->Text().empty(); });
}

void PlayerBoxes::Show(const std::vector<std::string>& names) {
    for (std::size_t box = 0; box < names.size(); ++box) {
        controls_.txtPlayer[box]->SetText(GameTextToUtf8(names[box]));
    }
}

void PlayerBoxes::ClearNames() {
    for (TextBox* box : controls_.txtPlayer) {
        box->SetText("");
    }
}

void PlayerBoxes::ClearColours() {
    state_.settings.PlayerColour.fill("");
    state_.settings.TranscriptBackground = kNone;
    for (TextBox* box : controls_.txtPlayer) {
        box->SetForeground(SystemColour::WindowText);
    }
    ShowBackground(SystemColour::Window);
}

void PlayerBoxes::Compact() {
    auto& boxes = controls_.txtPlayer;
    for (auto* box = boxes.begin(); box != boxes.end(); ++box) {
        if (!(*box)->Text().empty()) {
            continue;
        }
        auto* const next = std::find_if(
            box, boxes.end(), [](const TextBox* other) { return !other->Text().empty(); });
        if (next == boxes.end()) {
            return;
        }
        (*box)->SetText((*next)->Text());
        (*next)->SetText("");
    }
}

void PlayerBoxes::ShowColours(bool html) {
    for (std::size_t box = 0; box < kPlayerBoxes; ++box) {
        controls_.txtPlayer[box]->SetForeground(html ? Or(Speech(box), SystemColour::WindowText)
                                                     : Colour(SystemColour::WindowText));
    }
    controls_.txtTranscriptMessages.SetForeground(html ? Or(Messages(), SystemColour::WindowText)
                                                       : Colour(SystemColour::WindowText));
    ShowBackground(html ? Or(Background(), SystemColour::Window) : Colour(SystemColour::Window));
}

void PlayerBoxes::ShowBackground(Colour colour) {
    for (TextBox* box : controls_.txtPlayer) {
        box->SetBackground(colour);
    }
    controls_.txtTranscriptMessages.SetBackground(colour);
}

void PlayerBoxes::SetBackground(ColourRef colour) {
    state_.settings.TranscriptBackground = static_cast<std::int32_t>(colour);
    ShowBackground(colour);
}

void PlayerBoxes::SetSpeech(std::size_t box, ColourRef colour) {
    state_.settings.PlayerColour[box] = std::to_string(colour);
    controls_.txtPlayer[box]->SetForeground(colour);
}

void PlayerBoxes::SetMessages(ColourRef colour) {
    state_.settings.TranscriptMessages = static_cast<std::int32_t>(colour);
    controls_.txtTranscriptMessages.SetForeground(colour);
}

std::optional<ColourRef> PlayerBoxes::Background() const {
    return StoredColour(state_.settings.TranscriptBackground);
}

std::optional<ColourRef> PlayerBoxes::Speech(std::size_t box) const {
    const std::string& number = state_.settings.PlayerColour[box];
    return number.empty() ? std::nullopt : StoredColour(ParseLeadingNumber(number).value_or(kNone));
}

std::optional<ColourRef> PlayerBoxes::Messages() const {
    return StoredColour(state_.settings.TranscriptMessages);
}

std::array<ChosenPlayer, kPlayerBoxes> PlayerBoxes::ChosenPlayers() const {
    std::array<ChosenPlayer, kPlayerBoxes> players;
    for (std::size_t box = 0; box < kPlayerBoxes; ++box) {
        players[box] = {Name(box), Speech(box)};
    }
    return players;
}

}  // namespace zentar
