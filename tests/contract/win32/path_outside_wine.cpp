#include "tests/contract/win32/path_outside_wine.h"

#include <windows.h>

namespace zentar {

std::optional<std::string> PathOutsideWine(const std::filesystem::path& file) {
    using Convert = char*(CDECL*)(const wchar_t*);
    const auto convert = reinterpret_cast<Convert>(reinterpret_cast<void*>(
        GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "wine_get_unix_file_name")));
    char* const path = convert == nullptr ? nullptr : convert(file.c_str());
    if (path == nullptr)
        return std::nullopt;
    const std::string copy = path;
    HeapFree(GetProcessHeap(), 0, path);
    return copy;
}

}  // namespace zentar
