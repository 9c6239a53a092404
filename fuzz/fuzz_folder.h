// A few files in memory, for what reads one file and writes another.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <utility>

#include "fuzz/fuzz_file.h"
#include "platform/file_system.h"

namespace zentar::fuzz {

class FuzzFolder : public FileSystem {
  public:
    std::map<std::string, std::string> files;

    Status Enumerate(const std::string& /*folder*/, const EntryVisitor& /*visit*/) override {
        return FileError::Other;
    }
    Result<FileInfo> Info(const std::string& path) override {
        const auto at = files.find(path);
        if (at == files.end()) {
            return FileError::NotFound;
        }
        FileInfo info;
        info.length = at->second.size();
        return info;
    }
    Result<std::unique_ptr<ReadableFile>> OpenForReading(const std::string& path) override {
        const auto at = files.find(path);
        if (at == files.end()) {
            return FileError::NotFound;
        }
        return std::unique_ptr<ReadableFile>(std::make_unique<FuzzFile>(at->second));
    }
    Result<std::unique_ptr<WritableFile>> OpenForWriting(const std::string& path,
                                                         WriteMode mode) override {
        if (mode == WriteMode::Truncate) {
            files[path].clear();
        }
        return std::unique_ptr<WritableFile>(std::make_unique<Writer>(files[path]));
    }
    Status ClearAttributes(const std::string& /*path*/) override { return {}; }
    Status Rename(const std::string& from, const std::string& to) override {
        return files.contains(to) ? Status(FileError::AlreadyExists) : Replace(from, to);
    }
    Status Replace(const std::string& from, const std::string& to) override {
        const auto at = files.find(from);
        if (at == files.end()) {
            return FileError::NotFound;
        }
        std::string bytes = std::move(at->second);
        files.erase(at);
        files[to] = std::move(bytes);
        return {};
    }
    Status Overwrite(const std::string& path, std::uint64_t offset,
                     std::string_view bytes) override {
        std::string& file = files.at(path);
        file.resize(std::max(file.size(), static_cast<std::size_t>(offset) + bytes.size()));
        file.replace(static_cast<std::size_t>(offset), bytes.size(), bytes);
        return {};
    }
    Status Copy(const std::string& /*from*/, const std::string& /*to*/,
                bool /*overwrite*/) override {
        return FileError::Other;
    }
    Result<bool> IsSameFile(const std::string& one, const std::string& other) override {
        return one == other;
    }
    Status Delete(const std::string& path) override {
        files.erase(path);
        return {};
    }
    Status DeleteOriginal(const std::string& /*original*/, const std::string& /*copy*/) override {
        return FileError::Other;
    }
    Status CreateFolder(const std::string& /*path*/) override { return {}; }
    Result<std::uint64_t> FreeSpace(const std::string& /*root*/) override {
        return FileError::Other;
    }

  private:
    class Writer : public WritableFile {
      public:
        explicit Writer(std::string& file) : file_(file) {}
        Status Write(std::string_view bytes) override {
            file_ += bytes;
            return {};
        }
        Status Flush() override { return {}; }
        Status Close() override { return {}; }

      private:
        std::string& file_;
    };
};

}  // namespace zentar::fuzz
