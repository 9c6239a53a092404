#include "platform/win32/clipboard.h"

#include <windows.h>

#include "platform/win32/opened_clipboard.h"
#include "platform/win32/win32_file_error.h"
#include "platform/win32/win32_handle.h"
#include "platform/win32/win32_text.h"

namespace zentar {
namespace {

// Windows takes nothing from a program that opened the clipboard without a window.
UniqueWindow MakeOwner() {
    return UniqueWindow(CreateWindowExW(0, L"STATIC", nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                        nullptr, nullptr));
}

}  // namespace

Status PutTextOnClipboard(const std::string& text) {
    const std::wstring wide = Widen(text);
    const UniqueWindow owner = MakeOwner();
    if (!owner) {
        return LastFileError();
    }
    OpenedClipboard clipboard(owner.Get());
    if (!clipboard) {
        return FileError::InUse;
    }
    if (!EmptyClipboard() ||
        !clipboard.Put(CF_UNICODETEXT, wide.c_str(), (wide.size() + 1) * sizeof(wchar_t))) {
        return LastFileError();
    }
    return {};
}

}  // namespace zentar
