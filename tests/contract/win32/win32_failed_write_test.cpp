// A write of which the disk takes only a part.
#include <windows.h>

#include <winioctl.h>

#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "platform/win32/win32_file_system.h"
#include "platform/win32/win32_handle.h"

namespace zentar {
namespace {

// The largest file that common file systems with blocks of 4 KB hold.
constexpr LONGLONG kLargest = (LONGLONG{1} << 44) - 4096;
constexpr LONGLONG kRoom = 8'000'000;
constexpr std::size_t kTooMuch = 20'000'000;

// A file without content, to whose largest length nearly nothing is missing.
bool MakeNearlyFull(const std::filesystem::path& path) {
    const UniqueFile file(CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                      FILE_ATTRIBUTE_NORMAL, nullptr));
    DWORD count = 0;
    DeviceIoControl(file.Get(), FSCTL_SET_SPARSE, nullptr, 0, nullptr, 0, &count, nullptr);
    LARGE_INTEGER length{};
    length.QuadPart = kLargest - kRoom;
    return SetFilePointerEx(file.Get(), length, nullptr, FILE_BEGIN) != FALSE &&
           SetEndOfFile(file.Get()) != FALSE;
}

class Win32FailedWrite : public testing::Test {
  protected:
    ~Win32FailedWrite() override { std::filesystem::remove(path); }

    const std::filesystem::path path =
        std::filesystem::temp_directory_path() /
        ("zentar-largest-" + std::to_string(GetCurrentProcessId()) + ".bin");
};

TEST_F(Win32FailedWrite, LeavesTheFileAsLongAsItWas) {
    if (!MakeNearlyFull(path)) {
        GTEST_SKIP() << "this drive has no such large files";
    }
    Win32FileSystem files;
    bool failed = false;
    {
        const auto file = files.OpenForWriting(path.string(), WriteMode::Append);
        ASSERT_TRUE(file.Ok());
        failed = !file.Value()->Write(std::string(kTooMuch, 'x')).Ok();
        EXPECT_TRUE(file.Value()->Write("y").Ok());
        EXPECT_TRUE(file.Value()->Close().Ok());
    }
    const std::uint64_t length = files.Info(path.string()).ValueOr({}).length;
    if (!failed) {
        GTEST_SKIP() << "this drive has larger files still";
    }
    EXPECT_EQ(length, static_cast<std::uint64_t>(kLargest - kRoom + 1));
}

}  // namespace
}  // namespace zentar
