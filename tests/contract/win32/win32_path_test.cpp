// The form of a path in which other programs get it.
#include <windows.h>

#include <string>

#include <gtest/gtest.h>

#include "platform/win32/win32_path.h"

namespace zentar {

TEST(WithoutPrefix, IsAPathInWhicheverForm) {
    EXPECT_EQ(WithoutPrefix(LR"(\\?\C:\Zentar\zentar.exe)"), LR"(C:\Zentar\zentar.exe)");
    EXPECT_EQ(WithoutPrefix(LR"(\\?\UNC\server\share\zentar.exe)"),
              LR"(\\server\share\zentar.exe)");
    for (const std::wstring path : {LR"(C:\Zentar\zentar.exe)", LR"(\\server\share\zentar.exe)"}) {
        EXPECT_EQ(WithoutPrefix(path), path);
    }
}

TEST(PlainPath, IsWithoutTheSystemsPrefix) {
    EXPECT_EQ(PlainPath(LR"(\\?\C:\Quake 2\quake2.exe)"), LR"(C:\Quake 2\quake2.exe)");
    EXPECT_EQ(PlainPath(LR"(\\?\C:\)"), LR"(C:\)");
    EXPECT_EQ(PlainPath(LR"(\\?\UNC\server\share\a.exe)"), LR"(\\server\share\a.exe)");
}

TEST(PlainPath, KeepsThePrefixWhereWindowsWouldTakeAnotherFile) {
    for (const std::wstring path : {LR"(\\?\C:\Quake.\quake2.exe.)", LR"(\\?\C:\Quake\quake2.exe )",
                                    LR"(\\?\C:\Quake\nul)"}) {
        EXPECT_EQ(PlainPath(path), path);
    }
}

TEST(PlainPath, KeepsThePrefixOfAPathThatIsTooLong) {
    constexpr std::size_t kLongest = MAX_PATH - 1;
    const std::wstring start = LR"(C:\)";
    const std::wstring fits = start + std::wstring(kLongest - start.size(), L'q');
    EXPECT_EQ(PlainPath(LR"(\\?\)" + fits), fits);
    EXPECT_EQ(PlainPath(LR"(\\?\)" + fits + L"q"), LR"(\\?\)" + fits + L"q");
}

}  // namespace zentar
