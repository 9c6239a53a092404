// A raster for the decoders that notices what is written beside it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "platform/nviewlib/raster.h"
#include "tests/unit/nviewlib/image_maker.h"

namespace nviewlib::testing {

enum class Direction : std::uint8_t { TopDown, BottomUp };

class Canvas {
  public:
    // `padding` bytes stand between the lines; before anything is drawn each byte is `blank`.
    explicit Canvas(Direction direction, std::size_t padding = 5, std::uint8_t blank = 0xA5)
        : direction_(direction), padding_(padding), blank_(blank) {}

    // Gives this canvas, which must outlive it.
    RasterMaker Maker();

    int Asked() const { return asked_; }

    // Three bytes for each pixel: blue, green, red.
    std::span<const std::uint8_t> Line(int y) const;
    bool SameLines(const Canvas& other) const;
    // Whether nothing was written before, behind or between the lines.
    bool OutsideUntouched() const;
    Picture Drawn() const;

  private:
    std::size_t LineBytes() const { return static_cast<std::size_t>(size_.width) * 3; }
    std::size_t OffsetOf(int y) const;

    Direction direction_;
    std::size_t padding_;
    std::uint8_t blank_;
    int asked_ = 0;
    ImageSize size_;
    std::vector<std::uint8_t> bytes_;
};

using Decoder = bool (*)(std::span<const std::uint8_t>, const RasterMaker&);

}  // namespace nviewlib::testing
