// Replacing a file so that a full disk, a kill or a power cut leaves the old file or the new one.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "platform/file_system.h"

namespace zentar {

enum class Durability : std::uint8_t {
    Flushed,  // on the disk before it takes the old file's place
    Cached,   // for what the program can make again: after a power cut the file may be empty
};

// Behind a file's own name: nothing that a user would call a file.
inline constexpr std::string_view kTemporaryEnd = ".zentar-new";

// A file written piece by piece under a temporary name in the same folder (the path and
// kTemporaryEnd, unless given), then flushed, checked, and put in the place of `path` in one step.
// Without that step `path` is untouched and the temporary file is gone, as far as the disk still
// allows.
class FileReplacement {
  public:
    FileReplacement(FileSystem& files, const std::string& path,
                    Durability durability = Durability::Flushed);
    FileReplacement(FileSystem& files, std::string path, std::string temporary,
                    Durability durability = Durability::Flushed);
    ~FileReplacement();
    FileReplacement(const FileReplacement&) = delete;
    FileReplacement& operator=(const FileReplacement&) = delete;

    // What fails first is what Complete and Finish give; nothing is written from then on.
    void Write(std::string_view bytes);
    // Closes the temporary file, whole. For those who do something between this and Finish.
    [[nodiscard]] Status Complete();
    [[nodiscard]] Status Finish();

  private:
    void WriteOut(std::string_view bytes);
    Status CloseChecked();

    FileSystem& files_;
    std::string path_;
    std::string temporary_;
    Durability durability_;
    std::unique_ptr<WritableFile> file_;
    Status status_;
    std::string waiting_;  // not yet handed to the file
    std::uint64_t length_ = 0;
    bool opened_ = false;
    bool complete_ = false;
    bool finished_ = false;
};

// Replaces a file by `bytes`, whole.
Status ReplaceFileContents(FileSystem& files, const std::string& path, std::string_view bytes,
                           Durability durability = Durability::Flushed);

}  // namespace zentar
