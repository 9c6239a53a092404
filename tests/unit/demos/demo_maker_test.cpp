#include "samples/demo_maker.h"

#include <gtest/gtest.h>

namespace zentar::samples {
namespace {

const std::vector<DemoKind> kAllKinds = {DemoKind::Dem, DemoKind::Dm2, DemoKind::Dm3,
                                         DemoKind::Dm48, DemoKind::Dm66};

TEST(DemoMaker, ChatIsFoundInEveryDemoButACompressedOne) {
    for (const DemoKind kind : kAllKinds) {
        const std::string demo = MakeDemo(kind, {.chat = {"Fred: gg", "Bob: bye"}, .size = 20'000});
        const bool readable = kind != DemoKind::Dm66;
        EXPECT_EQ(demo.find("Fred: gg") != std::string::npos, readable) << ExtensionOf(kind);
        EXPECT_EQ(demo.find("Bob: bye") != std::string::npos, readable) << ExtensionOf(kind);
    }
}

TEST(DemoMaker, DemosAreAsLongAsWanted) {
    for (const DemoKind kind : kAllKinds) {
        const std::size_t size = MakeDemo(kind, {.size = 500'000}).size();
        EXPECT_GE(size, 500'000U) << ExtensionOf(kind);
        EXPECT_LE(size, 503'000U) << ExtensionOf(kind);
    }
}

TEST(DemoMaker, MarkersStandWhereTheyAreWanted) {
    EXPECT_EQ(MakeDemo(DemoKind::Dem, {.mapAt = 4000}).find("maps/"), 4000U);
    EXPECT_EQ(MakeDemo(DemoKind::Dm2, {.mapAt = 4000}).find("maps/"), 4000U);
    EXPECT_EQ(MakeDemo(DemoKind::Dm3, {.mapAt = 4000}).find("\\mapname\\"), 4000U);
    EXPECT_EQ(MakeDemo(DemoKind::Dm48, {.levelNameAt = 4000}).find(std::string("\0\3\3\0", 4)),
              4000U);
}

TEST(DemoMaker, TheSameContentsGiveTheSameBytes) {
    EXPECT_EQ(MakeDemo(DemoKind::Dm2, {.size = 9000}), MakeDemo(DemoKind::Dm2, {.size = 9000}));
}

}  // namespace
}  // namespace zentar::samples
