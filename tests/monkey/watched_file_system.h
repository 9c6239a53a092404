// A file system that forwards to another one, sees whether anything changed, and has a guard look
// at every path that the program opens or changes.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "platform/file_system.h"

namespace zentar::monkey {

class WatchedFileSystem : public FileSystem {
  public:
    enum class Touch : std::uint8_t { Read, Change };
    using Guard = std::function<void(Touch touch, const std::string& path)>;

    WatchedFileSystem(FileSystem& inner, Guard guard) : inner_(inner), guard_(std::move(guard)) {}

    Status Enumerate(const std::string& folder, const EntryVisitor& visit) override {
        return inner_.Enumerate(folder, visit);
    }
    Result<FileInfo> Info(const std::string& path) override { return inner_.Info(path); }
    Result<std::unique_ptr<ReadableFile>> OpenForReading(const std::string& path) override {
        guard_(Touch::Read, path);
        return inner_.OpenForReading(path);
    }
    Result<std::unique_ptr<WritableFile>> OpenForWriting(const std::string& path,
                                                         WriteMode mode) override {
        Changes(path);
        return inner_.OpenForWriting(path, mode);
    }
    Status ClearAttributes(const std::string& path) override {
        guard_(Touch::Change, path);
        return inner_.ClearAttributes(path);
    }
    Status Rename(const std::string& from, const std::string& to) override {
        Changes(from);
        Changes(to);
        return inner_.Rename(from, to);
    }
    Status Replace(const std::string& from, const std::string& to) override {
        Changes(from);
        Changes(to);
        return inner_.Replace(from, to);
    }
    Status Overwrite(const std::string& path, std::uint64_t offset,
                     std::string_view bytes) override {
        Changes(path);
        return inner_.Overwrite(path, offset, bytes);
    }
    Status Copy(const std::string& from, const std::string& to, bool overwrite) override {
        guard_(Touch::Read, from);
        Changes(to);
        return inner_.Copy(from, to, overwrite);
    }
    Result<bool> IsSameFile(const std::string& one, const std::string& other) override {
        return inner_.IsSameFile(one, other);
    }
    Status Delete(const std::string& path) override {
        Changes(path);
        return inner_.Delete(path);
    }
    Status DeleteOriginal(const std::string& original, const std::string& copy) override {
        Changes(original);
        return inner_.DeleteOriginal(original, copy);
    }
    Status CreateFolder(const std::string& path) override {
        guard_(Touch::Change, path);
        return inner_.CreateFolder(path);
    }
    Result<std::uint64_t> FreeSpace(const std::string& root) override {
        return inner_.FreeSpace(root);
    }

    // Whether files may have changed since the last time that this was asked.
    bool TakeChanged() { return std::exchange(changed_, false); }

  private:
    void Changes(const std::string& path) {
        guard_(Touch::Change, path);
        changed_ = true;
    }

    FileSystem& inner_;
    Guard guard_;
    bool changed_ = false;
};

}  // namespace zentar::monkey
