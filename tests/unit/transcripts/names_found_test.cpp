// Which names a scan finds in a log, in the boxes of the frame.

#include "core/game_text.h"
#include "tests/doubles/faulty_file_system.h"
#include "tests/unit/transcripts/chat_frame_fixture.h"

namespace zentar {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class NamesFoundTest : public ChatFrameTest {
  protected:
    // A user who answers the question about a log without names, too.
    void ExpectNoneIn(const std::string& bytes) {
        ExpectNoNames(Folder() + "scanned.log", Answer::No);
        EXPECT_THAT(NamesIn(bytes), IsEmpty()) << bytes;
    }
};

std::string Speakers(int count) {
    std::string bytes;
    for (int i = 1; i <= count; ++i) {
        bytes += "speaker" + std::to_string(i) + ": hi\n";
    }
    return bytes;
}

TEST_F(NamesFoundTest, EachSpeakerOnceInTheOrderOfSpeech) {
    EXPECT_THAT(NamesIn("Bob: hi\nAnn: yo\nBob: hi\nbob: ho\nAnn: hi\n"),
                ElementsAre("Bob", "Ann", "bob"));
}

TEST_F(NamesFoundTest, TwentyFourAndNoMore) {
    const std::vector<std::string> names = NamesIn(Speakers(23) + Speakers(30));
    ASSERT_THAT(names, SizeIs(24));
    EXPECT_EQ(names.front(), "speaker1");
    EXPECT_EQ(names.back(), "speaker24");
    EXPECT_THAT(NamesIn(Speakers(24)), SizeIs(24));
    EXPECT_THAT(NamesIn(Speakers(23)), SizeIs(23));
}

TEST_F(NamesFoundTest, ReadingStopsAtTheTwentyFourth) {
    os.files.AddHugeFile(Folder() + "huge.log", std::uint64_t{1} << 33U, 0, Speakers(24));
    Scan(Folder() + "huge.log");
    EXPECT_THAT(Names(), SizeIs(24));
    EXPECT_LE(os.files.Reads(Folder() + "huge.log").bytes, 1'000'000U);
}

TEST_F(NamesFoundTest, NamesOfAnEarlierScanAreGone) {
    EXPECT_THAT(NamesIn(Speakers(5)), SizeIs(5));
    EXPECT_THAT(NamesIn("Bob: hi\n"), ElementsAre("Bob"));
}

TEST_F(NamesFoundTest, ALineThatHasNoEndIsNotRead) {
    EXPECT_THAT(NamesIn("Bob: hi\nAnn: yo"), ElementsAre("Bob"));
    EXPECT_THAT(NamesIn("Bob: hi\nAnn: yo\r"), ElementsAre("Bob", "Ann"));
    ExpectNoneIn("Bob: hi");
    ExpectNoneIn("");
}

TEST_F(NamesFoundTest, NobodyIsNameless) {
    ExpectNoneIn(": hi\n");
    ExpectNoneIn("\1: hi\n");
    ExpectNoneIn("<RED> : hi\n");
    ExpectNoneIn("(): hi\n");
    UseGame(kQuake3);
    ExpectNoneIn("^1^7: hi\n");
    ExpectNoneIn(" to Ann: hi\n");
    ExpectNoneIn("( (Base): hi\n");
}

TEST_F(NamesFoundTest, OnlyQuake3HasMarkersCodesAndPlaces) {
    const std::string bytes = "  1:02 say: ^1Bob^7: hi\n(Ann) (Base): go\nCarl to Dan: psst\n";
    UseGame(kQuake3);
    EXPECT_THAT(NamesIn(bytes), ElementsAre("Bob", "Ann", "Carl"));
    for (const std::string_view game : {kQuake1, kQuake2}) {
        UseGame(game);
        EXPECT_THAT(NamesIn(bytes), ElementsAre("  1:02 say", "(Ann) (Base)", "Carl to Dan"));
    }
}

TEST_F(NamesFoundTest, ABoxShowsEachByteAsACharacter) {
    EXPECT_THAT(NamesIn("\x90\xC5\xCC\xC6\x91Gimbo: hi\n"),
                ElementsAre("\xC2\x90\xC3\x85\xC3\x8C"
                            "\xC3\x86\xE2\x80\x98Gimbo"));
    EXPECT_EQ(Utf8ToGameText(Names().front()), "\x90\xC5\xCC\xC6\x91Gimbo");
}

// Engines of today write UTF-8: such a name is the bytes it is made of.
TEST_F(NamesFoundTest, AUtf8NameKeepsItsBytes) {
    const std::string name = "\xD0\xB4\xD1\x83\xD1\x8D\xD0\xBB\xD1\x8C";
    const std::vector<std::string> names = NamesIn(name + ": \xD0\xB4\xD0\xB0\n");
    ASSERT_THAT(names, SizeIs(1));
    EXPECT_EQ(Utf8ToGameText(names.front()), name);
}

TEST_F(NamesFoundTest, ALineWithANulInItsNameHasNone) {
    ExpectNoneIn(std::string("Bo\0b: hi\n", 9));
    EXPECT_THAT(NamesIn(std::string("Bob: h\0i\n", 9)), ElementsAre("Bob"));
}

TEST_F(NamesFoundTest, AnEndlessLineIsPassedOver) {
    EXPECT_THAT(NamesIn("Bob: " + std::string(70'000, 'x') + "\nAnn: hi\n"), ElementsAre("Ann"));
    const std::string longest(65'536 - 4, 'x');
    EXPECT_THAT(NamesIn(longest + ": hi\n"), ElementsAre(longest));
}

TEST_F(NamesFoundTest, WhatWasReadBeforeTheDiskFailedCounts) {
    const std::string log = AddLog("scanned.log", Speakers(3) + std::string(300'000, '\n'));
    FaultyFileSystem faulty(os.files);
    ChatFrame other(state, os.Services(faulty), ChatFrameControlsOf(*window));
    faulty.Restart();
    faulty.FailAt(4, FileError::Other);  // the executable's Info, the opening and the first block
    Scan(log);
    EXPECT_EQ(faulty.CallName(4), "ReadAt " + log);
    EXPECT_THAT(Names(), SizeIs(3));
    EXPECT_THAT(os.windows.Sounds(), ElementsAre(Beep::Information));
}

}  // namespace
}  // namespace zentar
