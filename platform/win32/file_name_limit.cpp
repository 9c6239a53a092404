#include "platform/win32/file_name_limit.h"

#include <dlgs.h>

#include <optional>
#include <string>

#include "platform/nviewlib/win32/resources.h"
#include "platform/win32/shell_item.h"
#include "platform/win32/win32_text.h"
#include "platform/win32/window_text.h"

namespace zentar {
namespace {

using nviewlib::ComPointer;
using nviewlib::Made;

HWND NameBoxOf(IFileDialog& dialog) {
    const auto inWindow = Made<IOleWindow>([&](IOleWindow** made) {
        return dialog.QueryInterface(IID_IOleWindow, reinterpret_cast<void**>(made));
    });
    HWND window = nullptr;
    if (!inWindow || FAILED(inWindow->GetWindow(&window))) {
        return nullptr;
    }
    return GetDlgItem(window, edt1);
}

// With the separator at its end; 0 for a folder that is not of the file system.
std::size_t FolderLength(IFileDialog& dialog) {
    const auto folder = Made<IShellItem>([&](IShellItem** made) { return dialog.GetFolder(made); });
    const std::optional<std::string> path = folder ? PathOf(*folder) : std::nullopt;
    return path ? Widen(*path).size() + 1 : 0;
}

void CutTo(HWND box, std::size_t limit) {
    SendMessageW(box, EM_SETLIMITTEXT, limit, 0);
    const std::wstring text = WindowText(box);
    if (text.size() > limit) {
        SetWindowTextW(box, text.substr(0, limit).c_str());
    }
}

}  // namespace

FileNameLimit::FileNameLimit(IFileDialog& dialog, std::size_t extension)
    : dialog_(dialog), extension_(extension), advised_(SUCCEEDED(dialog.Advise(this, &cookie_))) {}

FileNameLimit::~FileNameLimit() {
    if (advised_) {
        dialog_.Unadvise(cookie_);
    }
}

HRESULT FileNameLimit::QueryInterface(REFIID wanted, void** object) {
    const bool has = wanted == IID_IUnknown || wanted == IID_IFileDialogEvents;
    *object = has ? this : nullptr;
    return has ? S_OK : E_NOINTERFACE;
}

HRESULT FileNameLimit::OnFolderChange(IFileDialog* dialog) {
    Apply(*dialog);
    return S_OK;
}

// The dialog puts the name of the file that the user selects into the box, of any length.
HRESULT FileNameLimit::OnSelectionChange(IFileDialog* dialog) {
    Apply(*dialog);
    return S_OK;
}

void FileNameLimit::Apply(IFileDialog& dialog) const {
    const HWND box = NameBoxOf(dialog);
    if (box == nullptr) {
        return;
    }
    constexpr std::size_t kLongestPath = MAX_PATH - 1;
    const std::size_t taken = FolderLength(dialog) + extension_;
    // A limit of 0 would be none.
    CutTo(box, taken < kLongestPath ? kLongestPath - taken : 1);
}

}  // namespace zentar
