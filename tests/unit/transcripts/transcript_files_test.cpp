// The files that a transcript is made of and becomes, whatever becomes of the disk.

#include "core/game_text.h"
#include "tests/doubles/faulty_file_system.h"
#include "tests/unit/transcripts/chat_frame_fixture.h"
#include "transcripts/transcript_file.h"

namespace zentar {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;

const std::string kSpeech = "Bob: hi\r\n";

// ---- Names ----

TEST(TranscriptPath, IsTheSourcesWithoutItsExtension) {
    EXPECT_EQ(TranscriptPath("C:\\a\\chat.log", false), "C:\\a\\chat (transcript).txt");
    EXPECT_EQ(TranscriptPath("C:\\a\\chat.LOG", false), "C:\\a\\chat (transcript).txt");
    EXPECT_EQ(TranscriptPath("C:\\a\\chat.Txt", true), "C:\\a\\chat (transcript).htm");
    EXPECT_EQ(TranscriptPath("C:\\a\\chat.dem", false), "C:\\a\\chat.dem (transcript).txt");
    EXPECT_EQ(TranscriptPath("C:\\a\\chat", true), "C:\\a\\chat (transcript).htm");
    EXPECT_EQ(TranscriptPath("C:\\a\\chat.log.txt", false), "C:\\a\\chat.log (transcript).txt");
    EXPECT_EQ(TranscriptPath(".txt", false), " (transcript).txt");
    EXPECT_EQ(TranscriptPath("txt", false), "txt (transcript).txt");
}

TEST(TranscriptPath, TellsThatItIsOne) {
    EXPECT_TRUE(IsTranscript("C:\\a\\chat (transcript).txt"));
    EXPECT_TRUE(IsTranscript("C:\\a\\chat (TranScript).htm"));
    EXPECT_TRUE(IsTranscript("C:\\my (transcript)s\\chat.log"));
    EXPECT_FALSE(IsTranscript("C:\\a\\chat(transcript).txt"));
    EXPECT_FALSE(IsTranscript("C:\\a\\transcript.txt"));
    EXPECT_FALSE(IsTranscript(""));
}

// ---- Through the frame ----

class TranscriptFilesTest : public ChatFrameTest {
  protected:
    TranscriptFilesTest() : log_(AddLog("duel.log", kSpeech)) { Box(1).SetText("Bob"); }

    void CreateOf(const std::string& log) {
        ExpectLogToTranscribe(log);
        Create();
    }
    // A creation that fails: a beep, and nothing opens.
    void ExpectFailureOf(const std::string& log) {
        CreateOf(log);
        EXPECT_THAT(os.windows.Sounds(), ElementsAre(Beep::Exclamation));
        EXPECT_EQ(os.windows.CurrentPointer(), Pointer::Default);
        EXPECT_THAT(os.files.Names(Folder()), Not(Contains(EndsWith(".zentar-new"))));
    }

