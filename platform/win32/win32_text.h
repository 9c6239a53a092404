// UTF-8, as the program has it, to UTF-16, as Windows has it, and back.
//
// File names of Windows may hold surrogates without a partner. Those travel as three bytes each
// (the "WTF-8" form of UTF-8), so that every name comes back as it was. Bytes that are no UTF-8
// become U+FFFD.
#pragma once

#include <string>
#include <string_view>

namespace zentar {

std::wstring Widen(std::string_view utf8);
std::string Narrow(std::wstring_view utf16);

// As above, but replacing the content of a string whose memory is used again.
void WidenInto(std::string_view utf8, std::wstring& into);
void NarrowInto(std::wstring_view utf16, std::string& into);

}  // namespace zentar
