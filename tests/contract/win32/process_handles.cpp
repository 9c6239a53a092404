#include "tests/contract/win32/process_handles.h"

#include <winternl.h>

#include <cstdint>
#include <vector>

namespace zentar {

std::size_t HandlesOf(HANDLE process) {
    DWORD counted = 0;
    if (GetProcessHandleCount(process, &counted) && counted != 0) {
        return counted;
    }
    // Wine counts them only in its list of all processes.
    using Query = NTSTATUS(WINAPI*)(SYSTEM_INFORMATION_CLASS, void*, ULONG, ULONG*);
    const auto query = reinterpret_cast<Query>(reinterpret_cast<void*>(
        GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "NtQuerySystemInformation")));
    std::vector<std::uint64_t> list(std::size_t{1} << 17U);
    const auto bytes = static_cast<ULONG>(list.size() * sizeof(list[0]));
    if (query(SystemProcessInformation, list.data(), bytes, nullptr) < 0) {
        return 0;
    }
    const auto id = static_cast<std::uintptr_t>(GetProcessId(process));
    const auto* at = reinterpret_cast<const char*>(list.data());
    for (;;) {
        const auto* entry = reinterpret_cast<const SYSTEM_PROCESS_INFORMATION*>(at);
        if (reinterpret_cast<std::uintptr_t>(entry->UniqueProcessId) == id) {
            return entry->HandleCount;
        }
        if (entry->NextEntryOffset == 0) {
            return 0;
        }
        at += entry->NextEntryOffset;
    }
}

}  // namespace zentar
