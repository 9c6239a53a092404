// The file system, as the program needs it.
//
// Paths are UTF-8 with backslashes, absolute, and may be longer than 260 characters. Names compare
// without regard to case. No call throws; each says in its result what went wrong.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "platform/result.h"

namespace zentar {

// A moment, in 100-nanosecond steps since 1 January 1601, UTC.
using FileTime = std::uint64_t;

struct FileInfo {
    std::uint64_t length = 0;  // bytes; 0 for a folder
    FileTime lastWrite = 0;
    bool isFolder = false;
    bool readOnly = false;
};

struct FolderEntry {
    std::string name;  // as stored, without the folder
    FileInfo info;
};

// A file opened for reading. Other programs may go on reading, writing, renaming or deleting it.
class ReadableFile {
  public:
    virtual ~ReadableFile() = default;
    // Reads up to into.size() bytes from the given offset; gives how many were read, which is less
    // than asked for only at the end of the file.
    virtual Result<std::size_t> ReadAt(std::uint64_t offset, std::span<std::byte> into) = 0;
    virtual Result<std::uint64_t> Length() = 0;
};

// A file opened for writing; its content is complete on disk only after Flush and Close succeeded.
// Destroying it closes it.
class WritableFile {
  public:
    virtual ~WritableFile() = default;
    // All of them, or a failure, after which the file is as long as it was before, as far as the
    // disk still allows: half a line at the end of a file would be worse than none.
    virtual Status Write(std::string_view bytes) = 0;
    virtual Status Flush() = 0;  // through to the disk
    virtual Status Close() = 0;
};

enum class WriteMode : std::uint8_t {
    Truncate,   // create, or empty what is there
    CreateNew,  // AlreadyExists when something of that name is there
    Append,     // create, or write behind what is there
};

class FileSystem {
  public:
    using EntryVisitor = std::function<void(const FolderEntry&)>;

    virtual ~FileSystem() = default;

    // Visits the entries of a folder, in no useful order, sub-folders and "." and ".." included.
    // `folder` ends in a backslash. NotFound when there is no such folder. Entries that appear or
    // vanish meanwhile may or may not be visited.
    virtual Status Enumerate(const std::string& folder, const EntryVisitor& visit) = 0;
    // What stands under a path, file or folder (with or without a trailing backslash).
    virtual Result<FileInfo> Info(const std::string& path) = 0;

    virtual Result<std::unique_ptr<ReadableFile>> OpenForReading(const std::string& path) = 0;
    virtual Result<std::unique_ptr<WritableFile>> OpenForWriting(const std::string& path,
                                                                 WriteMode mode) = 0;

    // Clears every attribute (read-only, hidden, …) of a file.
    virtual Status ClearAttributes(const std::string& path) = 0;
    // Fails with AlreadyExists when `to` exists; within one drive only.
    virtual Status Rename(const std::string& from, const std::string& to) = 0;
    // Puts `from` in the place of `to` in one step: whatever happens, `to` is either the old file
    // or the new one. `to` need not exist. Both are in one folder. Refuses a read-only `to`. Who
    // may read and write `to` stays as it was, as far as the system allows.
    virtual Status Replace(const std::string& from, const std::string& to) = 0;
    // Writes bytes into a file from that offset on, in one piece and through to the disk; the
    // others stay as they are. What goes beyond its end makes it longer. Fails with NotFound when
    // there is no such file, and with Other when it ends before the offset.
    virtual Status Overwrite(const std::string& path, std::uint64_t offset,
                             std::string_view bytes) = 0;
    // Copies a file; AlreadyExists when `to` exists and `overwrite` is false.
    virtual Status Copy(const std::string& from, const std::string& to, bool overwrite) = 0;
    // Whether two paths lead to one and the same file: by another spelling, a link, or a drive that
    // stands for a folder.
    virtual Result<bool> IsSameFile(const std::string& one, const std::string& other) = 0;
    // Deletes a file for good. AccessDenied when it is read-only.
    virtual Status Delete(const std::string& path) = 0;
    // Deletes a file after it was copied, unless it is the copy itself, by whatever other name.
    virtual Status DeleteOriginal(const std::string& original, const std::string& copy) = 0;
    // Creates one folder level; AlreadyExists when it is there.
    virtual Status CreateFolder(const std::string& path) = 0;
    // Bytes that the user may still write on the drive of a root such as "C:\".
    virtual Result<std::uint64_t> FreeSpace(const std::string& root) = 0;
};

}  // namespace zentar
