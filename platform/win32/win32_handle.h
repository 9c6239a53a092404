// Owners of the system's handles: each closes what it holds, once.
#pragma once

#include <windows.h>

#include <atomic>
#include <utility>

namespace zentar {

// How many handles of a kind are owned by now. Wine does not count them for anyone.
template <typename Traits>
inline std::atomic<int> liveHandles = 0;

// Owns one handle. Traits names the handle's type, the value that stands for "none" and how to
// close one.
template <typename Traits>
class UniqueHandle {
  public:
    using Type = typename Traits::Type;

    UniqueHandle() = default;
    explicit UniqueHandle(Type handle) : handle_(handle) { Count(handle, 1); }
    UniqueHandle(const UniqueHandle&) = delete;
    UniqueHandle& operator=(const UniqueHandle&) = delete;
    UniqueHandle(UniqueHandle&& other) noexcept : UniqueHandle(other.Release()) {}
    UniqueHandle& operator=(UniqueHandle&& other) noexcept {
        if (this != &other) {
            Reset(other.Release());
        }
        return *this;
    }
    ~UniqueHandle() { Reset(); }

    Type Get() const { return handle_; }
    explicit operator bool() const { return handle_ != Traits::None(); }

    // Gives the handle away; the caller closes it.
    [[nodiscard]] Type Release() {
        Count(handle_, -1);
        return std::exchange(handle_, Traits::None());
    }
    // False when the system could not close the old one properly.
    bool Reset(Type handle = Traits::None()) {
        const Type old = Release();
        Count(handle, 1);
        handle_ = handle;
        return old == Traits::None() || Traits::Close(old);
    }
    static int Live() { return liveHandles<Traits>; }

  private:
    static void Count(Type handle, int change) {
        if (handle != Traits::None()) {
            liveHandles<Traits> += change;
        }
    }

    Type handle_ = Traits::None();
};

struct FileHandleTraits {
    using Type = HANDLE;
    static Type None() { return INVALID_HANDLE_VALUE; }
    static bool Close(Type handle) { return CloseHandle(handle) != FALSE; }
};

struct SearchHandleTraits {
    using Type = HANDLE;
    static Type None() { return INVALID_HANDLE_VALUE; }
    static bool Close(Type handle) { return FindClose(handle) != FALSE; }
};

struct WindowHandleTraits {
    using Type = HWND;
    static Type None() { return nullptr; }
    static bool Close(Type handle) { return DestroyWindow(handle) != FALSE; }
};

struct MenuHandleTraits {
    using Type = HMENU;
    static Type None() { return nullptr; }
    static bool Close(Type handle) { return DestroyMenu(handle) != FALSE; }
};

struct FontHandleTraits {
    using Type = HFONT;
    static Type None() { return nullptr; }
    static bool Close(Type handle) { return DeleteObject(handle) != FALSE; }
};

struct BrushHandleTraits {
    using Type = HBRUSH;
    static Type None() { return nullptr; }
    static bool Close(Type handle) { return DeleteObject(handle) != FALSE; }
};

struct RegionHandleTraits {
    using Type = HRGN;
    static Type None() { return nullptr; }
    static bool Close(Type handle) { return DeleteObject(handle) != FALSE; }
};

struct IconHandleTraits {
    using Type = HICON;
    static Type None() { return nullptr; }
    static bool Close(Type handle) { return DestroyIcon(handle) != FALSE; }
};

struct CursorHandleTraits {
    using Type = HCURSOR;
    static Type None() { return nullptr; }
    static bool Close(Type handle) { return DestroyCursor(handle) != FALSE; }
};

struct BitmapHandleTraits {
    using Type = HBITMAP;
    static Type None() { return nullptr; }
    static bool Close(Type handle) { return DeleteObject(handle) != FALSE; }
};

struct ModuleHandleTraits {
    using Type = HMODULE;
    static Type None() { return nullptr; }
    static bool Close(Type handle) { return FreeLibrary(handle) != FALSE; }
};

struct ProcessHandleTraits {
    using Type = HANDLE;
    static Type None() { return nullptr; }
    static bool Close(Type handle) { return CloseHandle(handle) != FALSE; }
};

struct RegistryKeyTraits {
    using Type = HKEY;
    static Type None() { return nullptr; }
    static bool Close(Type handle) { return RegCloseKey(handle) == ERROR_SUCCESS; }
};

struct MemoryContextTraits {
    using Type = HDC;
    static Type None() { return nullptr; }
    static bool Close(Type handle) { return DeleteDC(handle) != FALSE; }
};

using UniqueFile = UniqueHandle<FileHandleTraits>;
using UniqueSearch = UniqueHandle<SearchHandleTraits>;
using UniqueWindow = UniqueHandle<WindowHandleTraits>;
using UniqueMenu = UniqueHandle<MenuHandleTraits>;
using UniqueFont = UniqueHandle<FontHandleTraits>;
using UniqueBrush = UniqueHandle<BrushHandleTraits>;
using UniqueRegion = UniqueHandle<RegionHandleTraits>;
using UniqueIcon = UniqueHandle<IconHandleTraits>;
using UniqueCursor = UniqueHandle<CursorHandleTraits>;
using UniqueBitmap = UniqueHandle<BitmapHandleTraits>;
using UniqueModule = UniqueHandle<ModuleHandleTraits>;
using UniqueProcess = UniqueHandle<ProcessHandleTraits>;  // or one of its threads, or its token
using UniqueKey = UniqueHandle<RegistryKeyTraits>;
using UniqueMemoryContext = UniqueHandle<MemoryContextTraits>;

// A window's device context, given back at the end of the scope.
class WindowContext {
  public:
    explicit WindowContext(HWND window) : window_(window), context_(GetDC(window)) {}
    WindowContext(const WindowContext&) = delete;
    WindowContext& operator=(const WindowContext&) = delete;
    ~WindowContext() { ReleaseDC(window_, context_); }

    HDC Get() const { return context_; }

  private:
    HWND window_;
    HDC context_;
};

}  // namespace zentar
