// What a running program holds, seen from outside.
#pragma once

#include <windows.h>

#include <cstddef>
#include <ostream>

namespace zentar::window_tests {

struct Resources {
    std::size_t handles = 0;  // of the kernel
    std::size_t drawing = 0;  // GDI objects
    std::size_t windows = 0;  // hidden ones and controls included
    std::size_t memory = 0;   // private bytes
};

void PrintTo(const Resources& resources, std::ostream* out);

Resources ResourcesOf(DWORD process);

}  // namespace zentar::window_tests
