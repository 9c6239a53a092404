#include "platform/win32/program_start.h"

#include <shellapi.h>

#include <optional>
#include <string>

#include "platform/win32/win32_file_error.h"
#include "platform/win32/win32_handle.h"
#include "platform/win32/win32_path.h"
#include "platform/win32/win32_text.h"

namespace zentar {
namespace {

// The cross compiler's headers do not have this one by its name, ERROR_ELEVATION_REQUIRED.
constexpr DWORD kElevationRequired = 740;

struct Place {
    std::wstring folder;
    std::wstring file;  // with its folder, or else Windows would look for it elsewhere as well
};

WORD ShowStateOf(StartWindow window) {
    return window == StartWindow::Maximised ? SW_SHOWMAXIMIZED : SW_SHOWMINIMIZED;
}

// Gives the system's error code.
DWORD Start(const Place& place, std::wstring commandLine, WORD showState) {
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = showState;
    PROCESS_INFORMATION started{};
    if (!CreateProcessW(place.file.c_str(), commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr,
                        place.folder.c_str(), &startup, &started)) {
        return GetLastError();
    }
    const UniqueProcess process(started.hProcess);
    const UniqueProcess thread(started.hThread);
    return ERROR_SUCCESS;
}

// Games of that age are often set to run as administrator, which only the shell can ask for.
DWORD StartElevated(const Place& place, const std::wstring& arguments, WORD showState, HWND owner) {
    SHELLEXECUTEINFOW execute{};
    execute.cbSize = sizeof execute;
    execute.fMask = SEE_MASK_NOASYNC | SEE_MASK_FLAG_NO_UI;
    execute.hwnd = owner;
    execute.lpFile = place.file.c_str();
    execute.lpParameters = arguments.c_str();
    execute.lpDirectory = place.folder.c_str();
    execute.nShow = showState;
    return ShellExecuteExW(&execute) ? ERROR_SUCCESS : GetLastError();
}

std::wstring WithoutLeadingBlank(std::wstring text) {
    if (text.starts_with(L' ')) {
        text.erase(0, 1);
    }
    return text;
}

}  // namespace

Status StartProgramFile(const ProgramStart& start, HWND owner) {
    const std::optional<std::wstring> folder = NativePath(start.folder);
    const std::optional<std::wstring> file = NativePath(start.folder + start.executable);
    if (!folder || !file) {
        return FileError::BadName;
    }
    const Place place{PlainPath(*folder), PlainPath(*file)};
    const std::wstring arguments = Widen(start.arguments);
    const WORD showState = ShowStateOf(start.window);
    DWORD error = Start(place, Widen(start.executable) + arguments, showState);
    if (error == kElevationRequired) {
        error = StartElevated(place, WithoutLeadingBlank(arguments), showState, owner);
    }
    return error == ERROR_SUCCESS ? Status() : Status(FileErrorOf(error));
}

}  // namespace zentar
