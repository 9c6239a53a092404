#include "tests/window/monkey_resources.h"

#include <psapi.h>
#include <winternl.h>

#include <algorithm>
#include <cstdint>
#include <vector>

#include "tests/contract/win32/process_handles.h"

namespace zentar::window_tests {
namespace {

// A line of the table in which the system keeps a process's GDI objects.
struct GdiEntry {
    std::uint64_t object;
    std::uint32_t owner;
    std::uint16_t unique;
    std::uint8_t type;  // 0 for a free line
    std::uint8_t flags;
    std::uint64_t userPointer;
};

constexpr std::size_t kGdiEntries = 65536;
constexpr std::size_t kGdiTableInPeb = 0xF8;

std::uintptr_t PebOf(HANDLE process) {
    using Query = NTSTATUS(WINAPI*)(HANDLE, PROCESSINFOCLASS, void*, ULONG, ULONG*);
    const auto query = reinterpret_cast<Query>(reinterpret_cast<void*>(
        GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "NtQueryInformationProcess")));
    PROCESS_BASIC_INFORMATION basic{};
    query(process, ProcessBasicInformation, &basic, sizeof(basic), nullptr);
    return reinterpret_cast<std::uintptr_t>(basic.PebBaseAddress);
}

// Wine answers GetGuiResources with 0, but keeps the table.
std::size_t GdiObjectsOf(HANDLE process) {
    if (const DWORD counted = GetGuiResources(process, GR_GDIOBJECTS)) {
        return counted;
    }
    std::uintptr_t table = 0;
    ReadProcessMemory(process, reinterpret_cast<void*>(PebOf(process) + kGdiTableInPeb), &table,
                      sizeof(table), nullptr);
    constexpr std::size_t kBlock = 1024;
    std::vector<GdiEntry> entries(kBlock);
    std::size_t used = 0;
    for (std::size_t first = 0; table != 0 && first < kGdiEntries; first += kBlock) {
        if (!ReadProcessMemory(process, reinterpret_cast<void*>(table + first * sizeof(GdiEntry)),
                               entries.data(), kBlock * sizeof(GdiEntry), nullptr)) {
            break;
        }
        for (const GdiEntry& entry : entries) {
            used += entry.type != 0 ? 1 : 0;
        }
    }
    return used;
}

struct WindowCount {
    DWORD process;
    std::size_t count;
};

BOOL CALLBACK CountChild(HWND /*window*/, LPARAM count) {
    ++reinterpret_cast<WindowCount*>(count)->count;
    return TRUE;
}

BOOL CALLBACK CountTop(HWND window, LPARAM parameter) {
    auto& count = *reinterpret_cast<WindowCount*>(parameter);
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    if (owner == count.process) {
        ++count.count;
        EnumChildWindows(window, CountChild, parameter);
    }
    return TRUE;
}

}  // namespace

Resources ResourcesOf(DWORD process) {
    const HANDLE handle = OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, process);
    Resources resources;
    resources.handles = HandlesOf(handle);
    resources.drawing = GdiObjectsOf(handle);
    PROCESS_MEMORY_COUNTERS_EX memory{};
    memory.cb = sizeof(memory);
    K32GetProcessMemoryInfo(handle, reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&memory),
                            sizeof(memory));
    resources.memory = std::max(memory.PrivateUsage, memory.PagefileUsage);
    CloseHandle(handle);
    WindowCount windows{.process = process, .count = 0};
    EnumWindows(CountTop, reinterpret_cast<LPARAM>(&windows));
    resources.windows = windows.count;
    return resources;
}

void PrintTo(const Resources& resources, std::ostream* out) {
    *out << resources.handles << " handles, " << resources.drawing << " GDI objects, "
         << resources.windows << " windows, " << resources.memory / 1024 << " KB";
}

}  // namespace zentar::window_tests
