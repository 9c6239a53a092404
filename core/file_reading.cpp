#include "core/file_reading.h"

#include <memory>
#include <new>
#include <span>

namespace zentar {

bool FileExists(FileSystem& files, const std::string& path) {
    const Result<FileInfo> info = files.Info(path);
    return info.Ok() && !info.Value().isFolder;
}

Result<std::string> ReadWholeFile(FileSystem& files, const std::string& path, std::uint64_t most) {
    const Result<std::unique_ptr<ReadableFile>> file = files.OpenForReading(path);
    if (!file.Ok()) {
        return file.Error();
    }
    const Result<std::uint64_t> length = file.Value()->Length();
    if (!length.Ok()) {
        return length.Error();
    }
    if (length.Value() > most) {
        return FileError::NoSpace;
    }
    std::string bytes;
    try {
        bytes.resize(static_cast<std::size_t>(length.Value()));
    } catch (const std::bad_alloc&) {
        return FileError::Other;
    }
    const Result<std::size_t> got =
        file.Value()->ReadAt(0, std::as_writable_bytes(std::span(bytes)));
    if (!got.Ok()) {
        return got.Error();
    }
    // It may have become shorter since.
    bytes.resize(got.Value());
    return bytes;
}

}  // namespace zentar
