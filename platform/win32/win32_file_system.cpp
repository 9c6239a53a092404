#include "platform/win32/win32_file_system.h"

#include <windows.h>

#include <optional>
#include <utility>

#include "platform/win32/file_rights.h"
#include "platform/win32/win32_file_error.h"
#include "platform/win32/win32_handle.h"
#include "platform/win32/win32_open_file.h"
#include "platform/win32/win32_path.h"
#include "platform/win32/win32_text.h"

namespace zentar {
namespace {

Status Outcome(BOOL done) { return done ? Status() : Status(LastFileError()); }

// The native form of a path that something new is to stand under; nothing for a bad name.
std::optional<std::wstring> TargetPath(const std::string& path) {
    std::optional<std::wstring> native = NativePath(path);
    if (native && !MayBeCreated(*native)) {
        native.reset();
    }
    return native;
}

std::uint64_t Join(DWORD high, DWORD low) { return (std::uint64_t{high} << 32U) | low; }

// Both WIN32_FIND_DATAW and WIN32_FILE_ATTRIBUTE_DATA have these fields.
template <typename Data>
FileInfo InfoFrom(const Data& data) {
    FileInfo info;
    info.isFolder = (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    info.readOnly = (data.dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0;
    info.length = info.isFolder ? 0 : Join(data.nFileSizeHigh, data.nFileSizeLow);
    info.lastWrite = Join(data.ftLastWriteTime.dwHighDateTime, data.ftLastWriteTime.dwLowDateTime);
    return info;
}

// Under Wine a read-only file can be overwritten and replaced, and the errors for a folder in its
// place differ; so this is asked first.
bool MayBeOverwritten(const std::wstring& nativePath) {
    const DWORD attributes = GetFileAttributesW(nativePath.c_str());
    return attributes == INVALID_FILE_ATTRIBUTES ||
           (attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) == 0;
}

// An empty drive has no entry at all, not even ".", and the search then finds no file. A file in
// the place of the folder gives various errors.
Status NothingFound(const std::wstring& folder, DWORD error) {
    const DWORD attributes = GetFileAttributesW(folder.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
        return error == ERROR_ACCESS_DENIED ? FileError::AccessDenied : FileError::NotFound;
    }
    return error == ERROR_FILE_NOT_FOUND ? Status() : Status(FileErrorOf(error));
}

bool HasStoredName(const std::wstring& nativePath) {
    WIN32_FIND_DATAW data;
    const UniqueSearch search(FindFirstFileW(nativePath.c_str(), &data));
    return search && nativePath.ends_with(data.cFileName);
}

// Wine renames a file to another case of its own name by doing nothing.
Status ChangeCase(const std::wstring& from, const std::wstring& to) {
    const std::wstring between = to + L".zentar-case";
    const Status moved = Outcome(MoveFileExW(from.c_str(), between.c_str(), 0));
    if (!moved.Ok()) {
        return moved;
    }
    const Status done = Outcome(MoveFileExW(between.c_str(), to.c_str(), 0));
    if (!done.Ok()) {
        MoveFileExW(between.c_str(), from.c_str(), 0);
    }
    return done;
}

// Replacing a file that another program has open fails as if rights were missing.
bool IsHeldElsewhere(const std::wstring& nativePath) {
    const UniqueFile file(CreateFileW(nativePath.c_str(), DELETE,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                      nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    return !file && GetLastError() == ERROR_SHARING_VIOLATION;
}

// What tells a file from every other one.
Result<BY_HANDLE_FILE_INFORMATION> IdentityOf(const std::wstring& nativePath) {
    const UniqueFile file(CreateFileW(nativePath.c_str(), 0,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                      nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    BY_HANDLE_FILE_INFORMATION identity{};
    if (!file || !GetFileInformationByHandle(file.Get(), &identity)) {
        return LastFileError();
    }
    return identity;
}

}  // namespace

Status Win32FileSystem::Enumerate(const std::string& folder, const EntryVisitor& visit) {
    const std::optional<std::wstring> native = NativePath(folder);
    if (!native) {
        return FileError::NotFound;
    }
    const std::wstring pattern = *native + (native->ends_with(L'\\') ? L"*" : L"\\*");
    WIN32_FIND_DATAW data;
    const UniqueSearch search(FindFirstFileExW(pattern.c_str(), FindExInfoBasic, &data,
                                               FindExSearchNameMatch, nullptr,
                                               FIND_FIRST_EX_LARGE_FETCH));
    if (!search) {
        return NothingFound(*native, GetLastError());
    }
    FolderEntry entry;
    do {
        NarrowInto(data.cFileName, entry.name);
        entry.info = InfoFrom(data);
        visit(entry);
    } while (FindNextFileW(search.Get(), &data));
    const DWORD error = GetLastError();
    return error == ERROR_NO_MORE_FILES ? Status() : Status(FileErrorOf(error));
}

Result<FileInfo> Win32FileSystem::Info(const std::string& path) {
    const std::optional<std::wstring> native = NativePath(path);
    if (!native) {
        return FileError::NotFound;
    }
    WIN32_FILE_ATTRIBUTE_DATA data;
    if (!GetFileAttributesExW(native->c_str(), GetFileExInfoStandard, &data)) {
        return LastFileError();
    }
    const FileInfo info = InfoFrom(data);
    if (!info.isFolder && EndsInSeparator(path)) {
        return FileError::NotFound;
    }
    return info;
}

Result<std::unique_ptr<ReadableFile>> Win32FileSystem::OpenForReading(const std::string& path) {
    const std::optional<std::wstring> native = NativePath(path);
    if (!native) {
        return FileError::NotFound;
    }
    return OpenReadableFile(*native);
}

Result<std::unique_ptr<WritableFile>> Win32FileSystem::OpenForWriting(const std::string& path,
                                                                      WriteMode mode) {
    const std::optional<std::wstring> native = TargetPath(path);
    if (!native || EndsInSeparator(path)) {
        return FileError::BadName;
    }
    if (mode != WriteMode::CreateNew && !MayBeOverwritten(*native)) {
        return FileError::AccessDenied;
    }
    return OpenWritableFile(*native, mode);
}

Status Win32FileSystem::ClearAttributes(const std::string& path) {
    const std::optional<std::wstring> native = NativePath(path);
    if (!native) {
        return FileError::NotFound;
    }
    return Outcome(SetFileAttributesW(native->c_str(), FILE_ATTRIBUTE_NORMAL));
}

Status Win32FileSystem::Rename(const std::string& from, const std::string& to) {
    const std::optional<std::wstring> source = NativePath(from);
    const std::optional<std::wstring> target = TargetPath(to);
    if (!source) {
        return FileError::NotFound;
    }
    if (!target) {
        return FileError::BadName;
    }
    // Two drives of Wine may lie on one disk, where the system would rename across them.
    if (!OnSameRoot(*source, *target)) {
        return FileError::Other;
    }
    // On the disk before anything that builds on it, such as the deletion of an original.
    const Status renamed =
        Outcome(MoveFileExW(source->c_str(), target->c_str(), MOVEFILE_WRITE_THROUGH));
    if (renamed.Ok() && DifferInCaseOnly(*source, *target) && !HasStoredName(*target)) {
        return ChangeCase(*source, *target);
    }
    return renamed;
}

Status Win32FileSystem::Replace(const std::string& from, const std::string& to) {
    const std::optional<std::wstring> source = NativePath(from);
    const std::optional<std::wstring> target = TargetPath(to);
    if (!source) {
        return FileError::NotFound;
    }
    if (!target) {
        return FileError::BadName;
    }
    if (!MayBeOverwritten(*target)) {
        return FileError::AccessDenied;
    }
    // A temporary file's rights are those of its folder alone. It gets the target's before it takes
    // the place, so that there is no moment in which others may read what they could not.
    FileRights own = RightsOf(*source);
    SetRights(*source, RightsOf(*target));
    // Not ReplaceFile: it takes two steps, and can leave the target away after the first.
    const Status replaced = Outcome(MoveFileExW(
        source->c_str(), target->c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH));
    if (replaced.Ok()) {
        return replaced;
    }
    // The target's may keep its maker from deleting it.
    SetRights(*source, std::move(own));
    const bool held = replaced.Error() == FileError::AccessDenied && IsHeldElsewhere(*target);
    return held ? FileError::InUse : replaced;
}

Status Win32FileSystem::Overwrite(const std::string& path, std::uint64_t offset,
                                  std::string_view bytes) {
    const std::optional<std::wstring> native = NativePath(path);
    if (!native) {
        return FileError::NotFound;
    }
    if (!MayBeOverwritten(*native)) {
        return FileError::AccessDenied;
    }
    return OverwriteFile(*native, offset, bytes);
}

Status Win32FileSystem::Copy(const std::string& from, const std::string& to, bool overwrite) {
    const std::optional<std::wstring> source = NativePath(from);
    const std::optional<std::wstring> target = TargetPath(to);
    if (!source) {
        return FileError::NotFound;
    }
    if (!target) {
        return FileError::BadName;
    }
    if (overwrite && !MayBeOverwritten(*target)) {
        return FileError::AccessDenied;
    }
    const Status copied = Outcome(CopyFileW(source->c_str(), target->c_str(), !overwrite));
    if (!overwrite && !copied.Ok() && copied.Error() == FileError::NoSpace) {
        // Wine leaves the half copy, which nothing else could have made since there was none.
        DeleteFileW(target->c_str());
    }
    return copied;
}

Result<bool> Win32FileSystem::IsSameFile(const std::string& one, const std::string& other) {
    const std::optional<std::wstring> first = NativePath(one);
    const std::optional<std::wstring> second = NativePath(other);
    if (!first || !second) {
        return FileError::NotFound;
    }
    const Result<BY_HANDLE_FILE_INFORMATION> a = IdentityOf(*first);
    const Result<BY_HANDLE_FILE_INFORMATION> b = IdentityOf(*second);
    if (!a.Ok() || !b.Ok()) {
        return a.Ok() ? b.Error() : a.Error();
    }
    return a.Value().dwVolumeSerialNumber == b.Value().dwVolumeSerialNumber &&
           a.Value().nFileIndexHigh == b.Value().nFileIndexHigh &&
           a.Value().nFileIndexLow == b.Value().nFileIndexLow;
}

Status Win32FileSystem::Delete(const std::string& path) {
    const std::optional<std::wstring> native = NativePath(path);
    if (!native) {
        return FileError::NotFound;
    }
    return Outcome(DeleteFileW(native->c_str()));
}

Status Win32FileSystem::DeleteOriginal(const std::string& original, const std::string& copy) {
    const std::optional<std::wstring> native = NativePath(copy);
    if (!native) {
        return FileError::NotFound;
    }
    // Nobody deletes a file that is held like this: not by its own path, and by no other either.
    const UniqueFile held(CreateFileW(native->c_str(), GENERIC_READ,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                      FILE_ATTRIBUTE_NORMAL, nullptr));
    return held ? Delete(original) : Status(LastFileError());
}

Status Win32FileSystem::CreateFolder(const std::string& path) {
    const std::optional<std::wstring> native = TargetPath(path);
    if (!native) {
        return FileError::BadName;
    }
    return Outcome(CreateDirectoryW(native->c_str(), nullptr));
}

Result<std::uint64_t> Win32FileSystem::FreeSpace(const std::string& root) {
    const std::optional<std::wstring> native = NativePath(root);
    if (!native) {
        return FileError::NotFound;
    }
    ULARGE_INTEGER bytes{};
    if (!GetDiskFreeSpaceExW(native->c_str(), &bytes, nullptr, nullptr)) {
        return LastFileError();
    }
    return static_cast<std::uint64_t>(bytes.QuadPart);
}

}  // namespace zentar
