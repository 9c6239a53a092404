#include "benchmarks/posix_file_system.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace zentar {

namespace {

std::string Native(std::string path) {
    std::replace(path.begin(), path.end(), '\\', '/');
    return path;
}

FileError LastError() { return errno == ENOENT ? FileError::NotFound : FileError::Other; }

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
