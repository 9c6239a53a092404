#include "tests/doubles/faulty_file_system.h"

#include <algorithm>

#include "tests/doubles/faulty_open_file.h"
#include "tests/doubles/file_names.h"

namespace zentar {

FaultyFileSystem::FaultyFileSystem(FileSystem& inner) : inner_(inner) {}

FaultyFileSystem::~FaultyFileSystem() = default;

Status FaultyFileSystem::Enumerate(const std::string& folder, const EntryVisitor& visit) {
    const Status begun = Begin("Enumerate " + folder);
    return begun.Ok() ? inner_.Enumerate(folder, visit) : begun;
}

Result<FileInfo> FaultyFileSystem::Info(const std::string& path) {
    const Status begun = Begin("Info " + path);
    if (!begun.Ok())
        return begun.Error();
    return inner_.Info(path);
}

Result<std::unique_ptr<ReadableFile>> FaultyFileSystem::OpenForReading(const std::string& path) {
    const Status begun = Begin("OpenForReading " + path);
    if (!begun.Ok())
        return begun.Error();
    Result<std::unique_ptr<ReadableFile>> inner = inner_.OpenForReading(path);
    if (!inner.Ok())
        return inner.Error();
    return std::unique_ptr<ReadableFile>(
        std::make_unique<FaultyReadableFile>(*this, path, std::move(inner.Value())));
}

Result<std::unique_ptr<WritableFile>> FaultyFileSystem::OpenForWriting(const std::string& path,
                                                                       WriteMode mode) {
    const Status begun = Begin("OpenForWriting " + path);
    if (!begun.Ok())
        return begun.Error();
    const auto written = std::make_shared<Written>();
    written->path = path;
    if (mode == WriteMode::Append)
        *written = Before(path);
    Result<std::unique_ptr<WritableFile>> inner = inner_.OpenForWriting(path, mode);
    if (!inner.Ok())
        return inner.Error();
    Forget(path);
    written_.push_back(written);
    return std::unique_ptr<WritableFile>(
        std::make_unique<FaultyWritableFile>(*this, written, std::move(inner.Value())));
}

Status FaultyFileSystem::ClearAttributes(const std::string& path) {
    const Status begun = Begin("ClearAttributes " + path);
    return begun.Ok() ? inner_.ClearAttributes(path) : begun;
}

Status FaultyFileSystem::Rename(const std::string& from, const std::string& to) {
    const Status begun = Begin("Rename " + from + " -> " + to);
    if (!begun.Ok())
        return begun;
    const Status done = inner_.Rename(from, to);
    if (done.Ok())
        Moved(from, to);
    return done;
}

Status FaultyFileSystem::Replace(const std::string& from, const std::string& to) {
    const Status begun = Begin("Replace " + from + " -> " + to);
    if (!begun.Ok())
        return begun;
    const Status done = inner_.Replace(from, to);
    if (done.Ok())
        Moved(from, to);
    return done;
}

Status FaultyFileSystem::Overwrite(const std::string& path, std::uint64_t offset,
                                   std::string_view bytes) {
    const Status begun = Begin("Overwrite " + path);
    return begun.Ok() ? inner_.Overwrite(path, offset, bytes) : begun;
}

Status FaultyFileSystem::Copy(const std::string& from, const std::string& to, bool overwrite) {
    const bool wasKilled = killed_;
    const Status begun = Begin("Copy " + from + " -> " + to);
    if (begun.Ok()) {
        const Status done = inner_.Copy(from, to, overwrite);
        if (done.Ok())
            Copied(to);
        return done;
    }
    if (killed_ ? !wasKilled : begun.Error() == FileError::NoSpace)
        CopyHalf(from, to, overwrite);
    return begun;
}

void FaultyFileSystem::CopyHalf(const std::string& from, const std::string& to, bool overwrite) {
    const std::string bytes = WholeFile(from);
    const auto file =
        inner_.OpenForWriting(to, overwrite ? WriteMode::Truncate : WriteMode::CreateNew);
    if (file.Ok() && !(killed_ && unflushed_ == Unflushed::Lost))
        IgnoreFailure(file.Value()->Write(bytes.substr(0, bytes.size() / 2)));
}

// Windows flushes nothing of a copy.
void FaultyFileSystem::Copied(const std::string& to) {
    Forget(to);
    if (unflushed_ != Unflushed::Kept)
        written_.push_back(std::make_shared<Written>(Written{to, "", WholeFile(to)}));
}

Result<bool> FaultyFileSystem::IsSameFile(const std::string& one, const std::string& other) {
    const Status begun = Begin("IsSameFile " + one + " = " + other);
    if (!begun.Ok())
        return begun.Error();
    return inner_.IsSameFile(one, other);
}

Status FaultyFileSystem::Delete(const std::string& path) {
    const Status begun = Begin("Delete " + path);
    if (!begun.Ok())
        return begun;
    const Status done = inner_.Delete(path);
    if (done.Ok())
        Forget(path);
    return done;
}

Status FaultyFileSystem::DeleteOriginal(const std::string& original, const std::string& copy) {
    const Status begun = Begin("DeleteOriginal " + original + " of " + copy);
    if (!begun.Ok())
        return begun;
    const Status done = inner_.DeleteOriginal(original, copy);
    if (done.Ok())
        Forget(original);
    return done;
}

Status FaultyFileSystem::CreateFolder(const std::string& path) {
    const Status begun = Begin("CreateFolder " + path);
    return begun.Ok() ? inner_.CreateFolder(path) : begun;
}

Result<std::uint64_t> FaultyFileSystem::FreeSpace(const std::string& root) {
    const Status begun = Begin("FreeSpace " + root);
    if (!begun.Ok())
        return begun.Error();
    return inner_.FreeSpace(root);
}

void FaultyFileSystem::FailAt(int call, FileError error) {
    failFirst_ = failLast_ = call;
    error_ = error;
}

void FaultyFileSystem::FailFrom(int call, FileError error) {
    FailAt(call, error);
    failLast_ = INT32_MAX;
}

void FaultyFileSystem::KillAt(int call, Unflushed unflushed) {
    killAt_ = call;
    unflushed_ = unflushed;
}

std::string FaultyFileSystem::CallName(int call) const {
    if (call < 1 || call > CallCount())
        return "(no such call)";
    return calls_[static_cast<std::size_t>(call - 1)];
}

void FaultyFileSystem::Restart() {
    calls_.clear();
    written_.clear();
    failFirst_ = failLast_ = killAt_ = 0;
    unflushed_ = Unflushed::Kept;
    killed_ = false;
}

Status FaultyFileSystem::Begin(const std::string& call) {
    calls_.push_back(call);
    if (!killed_ && CallCount() == killAt_)
        Kill();
    if (killed_)
        return FileError::Other;
    if (CallCount() >= failFirst_ && CallCount() <= failLast_)
        return error_;
    return {};
}

void FaultyFileSystem::Kill() {
    killed_ = true;
    for (FaultyWritableFile* file : open_)
        file->Abandon();
    if (unflushed_ != Unflushed::Kept)
        ApplyLosses();
}

void FaultyFileSystem::ApplyLosses() {
    for (const std::shared_ptr<Written>& file : written_) {
        if (file->unflushed.empty())
            continue;
        const std::size_t kept = unflushed_ == Unflushed::Halved ? file->unflushed.size() / 2 : 0;
        const auto inner = inner_.OpenForWriting(file->path, WriteMode::Truncate);
        if (!inner.Ok())
            continue;  // it was made read-only meanwhile, and stays whole
        IgnoreFailure(inner.Value()->Write(file->flushed));  // it fitted before
        IgnoreFailure(inner.Value()->Write(file->unflushed.substr(0, kept)));
    }
}

// What is known of a file before it is opened to be appended to.
FaultyFileSystem::Written FaultyFileSystem::Before(const std::string& path) {
    for (const std::shared_ptr<Written>& file : written_) {
        if (FoldName(file->path) == FoldName(path))
            return {path, file->flushed, file->unflushed};
    }
    return {path, unflushed_ == Unflushed::Kept ? "" : WholeFile(path), ""};
}

void FaultyFileSystem::Forget(const std::string& path) {
    std::erase_if(written_, [&](const std::shared_ptr<Written>& file) {
        return FoldName(file->path) == FoldName(path);
    });
}

void FaultyFileSystem::Moved(const std::string& from, const std::string& to) {
    if (FoldName(from) != FoldName(to))
        Forget(to);
    for (const std::shared_ptr<Written>& file : written_) {
        if (FoldName(file->path) == FoldName(from))
            file->path = to;
    }
}

std::string FaultyFileSystem::WholeFile(const std::string& path) {
    const auto file = inner_.OpenForReading(path);
    if (!file.Ok())
        return {};
    std::string bytes(static_cast<std::size_t>(file.Value()->Length().ValueOr(0)), '\0');
    const auto read = file.Value()->ReadAt(0, std::as_writable_bytes(std::span(bytes)));
    bytes.resize(read.ValueOr(0));
    return bytes;
}

}  // namespace zentar
