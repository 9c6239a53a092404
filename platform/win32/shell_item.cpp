#include "platform/win32/shell_item.h"

#include <windows.h>

#include <objbase.h>

#include "platform/win32/task_memory.h"
#include "platform/win32/win32_text.h"

namespace zentar {

using nviewlib::ComPointer;
using nviewlib::Made;

ComPointer<IShellItem> ItemOf(const std::wstring& path) {
    return Made<IShellItem>([&](IShellItem** item) {
        return SHCreateItemFromParsingName(path.c_str(), nullptr, IID_IShellItem,
                                           reinterpret_cast<void**>(item));
    });
}

std::optional<std::string> PathOf(IShellItem& item) {
    PWSTR name = nullptr;
    const HRESULT named = item.GetDisplayName(SIGDN_FILESYSPATH, &name);
    const TaskMemory<wchar_t> path(name);
    if (FAILED(named)) {
        return std::nullopt;
    }
    return Narrow(path.get());
}

}  // namespace zentar
