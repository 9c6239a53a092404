// Text of the games: bytes, of which the games use all 256 values.
//
// A control shows each byte as one character of Windows-1252; the five bytes that code page leaves
// unassigned (81, 8D, 8F, 90, 9D hex) stand as the code points of the same value. So every byte
// goes to the screen and back without loss.
#pragma once

#include <string>
#include <string_view>

namespace zentar {

// Bytes to UTF-8.
std::string GameTextToUtf8(std::string_view bytes);

// UTF-8 to bytes. A character that no byte stands for (a Cyrillic letter, say) becomes its own
// UTF-8 bytes, which is what engines of today write for it.
std::string Utf8ToGameText(std::string_view utf8);

// Bytes to UTF-8 on one line: control bytes, line feeds among them, become blanks.
std::string GameTextOnOneLine(std::string_view bytes);

}  // namespace zentar
