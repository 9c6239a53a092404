// Decodes images that players and other programs made, where such are at hand.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/unit/nviewlib/real_images.h"

namespace nviewlib::testing {
namespace {

// What of the file's name tells that it is broken: cut off in the pixels, in the id and in the
// lines; no image; an encoding that is none.
const std::vector<std::string> kBroken = {"cross_scan_line_truncated", "p_8.tga", "pcx_overrun",
                                          "._base1_01", "ossfuzz"};

bool IsBroken(const std::string& name) {
    return std::any_of(kBroken.begin(), kBroken.end(), [&](const std::string& part) {
        return name.find(part) != std::string::npos;
    });
}

class RealImagesTest : public ::testing::TestWithParam<std::string> {
  protected:
    void SetUp() override {
        if (FilesOf(GetParam()).empty()) {
            GTEST_SKIP() << "there are no real images here";
        }
    }
};

TEST_P(RealImagesTest, AreDecodedUnlessTheyAreBroken) {
    for (const auto& path : FilesOf(GetParam())) {
        const Outcome outcome = Decode(DecoderOf(GetParam()), Slurp(path));
        EXPECT_EQ(outcome.picture.has_value(), !IsBroken(path.filename().string())) << path;
    }
}

TEST_P(RealImagesTest, AreHarmlessWhereverTheyAreCutOff) {
    for (const auto& path : FilesOf(GetParam())) {
        const std::string whole = Slurp(path);
        const std::size_t step = std::max<std::size_t>(1, whole.size() / 40);
        for (std::size_t length = 0; length < whole.size(); length += step) {
            (void)Decode(DecoderOf(GetParam()), whole.substr(0, length));
        }
    }
}

TEST_P(RealImagesTest, AreHarmlessWithEachByteOfTheirHeadChanged) {
    for (const auto& path : FilesOf(GetParam())) {
        const std::string whole = Slurp(path);
        if (whole.size() > 20'000) {
            continue;
        }
        for (std::size_t at = 0; at < std::min<std::size_t>(whole.size(), 150); ++at) {
            std::string changed = whole;
            changed[at] = static_cast<char>(changed[at] ^ 0x81);
            (void)Decode(DecoderOf(GetParam()), changed);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, RealImagesTest, ::testing::Values("tga", "pcx"),
                         [](const auto& kind) { return kind.param; });

}  // namespace
}  // namespace nviewlib::testing
