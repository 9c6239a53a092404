#include "platform/win32/file_dialog.h"

#include <windows.h>

#include <objbase.h>
#include <shobjidl.h>

#include <string_view>
#include <vector>

#include "platform/nviewlib/win32/resources.h"
#include "platform/win32/file_name_limit.h"
#include "platform/win32/shell_item.h"
#include "platform/win32/win32_path.h"
#include "platform/win32/win32_text.h"

namespace zentar {
namespace {

using nviewlib::ComPointer;
using nviewlib::Made;

// Windows' own choice for saving would ask about a file that exists and refuse a read-only one;
// both are the program's to ask, in its own words.
constexpr FILEOPENDIALOGOPTIONS kForSaving =
    FOS_FORCEFILESYSTEM | FOS_NOCHANGEDIR | FOS_PATHMUSTEXIST;
constexpr FILEOPENDIALOGOPTIONS kForOpening = kForSaving | FOS_FILEMUSTEXIST;

// The kinds with their texts as Windows has them; the pointers hold as long as this does.
struct Kinds {
    explicit Kinds(const std::vector<FileKind>& kinds) {
        texts.reserve(2 * kinds.size());
        for (const FileKind& kind : kinds) {
            const wchar_t* label = texts.emplace_back(Widen(kind.label)).c_str();
            const wchar_t* patterns = texts.emplace_back(Widen(kind.patterns)).c_str();
            filters.push_back({label, patterns});
        }
    }

    std::vector<std::wstring> texts;
    std::vector<COMDLG_FILTERSPEC> filters;
};

// That of the first pattern of "*.txt;*.log", without its dot; empty for "*.*".
std::wstring ExtensionOf(std::wstring_view patterns) {
    const std::wstring_view first = patterns.substr(0, patterns.find(L';'));
    const std::size_t dot = first.rfind(L'.');
    if (dot == std::wstring_view::npos ||
        first.find_first_of(L"*?", dot) != std::wstring_view::npos) {
        return {};
    }
    return std::wstring(first.substr(dot + 1));
}

bool IsFolder(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

// The folder, or what is left of its path where it is missing or too long for the shell; null when
// not even the drive is there.
ComPointer<IShellItem> NearestFolder(std::string path) {
    std::optional<std::wstring> native = NativePath(path);
    while (native) {
        ComPointer<IShellItem> item = IsFolder(*native) ? ItemOf(PlainPath(*native)) : nullptr;
        if (item) {
            return item;
        }
        path += "\\..";
        const std::optional<std::wstring> above = NativePath(path);
        native = above == native ? std::nullopt : above;
    }
    return nullptr;
}

ComPointer<IFileDialog> DialogFor(FilePurpose purpose) {
    const bool opens = purpose == FilePurpose::Open;
    return Made<IFileDialog>([opens](IFileDialog** made) {
        return CoCreateInstance(opens ? CLSID_FileOpenDialog : CLSID_FileSaveDialog, nullptr,
                                CLSCTX_INPROC_SERVER, IID_IFileDialog,
                                reinterpret_cast<void**>(made));
    });
}

// A dialog without one of these is still of use to the user.
void Prepare(IFileDialog& dialog, const FileQuestion& question, const Kinds& kinds,
             const std::wstring& extension) {
    dialog.SetTitle(Widen(question.title).c_str());
    dialog.SetFileName(Widen(question.name).c_str());
    if (!kinds.filters.empty()) {
        dialog.SetFileTypes(static_cast<UINT>(kinds.filters.size()), kinds.filters.data());
        dialog.SetDefaultExtension(extension.c_str());
    }
    if (const ComPointer<IShellItem> folder = NearestFolder(question.folder)) {
        dialog.SetFolder(folder.get());
    }
}

}  // namespace

// The older calls of Windows show the folder that the user was in last instead of the one that they
// are given.
std::optional<std::string> ShowFileDialog(const FileQuestion& question, FilePurpose purpose,
                                          Win32Session& session) {
    session.ole.Need();
    const ComPointer<IFileDialog> dialog = DialogFor(purpose);
    if (!dialog ||
        FAILED(dialog->SetOptions(purpose == FilePurpose::Open ? kForOpening : kForSaving))) {
        return std::nullopt;
    }
    const Kinds kinds(question.kinds);
    const std::wstring extension =
        kinds.filters.empty() ? std::wstring() : ExtensionOf(kinds.filters.front().pszSpec);
    Prepare(*dialog, question, kinds, extension);
    const FileNameLimit limit(*dialog, extension.size() + 1);
    const HWND owner = session.forms.DialogOwner();
    const OtherFormsDisabled others(session.forms, owner);
    if (FAILED(dialog->Show(owner))) {
        return std::nullopt;
    }
    const auto chosen =
        Made<IShellItem>([&](IShellItem** item) { return dialog->GetResult(item); });
    return chosen ? PathOf(*chosen) : std::nullopt;
}

}  // namespace zentar
