// The end of a test program whose code under test asked for what cannot be.
#pragma once

#include <string>

namespace zentar {

// Says what the mistake is and aborts, as the real windows do.
[[noreturn]] void Mistake(const std::string& what);

}  // namespace zentar
