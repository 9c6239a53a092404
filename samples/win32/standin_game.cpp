// Stands in for a game executable: appends to standin.log beside itself how it was started, then
// shows a window with the game's title for as many seconds as standin.seconds beside it says (5
// without that file, no window for 0).
//
// standin.log is UTF-8, a block of four lines a start:
//   command line, as received
//   working folder
//   show state that the starter asked for (6 = minimised, 2 = minimised and active), or "none"
//   an empty line
#include <windows.h>

#include <cstddef>
#include <cwctype>
#include <string>

namespace {

constexpr int kDefaultSeconds = 5;
constexpr std::size_t kPathRoom = 32768;

// The two halves of the executable's path: folder with its backslash, and lower-case name.
struct OwnPath {
    std::wstring folder;
    std::wstring name;
};

OwnPath FindOwnPath() {
    std::wstring path(kPathRoom, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    const std::size_t nameStart = path.rfind(L'\\') + 1;
    OwnPath own{path.substr(0, nameStart), path.substr(nameStart)};
    for (wchar_t& letter : own.name) {
        letter = static_cast<wchar_t>(std::towlower(letter));
    }
    return own;
}

std::string Utf8(const std::wstring& text) {
    const int wide = static_cast<int>(text.size());
    const int length =
        WideCharToMultiByte(CP_UTF8, 0, text.data(), wide, nullptr, 0, nullptr, nullptr);
    std::string bytes(static_cast<std::size_t>(length), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), wide, bytes.data(), length, nullptr, nullptr);
    return bytes;
}

std::string WorkingFolder() {
    std::wstring folder(kPathRoom, L'\0');
    folder.resize(GetCurrentDirectoryW(static_cast<DWORD>(folder.size()), folder.data()));
    return Utf8(folder);
}

std::string ShowState() {
    STARTUPINFOW info{};
    info.cb = sizeof(info);
    GetStartupInfoW(&info);
    return (info.dwFlags & STARTF_USESHOWWINDOW) != 0 ? std::to_string(info.wShowWindow) : "none";
}

// Games may start at the same time and write one behind the other. False when the log cannot be
// opened.
bool AppendToLog(const OwnPath& own) {
    const std::string block =
        Utf8(GetCommandLineW()) + "\r\n" + WorkingFolder() + "\r\n" + ShowState() + "\r\n\r\n";
    const HANDLE log = CreateFileW((own.folder + L"standin.log").c_str(), FILE_APPEND_DATA,
                                   FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_ALWAYS,
                                   FILE_ATTRIBUTE_NORMAL, nullptr);
    if (log == INVALID_HANDLE_VALUE) {
        return false;
    }
    DWORD written = 0;
    WriteFile(log, block.data(), static_cast<DWORD>(block.size()), &written, nullptr);
    CloseHandle(log);
    return true;
}

int SecondsToShow(const OwnPath& own) {
    const HANDLE file = CreateFileW((own.folder + L"standin.seconds").c_str(), GENERIC_READ,
                                    FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return kDefaultSeconds;
    }
    char digits[8] = {};
    DWORD length = 0;
    ReadFile(file, digits, sizeof(digits) - 1, &length, nullptr);
    CloseHandle(file);
    int seconds = 0;
    for (DWORD i = 0; i < length && digits[i] >= '0' && digits[i] <= '9'; ++i) {
        seconds = seconds * 10 + (digits[i] - '0');
    }
    return seconds;
}

const wchar_t* GameTitle(const OwnPath& own) {
    if (own.name.starts_with(L"quake3")) {
        return L"Quake 3: Arena";
    }
    return own.name.starts_with(L"quake2") ? L"Quake 2" : L"GLQuake";
}

LRESULT CALLBACK GameWindow(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_TIMER || message == WM_CLOSE) {
        PostQuitMessage(0);
        return 0;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

void ShowGameWindow(HINSTANCE instance, const wchar_t* title, int seconds) {
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = GameWindow;
    windowClass.hInstance = instance;
    windowClass.hbrBackground = static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH));
    windowClass.lpszClassName = L"StandinGame";
    RegisterClassW(&windowClass);
    const HWND window =
        CreateWindowW(windowClass.lpszClassName, title, WS_OVERLAPPEDWINDOW, CW_USEDEFAULT,
                      CW_USEDEFAULT, 640, 480, nullptr, nullptr, instance, nullptr);
    CreateWindowW(L"STATIC", GetCommandLineW(), WS_CHILD | WS_VISIBLE, 16, 16, 600, 80, window,
                  nullptr, instance, nullptr);
    ShowWindow(window, SW_SHOWDEFAULT);
    SetTimer(window, 1, static_cast<UINT>(seconds) * 1000U, nullptr);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        DispatchMessageW(&message);
    }
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE /*previous*/, PWSTR /*commandLine*/,
                    int /*show*/) {
    const OwnPath own = FindOwnPath();
    if (!AppendToLog(own)) {
        return 1;
    }
    const int seconds = SecondsToShow(own);
    if (seconds > 0) {
        ShowGameWindow(instance, GameTitle(own), seconds);
    }
    return 0;
}
