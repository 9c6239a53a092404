// Owner of memory that the shell allocated for the program.
#pragma once

#include <windows.h>

#include <objbase.h>

#include <memory>

namespace zentar {

struct TaskMemoryFree {
    void operator()(void* memory) const { CoTaskMemFree(memory); }
};

template <typename T>
using TaskMemory = std::unique_ptr<T, TaskMemoryFree>;

}  // namespace zentar
