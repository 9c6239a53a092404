#include "benchmarks/bare_windows_list.h"

#include <windows.h>

#include <algorithm>
#include <vector>

namespace zentar::benchmarks {

namespace {

constexpr int kWidth = 400;
constexpr int kHeight = 500;

std::vector<std::wstring> NamesIn(const std::wstring& folder, const std::wstring& extension) {
    std::vector<std::wstring> names;
    WIN32_FIND_DATAW data;
    const HANDLE search =
        FindFirstFileExW((folder + L"\\*").c_str(), FindExInfoBasic, &data, FindExSearchNameMatch,
                         nullptr, FIND_FIRST_EX_LARGE_FETCH);
    if (search == INVALID_HANDLE_VALUE) {
        return names;
    }
    do {
        const std::wstring name = data.cFileName;
        if (name.ends_with(extension)) {
            names.push_back(name.substr(0, name.size() - extension.size()));
        }
    } while (FindNextFileW(search, &data));
    FindClose(search);
    return names;
}

}  // namespace

BareWindowsList::BareWindowsList()
    : frame_(CreateWindowExW(0, L"STATIC", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, kWidth,
                             kHeight, nullptr, nullptr, nullptr, nullptr)),
      list_(CreateWindowExW(0, L"LISTBOX", L"", WS_CHILD | WS_VISIBLE | WS_VSCROLL | LBS_HASSTRINGS,
                            0, 0, kWidth, kHeight, static_cast<HWND>(frame_), nullptr, nullptr,
                            nullptr)) {}

BareWindowsList::~BareWindowsList() { DestroyWindow(static_cast<HWND>(frame_)); }

std::size_t BareWindowsList::Fill(const std::wstring& folder, const std::wstring& extension) {
    std::vector<std::wstring> names = NamesIn(folder, extension);
    std::sort(names.begin(), names.end());
    const HWND list = static_cast<HWND>(list_);
    SendMessageW(list, WM_SETREDRAW, FALSE, 0);
    SendMessageW(list, LB_RESETCONTENT, 0, 0);
    for (const std::wstring& name : names) {
        SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name.c_str()));
    }
    SendMessageW(list, WM_SETREDRAW, TRUE, 0);
    return names.size();
}

}  // namespace zentar::benchmarks
