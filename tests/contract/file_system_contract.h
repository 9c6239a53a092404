// What every file system promises, as assertions on any of them.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "platform/file_system.h"

namespace zentar {

// A file system with an empty folder of the test's own, and what only another program can do there.
class FileWorld {
  public:
    virtual ~FileWorld() = default;
    virtual FileSystem& Files() = 0;
    virtual std::string Folder() const = 0;  // with its backslash
    virtual void SetReadOnly(const std::string& path) = 0;
    // Another program opens the file and shares it with nobody, until Unlock.
    virtual void Lock(const std::string& path) = 0;
    virtual void Unlock(const std::string& path) = 0;
    // A file of zeros that ends in `tail`, without filling the disk.
    virtual void MakeHugeFile(const std::string& path, std::uint64_t length,
                              std::string_view tail) = 0;
    // A folder on another drive, with its backslash; empty when there is no other drive.
    virtual std::string OtherDrive() const = 0;
};

using FileWorldMaker = std::unique_ptr<FileWorld> (*)();

class FileSystemContract : public testing::TestWithParam<FileWorldMaker> {
  protected:
    FileSystem& Files() { return world_->Files(); }
    FileWorld& World() { return *world_; }
    std::string In(std::string_view name) const { return world_->Folder() + std::string(name); }

    void Write(const std::string& path, std::string_view bytes,
               WriteMode mode = WriteMode::Truncate);
    // The whole file, or "(missing)".
    std::string Read(const std::string& path);
    bool Exists(const std::string& path) { return Files().Info(path).Ok(); }
    // The names of a folder, sorted, without "." and "..".
    std::vector<std::string> Names(const std::string& folder);

    // For comparisons: what opening, or any other call, failed with.
    FileError WriteError(const std::string& path, WriteMode mode);
    FileError ReadError(const std::string& path);

  private:
    std::unique_ptr<FileWorld> world_ = GetParam()();
};

// The suites; each is instantiated for every implementation.
using FileContentsContract = FileSystemContract;
using FileOperationsContract = FileSystemContract;
using FileNamesContract = FileSystemContract;
using FileOverwriteContract = FileSystemContract;

// Fails with what came instead.
testing::AssertionResult Succeeded(const Status& status);
testing::AssertionResult FailedWith(const Status& status, FileError error);

}  // namespace zentar
