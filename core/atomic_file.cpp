#include "core/atomic_file.h"

#include <utility>

namespace zentar {
namespace {

// Small pieces are joined: each call of the system costs more than a copy.
constexpr std::size_t kPiece = std::size_t{256} * 1024;

}  // namespace

FileReplacement::FileReplacement(FileSystem& files, const std::string& path, Durability durability)
    : FileReplacement(files, path, path + std::string(kTemporaryEnd), durability) {}

FileReplacement::FileReplacement(FileSystem& files, std::string path, std::string temporary,
                                 Durability durability)
    : files_(files),
      path_(std::move(path)),
      temporary_(std::move(temporary)),
      durability_(durability) {
    Result<std::unique_ptr<WritableFile>> file =
        files_.OpenForWriting(temporary_, WriteMode::Truncate);
    if (file.Ok()) {
        file_ = std::move(file.Value());
        opened_ = true;
    } else {
        status_ = file.Error();
    }
}

FileReplacement::~FileReplacement() {
    if (finished_ || !opened_) {
        return;
    }
    file_.reset();
    // What is left of it is of no use to anybody; if it cannot go, the next attempt writes over it.
    IgnoreFailure(files_.Delete(temporary_));
}

void FileReplacement::Write(std::string_view bytes) {
    if (waiting_.size() + bytes.size() > kPiece) {
        WriteOut(std::exchange(waiting_, {}));
    }
    if (bytes.size() > kPiece) {
        WriteOut(bytes);
    } else {
        waiting_ += bytes;
    }
}

void FileReplacement::WriteOut(std::string_view bytes) {
    if (status_.Ok() && !bytes.empty()) {
        status_ = file_->Write(bytes);
        length_ += bytes.size();
    }
}

Status FileReplacement::CloseChecked() {
    if (durability_ == Durability::Flushed) {
        if (Status flushed = file_->Flush(); !flushed.Ok()) {
            return flushed;
        }
    }
    if (Status closed = file_->Close(); !closed.Ok()) {
        return closed;
    }
    const Result<FileInfo> info = files_.Info(temporary_);
    if (!info.Ok()) {
        return info.Error();
    }
    return info.Value().length == length_ ? Status() : Status(FileError::NoSpace);
}

Status FileReplacement::Complete() {
    WriteOut(std::exchange(waiting_, {}));
    if (status_.Ok() && !complete_) {
        status_ = CloseChecked();
        complete_ = status_.Ok();
    }
    return status_;
}

Status FileReplacement::Finish() {
    if (Complete().Ok()) {
        status_ = files_.Replace(temporary_, path_);
    }
    finished_ = status_.Ok();
    return status_;
}

Status ReplaceFileContents(FileSystem& files, const std::string& path, std::string_view bytes,
                           Durability durability) {
    FileReplacement replacement(files, path, durability);
    replacement.Write(bytes);
    return replacement.Finish();
}

}  // namespace zentar
