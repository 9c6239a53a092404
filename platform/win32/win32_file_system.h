// The file system of Windows.
#pragma once

#include "platform/file_system.h"

namespace zentar {

class Win32FileSystem : public FileSystem {
  public:
    Status Enumerate(const std::string& folder, const EntryVisitor& visit) override;
    Result<FileInfo> Info(const std::string& path) override;
    Result<std::unique_ptr<ReadableFile>> OpenForReading(const std::string& path) override;
    Result<std::unique_ptr<WritableFile>> OpenForWriting(const std::string& path,
                                                         WriteMode mode) override;
    Status ClearAttributes(const std::string& path) override;
    Status Rename(const std::string& from, const std::string& to) override;
    Status Replace(const std::string& from, const std::string& to) override;
    Status Overwrite(const std::string& path, std::uint64_t offset,
                     std::string_view bytes) override;
    Status Copy(const std::string& from, const std::string& to, bool overwrite) override;
    Result<bool> IsSameFile(const std::string& one, const std::string& other) override;
    Status Delete(const std::string& path) override;
    Status DeleteOriginal(const std::string& original, const std::string& copy) override;
    Status CreateFolder(const std::string& path) override;
    Result<std::uint64_t> FreeSpace(const std::string& root) override;
};

}  // namespace zentar
