#include "tests/doubles/faulty_open_file.h"

namespace zentar {

Result<std::size_t> FaultyReadableFile::ReadAt(std::uint64_t offset, std::span<std::byte> into) {
    const Status begun = owner_.Begin("ReadAt " + path_);
    if (!begun.Ok())
        return begun.Error();
    return inner_->ReadAt(offset, into);
}

Result<std::uint64_t> FaultyReadableFile::Length() {
    const Status begun = owner_.Begin("Length " + path_);
    if (!begun.Ok())
        return begun.Error();
    return inner_->Length();
}

FaultyWritableFile::FaultyWritableFile(FaultyFileSystem& owner,
                                       std::shared_ptr<FaultyFileSystem::Written> written,
                                       std::unique_ptr<WritableFile> inner)
    : owner_(owner), path_(written->path), written_(std::move(written)), inner_(std::move(inner)) {
    owner_.open_.insert(this);
}

FaultyWritableFile::~FaultyWritableFile() { owner_.open_.erase(this); }

Status FaultyWritableFile::Begin(const std::string& call) {
    const Status begun = owner_.Begin(call + " " + path_);
    if (begun.Ok() && !inner_)
        return FileError::Other;
    return begun;
}

Status FaultyWritableFile::Write(std::string_view bytes) {
    const Status begun = Begin("Write");
    if (!begun.Ok())
        return begun;
    const Status done = inner_->Write(bytes);
    if (done.Ok())
        written_->unflushed += bytes;
    return done;
}

Status FaultyWritableFile::Flush() {
    const Status begun = Begin("Flush");
    if (!begun.Ok())
        return begun;
    const Status done = inner_->Flush();
    if (done.Ok()) {
        written_->flushed += written_->unflushed;
        written_->unflushed.clear();
    }
    return done;
}

Status FaultyWritableFile::Close() {
    const Status begun = Begin("Close");
    if (!begun.Ok())
        return begun;
    return inner_->Close();
}

}  // namespace zentar
