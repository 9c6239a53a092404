#include "tests/contract/win32/clipboard_content.h"

#include <windows.h>

#include <richedit.h>

#include <cstring>
#include <string_view>

#include "platform/win32/opened_clipboard.h"
#include "platform/win32/win32_handle.h"

namespace zentar {
namespace {

UINT RichTextFormat() { return RegisterClipboardFormatW(CF_RTF); }

bool Put(UINT format, const void* bytes, std::size_t count) {
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, count);
    std::memcpy(GlobalLock(memory), bytes, count);
    GlobalUnlock(memory);
    return SetClipboardData(format, memory) != nullptr;
}

std::string_view Locked(UINT format) {
    const HANDLE memory = GetClipboardData(format);
    if (memory == nullptr)
        return {};
    const std::string_view bytes(static_cast<const char*>(GlobalLock(memory)), GlobalSize(memory));
    GlobalUnlock(memory);
    return bytes;
}

}  // namespace

// Windows takes nothing from a program that opened the clipboard without a window.
bool PutOnClipboard(const ClipboardContent& content) {
    const UniqueWindow owner(CreateWindowExW(0, L"STATIC", nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE,
                                             nullptr, nullptr, nullptr));
    const OpenedClipboard clipboard(owner.Get());
    if (!clipboard || !EmptyClipboard())
        return false;
    const std::size_t units = content.text.size() + 1;
    return (content.rtf.empty() ||
            Put(RichTextFormat(), content.rtf.c_str(), content.rtf.size() + 1)) &&
           (content.text.empty() ||
            Put(CF_UNICODETEXT, content.text.c_str(), units * sizeof(wchar_t)));
}

ClipboardContent OnClipboard() {
    const OpenedClipboard clipboard(nullptr);
    if (!clipboard)
        return {};
    ClipboardContent content;
    content.rtf = Locked(RichTextFormat());
    content.rtf.resize(std::strlen(content.rtf.c_str()));
    const std::string_view text = Locked(CF_UNICODETEXT);
    if (!text.empty())
        content.text = reinterpret_cast<const wchar_t*>(text.data());
    return content;
}

}  // namespace zentar
