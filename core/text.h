// Small text helpers.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace zentar {

// Lower case, letter by letter, of UTF-8 text: ASCII and the Latin, Greek and Cyrillic letters of
// today's languages that have exactly one lower-case form. Anything else, broken UTF-8 included,
// stays as it is.
std::string LowerCase(std::string_view text);

// Lower case of the ASCII letters only, for bytes of game files and for extensions.
std::string LowerAscii(std::string_view bytes);

// Sorts into alphabetical order without regard to case; texts that differ in case alone keep a
// fixed order among themselves.
void SortAlphabetically(std::vector<std::string>& texts);

// Without the blanks at its beginning and end.
std::string TrimBlanks(std::string_view text);

// Whether a text ends so, whatever the case of its ASCII letters; `lowerEnd` is in lower case.
bool EndsWithAnyCase(std::string_view text, std::string_view lowerEnd);

// `path` with a backslash at its end.
std::string WithBackslash(std::string path);

// 1234567 -> "1,234,567" for the separator ",". Zero is "0".
std::string GroupDigits(std::uint64_t number, std::string_view separator);

// The lines joined by CR LF, for message boxes.
std::string Lines(std::initializer_list<std::string_view> lines);

}  // namespace zentar
