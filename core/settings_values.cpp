#include "core/settings_values.h"

#include <charconv>

#include "core/text.h"

namespace zentar {
namespace {

std::string_view WithoutLeadingBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t");
    return first == std::string_view::npos ? std::string_view() : text.substr(first);
}

std::string_view WithoutBlanks(std::string_view text) {
    text = WithoutLeadingBlanks(text);
    const std::size_t last = text.find_last_not_of(" \t");
    return last == std::string_view::npos ? std::string_view() : text.substr(0, last + 1);
}

}  // namespace

std::optional<std::uint8_t> ParseByte(std::string_view text) {
    text = WithoutBlanks(text);
    std::uint8_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) {
        return std::nullopt;
    }
    return value;
}

std::optional<bool> ParseTick(std::string_view text) {
    const std::optional<std::uint8_t> number = ParseByte(text);
    if (!number || *number > 1) {
        return std::nullopt;
    }
    return *number == 1;
}

std::optional<bool> ParseTruth(std::string_view text) {
    const std::string word = LowerAscii(WithoutBlanks(text));
    if (word == "true") {
        return true;
    }
    if (word == "false") {
        return false;
    }
    return std::nullopt;
}

std::optional<std::int32_t> ParseLeadingNumber(std::string_view text) {
    text = WithoutLeadingBlanks(text);
    if (text.starts_with('+')) {
        text.remove_prefix(1);
        if (text.starts_with('-')) {
            return 0;
        }
    }
    std::int32_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error == std::errc::result_out_of_range) {
        return std::nullopt;
    }
    return error == std::errc() ? value : 0;
}

}  // namespace zentar
