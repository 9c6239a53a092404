// Reads rich text that a player saved, where such is at hand, and compares with what a person reads
// in its bytes.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "platform/rtf/rtf_reader.h"

namespace zentar {
namespace {

const std::filesystem::path kFile = std::filesystem::path(ZENTAR_TEST_SOURCE_DIR) / ".." /
                                    "shared" / "data" / "q3config" /
                                    "Steffkn__Quake-configs__names_gth2.cfg";

// The lines of the document, which are not those of the file.
const std::string kExpected =
    R"(seta name "^f^7^0^r*^F^7^0^R*^s^x720303^x750000ç^x790705^x750000ô^x800b07^x750000è)"
    R"(^f^7^0^r*^F^7^0^R*^s^x8e130b^x750000ó^x8e130b^x750000ô^f^7^xA0A0A0å)"
    R"(^s^x8e130b^x750000æ^x8e130b^x750000æ" )"
    R"(bind . "say &gen_sorry.wav ^2*^7+t#+p#+s#+s#+z#!^2* =^2:^7(" )"
    R"(bind b "say &gen_goodbye1.wav ^2*^7+h#+p# +h#+p# +h#+p#^2* ^7]^2:^7>" )"
    R"(bind c "say &tap_sneakybastard.wav ^1+z#^7+p#+v# ^1+c#^7+b#^1+t#+u#^7+b#^1+s#+e#! ^7]^1:^7@" )"
    R"(bind g "say &tap_goodgame1.wav ^1+h#^7+p#+p#^1+e# +h#^7+b#^1+n#^7+f# ^2:-]" )"
    R"(bind h "say &gen_hello1.wav ^2+i#^7+f#^2+m#+m#+p#^7! ^1:^7>" )"
    R"(bind x "say ^1H^7a^1H^7a" )"
    R"-(bind z "say ^7=^2:^7)" )-"
    R"(bind KP_MINUS "say &tap_yourmine.wav ^2*^7+v#'+s#+f# +n#+j#+o#+f#!^2^* ^4:^7>" )"
    R"(bind KP_PLUS "say &tap_thegreatest.wav ^2*^8+g#^7+v#^8+d#+l# ^7+z#^8+p#+v# ^7! ^7]^1:^7>")";

TEST(RealRtf, ShowsWhatAPersonReads) {
    if (!std::filesystem::exists(kFile)) {
        GTEST_SKIP() << "there is no real rich text here";
    }
    std::ifstream file(kFile, std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    const auto runs = ReadRtf(bytes.str());
    ASSERT_TRUE(runs);
    ASSERT_EQ(runs->size(), 1U);
    EXPECT_EQ(runs->front().text, kExpected);
    EXPECT_EQ(runs->front().colour, 0U);
}

}  // namespace
}  // namespace zentar
