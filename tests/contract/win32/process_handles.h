// How many handles of the kernel a process has open.
#pragma once

#include <windows.h>

#include <cstddef>

namespace zentar {

// 0 when nobody knows.
std::size_t HandlesOf(HANDLE process);

}  // namespace zentar
