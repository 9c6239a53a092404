// The command "Create Transcript", from the click to the program that shows the result.

#include "core/program_info.h"
#include "tests/unit/expected_boxes.h"
#include "tests/unit/transcripts/chat_frame_fixture.h"

namespace zentar {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

const std::string kSpeech = "Bob: hi\r\nCarl: yo\r\nfight!\r\n";

class CreateTranscriptTest : public ChatFrameTest {
  protected:
    CreateTranscriptTest() : log_(AddLog("duel.log", kSpeech)) { Box(1).SetText("Bob"); }

    // The whole transcript as text, with these lines.
    std::string Text(const std::string& source, const std::string& players,
                     const std::string& lines) const {
        return "Zentar v0.99 BETA Chat Transcript\r\n"
               "Web Site: " +
               std::string(kWebSite) +
               "\r\n"
               "-------------------------------\r\n"
               "\r\n"
               "Chat transcript of \"" +
               source +
               "\".\r\n"
               "\r\n"
               "The following players were chosen to be part of this transcript:\r\n"
               "\r\n" +
               players +
               "\r\n"
               "------------------------ START OF TRANSCRIPT -------------------------\r\n"
               "\r\n" +
               lines +
               "\r\n"
               "========================= END OF TRANSCRIPT ==========================\r\n";
    }
    void ExpectNothingDone() {
        EXPECT_THAT(os.windows.Sounds(), IsEmpty());
        EXPECT_THAT(os.windows.Pointers(), IsEmpty());
        EXPECT_THAT(os.files.Names(Folder()), ElementsAre("duel.log"));
        EXPECT_EQ(os.files.Contents(log_), kSpeech);
    }

