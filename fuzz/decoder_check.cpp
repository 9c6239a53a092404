#include "fuzz/decoder_check.h"

#include "fuzz/require.h"

namespace zentar::fuzz {

namespace {

using nviewlib::testing::Canvas;
using nviewlib::testing::Direction;

nviewlib::RasterMaker Checked(nviewlib::RasterMaker make) {
    return [make = std::move(make)](nviewlib::ImageSize size) {
        Require(size.width > 0 && size.height > 0 &&
                std::int64_t{size.width} * size.height <= nviewlib::kMostPixels);
        return make(size);
    };
}

}  // namespace

void CheckDecoder(nviewlib::testing::Decoder decoder, std::span<const std::uint8_t> file) {
    Canvas down(Direction::TopDown, 1, 0xA5);
    Canvas up(Direction::BottomUp, 2, 0x5A);
    const bool drawn = decoder(file, Checked(down.Maker()));
    Require(down.Asked() <= 1 && down.OutsideUntouched());
    if (down.Asked() == 0) {
        Require(!drawn);
        return;
    }
    Require(decoder(file, Checked(up.Maker())) == drawn);
    Require(up.Asked() == down.Asked() && up.OutsideUntouched());
    // Their blanks differ: a pixel that was left out would differ too.
    Require(!drawn || down.SameLines(up));
}

}  // namespace zentar::fuzz
