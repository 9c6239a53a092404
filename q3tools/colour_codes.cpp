#include "q3tools/colour_codes.h"

#include <array>
#include <optional>

#include "core/settings.h"

namespace zentar {
namespace {

struct Command {
    std::string_view wrapped;  // with the wrapper's beginning
    std::string_view bare;
};

// By the number of their type. Speech is bound to the Pause key, so that it can be tried at once.
constexpr std::array<Command, kQ3TextTypes> kCommands = {{
    {"seta name \"", "name "},
    {"seta sv_hostname \"", "sv_hostname "},
    {"bind pause \"say ", "say "},
    {"bind pause \"say_team ", "say_team "},
    {"bind pause \"tell_attacker ", "tell_attacker "},
    {"bind pause \"tell_target ", "tell_target "},
}};

std::size_t TypeIndex(const Q3TextOptions& options) {
    const auto index = static_cast<std::size_t>(options.type);
    return index < kCommands.size() ? index : 0;
}

// In a player name the game takes ^0 for no colour; the doubled caret makes it black, behind a
// caret of another colour.
std::string_view BlackCode(const Q3TextOptions& options) {
    if (options.osp) {
        return "^8";
    }
    return TypeIndex(options) == 0 ? "^^0" : "^0";
}

// Nothing for a colour that the game does not have.
std::optional<std::string_view> CodeOf(ColourRef colour, const Q3TextOptions& options) {
    switch (colour) {
        case kQ3Black:
            return BlackCode(options);
        case kQ3Red:
            return "^1";
        case kQ3Green:
            return "^2";
        case kQ3Yellow:
            return "^3";
        case kQ3Blue:
            return "^4";
        case kQ3Cyan:
            return "^5";
        case kQ3Magenta:
            return "^6";
        case kQ3White:
            return "^7";
        default:
            return std::nullopt;
    }
}

std::string_view WithoutFirstCharacter(std::string_view text) {
    std::size_t next = 1;
    while (next < text.size() && (static_cast<unsigned char>(text[next]) & 0xC0U) == 0x80U) {
        ++next;
    }
    return text.substr(next);
}

// Writes the code of a text as its colours change.
class CodeWriter {
  public:
    CodeWriter(std::string& code, const Q3TextOptions& options) : code_(code), options_(options) {}

    void Add(std::string_view text, ColourRef colour) {
        if (begun_ && last_ == colour) {
            code_ += text;
            return;
        }
        begun_ = true;
        last_ = colour;
        if (const auto code = CodeOf(colour, options_)) {
            code_.append(*code).append(text);
        } else if (!text.empty()) {
            code_ += WithoutFirstCharacter(text);
        }
    }
    bool EndsWhite() const { return last_ == kQ3White; }

  private:
    std::string& code_;
    const Q3TextOptions& options_;
    bool begun_ = false;
    ColourRef last_ = kQ3Black;
};

// How many bytes of a code begin here; 0 for none.
std::size_t CodeLength(std::string_view text) {
    if (text.starts_with("^^0")) {
        return 3;
    }
    const bool isCode = text.size() > 1 && text[0] == '^' && text[1] >= '0' && text[1] <= '7';
    return isCode ? 2 : 0;
}

}  // namespace

std::string BuildQ3TextCode(const RichText& text, const Q3TextOptions& options) {
    const Command& command = kCommands[TypeIndex(options)];
    std::string code(options.keyfox ? command.bare : command.wrapped);
    CodeWriter writer(code, options);
    for (const ColouredRun& run : text.runs) {
        if (!run.text.empty()) {
            writer.Add(run.text, run.colour);
        }
    }
    writer.Add("", text.endColour);
    if (!writer.EndsWhite()) {
        code += "^7";
    }
    if (!options.keyfox) {
        code += '"';
    }
    return code;
}

std::string StripColourCodes(std::string_view text) {
    std::string plain;
    plain.reserve(text.size());
    for (;;) {
        const std::size_t caret = text.find('^');
        plain += text.substr(0, caret);
        if (caret == std::string_view::npos) {
            return plain;
        }
        text.remove_prefix(caret);
        const std::size_t code = CodeLength(text);
        if (code == 0) {
            plain += text.front();
        }
        text.remove_prefix(code == 0 ? 1 : code);
    }
}

}  // namespace zentar
