// The beginning of a demo file, as the header readers look at it.
//
// A reader searches for markers in the first 5,120 bytes only. The texts that the markers lead to
// may run on behind them; just those bytes are then read as well.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/file_system.h"

namespace zentar {

// Where a Quake 2 demo names the game's folder: behind the message's length (4 bytes), its code
// (1), the protocol, the server's count (4 each) and the byte that tells a demo from a game.
inline constexpr std::int64_t kQuake2GameFolder = 14;

class DemoBytes {
  public:
    static constexpr std::size_t kBlockSize = 5120;
    // A text without its end in a damaged file is cut here.
    static constexpr std::size_t kLongestText = 65536;
    static constexpr std::size_t kChunkSize = 512;

    // Reads the block. The file must outlive the result.
    static Result<DemoBytes> Load(ReadableFile& file);

    bool Contains(std::string_view marker) const;
    // Offset of the marker's first occurrence in the block; -1 when there is none.
    std::int64_t Find(std::string_view marker) const;

    // The bytes from an offset up to the first `terminator`, without it. The end of the file ends
    // the text as well.
    Result<std::string> TextAt(std::int64_t offset, char terminator) const;
    // The bytes that end at `last` (and not before the start of the file), back to, and without,
    // the nearest byte of value 0 or 1.
    std::string TextEndingAt(std::int64_t last) const;

  private:
    explicit DemoBytes(ReadableFile& file) : file_(&file) {}

    ReadableFile* file_;
    std::string block_;
};

}  // namespace zentar
