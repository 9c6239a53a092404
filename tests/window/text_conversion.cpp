#include "tests/window/text_conversion.h"

#include <windows.h>

namespace zentar::window_tests {

std::wstring Wide(const std::string& utf8) {
    const int bytes = static_cast<int>(utf8.size());
    std::wstring wide(
        static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, utf8.data(), bytes, nullptr, 0)),
        L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), bytes, wide.data(), static_cast<int>(wide.size()));
    return wide;
}

std::string Narrow(const std::wstring& wide) {
    const int letters = static_cast<int>(wide.size());
    std::string utf8(static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, wide.data(), letters,
                                                                  nullptr, 0, nullptr, nullptr)),
                     '\0');
    WideCharToMultiByte(CP_UTF8, 0, wide.data(), letters, utf8.data(),
                        static_cast<int>(utf8.size()), nullptr, nullptr);
    return utf8;
}

}  // namespace zentar::window_tests
