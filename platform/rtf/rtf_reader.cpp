#include "platform/rtf/rtf_reader.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

#include "platform/code_page.h"
#include "platform/rtf/coloured_text.h"
#include "platform/rtf/rtf_controls.h"
#include "platform/rtf/rtf_tokens.h"

namespace zentar {
namespace {

// Far more than any program writes; what is deeper is passed over.
constexpr std::size_t kDeepest = 10'000;

// The number of no colour in any table, which is black.
constexpr std::int32_t kNoColour = -1;

// The colours that a document lists; "\cf" gives them by their number.
class ColourTable {
  public:
    ColourRef At(std::int32_t number) const {
        const auto index = static_cast<std::size_t>(number);
        return number >= 0 && index < colours_.size() ? colours_[index] : 0;
    }
    void Take(const RtfToken& token) {
        if (token.kind == RtfTokenKind::Byte && token.byte == ';') {
            ++current_;
        } else if (token.kind == RtfTokenKind::Control) {
            Set(token.name, token.number.value_or(0));
        }
    }

  private:
    void Set(std::string_view channel, std::int32_t value) {
        constexpr std::array<std::string_view, 3> kChannels = {"red", "green", "blue"};
        const auto* const found = std::find(kChannels.begin(), kChannels.end(), channel);
        if (found == kChannels.end()) {
            return;
        }
        colours_.resize(std::max(colours_.size(), current_ + 1));
        const auto shift = 8U * static_cast<unsigned>(found - kChannels.begin());
        ColourRef& colour = colours_[current_];
        colour &= ~(0xFFU << shift);
        colour |= static_cast<ColourRef>(std::clamp(value, 0, 255)) << shift;
    }

    std::vector<ColourRef> colours_;
    std::size_t current_ = 0;
};

enum class Content : std::uint8_t { Text, Colours, Other };

// What a group inherits from the one around it, and changes for itself alone.
struct Group {
    Content content = Content::Text;
    bool hidden = false;
    std::int32_t colour = kNoColour;  // its number
    std::int32_t fallback = 1;  // how many characters behind a "\u" stand for it in old readers
};

class Reader {
  public:
    explicit Reader(std::string_view bytes) : tokens_(bytes) {}

    std::vector<ColouredRun> Read() {
        while (!text_.IsFull()) {
            const auto token = tokens_.Next();
            if (!token || !Take(*token)) {
                break;
            }
        }
        return text_.Take();
    }

  private:
    // False at the end of the document.
    bool Take(const RtfToken& token) {
        switch (token.kind) {
            case RtfTokenKind::GroupBegin:
                BeginGroup();
                return true;
            case RtfTokenKind::GroupEnd:
                EndGroup();
                return !groups_.empty();
            default:
                break;
        }
        if (toPassOver_ > 0) {
            --toPassOver_;
        } else if (tooDeep_ == 0) {
            TakeContent(token);
        }
        return true;
    }

    void BeginGroup() {
        toPassOver_ = 0;
        if (groups_.size() == kDeepest) {
            ++tooDeep_;
        } else {
            groups_.push_back(groups_.empty() ? Group() : groups_.back());
        }
    }

    void EndGroup() {
        toPassOver_ = 0;
        if (tooDeep_ > 0) {
            --tooDeep_;
        } else {
            groups_.pop_back();
        }
    }

    void TakeContent(const RtfToken& token) {
        switch (groups_.back().content) {
            case Content::Text:
                TakeText(token);
                break;
            case Content::Colours:
                colours_.Take(token);
                break;
            case Content::Other:
                break;
        }
    }

    void TakeText(const RtfToken& token) {
        if (token.kind == RtfTokenKind::Byte) {
            Add(CodePointOfByte(token.byte));
        } else if (const char32_t character = CharacterOfControl(token.name)) {
            Add(character);
        } else {
            Obey(token.name, token.number);
        }
    }

    void Obey(std::string_view name, std::optional<std::int32_t> number) {
        Group& group = groups_.back();
        if (name == "cf") {
            group.colour = number.value_or(0);
        } else if (name == "plain") {
            group.colour = kNoColour;
            group.hidden = false;
        } else if (name == "v") {
            group.hidden = number.value_or(1) != 0;
        } else if (name == "uc") {
            group.fallback = number.value_or(1);
        } else if (name == "u") {
            Add(UnitOf(number.value_or(0)));
            toPassOver_ = group.fallback;
        } else if (name == "colortbl") {
            ChangeContent(Content::Colours);
        } else if (name == "*" || BeginsOtherThanText(name)) {
            ChangeContent(Content::Other);
        }
    }

    // The document itself stays text, whatever it says.
    void ChangeContent(Content content) {
        if (groups_.size() > 1) {
            groups_.back().content = content;
        }
    }

    // Numbers above 32,767 are written as negative ones, by some programs as they are.
    static char32_t UnitOf(std::int32_t number) {
        constexpr std::int32_t kUnits = 0x10000;
        return static_cast<char32_t>(number < 0 ? number + kUnits : number);
    }

    void Add(char32_t unit) {
        const Group& group = groups_.back();
        if (!group.hidden) {
            text_.Add(unit, colours_.At(group.colour));
        }
    }

    RtfTokens tokens_;
    ColourTable colours_;
    ColouredText text_{kMostRtfCharacters};
    std::vector<Group> groups_;
    std::size_t tooDeep_ = 0;      // groups inside the deepest that is kept
    std::int32_t toPassOver_ = 0;  // characters of a fallback
};

}  // namespace

std::optional<std::vector<ColouredRun>> ReadRtf(std::string_view bytes) {
    if (!bytes.starts_with("{\\rtf")) {
        return std::nullopt;
    }
    return Reader(bytes).Read();
}

}  // namespace zentar
