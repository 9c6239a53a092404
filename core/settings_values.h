// How the values of the settings file are read. Each gives nothing when the text is no such value;
// the setting then stays as it was.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace zentar {

// A whole number from 0 to 255 in decimal digits; blanks around it do not matter.
std::optional<std::uint8_t> ParseByte(std::string_view text);

// "0" or "1", likewise.
std::optional<bool> ParseTick(std::string_view text);

// The words True and False, in any case, likewise.
std::optional<bool> ParseTruth(std::string_view text);

// The whole number that the text begins with, after blanks; 0 where it begins with none. Nothing
// when the number does not fit.
std::optional<std::int32_t> ParseLeadingNumber(std::string_view text);

}  // namespace zentar
