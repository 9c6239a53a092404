// The lines of a game's text file, one after the other, however large it is: a console dump or log,
// a configuration, a backup of one.
//
// CR and LF each end a line, so that a pair of them makes an empty line besides; what stands behind
// the last of them is no line yet. The game may be writing the file meanwhile: what is appended
// while it is read may or may not be seen.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

#include "platform/file_system.h"

namespace zentar {

class ConsoleLines {
  public:
    // The file must outlive this.
    explicit ConsoleLines(ReadableFile& file);

    // The next line without its end, valid until the next call; nothing at the file's end, or where
    // it cannot be read on. Lines longer than kLongest are passed over: no game writes one, nor
    // reads it, and they would take memory without limit.
    std::optional<std::string_view> Next();
    // The file could not be read to its end.
    bool Failed() const { return failed_; }

    // The console of a game holds far less, and a line of a configuration 1,024 at most.
    static constexpr std::size_t kLongest = 65'536;

  private:
    bool ReadOn();
    std::optional<std::string_view> TakeLine(std::size_t length);

    ReadableFile& file_;
    std::uint64_t offset_ = 0;
    std::unique_ptr<char[]> buffer_;
    std::size_t begin_ = 0;  // of what has not been taken yet
    std::size_t end_ = 0;
    bool failed_ = false;
    bool tooLong_ = false;  // the line whose end is still to come has been dropped
};

}  // namespace zentar
