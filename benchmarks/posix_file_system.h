// The host's file system, as far as the benchmarks need it.
#pragma once

#include "platform/file_system.h"

namespace zentar {

// Takes paths with backslashes, as the program makes them. Of what changes anything, it writes,
// overwrites, replaces and deletes files.
class PosixFileSystem : public FileSystem {
  public:
    Status Enumerate(const std::string& folder, const EntryVisitor& visit) override;
    Result<FileInfo> Info(const std::string& path) override;
    Result<std::unique_ptr<ReadableFile>> OpenForReading(const std::string& path) override;
    Status Overwrite(const std::string& path, std::uint64_t offset,
                     std::string_view bytes) override;

    Result<std::unique_ptr<WritableFile>> OpenForWriting(const std::string& path,
                                                         WriteMode mode) override;
    Status Replace(const std::string& from, const std::string& to) override;
    Status Delete(const std::string& path) override;

    // No file that a benchmark makes has any.
    Status ClearAttributes(const std::string& /*path*/) override { return {}; }
    Status Rename(const std::string& /*from*/, const std::string& /*to*/) override {
        return FileError::AccessDenied;
    }
    Status Copy(const std::string& /*from*/, const std::string& /*to*/,
                bool /*overwrite*/) override {
        return FileError::AccessDenied;
    }
    Result<bool> IsSameFile(const std::string& /*one*/, const std::string& /*other*/) override {
        return FileError::AccessDenied;
    }
    Status DeleteOriginal(const std::string& /*original*/, const std::string& /*copy*/) override {
        return FileError::AccessDenied;
    }
    Status CreateFolder(const std::string& /*path*/) override { return FileError::AccessDenied; }
    Result<std::uint64_t> FreeSpace(const std::string& /*root*/) override {
        return FileError::AccessDenied;
    }
};

}  // namespace zentar
