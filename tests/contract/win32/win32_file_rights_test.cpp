// The rights that somebody gave for a file, when a new one takes its place.
#include <windows.h>

#include <sddl.h>

#include <array>
#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "core/atomic_file.h"
#include "platform/win32/win32_file_system.h"
#include "platform/win32/win32_handle.h"

namespace zentar {
namespace {

struct LocalMemoryFree {
    void operator()(void* memory) const { LocalFree(memory); }
};

class Win32FileRights : public testing::Test {
  protected:
    ~Win32FileRights() override {
        std::filesystem::remove(path);
        std::filesystem::remove(other);
    }

    // The access control list in the system's notation.
    static std::string Rights(const std::filesystem::path& of) {
        alignas(SECURITY_DESCRIPTOR) std::array<std::byte, 1024> descriptor;
        DWORD size = 0;
        char* text = nullptr;
        if (!GetFileSecurityW(of.c_str(), DACL_SECURITY_INFORMATION, descriptor.data(),
                              descriptor.size(), &size) ||
            !ConvertSecurityDescriptorToStringSecurityDescriptorA(
                descriptor.data(), SDDL_REVISION_1, DACL_SECURITY_INFORMATION, &text, nullptr)) {
            return "none";
        }
        return std::unique_ptr<char, LocalMemoryFree>(text).get();
    }

    static bool GiveToEverybody(const std::filesystem::path& what) {
        PSECURITY_DESCRIPTOR descriptor = nullptr;
        if (!ConvertStringSecurityDescriptorToSecurityDescriptorW(
                L"D:(A;;FA;;;WD)", SDDL_REVISION_1, &descriptor, nullptr)) {
            return false;
        }
        const std::unique_ptr<void, LocalMemoryFree> owner(descriptor);
        return SetFileSecurityW(what.c_str(), DACL_SECURITY_INFORMATION, descriptor) != FALSE;
    }

    const std::filesystem::path path =
        std::filesystem::temp_directory_path() /
        ("zentar-rights-" + std::to_string(GetCurrentProcessId()) + ".ini");
    const std::filesystem::path other = path.string() + "2";
    Win32FileSystem files;
};

TEST_F(Win32FileRights, StayWithTheNameWhenItsFileIsReplaced) {
    ASSERT_TRUE(ReplaceFileContents(files, path.string(), "old").Ok());
    ASSERT_TRUE(ReplaceFileContents(files, other.string(), "another").Ok());
    ASSERT_TRUE(GiveToEverybody(path));
    const std::string given = Rights(path);
    ASSERT_NE(given, Rights(other));
    ASSERT_TRUE(ReplaceFileContents(files, path.string(), "new").Ok());
    EXPECT_EQ(Rights(path), given);
    ASSERT_TRUE(ReplaceFileContents(files, other.string(), "newer").Ok());
    EXPECT_NE(Rights(other), given);
}

TEST_F(Win32FileRights, OfAFileThatCannotTakeThePlaceStayItsOwn) {
    ASSERT_TRUE(ReplaceFileContents(files, path.string(), "old").Ok());
    ASSERT_TRUE(ReplaceFileContents(files, other.string(), "new").Ok());
    ASSERT_TRUE(GiveToEverybody(path));
    const std::string own = Rights(other);
    ASSERT_NE(own, Rights(path));
    const UniqueFile held(CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                      OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    EXPECT_EQ(files.Replace(other.string(), path.string()).Error(), FileError::InUse);
    EXPECT_EQ(Rights(other), own);
}

}  // namespace
}  // namespace zentar
