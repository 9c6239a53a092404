// Owners of what the system gives to the library: each gives it back, once.
#pragma once

#include <windows.h>

#include <objbase.h>

#include <memory>

namespace nviewlib {

struct HandleCloser {
    using pointer = HANDLE;
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
// None is null, also where the system says INVALID_HANDLE_VALUE.
using Handle = std::unique_ptr<void, HandleCloser>;

struct ComRelease {
    template <typename Interface>
    void operator()(Interface* object) const {
        object->Release();
    }
};
template <typename Interface>
using ComPointer = std::unique_ptr<Interface, ComRelease>;

// The object that a call of COM makes; none when that fails.
template <typename Interface, typename Call>
ComPointer<Interface> Made(Call call) {
    Interface* object = nullptr;
    return FAILED(call(&object)) ? ComPointer<Interface>() : ComPointer<Interface>(object);
}

// COM on this thread, for as long as it is needed; a thread that had it already keeps it as it was.
class ComOnThread {
  public:
    ComOnThread() : ours_(SUCCEEDED(CoInitializeEx(nullptr, COINIT_MULTITHREADED))) {}
    ComOnThread(const ComOnThread&) = delete;
    ComOnThread& operator=(const ComOnThread&) = delete;
    ~ComOnThread() {
        if (ours_) {
            CoUninitialize();
        }
    }

  private:
    bool ours_;
};

}  // namespace nviewlib
