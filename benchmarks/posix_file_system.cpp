#include "benchmarks/posix_file_system.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <utility>

namespace zentar {

namespace {

std::string Native(std::string path) {
    std::replace(path.begin(), path.end(), '\\', '/');
    return path;
}

FileError LastError() { return errno == ENOENT ? FileError::NotFound : FileError::Other; }

Status StatusOf(int result) { return result == 0 ? Status() : Status(LastError()); }

FileInfo InfoOf(const struct stat& status) {
    return {.length = static_cast<std::uint64_t>(status.st_size),
            .isFolder = S_ISDIR(status.st_mode)};
}

class PosixFile : public ReadableFile {
  public:
    explicit PosixFile(int file) : file_(file) {}
    ~PosixFile() override { close(file_); }
    PosixFile(const PosixFile&) = delete;
    PosixFile& operator=(const PosixFile&) = delete;

    Result<std::size_t> ReadAt(std::uint64_t offset, std::span<std::byte> into) override {
        std::size_t done = 0;
        while (done < into.size()) {
            const ssize_t got = pread(file_, into.data() + done, into.size() - done,
                                      static_cast<off_t>(offset + done));
            if (got < 0) {
                return LastError();
            }
            if (got == 0) {
                break;
            }
            done += static_cast<std::size_t>(got);
        }
        return done;
    }
    Result<std::uint64_t> Length() override {
        struct stat status {};
        if (fstat(file_, &status) != 0) {
            return LastError();
        }
        return InfoOf(status).length;
    }

  private:
    int file_;
};

class PosixWritableFile : public WritableFile {
  public:
    explicit PosixWritableFile(int file) : file_(file) {}
    ~PosixWritableFile() override { IgnoreFailure(Close()); }
    PosixWritableFile(const PosixWritableFile&) = delete;
    PosixWritableFile& operator=(const PosixWritableFile&) = delete;

    Status Write(std::string_view bytes) override {
        return write(file_, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size())
                   ? Status()
                   : Status(LastError());
    }
    Status Flush() override { return StatusOf(fdatasync(file_)); }
    Status Close() override {
        const int open = std::exchange(file_, -1);
        return open < 0 ? Status() : StatusOf(close(open));
    }

  private:
    int file_;
};

int OpenFlags(WriteMode mode) {
    switch (mode) {
        case WriteMode::Truncate:
            return O_CREAT | O_TRUNC;
        case WriteMode::CreateNew:
            return O_CREAT | O_EXCL;
        case WriteMode::Append:
            break;
    }
    return O_CREAT | O_APPEND;
}

}  // namespace

Status PosixFileSystem::Enumerate(const std::string& folder, const EntryVisitor& visit) {
    const std::unique_ptr<DIR, int (*)(DIR*)> opened(opendir(Native(folder).c_str()), closedir);
    if (!opened) {
        return LastError();
    }
    while (const dirent* entry = readdir(opened.get())) {
        visit({.name = entry->d_name, .info = {.isFolder = entry->d_type == DT_DIR}});
    }
    return {};
}

Result<FileInfo> PosixFileSystem::Info(const std::string& path) {
    struct stat status {};
    if (stat(Native(path).c_str(), &status) != 0) {
        return LastError();
    }
    return InfoOf(status);
}

Result<std::unique_ptr<ReadableFile>> PosixFileSystem::OpenForReading(const std::string& path) {
    const int file = open(Native(path).c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0) {
        return LastError();
    }
    return std::unique_ptr<ReadableFile>(std::make_unique<PosixFile>(file));
}

Result<std::unique_ptr<WritableFile>> PosixFileSystem::OpenForWriting(const std::string& path,
                                                                      WriteMode mode) {
    constexpr mode_t kOwnersAlone = 0600;
    const int file =
        open(Native(path).c_str(), O_WRONLY | O_CLOEXEC | OpenFlags(mode), kOwnersAlone);
    if (file < 0) {
        return LastError();
    }
    return std::unique_ptr<WritableFile>(std::make_unique<PosixWritableFile>(file));
}

Status PosixFileSystem::Replace(const std::string& from, const std::string& to) {
    return StatusOf(rename(Native(from).c_str(), Native(to).c_str()));
}

Status PosixFileSystem::Delete(const std::string& path) {
    return StatusOf(unlink(Native(path).c_str()));
}

// Through to the disk, as on Windows.
Status PosixFileSystem::Overwrite(const std::string& path, std::uint64_t offset,
                                  std::string_view bytes) {
    const int file = open(Native(path).c_str(), O_WRONLY | O_CLOEXEC);
    if (file < 0) {
        return LastError();
    }
    const bool written = pwrite(file, bytes.data(), bytes.size(), static_cast<off_t>(offset)) ==
                             static_cast<ssize_t>(bytes.size()) &&
                         fdatasync(file) == 0;
    close(file);
    return written ? Status() : Status(FileError::Other);
}

}  // namespace zentar
