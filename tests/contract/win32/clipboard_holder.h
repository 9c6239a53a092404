// Another program that keeps the clipboard to itself.
#pragma once

#include <windows.h>

#include <thread>

#include <gtest/gtest.h>

#include "platform/win32/win32_handle.h"

namespace zentar {

// Has it open for so long, or until this goes.
class ClipboardHolder {
  public:
    explicit ClipboardHolder(DWORD milliseconds)
        : thread_([this, milliseconds] { Hold(milliseconds); }) {
        WaitForSingleObject(opened_, INFINITE);
        EXPECT_TRUE(holds_);
    }
    ~ClipboardHolder() {
        SetEvent(released_);
        thread_.join();
        CloseHandle(opened_);
        CloseHandle(released_);
    }
    ClipboardHolder(const ClipboardHolder&) = delete;
    ClipboardHolder& operator=(const ClipboardHolder&) = delete;

  private:
    void Hold(DWORD milliseconds) {
        const UniqueWindow window(CreateWindowExW(0, L"STATIC", nullptr, 0, 0, 0, 0, 0,
                                                  HWND_MESSAGE, nullptr, nullptr, nullptr));
        holds_ = OpenClipboard(window.Get()) != FALSE;
        SetEvent(opened_);
        WaitForSingleObject(released_, milliseconds);
        CloseClipboard();
    }

    bool holds_ = false;
    HANDLE opened_ = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    HANDLE released_ = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    std::thread thread_;  // the last, as it uses the others
};

}  // namespace zentar
