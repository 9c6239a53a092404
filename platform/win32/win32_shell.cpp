#include "platform/win32/win32_shell.h"

#include <windows.h>

#include <objbase.h>
#include <shellapi.h>
#include <shlobj.h>

#include <string_view>

#include "platform/nviewlib/win32/resources.h"
#include "platform/win32/elevated_files.h"
#include "platform/win32/program_start.h"
#include "platform/win32/shell_item.h"
#include "platform/win32/task_memory.h"
#include "platform/win32/win32_file_error.h"
#include "platform/win32/win32_handle.h"
#include "platform/win32/win32_path.h"
#include "platform/win32/win32_text.h"

namespace zentar {
namespace {

using nviewlib::Made;

// The path of the running program, however long.
std::wstring ProgramPath() {
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length =
            GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
        if (length < path.size()) {
            path.resize(length);
            return path;
        }
        path.resize(path.size() * 2);
    }
}

// "C:\Games\" as "C:\Games", but "C:\" as it is.
std::wstring_view WithoutLastSeparator(std::wstring_view folder) {
    constexpr std::size_t kRootLength = 3;
    if (folder.size() > kRootLength && folder.back() == L'\\') {
        folder.remove_suffix(1);
    }
    return folder;
}

// The shell's old call for this stops at 260 characters.
std::optional<std::string> PathOfPicked(PCIDLIST_ABSOLUTE picked) {
    const auto item = Made<IShellItem>([picked](IShellItem** made) {
        return SHCreateItemFromIDList(picked, IID_IShellItem, reinterpret_cast<void**>(made));
    });
    return item ? PathOf(*item) : std::nullopt;
}

// Every user may restart the system, but a program must say that it is about to.
Status TakeRestartRight() {
    HANDLE opened = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_ADJUST_PRIVILEGES | TOKEN_QUERY, &opened)) {
        return LastFileError();
    }
    const UniqueProcess token(opened);
    TOKEN_PRIVILEGES rights{};
    rights.PrivilegeCount = 1;
    rights.Privileges[0].Attributes = SE_PRIVILEGE_ENABLED;
    if (!LookupPrivilegeValueW(nullptr, SE_SHUTDOWN_NAME, &rights.Privileges[0].Luid) ||
        !AdjustTokenPrivileges(token.Get(), FALSE, &rights, 0, nullptr, nullptr)) {
        return LastFileError();
    }
    // A right that is not to be had makes the restart fail.
    return {};
}

// Has the system's program for it open something, and does not wait for that.
Status OpenByAssociation(const std::wstring& what, const wchar_t* folder, Win32Session& session) {
    session.ole.Need();
    SHELLEXECUTEINFOW execute{};
    execute.cbSize = sizeof execute;
    execute.fMask = SEE_MASK_NOASYNC | SEE_MASK_FLAG_NO_UI;
    execute.hwnd = session.forms.DialogOwner();
    execute.lpVerb = L"open";
    execute.lpFile = what.c_str();
    execute.lpDirectory = folder;
    execute.nShow = SW_SHOWNORMAL;
    return ShellExecuteExW(&execute) ? Status() : Status(LastFileError());
}

}  // namespace

std::string Win32Shell::ProgramFolder() {
    // A program may have been started by the system's own form of its path.
    std::wstring folder = WithoutPrefix(ProgramPath());
    folder.resize(folder.rfind(L'\\') + 1);
    return Narrow(WithoutLastSeparator(folder));
}

std::string Win32Shell::WindowsFolder() {
    std::wstring folder(GetWindowsDirectoryW(nullptr, 0), L'\0');
    folder.resize(GetWindowsDirectoryW(folder.data(), static_cast<UINT>(folder.size())));
    return Narrow(WithoutLastSeparator(folder));
}

std::string Win32Shell::TemporaryFolder() {
    return Narrow(WithoutLastSeparator(TemporaryFolderPath()));
}

std::optional<std::string> Win32Shell::PickFolder(const std::string& title) {
    session_.ole.Need();
    const std::wstring wideTitle = Widen(title);
    BROWSEINFOW browse{};
    browse.hwndOwner = session_.forms.DialogOwner();
    browse.lpszTitle = wideTitle.c_str();
    browse.ulFlags =
        BIF_RETURNONLYFSDIRS | BIF_DONTGOBELOWDOMAIN | BIF_NEWDIALOGSTYLE | BIF_EDITBOX;
    const OtherFormsDisabled others(session_.forms, browse.hwndOwner);
    const TaskMemory<ITEMIDLIST> picked(SHBrowseForFolderW(&browse));
    return picked ? PathOfPicked(picked.get()) : std::nullopt;
}

Status Win32Shell::StartProgram(const ProgramStart& start) {
    return StartProgramFile(start, session_.forms.DialogOwner());
}

// The shell would run a file as readily as open an address.
Status Win32Shell::OpenAddress(const std::string& address) {
    if (!address.starts_with("http://") && !address.starts_with("https://")) {
        return FileError::BadName;
    }
    return OpenByAssociation(Widen(address), nullptr, session_);
}

Status Win32Shell::OpenFile(const std::string& path, const std::string& folder) {
    const std::optional<std::wstring> file = NativePath(path);
    const std::optional<std::wstring> current = NativePath(folder);
    if (!file || !current) {
        return FileError::BadName;
    }
    // For a name that is missing the shell would go on to look for a program of that name.
    if (GetFileAttributesW(file->c_str()) == INVALID_FILE_ATTRIBUTES) {
        return LastFileError();
    }
    return OpenByAssociation(PlainPath(*file), PlainPath(*current).c_str(), session_);
}

Status Win32Shell::SetWallpaper(const std::string& path) {
    const std::optional<std::wstring> native = NativePath(path);
    if (!native) {
        return FileError::BadName;
    }
    std::wstring file = PlainPath(*native);
    // Windows takes any name, and shows nothing when there is no such file.
    if (GetFileAttributesW(file.c_str()) == INVALID_FILE_ATTRIBUTES ||
        !SystemParametersInfoW(SPI_SETDESKWALLPAPER, 0, file.data(),
                               SPIF_UPDATEINIFILE | SPIF_SENDCHANGE)) {
        return LastFileError();
    }
    return {};
}

Status Win32Shell::CopyElevated(const std::string& from, const std::string& to) {
    session_.ole.Need();
    return CopyAsAdministrator(from, to, session_.forms.DialogOwner());
}

Status Win32Shell::RestartWindows() {
    if (const Status may = TakeRestartRight(); !may.Ok()) {
        return may;
    }
    return ExitWindowsEx(EWX_REBOOT, SHTDN_REASON_MAJOR_APPLICATION | SHTDN_REASON_FLAG_PLANNED)
               ? Status()
               : Status(LastFileError());
}

Status Win32Shell::DeleteElevated(const std::vector<std::string>& paths) {
    session_.ole.Need();
    return DeleteAsAdministrator(paths, session_.forms.DialogOwner());
}

}  // namespace zentar
