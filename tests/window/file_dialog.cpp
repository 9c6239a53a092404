#include "tests/window/file_dialog.h"

#include <commctrl.h>
#include <dlgs.h>

#include <algorithm>
#include <cstddef>

#include "platform/win32/win32_text.h"
#include "tests/window/message_box.h"
#include "tests/window/user_input.h"
#include "tests/window/waiting.h"
#include "tests/window/windows_of.h"

namespace zentar::window_tests {

namespace {

constexpr int kNameBox = edt1;
constexpr int kKindBox = cmb1;

std::string KindAt(HWND combo, LRESULT index) {
    const LRESULT length = Send(combo, CB_GETLBTEXTLEN, static_cast<WPARAM>(index));
    if (length < 0) {
        return {};
    }
    std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
    Send(combo, CB_GETLBTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(length));
    return Narrow(text);
}

HWND ListIn(HWND fileDialog) {
    for (const HWND child : Descendants(fileDialog)) {
        if (ClassOf(child) == "SysListView32") {
            return child;
        }
    }
    return nullptr;
}

// An entry of a list of another program, whose list can only write into that program's memory.
struct RemoteEntry {
    LVITEMW item;
    wchar_t text[MAX_PATH];
};

class RemoteMemory {
  public:
    explicit RemoteMemory(HWND window) {
        DWORD process = 0;
        GetWindowThreadProcessId(window, &process);
        process_ =
            OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, process);
        place_ = static_cast<RemoteEntry*>(
            VirtualAllocEx(process_, nullptr, sizeof(RemoteEntry), MEM_COMMIT, PAGE_READWRITE));
    }
    ~RemoteMemory() {
        VirtualFreeEx(process_, place_, 0, MEM_RELEASE);
        CloseHandle(process_);
    }
    RemoteMemory(const RemoteMemory&) = delete;
    RemoteMemory& operator=(const RemoteMemory&) = delete;

    std::string NameOf(HWND list, WPARAM index) const {
        RemoteEntry entry{};
        entry.item.pszText = place_->text;
        entry.item.cchTextMax = MAX_PATH;
        WriteProcessMemory(process_, place_, &entry, sizeof(entry), nullptr);
        Send(list, LVM_GETITEMTEXTW, index, reinterpret_cast<LPARAM>(&place_->item));
        ReadProcessMemory(process_, place_, &entry, sizeof(entry), nullptr);
        return Narrow(entry.text);
    }

  private:
    HANDLE process_;
    RemoteEntry* place_;
};

}  // namespace

HWND WaitForFileDialog(DWORD process, const std::string& title) {
    return Ready(Found(Eventually([&]() -> HWND {
                           const HWND dialog = FindTop(process, kDialogClass, title);
                           return IsUsable(GetDlgItem(dialog, kNameBox)) ? dialog : nullptr;
                       }),
                       "the dialog for a file \"" + title + "\""));
}

std::string OfferedName(HWND fileDialog) { return TextOf(GetDlgItem(fileDialog, kNameBox)); }

std::vector<std::string> KindsIn(HWND fileDialog) {
    const HWND combo = GetDlgItem(fileDialog, kKindBox);
    std::vector<std::string> kinds;
    const LRESULT count = Send(combo, CB_GETCOUNT);
    for (LRESULT index = 0; index < count; ++index) {
        kinds.push_back(KindAt(combo, index));
    }
    return kinds;
}

std::vector<std::string> FilesListed(HWND fileDialog) {
    const HWND list = ListIn(fileDialog);
    std::vector<std::string> names;
    if (list == nullptr) {
        return names;
    }
    const RemoteMemory memory(list);
    const LRESULT count = Send(list, LVM_GETITEMCOUNT);
    for (LRESULT index = 0; index < count; ++index) {
        names.push_back(memory.NameOf(list, static_cast<WPARAM>(index)));
    }
    std::sort(names.begin(), names.end());
    return names;
}

void TypeFileName(HWND fileDialog, const std::string& name) {
    TypeOver(GetDlgItem(fileDialog, kNameBox), name);
}

void ChooseFile(HWND fileDialog, const std::string& name) {
    TypeFileName(fileDialog, name);
    AnswerBox(fileDialog, IDOK);
}

void CancelFileDialog(HWND fileDialog) { AnswerBox(fileDialog, IDCANCEL); }

}  // namespace zentar::window_tests
