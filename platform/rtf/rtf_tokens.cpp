#include "platform/rtf/rtf_tokens.h"

#include <algorithm>
#include <limits>

namespace zentar {
namespace {

constexpr std::string_view kEscaped = "\\{}";

bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

int HexValue(char c) {
    if (IsDigit(c)) {
        return c - '0';
    }
    if (c >= 'a' && c <= 'f') {
        return c - 'a' + 10;
    }
    return c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
}

bool MeansNothing(char c) { return c == '\r' || c == '\n' || c == '\0'; }

RtfToken ByteToken(unsigned char byte) {
    return {.kind = RtfTokenKind::Byte, .name = {}, .number = {}, .byte = byte};
}

}  // namespace

std::optional<RtfToken> RtfTokens::Next() {
    while (!rest_.empty()) {
        const char first = Take(1).front();
        if (first == '\\') {
            return TakeControl();
        }
        if (first == '{' || first == '}') {
            return RtfToken{
                .kind = first == '{' ? RtfTokenKind::GroupBegin : RtfTokenKind::GroupEnd,
                .name = {},
                .number = {}};
        }
        if (!MeansNothing(first)) {
            return ByteToken(static_cast<unsigned char>(first));
        }
    }
    return std::nullopt;
}

// What stands behind a backslash; nothing for a backslash at the end.
std::optional<RtfToken> RtfTokens::TakeControl() {
    if (rest_.empty()) {
        return std::nullopt;
    }
    if (IsLetter(rest_.front())) {
        return TakeWord();
    }
    const std::string_view symbol = Take(1);
    if (kEscaped.find(symbol) != std::string_view::npos) {
        return ByteToken(static_cast<unsigned char>(symbol.front()));
    }
    if (symbol == "'") {
        if (const auto byte = TakeHexByte()) {
            return ByteToken(*byte);
        }
    }
    return RtfToken{.kind = RtfTokenKind::Control, .name = symbol, .number = {}};
}

RtfToken RtfTokens::TakeWord() {
    const auto* const end = std::find_if_not(rest_.begin(), rest_.end(), IsLetter);
    RtfToken token{.kind = RtfTokenKind::Control,
                   .name = Take(static_cast<std::size_t>(end - rest_.begin())),
                   .number = {}};
    token.number = TakeNumber();
    // One blank behind a control word belongs to it.
    if (rest_.starts_with(' ')) {
        Take(1);
    }
    if (token.name == "bin") {
        Take(static_cast<std::size_t>(std::max(0, token.number.value_or(0))));
    }
    return token;
}

std::optional<std::int32_t> RtfTokens::TakeNumber() {
    const bool negative = rest_.starts_with('-');
    std::string_view digits = rest_.substr(negative ? 1 : 0);
    if (digits.empty() || !IsDigit(digits.front())) {
        return std::nullopt;
    }
    constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
    std::int64_t number = 0;
    while (!digits.empty() && IsDigit(digits.front())) {
        number = std::min<std::int64_t>(kMost, number * 10 + (digits.front() - '0'));
        digits.remove_prefix(1);
    }
    rest_ = digits;
    return static_cast<std::int32_t>(negative ? -number : number);
}

std::optional<unsigned char> RtfTokens::TakeHexByte() {
    if (rest_.size() < 2) {
        return std::nullopt;
    }
    const int high = HexValue(rest_[0]);
    const int low = HexValue(rest_[1]);
    if (high < 0 || low < 0) {
        return std::nullopt;
    }
    Take(2);
    return static_cast<unsigned char>(high * 16 + low);
}

std::string_view RtfTokens::Take(std::size_t count) {
    const std::string_view taken = rest_.substr(0, count);
    rest_.remove_prefix(taken.size());
    return taken;
}

}  // namespace zentar
