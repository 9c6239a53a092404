#include "core/file_copy.h"

#include <cstring>
#include <memory>
#include <string_view>
#include <vector>

#include "core/file_deletion.h"
#include "core/file_name.h"

namespace zentar {
namespace {

// Nothing but an unfinished copy ever stands under this name.
constexpr std::string_view kUnfinished = "zentar-copy.tmp";

void Remove(FileSystem& files, const std::string& unfinished) {
    // Usually there is none. One that cannot go makes the copy fail, which is told.
    IgnoreFailure(ForceDelete(files, unfinished));
}

}  // namespace

CopyOutcome CopyFileWhole(FileSystem& files, const std::string& from, const std::string& to,
                          std::uint64_t length, Existing existing) {
    if (existing == Existing::Keep && files.Info(to).Ok()) {
        return CopyOutcome::Exists;
    }
    const std::string unfinished = std::string(FolderOf(to)).append(kUnfinished);
    Remove(files, unfinished);
    const Status copied = files.Copy(from, unfinished, false);
    if (!copied.Ok() && copied.Error() == FileError::AlreadyExists) {
        // Another Zentar is copying into this folder; that one is not ours.
        return CopyOutcome::Missing;
    }
    // Whether it succeeded otherwise shows in what there is now.
    const Result<FileInfo> copy = files.Info(unfinished);
    if (!copy.Ok()) {
        return CopyOutcome::Missing;
    }
    if (copy.Value().length != length) {
        Remove(files, unfinished);
        return CopyOutcome::Partial;
    }
    // A power cut after the original's deletion must not cost the copy.
    if (!IsOnDisk(files, unfinished, copy.Value().readOnly)) {
        Remove(files, unfinished);
        return CopyOutcome::Missing;
    }
    const Status named =
        existing == Existing::Keep ? files.Rename(unfinished, to) : files.Replace(unfinished, to);
    if (named.Ok()) {
        return CopyOutcome::Whole;
    }
    Remove(files, unfinished);
    return named.Error() == FileError::AlreadyExists ? CopyOutcome::Exists : CopyOutcome::Missing;
}

bool IsOnDisk(FileSystem& files, const std::string& path, bool readOnly) {
    if (readOnly) {
        return true;
    }
    const auto file = files.OpenForWriting(path, WriteMode::Append);
    return file.Ok() && file.Value()->Flush().Ok() && file.Value()->Close().Ok();
}

Result<bool> HoldSameBytes(FileSystem& files, const std::string& one, const std::string& other) {
    constexpr std::size_t kBlock = 65536;
    const auto first = files.OpenForReading(one);
    const auto second = files.OpenForReading(other);
    if (!first.Ok() || !second.Ok()) {
        return first.Ok() ? second.Error() : first.Error();
    }
    std::vector<std::byte> a(kBlock);
    std::vector<std::byte> b(kBlock);
    for (std::uint64_t offset = 0;; offset += kBlock) {
        const Result<std::size_t> gotA = first.Value()->ReadAt(offset, a);
        const Result<std::size_t> gotB = second.Value()->ReadAt(offset, b);
        if (!gotA.Ok() || !gotB.Ok()) {
            return gotA.Ok() ? gotB.Error() : gotA.Error();
        }
        // std::equal compares std::byte one by one.
        if (gotA.Value() != gotB.Value() || std::memcmp(a.data(), b.data(), gotA.Value()) != 0) {
            return false;
        }
        if (gotA.Value() < kBlock) {
            return true;
        }
    }
}

}  // namespace zentar
