#include "platform/win32/elevated_files.h"

#include <objbase.h>
#include <shellapi.h>
#include <shlobj.h>

#include <functional>
#include <optional>

#include "platform/nviewlib/win32/resources.h"
#include "platform/win32/shell_item.h"
#include "platform/win32/win32_file_error.h"
#include "platform/win32/win32_path.h"

namespace zentar {
namespace {

using nviewlib::ComPointer;
using nviewlib::Made;

// The consent is the only thing that the user is asked; all else is answered in the program's own
// words.
constexpr DWORD kFlags = FOF_SILENT | FOF_NOCONFIRMATION | FOF_NOERRORUI | FOF_NOCONFIRMMKDIR |
                         FOFX_SHOWELEVATIONPROMPT | FOFX_REQUIREELEVATION | FOFX_EARLYFAILURE;

FileError ErrorOf(HRESULT failure) {
    if (HRESULT_FACILITY(failure) != FACILITY_WIN32) {
        return FileError::Other;
    }
    const auto code = static_cast<DWORD>(HRESULT_CODE(failure));
    return code == ERROR_CANCELLED ? FileError::AccessDenied : FileErrorOf(code);
}

// Has one operation prepared, then done.
Status Perform(HWND owner, const std::function<HRESULT(IFileOperation&)>& prepare) {
    const auto operation = Made<IFileOperation>([](IFileOperation** made) {
        return CoCreateInstance(CLSID_FileOperation, nullptr, CLSCTX_ALL, IID_IFileOperation,
                                reinterpret_cast<void**>(made));
    });
    if (!operation) {
        return FileError::Other;
    }
    HRESULT done = operation->SetOperationFlags(kFlags);
    if (SUCCEEDED(done) && owner != nullptr) {
        done = operation->SetOwnerWindow(owner);
    }
    if (SUCCEEDED(done)) {
        done = prepare(*operation);
    }
    if (SUCCEEDED(done)) {
        done = operation->PerformOperations();
    }
    BOOL aborted = FALSE;
    if (SUCCEEDED(done)) {
        done = operation->GetAnyOperationsAborted(&aborted);
    }
    if (FAILED(done)) {
        return ErrorOf(done);
    }
    return aborted ? Status(FileError::AccessDenied) : Status();
}

}  // namespace

Status CopyAsAdministrator(const std::string& from, const std::string& to, HWND owner) {
    const std::optional<std::wstring> source = NativePath(from);
    const std::optional<std::wstring> target = NativePath(to);
    if (!source || !target) {
        return FileError::BadName;
    }
    const std::wstring path = PlainPath(*target);
    const std::size_t name = path.rfind(L'\\') + 1;
    const ComPointer<IShellItem> file = ItemOf(PlainPath(*source));
    const ComPointer<IShellItem> folder = ItemOf(path.substr(0, name));
    if (!file || !folder) {
        return FileError::NotFound;
    }
    return Perform(owner, [&](IFileOperation& operation) {
        return operation.CopyItem(file.get(), folder.get(), path.c_str() + name, nullptr);
    });
}

Status DeleteAsAdministrator(const std::vector<std::string>& paths, HWND owner) {
    std::vector<ComPointer<IShellItem>> files;
    for (const std::string& path : paths) {
        const std::optional<std::wstring> native = NativePath(path);
        ComPointer<IShellItem> file = native ? ItemOf(PlainPath(*native)) : nullptr;
        if (!file) {
            return native ? FileError::NotFound : FileError::BadName;
        }
        files.push_back(std::move(file));
    }
    return Perform(owner, [&files](IFileOperation& operation) {
        HRESULT prepared = S_OK;
        for (const ComPointer<IShellItem>& file : files) {
            prepared = SUCCEEDED(prepared) ? operation.DeleteItem(file.get(), nullptr) : prepared;
        }
        return prepared;
    });
}

}  // namespace zentar
