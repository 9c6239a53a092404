// Cutting rich text into its smallest parts: braces, control words and characters.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace zentar {

enum class RtfTokenKind : std::uint8_t {
    GroupBegin,
    GroupEnd,
    Control,  // "\par", "\cf1", "\~"
    Byte,     // of the text: as it stands, escaped by a backslash, or as "\'e7"
};

struct RtfToken {
    RtfTokenKind kind = RtfTokenKind::Byte;
    // Of a control: the letters of its word, or the one character of its symbol.
    std::string_view name;
    // Behind the letters; the nearest that there is for one that does not fit.
    std::optional<std::int32_t> number;
    unsigned char byte = 0;
};

class RtfTokens {
  public:
    // The bytes must outlive this and the tokens.
    explicit RtfTokens(std::string_view bytes) : rest_(bytes) {}

    // Nothing at the end. Line ends and zero bytes between the tokens mean nothing and are passed
    // over, and so are the bytes that belong to a "\bin".
    std::optional<RtfToken> Next();

  private:
    std::optional<RtfToken> TakeControl();
    RtfToken TakeWord();
    std::optional<std::int32_t> TakeNumber();
    std::optional<unsigned char> TakeHexByte();
    std::string_view Take(std::size_t count);

    std::string_view rest_;
};

}  // namespace zentar
