// A file system that forwards to another one, until a call that a test chose fails, or until the
// program is killed there.
//
// A test runs a command once to count its calls, then once more for each call with that call
// failing, and each time looks for every file of the user.
#pragma once

#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "platform/file_system.h"

namespace zentar {

// What becomes of bytes that were written but not flushed when the program is killed.
enum class Unflushed : std::uint8_t {
    Kept,    // the process was killed; Windows has them and writes them
    Halved,  // the power failed: half of them are on the disk
    Lost,    // the power failed: the file is as it was at its last flush
};

class FaultyFileSystem : public FileSystem {
  public:
    explicit FaultyFileSystem(FileSystem& inner);
    ~FaultyFileSystem() override;
    FaultyFileSystem(const FaultyFileSystem&) = delete;
    FaultyFileSystem& operator=(const FaultyFileSystem&) = delete;

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

    // Calls are numbered from 1, those on opened files among them. A failed call does not reach the
    // inner file system, but a Copy that fails with NoSpace has written half of its bytes, over the
    // older file where it overwrites one.
    void FailAt(int call, FileError error);
    void FailFrom(int call, FileError error);
    // The program is killed at this call: neither it nor any later one reaches the inner file
    // system, and all of them fail; but a Copy that dies in the middle has written half of its
    // bytes. A file that is open then stays as `unflushed` says; under the two power failures so
    // does one that was closed without a flush, and one that was copied and not flushed since.
    void KillAt(int call, Unflushed unflushed);

    // Since the start, or since Restart.
    int CallCount() const { return static_cast<int>(calls_.size()); }
    // For messages: "Rename C:\a -> C:\b", "Write C:\a", "ReadAt C:\a".
    const std::vector<std::string>& Calls() const { return calls_; }
    std::string CallName(int call) const;
    bool Killed() const { return killed_; }
    // Forgets the calls and the faults.
    void Restart();

  private:
    friend class FaultyReadableFile;
    friend class FaultyWritableFile;

    // What is on the disk for certain of a file that was written, and what is not yet.
    struct Written {
        std::string path;
        std::string flushed;
        std::string unflushed;
    };

    // Counts a call; a failure when it is not to reach the inner file system.
    Status Begin(const std::string& call);
    void Kill();
    void ApplyLosses();
    void Forget(const std::string& path);
    void Moved(const std::string& from, const std::string& to);
    std::string WholeFile(const std::string& path);
    void CopyHalf(const std::string& from, const std::string& to, bool overwrite);
    void Copied(const std::string& to);
    Written Before(const std::string& path);

    FileSystem& inner_;
    std::vector<std::string> calls_;
    int failFirst_ = 0;
    int failLast_ = 0;
    FileError error_ = FileError::Other;
    int killAt_ = 0;
    Unflushed unflushed_ = Unflushed::Kept;
    bool killed_ = false;
    std::vector<std::shared_ptr<Written>> written_;
    std::set<class FaultyWritableFile*> open_;
};

}  // namespace zentar
