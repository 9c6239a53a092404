#include "tests/unit/nviewlib/outcome.h"

#include <gtest/gtest.h>

namespace nviewlib::testing {

Outcome Decode(Decoder decoder, const std::string& file) {
    // Exactly as long as the file, so that the sanitizers see a byte read behind it.
    const std::vector<std::uint8_t> bytes(file.begin(), file.end());
    Canvas down(Direction::TopDown);
    Canvas up(Direction::BottomUp, 7, 0x5A);
    const bool drawn = decoder(bytes, down.Maker());
    EXPECT_EQ(decoder(bytes, up.Maker()), drawn);
    EXPECT_EQ(up.Asked(), down.Asked());
    EXPECT_LE(down.Asked(), 1);
    EXPECT_TRUE(down.OutsideUntouched());
    EXPECT_TRUE(up.OutsideUntouched());
    // Since their blanks differ, equal lines were written in full.
    EXPECT_TRUE(!drawn || down.SameLines(up));
    return {drawn ? std::optional(down.Drawn()) : std::nullopt, down.Asked()};
}

}  // namespace nviewlib::testing