    const std::string log_;
    const std::string txt_ = "C:\\Quake2\\ctf\\duel (transcript).txt";
    const std::string htm_ = "C:\\Quake2\\ctf\\duel (transcript).htm";
};

TEST_F(CreateTranscriptTest, DoesItsStepsInOrder) {
    ExpectLogToTranscribe(log_);
    os.shell.ExpectStart(Notepad(txt_));
    Create();
    EXPECT_TRUE(os.log.Ordered({
        "ChooseFileToOpen Open a Quake2 condump/logfile for chat transcription",
        "Pointer Hourglass",
        "Pump",
        "ClearAttributes " + log_,
        "OpenForWriting " + log_,
        "OpenForReading " + log_,
        "OpenForWriting " + txt_ + ".zentar-new",
        "ClearAttributes " + txt_,
        "Replace " + txt_ + ".zentar-new -> " + txt_,
        "StartProgram C:\\Windows\\notepad.exe \"" + txt_ + "\"",
        "Pointer Default",
    }));
    EXPECT_EQ(os.files.Contents(txt_), Text(log_, "Bob.\r\n", "Bob: hi\r\n"));
    EXPECT_EQ(os.files.Contents(log_), kSpeech + "\r\n");
    EXPECT_THAT(os.files.Names(Folder()), ElementsAre("duel (transcript).txt", "duel.log"));
    EXPECT_THAT(os.windows.Sounds(), IsEmpty());
}

TEST_F(CreateTranscriptTest, AsHtmlTheSystemsViewerOpensIt) {
    UseHtml();
    ExpectLogToTranscribe(log_);
    os.shell.ExpectOpenFile(htm_, "c:\\zentar\\");
    Create();
    EXPECT_TRUE(os.log.Ordered({"Pointer Hourglass", "OpenFile " + htm_, "Pointer Default"}));
    EXPECT_THAT(os.files.Contents(htm_), HasSubstr("<p>\r\nBob: hi<br>\r\n<p>\r\n"));
    EXPECT_FALSE(os.files.Exists(txt_));
}

// ---- The game's folder and the dialog ----

TEST_F(CreateTranscriptTest, WithoutTheGameNothingIsAsked) {
    os.files.Remove("C:\\Quake2\\quake2.exe");
    os.windows.Expect(FolderUnknown("Quake2"));
    Box(1).SetText("");
    Box(2).SetText("Bob");
    Create();
    EXPECT_THAT(Names(), ElementsAre("", "Bob"));
    ExpectNothingDone();
}

TEST_F(CreateTranscriptTest, TheDialogIsThatOfTheGameAndItsMod) {
    for (const std::string_view game : {kQuake1, kQuake3, kQuake2}) {
        UseGame(game);
        ExpectLogToTranscribe(std::nullopt);
        Create();
    }
    ExpectLogToTranscribe("");
    Create();
    ExpectNothingDone();
}

TEST_F(CreateTranscriptTest, ATranscriptOfATranscriptIsRefusedInWhateverCase) {
    for (const char* name : {"duel (transcript).txt", "DUEL (TRANSCRIPT).LOG"}) {
        os.windows.Expect(
            Failure("Sorry, you cannot create transcripts of transcripts.\r\n"
                    "The Universe would become unravelled if you did!"));
        ExpectLogToTranscribe(Folder() + name);
        Create();
    }
    ExpectNothingDone();
}

TEST_F(CreateTranscriptTest, OneThatIsGoneIsToldOfAndForgotten) {
    ExpectLogToScan(log_);
    form->UserClick(IDC_cmdScanForNames);
    os.files.Remove(log_);
    os.windows.Expect(Failure("\"" + log_ + "\" no longer exists!"));
    Create();
    EXPECT_THAT(os.files.Names(Folder()), IsEmpty());
    ExpectLogToTranscribe(std::nullopt);
    Create();
}

TEST_F(CreateTranscriptTest, TheOneUsedLastIsNotAskedForAgain) {
    ExpectLogToTranscribe(log_);
    os.shell.ExpectStart(Notepad(txt_));
    Create();
    os.shell.ExpectStart(Notepad(txt_));
    Create();
    EXPECT_EQ(os.files.Contents(log_), kSpeech + "\r\n\r\n");
    EXPECT_EQ(os.files.Contents(txt_), Text(log_, "Bob.\r\n", "Bob: hi\r\n"));
}

TEST_F(CreateTranscriptTest, OneThatWasNotUsedIsNotRemembered) {
    ExpectLogToTranscribe(Folder() + "gone.log");
    os.windows.Expect(Failure("\"" + Folder() + "gone.log\" no longer exists!"));
    Create();
    ExpectLogToTranscribe(std::nullopt);
    Create();
}

// ---- The mode ----

TEST_F(CreateTranscriptTest, TheModeIsThatOfTheClick) {
    UseHtml();
    ExpectLogToTranscribe(log_, [this] { UseHtml(false); });
    os.windows.SetDuringPump([this] { UseHtml(false); });
    os.shell.ExpectOpenFile(htm_, "c:\\zentar\\");
    Create();
    EXPECT_TRUE(os.files.Exists(htm_));
}

TEST_F(CreateTranscriptTest, ClicksWhileItRunsDoNothing) {
    int clicks = 0;
    os.windows.SetDuringPump([&] {
        ++clicks;
        Create();
        form->UserClick(IDC_cmdScanForNames);
        Clear();
        UseHtml();
        DoubleClick(1);
        form->UserDoubleClick(IDC_txtTranscriptMessages);
    });
    ExpectLogToTranscribe(log_);
    os.shell.ExpectStart(Notepad(txt_));
    Create();
    EXPECT_EQ(clicks, 1);
    EXPECT_THAT(Names(), ElementsAre("Bob"));
}

// ---- The names move up ----

TEST_F(CreateTranscriptTest, TheNamesCloseUpAndTheColoursStay) {
    Box(1).SetText("");
    Box(3).SetText("Ann");
    Box(7).SetText("Bob");
    Box(24).SetText("Carl");
    state.settings.PlayerColour[0] = "255";
    state.settings.PlayerColour[2] = "65280";
    UseHtml();
    ExpectLogToTranscribe(std::nullopt);
    Create();
    EXPECT_THAT(Names(), ElementsAre("Ann", "Bob", "Carl"));
    EXPECT_EQ(state.settings.PlayerColour[0], "255");
    EXPECT_EQ(state.settings.PlayerColour[1], "");
    EXPECT_EQ(state.settings.PlayerColour[2], "65280");
    EXPECT_EQ(Box(1).Foreground(), Colour(ColourRef{255}));
    EXPECT_EQ(Box(2).Foreground(), Colour(SystemColour::WindowText));
    os.shell.ExpectOpenFile(htm_, "c:\\zentar\\");
    ExpectLogToTranscribe(log_);
    Create();
    EXPECT_THAT(os.files.Contents(htm_), HasSubstr("<font color=\"00ff00\">Carl: yo</font><br>"));
    EXPECT_THAT(os.files.Contents(htm_), HasSubstr("\r\nBob: hi<br>"));
}

TEST_F(CreateTranscriptTest, BoxesThatAreFullOrEmptyStayAsTheyAre) {
    for (std::size_t box = 1; box <= kPlayerBoxes; ++box) {
        Box(box).SetText("P" + std::to_string(box));
    }
    const std::vector<std::string> all = Names();
    ExpectLogToTranscribe(std::nullopt);
    Create();
    EXPECT_EQ(Names(), all);
    Clear();
    ExpectLogToTranscribe(std::nullopt);
    Create();
    EXPECT_THAT(Names(), IsEmpty());
}

TEST_F(CreateTranscriptTest, WithoutNamesThereIsHeaderAndFooterOnly) {
    Clear();
    EXPECT_EQ(CreateText(log_, txt_), Text(log_, "", ""));
}

TEST_F(CreateTranscriptTest, TheGamesMessagesComeOnRequest) {
    GameplayBox().SetChecked(true);
    EXPECT_EQ(CreateText(log_, txt_), Text(log_, "Bob.\r\n", "Bob: hi\r\nfight!\r\n"));
}

TEST_F(CreateTranscriptTest, TheColoursOfThePageAreTheChosenOnes) {
    UseHtml();
    state.settings.TranscriptBackground = 0x00FF80;
    state.settings.TranscriptMessages = 0x0A0BFF;
    ExpectLogToTranscribe(log_);
    os.shell.ExpectOpenFile(htm_, "c:\\zentar\\");
    Create();
    EXPECT_THAT(os.files.Contents(htm_), HasSubstr("<html>\r\n<body bgcolor=\"80ff00\" "
                                                   "text=\"ff0b0a\">\r\n<h3>\r\n"));
}

// ---- The games ----

TEST_F(CreateTranscriptTest, OnlyQuake3LosesCodesAndMarkers) {
    const std::string bytes = "  1:02 say: ^1Bob^7: ^2hi\n";
    UseGame(kQuake3);
    const std::string q3 = AddLog("games.log", bytes);
    EXPECT_EQ(CreateText(q3, Folder() + "games (transcript).txt"),
              Text(q3, "Bob.\r\n", "Bob: hi\r\n"));
    UseGame(kQuake1);
    AddLog("games.log", bytes);
    Scan(Folder() + "games.log");
    Box(1).SetText("say");
    os.shell.ExpectStart(Notepad(Folder() + "games (transcript).txt"));
    Create();
    EXPECT_EQ(os.files.Contents(Folder() + "games (transcript).txt"),
              Text(Folder() + "games.log", "say.\r\n", "  1:02 say: ^1Bob^7: ^2hi\r\n"));
}

}  // namespace
}  // namespace zentar
