// The clipboard, open as long as an object of this class stands.
#pragma once

#include <windows.h>

#include <cstddef>

namespace zentar {

class OpenedClipboard {
  public:
    // Waits a little for another program that has it open; false as a condition when that takes too
    // long.
    explicit OpenedClipboard(HWND owner);
    OpenedClipboard(const OpenedClipboard&) = delete;
    OpenedClipboard& operator=(const OpenedClipboard&) = delete;
    ~OpenedClipboard();

    explicit operator bool() const { return open_; }

    // Adds one format to what the program put there; it must have emptied the clipboard before.
    // False when the system does not take it.
    bool Put(UINT format, const void* bytes, std::size_t count);

  private:
    bool open_ = false;
};

}  // namespace zentar
