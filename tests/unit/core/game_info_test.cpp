#include "core/game_info.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zentar {
namespace {

using ::testing::ElementsAre;

const GameInfo& Game(std::size_t index) { return AllGames()[index]; }

TEST(GameInfoTest, Quake1OffersItsFortySixMaps) {
    EXPECT_THAT(
        Game(0).MapNames(),
        ElementsAre("ctf1", "ctf2", "ctf3", "ctf4", "ctf5", "ctf6", "ctf7", "ctf8", "dm1", "dm2",
                    "dm3", "dm4", "dm5", "dm6", "end", "e1m1", "e1m2", "e1m3", "e1m4", "e1m5",
                    "e1m6", "e1m7", "e1m8", "e2m1", "e2m2", "e2m3", "e2m4", "e2m5", "e2m6", "e2m7",
                    "e3m1", "e3m2", "e3m3", "e3m4", "e3m5", "e3m6", "e3m7", "e4m1", "e4m2", "e4m3",
                    "e4m4", "e4m5", "e4m6", "e4m7", "e4m8", "start"));
}

TEST(GameInfoTest, Quake2OffersItsSixtyMaps) {
    EXPECT_THAT(
        Game(1).MapNames(),
        ElementsAre("base1", "base2", "base3", "base64", "biggun", "boss1", "boss2", "bunk1",
                    "city1", "city2", "city3", "city64", "command", "cool1", "fact1", "fact2",
                    "fact3", "hangar1", "hangar2", "jail1", "jail2", "jail3", "jail4", "jail5",
                    "lab", "match1", "mine1", "mine2", "mine3", "mine4", "mintro", "power1",
                    "power2", "q2ctf1", "q2ctf2", "q2ctf3", "q2ctf4", "q2ctf4a", "q2ctf5", "q2ctf6",
                    "q2ctf7", "q2ctf8", "q2dm1", "q2dm2", "q2dm3", "q2dm4", "q2dm5", "q2dm6",
                    "q2dm7", "q2dm8", "security", "sewer64", "space", "strike", "train", "ware1",
                    "ware2", "waste1", "waste2", "waste3"));
}

TEST(GameInfoTest, Quake3OffersItsThirtyOnePhrasesWithBothSpellings) {
    EXPECT_THAT(
        Game(2).MapNames(),
        ElementsAre("g_synchronousClients", "g_syncronousClients", "q3ctf1", "q3ctf2", "q3ctf3",
                    "q3ctf4", "q3dm0", "q3dm1", "q3dm2", "q3dm3", "q3dm4", "q3dm5", "q3dm6",
                    "q3dm7", "q3dm8", "q3dm9", "q3dm10", "q3dm11", "q3dm12", "q3dm13", "q3dm14",
                    "q3dm15", "q3dm16", "q3dm17", "q3dm18", "q3tourney1", "q3tourney2",
                    "q3tourney3", "q3tourney4", "q3tourney5", "q3tourney6"));
}

TEST(GameInfoTest, BaseArgumentsQuoteTheBaseModAfterABlank) {
    EXPECT_EQ(Game(0).BaseArgument(), " \"id1\"");
    EXPECT_EQ(Game(1).BaseArgument(), " \"baseq2\"");
    EXPECT_EQ(Game(2).BaseArgument(), " \"baseq3\"");
}

TEST(GameInfoTest, OnlyTheThreeStringsNameAGame) {
    EXPECT_EQ(GameIndex("Quake1"), 0);
    EXPECT_EQ(GameIndex("Quake2"), 1);
    EXPECT_EQ(GameIndex("Quake3"), 2);
    EXPECT_EQ(GameIndex("Quake4"), -1);
    EXPECT_EQ(GameIndex("quake1"), -1);
    EXPECT_EQ(GameIndex(""), -1);
}

}  // namespace
}  // namespace zentar
