// Who speaks in a line of a console.
#include <gtest/gtest.h>

#include "transcripts/speech_line.h"

namespace zentar {
namespace {

std::string Quake2(std::string_view line) { return SpeakerOf(line, false).value_or("(nobody)"); }
std::string Quake3(std::string_view line) { return SpeakerOf(line, true).value_or("(nobody)"); }

TEST(SpeakerOf, IsWhatStandsBeforeTheFirstColonAndBlank) {
    EXPECT_EQ(Quake2("Bob: hi"), "Bob");
    EXPECT_EQ(Quake2("Bob: time: 10"), "Bob");
    EXPECT_EQ(Quake2("4gado, o quaker: hi"), "4gado, o quaker");
    EXPECT_EQ(Quake2("no speech"), "(nobody)");
    EXPECT_EQ(Quake2("12:30 o'clock"), "(nobody)");
    EXPECT_EQ(Quake2(": hi"), "");
}

TEST(SpeakerOf, LosesWhatALogPutsBeforeIt) {
    EXPECT_EQ(Quake2("\1Bob: hi"), "Bob");
    EXPECT_EQ(Quake2("<RED> Bob: hi"), "Bob");
    EXPECT_EQ(Quake2("<BLUE> Bob: hi"), "Bob");
    EXPECT_EQ(Quake2("<SPEC> Bob: hi"), "Bob");
    EXPECT_EQ(Quake2("<RED> <RED> Bob: hi"), "<RED> Bob");
    EXPECT_EQ(Quake2("(Bob): hi"), "Bob");
    EXPECT_EQ(Quake2("(Bob) (Base): hi"), "(Bob) (Base)");
}

TEST(SpeakerOf, InQuake3StandsBehindTheMarkersOfALog) {
    EXPECT_EQ(Quake3("  0:12 say: Bob: hi"), "Bob");
    EXPECT_EQ(Quake3("  0:12 sayteam: Bob: hi"), "Bob");
    EXPECT_EQ(Quake3("  0:12 vtell: Bob to Ann: hi"), "Bob");
    EXPECT_EQ(Quake3("  0:12 tell: Bob to Ann: hi"), "Bob");
    EXPECT_EQ(Quake3("(Bob): hi"), "Bob");
    EXPECT_EQ(Quake3("(Bob) (Base): hi"), "Bob");
    EXPECT_EQ(Quake2("  0:12 say: Bob: hi"), "  0:12 say");
}

TEST(SpeakerOf, InQuake3HasNoColours) {
    EXPECT_EQ(Quake3("^1Bob^7: hi"), "Bob");
    EXPECT_EQ(Quake2("^1Bob^7: hi"), "^1Bob^7");
}

TEST(SpeakerOf, IsNobodyInAMessage) {
    EXPECT_EQ(Quake2("Mapper: hi"), "(nobody)");
    EXPECT_EQ(Quake2("SERVER: hi"), "(nobody)");
    EXPECT_EQ(Quake2("Bob: hi: print"), "(nobody)");
    EXPECT_EQ(Quake2("1.2.3.4: challenge"), "(nobody)");
    EXPECT_EQ(Quake2("1.2.3.4: client_connect"), "(nobody)");
    EXPECT_EQ(Quake2("Blaster: hi"), "Blaster");
    EXPECT_EQ(Quake2("Blaster   : 3"), "(nobody)");
    EXPECT_EQ(Quake3("Bob: ping time 30"), "(nobody)");
    EXPECT_EQ(Quake3("  3:11 ClientConnect: 0"), "(nobody)");
    EXPECT_EQ(Quake3("  3:11 Kill: 3 2 10"), "(nobody)");
    EXPECT_EQ(Quake3("  3:11 Item: 2 weapon_rocketlauncher"), "(nobody)");
    EXPECT_EQ(Quake3("  0:00 InitGame: \\sv_hostname\\x"), "(nobody)");
    EXPECT_EQ(Quake2("  3:11 Kill: 3 2 10"), "  3:11 Kill");
}

// Only the first of the two tests sees the line as it was written.
TEST(SpeakerOf, IsTestedAsWrittenForTheBeginningsOfMessages) {
    EXPECT_EQ(Quake3("^1map: hi"), "map");
    EXPECT_EQ(Quake2("<RED> map: hi"), "map");
}

}  // namespace
}  // namespace zentar
