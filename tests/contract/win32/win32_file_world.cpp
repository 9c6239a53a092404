// The file system contract, kept by Windows.
#include <windows.h>
#include <winioctl.h>

#include <map>

#include "platform/win32/win32_file_system.h"
#include "platform/win32/win32_text.h"
#include "tests/contract/file_system_contract.h"

namespace zentar {
namespace {

// Wide and without a limit of its length.
std::wstring Native(const std::string& path) { return L"\\\\?\\" + Widen(path); }

std::wstring TempFolder() {
    wchar_t path[MAX_PATH + 1];
    const DWORD length = GetTempPathW(MAX_PATH + 1, path);
    return {path, length};
}

// Attributes and names do not matter: it is our own folder, and all of it goes.
void RemoveTree(const std::wstring& folder) {
    WIN32_FIND_DATAW data;
    const HANDLE search = FindFirstFileW((folder + L"*").c_str(), &data);
    if (search == INVALID_HANDLE_VALUE)
        return;
    do {
        const std::wstring name = data.cFileName;
        const std::wstring path = folder + name;
        if (name == L"." || name == L"..")
            continue;
        SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
        if ((data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
            RemoveTree(path + L"\\");
        } else {
            DeleteFileW(path.c_str());
        }
    } while (FindNextFileW(search, &data));
    FindClose(search);
    RemoveDirectoryW(folder.substr(0, folder.size() - 1).c_str());
}

class Win32FileWorld : public FileWorld {
  public:
    Win32FileWorld() {
        static int worlds = 0;
        const std::wstring name = L"zentar-contract-" + std::to_wstring(GetCurrentProcessId()) +
                                  L"-" + std::to_wstring(++worlds) + L"\\";
        folder_ = Narrow(TempFolder() + name);
        CreateDirectoryW(Native(folder_).c_str(), nullptr);
    }
    ~Win32FileWorld() override {
        for (const auto& [path, handle] : locks_)
            CloseHandle(handle);
        RemoveTree(Native(folder_));
    }
    Win32FileWorld(const Win32FileWorld&) = delete;
    Win32FileWorld& operator=(const Win32FileWorld&) = delete;

    FileSystem& Files() override { return files_; }
    std::string Folder() const override { return folder_; }

    void SetReadOnly(const std::string& path) override {
        EXPECT_TRUE(SetFileAttributesW(Native(path).c_str(), FILE_ATTRIBUTE_READONLY));
    }

    void Lock(const std::string& path) override {
        locks_[path] = CreateFileW(Native(path).c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                                   OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
        EXPECT_NE(locks_[path], INVALID_HANDLE_VALUE);
    }

    void Unlock(const std::string& path) override {
        CloseHandle(locks_[path]);
        locks_.erase(path);
    }

    void MakeHugeFile(const std::string& path, std::uint64_t length,
                      std::string_view tail) override {
        const HANDLE file = CreateFileW(Native(path).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                        FILE_ATTRIBUTE_NORMAL, nullptr);
        DWORD count = 0;
        // Where the disk knows no sparse files, the zeros are written out.
        DeviceIoControl(file, FSCTL_SET_SPARSE, nullptr, 0, nullptr, 0, &count, nullptr);
        LARGE_INTEGER offset;
        offset.QuadPart = static_cast<LONGLONG>(length - tail.size());
        EXPECT_TRUE(SetFilePointerEx(file, offset, nullptr, FILE_BEGIN));
        EXPECT_TRUE(WriteFile(file, tail.data(), static_cast<DWORD>(tail.size()), &count, nullptr));
        CloseHandle(file);
    }

    std::string OtherDrive() const override {
        for (wchar_t letter = L'C'; letter <= L'Z'; ++letter) {
            const std::wstring root = std::wstring(1, letter) + L":\\";
            if (letter == Widen(folder_)[0] || GetDriveTypeW(root.c_str()) != DRIVE_FIXED)
                continue;
            return Narrow(root);
        }
        return {};
    }

  private:
    Win32FileSystem files_;
    std::string folder_;
    std::map<std::string, HANDLE> locks_;
};

std::unique_ptr<FileWorld> MakeWin32FileWorld() { return std::make_unique<Win32FileWorld>(); }

const auto kWin32 = testing::Values(&MakeWin32FileWorld);

}  // namespace

INSTANTIATE_TEST_SUITE_P(Win32, FileContentsContract, kWin32);
INSTANTIATE_TEST_SUITE_P(Win32, FileOperationsContract, kWin32);
INSTANTIATE_TEST_SUITE_P(Win32, FileNamesContract, kWin32);
INSTANTIATE_TEST_SUITE_P(Win32, FileOverwriteContract, kWin32);

}  // namespace zentar
