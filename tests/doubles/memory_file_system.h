// A file system in memory that behaves as Windows does.
//
// Names compare without regard to case and are kept as stored. There are drives with a capacity,
// read-only and locked files, and names that cannot be. Folders are enumerated in an order that is
// always the same and never a useful one. Errors are those that Windows gives.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"
#include "tests/doubles/event_log.h"
#include "tests/doubles/file_names.h"
#include "tests/doubles/memory_node.h"

namespace zentar {

class MemoryFileSystem : public FileSystem {
  public:
    // Has the empty drives C: and D:. Every call but Info and IsSameFile is entered in the log, if
    // there is one; DeleteOriginal as "Delete".
    explicit MemoryFileSystem(EventLog* log = nullptr);

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

    // What a test prepares. Folders above a path come into being with it; a path that cannot be
    // fails the test.
    void AddDrive(const std::string& root, std::uint64_t capacity);
    void RemoveDrive(const std::string& root);
    // A drive that stands for a folder.
    void AddDriveFor(const std::string& root, const std::string& folder);
    void SetFreeSpace(const std::string& root, std::uint64_t bytes);
    void AddFolder(const std::string& path);
    // Replaces a file that is there. Without a moment it gets the clock's next.
    void AddFile(const std::string& path, std::string_view bytes, FileTime lastWrite = 0);
    // A file of zeros with `bytes` at `offset`, however large, without taking memory.
    void AddHugeFile(const std::string& path, std::uint64_t length, std::uint64_t offset,
                     std::string_view bytes);
    // From now on a copy ends in the middle of the file, and says so.
    void SetCopiesStopHalfWay(bool on = true) { copiesStopHalfWay_ = on; }
    void SetReadOnly(const std::string& path, bool on = true);
    // Windows copies nothing over a hidden file; otherwise it is as any other.
    void SetHidden(const std::string& path, bool on = true);
    // Another program holds the file and shares it with nobody: InUse.
    void SetLocked(const std::string& path, bool on = true);
    // A file that cannot be opened, or a folder that cannot be listed: AccessDenied.
    void SetReadingDenied(const std::string& path, bool on = true);
    // A folder in which nothing can be created, renamed or deleted: AccessDenied.
    void SetWritingDenied(const std::string& folder, bool on = true);
    // Without a trace in the log or the read records.
    void Remove(const std::string& path);

    // What a test looks at. A file that is not there fails the test.
    bool Exists(const std::string& path) const;
    bool IsReadOnly(const std::string& path) const;
    std::string Contents(const std::string& path) const;
    // The names in a folder as stored, sorted.
    std::vector<std::string> Names(const std::string& folder) const;
    // The contents of every file by its path as stored, for a comparison of before and after.
    std::map<std::string, std::string> AllFiles() const;
    ReadRecord Reads(const std::string& path) const;
    // How often files were opened for reading in all.
    int TotalOpens() const;
    void ForgetReads() { reads_.clear(); }

  private:
    using Node = std::shared_ptr<MemoryNode>;
    // A name in an existing folder, whether something is there or not.
    struct Place {
        Node parent;
        std::string name;
        Node node;
        bool endsInBackslash = false;
    };

    Result<Place> Find(std::string_view path) const;
    Result<Node> FindNode(std::string_view path) const;
    Result<Node> FindFile(const std::string& path) const;
    Node MustFind(const std::string& path) const;
    Node Root(const std::string& root) const;
    Node NewNode(const Place& place, bool isFolder);
    void Put(const Place& place, const Node& node);
    void TakeOut(const Place& place);
    Status CopyInto(const Place& source, const Place& target);
    Node MakeFolders(const PathParts& parts, std::size_t count);
    void Log(const std::string& entry);
    static void Collect(const MemoryNode& folder, const std::string& path,
                        std::map<std::string, std::string>& files);

    EventLog* log_;
    bool copiesStopHalfWay_ = false;
    std::shared_ptr<TickingClock> clock_;
    std::map<std::string, Node> drives_;                        // by folded root
    std::map<std::string, std::shared_ptr<ReadRecord>> reads_;  // by folded path
};

}  // namespace zentar
