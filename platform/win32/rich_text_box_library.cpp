#include "platform/win32/rich_text_box_library.h"

#include <windows.h>

#include <richedit.h>

namespace zentar {

// Stays until the program ends, as windows of the class may.
const wchar_t* RichEditorClass() {
    static const HMODULE library =
        LoadLibraryExW(L"msftedit.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    return library != nullptr ? MSFTEDIT_CLASS : nullptr;
}

}  // namespace zentar
