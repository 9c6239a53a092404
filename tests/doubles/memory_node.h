// A file or folder of the in-memory file system, and the files opened on it.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>

#include "platform/file_system.h"
#include "tests/doubles/sparse_bytes.h"

namespace zentar {

// How many bytes of a drive are taken, files that are deleted but still open included.
struct DriveSpace {
    std::uint64_t capacity = 0;
    std::uint64_t used = 0;
    std::uint64_t Free() const { return capacity > used ? capacity - used : 0; }
};

// Gives each change of a file a later moment than the one before.
class TickingClock {
  public:
    explicit TickingClock(FileTime start) : now_(start) {}
    FileTime Tick() { return now_ += kOneSecond; }

  private:
    static constexpr FileTime kOneSecond = 10'000'000;
    FileTime now_;
};

// What was read of one path.
struct ReadRecord {
    int opens = 0;
    int reads = 0;            // calls of ReadAt
    std::uint64_t bytes = 0;  // given back by them
};

struct MemoryNode {
    explicit MemoryNode(std::shared_ptr<DriveSpace> drive) : space(std::move(drive)) {}
    ~MemoryNode() { Empty(); }
    MemoryNode(const MemoryNode&) = delete;
    MemoryNode& operator=(const MemoryNode&) = delete;

    void Empty();
    // Appends all of it, or nothing where the drive has no room for it.
    bool Append(std::string_view more);
    bool AppendZeros(std::uint64_t count);
    FileInfo Info() const;
    // Whether another program, or this one, keeps the file from being changed or moved.
    bool Held() const { return locked || writers > 0; }

    std::shared_ptr<DriveSpace> space;
    std::string name;
    bool isFolder = false;
    bool readOnly = false;
    bool hidden = false;
    bool locked = false;
    bool readingDenied = false;
    bool writingDenied = false;  // of a folder: nothing in it can be created, renamed or deleted
    int writers = 0;
    FileTime lastWrite = 0;
    SparseBytes bytes;
    std::map<std::string, std::shared_ptr<MemoryNode>> children;  // by folded name
};

std::unique_ptr<ReadableFile> OpenNodeForReading(std::shared_ptr<MemoryNode> node,
                                                 std::shared_ptr<ReadRecord> record);
std::unique_ptr<WritableFile> OpenNodeForWriting(std::shared_ptr<MemoryNode> node,
                                                 std::shared_ptr<TickingClock> clock);

}  // namespace zentar
