// Reads the lines of a PCX file one after the other: the bytes of all planes, the first plane
// first.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "platform/nviewlib/pcx_header.h"

namespace nviewlib {

class PcxLines {
  public:
    // `bytes` are those behind the header.
    PcxLines(const PcxHeader& header, std::span<const std::uint8_t> bytes);

    // The most bytes of lines that so many bytes of the file can hold.
    static std::size_t MostBytes(const PcxHeader& header, std::size_t bytes);

    // The next line, good until the one after it is asked for; null when the file ends before.
    const std::uint8_t* Next();

    // How many bytes have been read.
    std::size_t Position() const { return static_cast<std::size_t>(at_ - begin_); }

  private:
    bool ReadRuns(std::uint8_t* to, std::uint8_t* end);
    bool ReadRun(std::uint8_t** to);
    std::size_t Left() const { return static_cast<std::size_t>(end_ - at_); }

    const std::uint8_t* begin_;
    const std::uint8_t* at_;
    const std::uint8_t* end_;
    std::size_t lineBytes_;
    bool runLength_;
    std::vector<std::uint8_t> line_;
    // What the last run of a line leaves over for the next one.
    std::size_t over_ = 0;
    std::uint8_t overValue_ = 0;
};

}  // namespace nviewlib
