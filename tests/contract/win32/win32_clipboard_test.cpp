// What other programs find on the clipboard.
#include <windows.h>

#include <chrono>
#include <string>

#include <gtest/gtest.h>

#include "platform/win32/win32_text.h"
#include "platform/window_services.h"
#include "tests/contract/file_system_contract.h"
#include "tests/contract/win32/clipboard_content.h"
#include "tests/contract/win32/clipboard_holder.h"
#include "tests/contract/win32/the_platform.h"

namespace zentar {
namespace {

Status Put(const std::string& text) {
    return ThePlatform().Services().windows.PutOnClipboard(text);
}

std::string Pasted() { return Narrow(OnClipboard().text); }

}  // namespace

TEST(Win32Clipboard, ATextIsPastedAsItIs) {
    for (const std::string text : {"seta name \"^1A^7b\"", "дуэль & Größe \U0001F47E",
                                   "one\r\ntwo\r\n", "\\bind pause \"say\"", ""}) {
        EXPECT_TRUE(Succeeded(Put(text)));
        EXPECT_EQ(Pasted(), text);
    }
}

TEST(Win32Clipboard, ALongTextIsPastedWhole) {
    std::string text;
    for (int i = 0; text.size() < 100'000; ++i)
        text += std::to_string(i) + " дуэль ";
    EXPECT_TRUE(Succeeded(Put(text)));
    EXPECT_EQ(Pasted(), text);
}

// A program that takes formatted text first would paste what was there before.
TEST(Win32Clipboard, NothingElseIsLeftBesideTheText) {
    EXPECT_TRUE(PutOnClipboard({"{\\rtf1 old}", L"old"}));
    EXPECT_EQ(OnClipboard().rtf, "{\\rtf1 old}");
    EXPECT_TRUE(Succeeded(Put("new")));
    EXPECT_EQ(OnClipboard().rtf, "");
    EXPECT_EQ(Pasted(), "new");
}

TEST(Win32Clipboard, AProgramThatHoldsItForAMomentIsWaitedFor) {
    EXPECT_TRUE(Succeeded(Put("old")));
    {
        const ClipboardHolder holder(150);
        EXPECT_TRUE(Succeeded(Put("new")));
    }
    EXPECT_EQ(Pasted(), "new");
}

TEST(Win32Clipboard, AProgramThatNeverLetsGoIsNoReasonToHang) {
    EXPECT_TRUE(Succeeded(Put("old")));
    {
        const ClipboardHolder holder(60'000);
        const auto before = std::chrono::steady_clock::now();
        EXPECT_TRUE(FailedWith(Put("new"), FileError::InUse));
        EXPECT_LT(std::chrono::steady_clock::now() - before, std::chrono::seconds(5));
    }
    EXPECT_EQ(Pasted(), "old");
    EXPECT_TRUE(Succeeded(Put("new")));
    EXPECT_EQ(Pasted(), "new");
}

}  // namespace zentar
