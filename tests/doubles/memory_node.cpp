#include "tests/doubles/memory_node.h"

#include <algorithm>

namespace zentar {
namespace {

class NodeReader : public ReadableFile {
  public:
    NodeReader(std::shared_ptr<MemoryNode> node, std::shared_ptr<ReadRecord> record)
        : node_(std::move(node)), record_(std::move(record)) {
        ++record_->opens;
    }

    Result<std::size_t> ReadAt(std::uint64_t offset, std::span<std::byte> into) override {
        const std::size_t count = node_->bytes.ReadAt(offset, into);
        ++record_->reads;
        record_->bytes += count;
        return count;
    }

    Result<std::uint64_t> Length() override { return node_->bytes.Length(); }

  private:
    std::shared_ptr<MemoryNode> node_;
    std::shared_ptr<ReadRecord> record_;
};

class NodeWriter : public WritableFile {
  public:
    NodeWriter(std::shared_ptr<MemoryNode> node, std::shared_ptr<TickingClock> clock)
        : node_(std::move(node)), clock_(std::move(clock)) {
        ++node_->writers;
    }
    ~NodeWriter() override { IgnoreFailure(Close()); /* the double's Close fails only if closed */ }
    NodeWriter(const NodeWriter&) = delete;
    NodeWriter& operator=(const NodeWriter&) = delete;

    Status Write(std::string_view bytes) override {
        if (closed_)
            return FileError::Other;
        node_->lastWrite = clock_->Tick();
        if (!node_->Append(bytes))
            return FileError::NoSpace;
        return {};
    }

    Status Flush() override { return closed_ ? Status(FileError::Other) : Status(); }

    Status Close() override {
        if (closed_)
            return FileError::Other;
        closed_ = true;
        --node_->writers;
        return {};
    }

  private:
    std::shared_ptr<MemoryNode> node_;
    std::shared_ptr<TickingClock> clock_;
    bool closed_ = false;
};

}  // namespace

void MemoryNode::Empty() {
    space->used -= bytes.Length();
    bytes.Clear();
}

bool MemoryNode::Append(std::string_view more) {
    if (more.size() > space->Free())
        return false;
    bytes.Append(more);
    space->used += more.size();
    return true;
}

bool MemoryNode::AppendZeros(std::uint64_t count) {
    const std::uint64_t fits = std::min(count, space->Free());
    bytes.AppendZeros(fits);
    space->used += fits;
    return fits == count;
}

FileInfo MemoryNode::Info() const {
    FileInfo info;
    info.length = bytes.Length();
    info.lastWrite = lastWrite;
    info.isFolder = isFolder;
    info.readOnly = readOnly;
    return info;
}

std::unique_ptr<ReadableFile> OpenNodeForReading(std::shared_ptr<MemoryNode> node,
                                                 std::shared_ptr<ReadRecord> record) {
    return std::make_unique<NodeReader>(std::move(node), std::move(record));
}

std::unique_ptr<WritableFile> OpenNodeForWriting(std::shared_ptr<MemoryNode> node,
                                                 std::shared_ptr<TickingClock> clock) {
    return std::make_unique<NodeWriter>(std::move(node), std::move(clock));
}

}  // namespace zentar