    const std::string log_;
    const std::string txt_ = "C:\\Quake2\\ctf\\duel (transcript).txt";
};

TEST_F(TranscriptFilesTest, TheExtensionIsThatOfTheMode) {
    CreateText(AddLog("chat.dem", kSpeech), Folder() + "chat.dem (transcript).txt");
    EXPECT_THAT(os.files.Names(Folder()),
                ElementsAre("chat.dem", "chat.dem (transcript).txt", "duel.log"));
}

TEST_F(TranscriptFilesTest, ALastLineWithoutAnEndCounts) {
    const std::string log = AddLog("open.log", "Bob: hi");
    EXPECT_THAT(CreateText(log, Folder() + "open (transcript).txt"), HasSubstr("\r\nBob: hi\r\n"));
    EXPECT_EQ(os.files.Contents(log), "Bob: hi\r\n");
}

TEST_F(TranscriptFilesTest, AReadOnlyLogLosesItsAttributes) {
    os.files.SetReadOnly(log_);
    EXPECT_THAT(CreateText(log_, txt_), HasSubstr("\r\nBob: hi\r\n"));
    EXPECT_FALSE(os.files.IsReadOnly(log_));
    EXPECT_EQ(os.files.Contents(log_), kSpeech + "\r\n");
}

TEST_F(TranscriptFilesTest, AReadOnlyTranscriptIsOverwritten) {
    os.files.AddFile(txt_, "older");
    os.files.SetReadOnly(txt_);
    EXPECT_THAT(CreateText(log_, txt_), HasSubstr("\r\nBob: hi\r\n"));
    EXPECT_FALSE(os.files.IsReadOnly(txt_));
}

TEST_F(TranscriptFilesTest, AHiddenTranscriptIsOverwritten) {
    os.files.AddFile(txt_, "older");
    os.files.SetHidden(txt_);
    EXPECT_THAT(CreateText(log_, txt_), HasSubstr("\r\nBob: hi\r\n"));
}

// Written as the speech is: in the game's own characters, where they have the letter.
TEST_F(TranscriptFilesTest, TheHeaderNamesAPathInTheCharactersOfItsText) {
    const std::string log = AddLog(
        "Gr\xC3\xB6\xC3\x9F"
        "e \xD0\xB4.log",
        kSpeech);
    const std::string transcript = Folder() +
                                   "Gr\xC3\xB6\xC3\x9F"
                                   "e \xD0\xB4 (transcript).txt";
    EXPECT_THAT(CreateText(log, transcript),
                HasSubstr("\r\nChat transcript of \"C:\\Quake2\\ctf\\Gr\xF6\xDF"
                          "e "
                          "\xD0\xB4.log\".\r\n"));
}

TEST_F(TranscriptFilesTest, NamesOfAllBytesAreKept) {
    std::string name = "P";
    for (int byte = 1; byte <= 255; ++byte) {
        if (byte != '\r' && byte != '\n') {
            name += static_cast<char>(byte);
        }
    }
    Box(1).SetText(GameTextToUtf8(name));
    const std::string text =
        CreateText(AddLog("all.log", name + ": \xFF\x80\1\n"), Folder() + "all (transcript).txt");
    EXPECT_THAT(text, HasSubstr("\r\n" + name + ": \xFF\x80\1\r\n"));
}

TEST_F(TranscriptFilesTest, AnEndlessLineIsPassedOver) {
    const std::string log =
        AddLog("long.log", "Bob: " + std::string(1'000'000, 'x') + "\nBob: hi\n");
    const std::string text = CreateText(log, Folder() + "long (transcript).txt");
    EXPECT_THAT(text, HasSubstr("\r\n\r\nBob: hi\r\n\r\n"));
}

TEST_F(TranscriptFilesTest, ManyLinesMakeALargeTranscript) {
    std::string bytes;
    for (int i = 0; i < 40'000; ++i) {
        bytes += "Bob: line " + std::to_string(i) + "\n";
    }
    const std::string text =
        CreateText(AddLog("many.log", bytes), Folder() + "many (transcript).txt");
    EXPECT_GT(text.size(), bytes.size());
    EXPECT_THAT(text, HasSubstr("\r\nBob: line 0\r\n"));
    EXPECT_THAT(text, HasSubstr("\r\nBob: line 39998\r\nBob: line 39999\r\n"));
}

// ---- What fails ----

TEST_F(TranscriptFilesTest, ALogThatCannotBeReadLeavesTheOlderTranscript) {
    os.files.AddFile(txt_, "older");
    os.files.SetLocked(log_);
    ExpectFailureOf(log_);
    EXPECT_EQ(os.files.Contents(txt_), "older");
}

// The log may be what is wrong, so the user is asked for one anew.
TEST_F(TranscriptFilesTest, AfterAFailureTheLogIsAskedForAgain) {
    os.files.SetFreeSpace("C:\\", 100);
    ExpectFailureOf(log_);
    ExpectLogToTranscribe(std::nullopt);
    Create();
}

TEST_F(TranscriptFilesTest, AFolderIsNoLog) {
    os.files.AddFolder(Folder() + "folder.log\\");
    ExpectFailureOf(Folder() + "folder.log");
    EXPECT_THAT(os.files.Names(Folder()), ElementsAre("duel.log", "folder.log"));
}

TEST_F(TranscriptFilesTest, AFullDiskLeavesTheOlderTranscript) {
    os.files.AddFile(txt_, "older");
    os.files.SetFreeSpace("C:\\", 100);
    ExpectFailureOf(log_);
    EXPECT_EQ(os.files.Contents(txt_), "older");
}

TEST_F(TranscriptFilesTest, ATranscriptThatAnotherProgramHoldsStays) {
    os.files.AddFile(txt_, "older");
    os.files.SetLocked(txt_);
    ExpectFailureOf(log_);
    os.files.SetLocked(txt_, false);
    EXPECT_EQ(os.files.Contents(txt_), "older");
}

TEST_F(TranscriptFilesTest, AFolderWithoutRightsGivesNone) {
    os.files.SetWritingDenied(Folder());
    ExpectFailureOf(log_);
    EXPECT_THAT(os.files.Names(Folder()), ElementsAre("duel.log"));
}

TEST_F(TranscriptFilesTest, ALogThatCannotBeChangedLosesOnlyItsLastLine) {
    const std::string log = AddLog("open.log", "Bob: hi\nBob: bye");
    FaultyFileSystem faulty(os.files);
    ChatFrame other(state, os.Services(faulty), ChatFrameControlsOf(*window));
    faulty.Restart();
    faulty.FailAt(4, FileError::AccessDenied);
    const std::string text = CreateText(log, Folder() + "open (transcript).txt");
    EXPECT_EQ(faulty.CallName(4), "OpenForWriting " + log);
    EXPECT_THAT(text, HasSubstr("\r\nBob: hi\r\n\r\n====="));
    EXPECT_EQ(os.files.Contents(log), "Bob: hi\nBob: bye");
}

// It is there, though nobody may look at its date.
TEST_F(TranscriptFilesTest, ALogThatIsHardToLookAtIsNotCalledGone) {
    FaultyFileSystem faulty(os.files);
    ChatFrame other(state, os.Services(faulty), ChatFrameControlsOf(*window));
    faulty.Restart();
    faulty.FailAt(2, FileError::AccessDenied);
    EXPECT_THAT(CreateText(log_, txt_), HasSubstr("\r\nBob: hi\r\n"));
    EXPECT_EQ(faulty.CallName(2), "Info " + log_);
}

TEST_F(TranscriptFilesTest, AReadThatFailsHalfWayLeavesTheOlderTranscript) {
    const std::string log = AddLog("large.log", kSpeech + std::string(600'000, '\n'));
    const std::string transcript = Folder() + "large (transcript).txt";
    os.files.AddFile(transcript, "older");
    FaultyFileSystem faulty(os.files);
    ChatFrame other(state, os.Services(faulty), ChatFrameControlsOf(*window));
    faulty.Restart();
    faulty.FailAt(10, FileError::Other);
    ExpectFailureOf(log);
    EXPECT_EQ(faulty.CallName(10), "ReadAt " + log);
    EXPECT_EQ(os.files.Contents(transcript), "older");
}

TEST_F(TranscriptFilesTest, OneThatNothingOpensStaysAndABeepTellsSo) {
    os.shell.ExpectStart(Notepad(txt_), FileError::NotFound);
    ExpectFailureOf(log_);
    EXPECT_THAT(os.files.Contents(txt_), HasSubstr("Bob: hi"));
    UseHtml();
    os.shell.ExpectOpenFile(Folder() + "duel (transcript).htm", "c:\\zentar\\", FileError::Other);
    Create();
    EXPECT_THAT(os.windows.Sounds(), ElementsAre(Beep::Exclamation, Beep::Exclamation));
    EXPECT_TRUE(os.files.Exists(Folder() + "duel (transcript).htm"));
}

}  // namespace
}  // namespace zentar
