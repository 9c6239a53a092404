// What a chat transcript says: plain text, or HTML with the speech of each player in a colour.
//
// Texts are game text, bytes of which the games use all 256 values.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

#include "core/settings.h"
#include "platform/colour.h"

namespace zentar {

struct ChosenPlayer {
    std::string name;                 // empty for a free box
    std::optional<ColourRef> colour;  // of the speech
};

struct TranscriptOptions {
    bool html = false;
    bool gameMessages = false;
    bool quake3 = false;
    std::array<ChosenPlayer, kPlayerBoxes> players;
    std::optional<ColourRef> background;
    std::optional<ColourRef> messages;
    std::string source;   // the path of the console dump or log, as the header says it
    std::string webSite;  // an address
};

class TranscriptWriter {
  public:
    // Takes each line of the transcript, with its end.
    using Sink = std::function<void(std::string_view)>;

    // The options must outlive this.
    TranscriptWriter(const TranscriptOptions& options, Sink sink);

    void Begin();
    // A line of the console, which may or may not belong into the transcript.
    void Add(std::string_view line);
    void End();

  private:
    void Write(std::initializer_list<std::string_view> pieces);
    void WriteHead();
    void WritePlayers();
    void WriteSpeech(std::string_view line, const ChosenPlayer& speaker);
    const ChosenPlayer* SpeakerIn(std::string_view name) const;
    // Valid until the next call.
    std::string_view Escaped(std::string_view text);

    const TranscriptOptions& options_;
    Sink sink_;
    std::string_view br_;
    std::string_view p_;
    std::array<std::uint32_t, 256> boxesByFirstByte_{};  // a bit for each box
    std::string line_;                                   // memory that is used again
    std::string escaped_;
};

}  // namespace zentar
