// UTF-8 in the tests, UTF-16 at the border to Windows.
#pragma once

#include <string>

namespace zentar::window_tests {

std::wstring Wide(const std::string& utf8);
std::string Narrow(const std::wstring& wide);

}  // namespace zentar::window_tests
