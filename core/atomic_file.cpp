#include "core/atomic_file.h"

namespace zentar {
namespace {

Status WriteAndClose(FileSystem& files, const std::string& path, std::string_view bytes,
                     Durability durability) {
    Result<std::unique_ptr<WritableFile>> file = files.OpenForWriting(path, WriteMode::Truncate);
    if (!file.Ok()) {
        return file.Error();
    }
    if (Status written = file.Value()->Write(bytes); !written.Ok()) {
        return written;
    }
    if (durability == Durability::Flushed) {
        if (Status flushed = file.Value()->Flush(); !flushed.Ok()) {
            return flushed;
        }
    }
    return file.Value()->Close();
}

Status WriteChecked(FileSystem& files, const std::string& path, std::string_view bytes,
                    Durability durability) {
    if (Status written = WriteAndClose(files, path, bytes, durability); !written.Ok()) {
        return written;
    }
    const Result<FileInfo> info = files.Info(path);
    if (!info.Ok()) {
        return info.Error();
    }
    return info.Value().length == bytes.size() ? Status() : Status(FileError::NoSpace);
}

}  // namespace

Status ReplaceFileContents(FileSystem& files, const std::string& path, std::string_view bytes,
                           Durability durability) {
    const std::string temporary = path + ".new";
    Status done = WriteChecked(files, temporary, bytes, durability);
    if (done.Ok()) {
        done = files.Replace(temporary, path);
    }
    if (!done.Ok()) {
        // What is left of it is of no use to anybody; if it cannot go, the next attempt writes
        // over it.
        IgnoreFailure(files.Delete(temporary));
    }
    return done;
}

}  // namespace zentar
