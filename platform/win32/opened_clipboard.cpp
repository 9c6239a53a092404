#include "platform/win32/opened_clipboard.h"

#include <cstring>

#include "platform/win32/win32_handle.h"

namespace zentar {
namespace {

constexpr int kTries = 20;
constexpr DWORD kPauseMs = 25;

struct GlobalMemoryTraits {
    using Type = HGLOBAL;
    static Type None() { return nullptr; }
    static bool Close(Type memory) { return GlobalFree(memory) == nullptr; }
};
using UniqueGlobalMemory = UniqueHandle<GlobalMemoryTraits>;

}  // namespace

OpenedClipboard::OpenedClipboard(HWND owner) {
    for (int tries = 1; !open_; ++tries) {
        open_ = OpenClipboard(owner) != FALSE;
        if (!open_ && tries == kTries) {
            return;
        }
        if (!open_) {
            Sleep(kPauseMs);
        }
    }
}

bool OpenedClipboard::Put(UINT format, const void* bytes, std::size_t count) {
    UniqueGlobalMemory memory(GlobalAlloc(GMEM_MOVEABLE, count));
    void* place = memory ? GlobalLock(memory.Get()) : nullptr;
    if (place == nullptr) {
        return false;
    }
    std::memcpy(place, bytes, count);
    GlobalUnlock(memory.Get());
    if (SetClipboardData(format, memory.Get()) == nullptr) {
        return false;
    }
    static_cast<void>(memory.Release());  // it is the system's now
    return true;
}

OpenedClipboard::~OpenedClipboard() {
    if (open_) {
        CloseClipboard();
    }
}

}  // namespace zentar
