#include "demos/demo_name.h"

#include <gtest/gtest.h>

namespace zentar {
namespace {

const std::string kFolder = "C:\\Games\\Quake3\\baseq3\\demos\\";

TEST(DemoName, EachQuake3ExtensionHasItsOwnMarker) {
    EXPECT_EQ(DemoEntry("a.dm3", ".dm3"), "a");
    EXPECT_EQ(DemoEntry("b.dm_48", ".dm3"), "b ");
    EXPECT_EQ(DemoEntry("c.dm_66", ".dm3"), "c  ");
}

TEST(DemoName, UpperCaseExtensionsAreDemosToo) {
    EXPECT_EQ(DemoEntry("X.DM3", ".dm3"), "X");
    EXPECT_EQ(DemoEntry("X.DM_48", ".dm3"), "X ");
    EXPECT_EQ(DemoEntry("X.Dm_66", ".dm3"), "X  ");
    EXPECT_EQ(DemoEntry("SOS.DEM", ".dem"), "SOS");
}

TEST(DemoName, DemosOfAnotherGameAreNone) {
    EXPECT_EQ(DemoEntry("a.dm2", ".dm3"), std::nullopt);
    EXPECT_EQ(DemoEntry("a.dm3", ".dm2"), std::nullopt);
    EXPECT_EQ(DemoEntry("a.dm_48", ".dm2"), std::nullopt);
    EXPECT_EQ(DemoEntry("a.dm_66", ".dem"), std::nullopt);
    EXPECT_EQ(DemoEntry("a.dm_68", ".dm3"), std::nullopt);
    EXPECT_EQ(DemoEntry("a.dm3!", ".dm3"), std::nullopt);
    EXPECT_EQ(DemoEntry("dm3", ".dm3"), std::nullopt);
    EXPECT_EQ(DemoEntry("", ".dm3"), std::nullopt);
}

TEST(DemoName, BeforeAnyGameIsKnownNothingIsADemo) {
    EXPECT_EQ(DemoEntry("a.dm3", ""), std::nullopt);
}

TEST(DemoName, NamesWithDotsBlanksAndForeignLettersStayWhole) {
    EXPECT_EQ(DemoEntry("дуэль.dm2", ".dm2"), "дуэль");
    EXPECT_EQ(DemoEntry("Größe [q2dm1].dm2", ".dm2"), "Größe [q2dm1]");
    EXPECT_EQ(DemoEntry("1.2.3 final.dm_48", ".dm3"), "1.2.3 final ");
}

TEST(DemoName, TwoBlanksLeadToTheDm66File) {
    EXPECT_EQ(RealPath(kFolder, "duel  ", ".dm3"), kFolder + "duel.dm_66");
    EXPECT_EQ(RealExtension("duel  ", ".dm3"), ".dm_66");
}

TEST(DemoName, OneBlankLeadsToTheDm48File) {
    EXPECT_EQ(RealPath(kFolder, "duel ", ".dm3"), kFolder + "duel.dm_48");
    EXPECT_EQ(RealExtension("duel ", ".dm3"), ".dm_48");
}

TEST(DemoName, NoBlankLeadsToTheDm3File) {
    EXPECT_EQ(RealPath(kFolder, "duel", ".dm3"), kFolder + "duel.dm3");
    EXPECT_EQ(RealExtension("duel", ".dm3"), ".dm3");
}

TEST(DemoName, BlanksInsideANameAreNoMarkers) {
    EXPECT_EQ(RealPath(kFolder, "my  duel", ".dm3"), kFolder + "my  duel.dm3");
}

TEST(DemoName, BlanksOfOtherGamesNamesAreNoMarkers) {
    EXPECT_EQ(RealPath("C:\\q2\\", "duel ", ".dm2"), "C:\\q2\\duel .dm2");
    EXPECT_EQ(RealPath("C:\\q1\\", "duel  ", ".dem"), "C:\\q1\\duel  .dem");
    EXPECT_EQ(RealExtension("duel ", ".dm2"), ".dm2");
}

TEST(DemoName, ANameThatWouldStandForAnotherFileIsNotListed) {
    EXPECT_EQ(DemoEntry("duel .dm3", ".dm3"), std::nullopt);
    EXPECT_EQ(DemoEntry("duel  .DM3", ".dm3"), std::nullopt);
    EXPECT_EQ(DemoEntry("duel .dm_48", ".dm3"), std::nullopt);
    EXPECT_EQ(DemoEntry("duel .Dm_66", ".dm3"), "duel   ");
    EXPECT_EQ(RealPath(kFolder, "duel   ", ".dm3"), kFolder + "duel .dm_66");
    EXPECT_EQ(DemoEntry("duel .dm2", ".dm2"), "duel ");
}

TEST(DemoName, ANameOfNothingButItsExtensionIsFoundAgain) {
    EXPECT_EQ(DemoEntry(".dm_66", ".dm3"), "  ");
    EXPECT_EQ(RealPath(kFolder, "  ", ".dm3"), kFolder + ".dm_66");
}

}  // namespace
}  // namespace zentar
