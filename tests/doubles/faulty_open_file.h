// The files that the faulty file system hands out.
#pragma once

#include <memory>
#include <string>
#include <utility>

#include "tests/doubles/faulty_file_system.h"

namespace zentar {

class FaultyReadableFile : public ReadableFile {
  public:
    FaultyReadableFile(FaultyFileSystem& owner, std::string path,
                       std::unique_ptr<ReadableFile> inner)
        : owner_(owner), path_(std::move(path)), inner_(std::move(inner)) {}

    Result<std::size_t> ReadAt(std::uint64_t offset, std::span<std::byte> into) override;
    Result<std::uint64_t> Length() override;

  private:
    FaultyFileSystem& owner_;
    std::string path_;
    std::unique_ptr<ReadableFile> inner_;
};

class FaultyWritableFile : public WritableFile {
  public:
    FaultyWritableFile(FaultyFileSystem& owner, std::shared_ptr<FaultyFileSystem::Written> written,
                       std::unique_ptr<WritableFile> inner);
    ~FaultyWritableFile() override;
    FaultyWritableFile(const FaultyWritableFile&) = delete;
    FaultyWritableFile& operator=(const FaultyWritableFile&) = delete;

    Status Write(std::string_view bytes) override;
    Status Flush() override;
    Status Close() override;

    // The process is gone, and with it its open files.
    void Abandon() { inner_.reset(); }

  private:
    Status Begin(const std::string& call);

    FaultyFileSystem& owner_;
    std::string path_;
    std::shared_ptr<FaultyFileSystem::Written> written_;
    std::unique_ptr<WritableFile> inner_;  // null after the kill
};

}  // namespace zentar
