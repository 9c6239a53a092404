// The chat frame in the whole program: games and mods, the settings, and one run after another.

#include "core/game_text.h"
#include "tests/unit/program/program_test.h"

namespace zentar {
namespace {

using ::testing::HasSubstr;

class ChatTest : public ProgramTest {
  protected:
    ChatTest() { InstallGames(); }

    MemoryForm& StartOnMisc() {
        Start();
        Window().UserSelectTab(IDC_SSTab1, 2);
        return Window();
    }
    // Scans the log of this path, of Quake 2 and "baseq2".
    void Scan(const std::string& log) {
        os.windows.ExpectFileToOpen(
            {.title = "Open a Quake2 condump/logfile for name scanning",
             .folder = kQuake2Folder + "baseq2\\",
             .name = "",
             .kinds = {{"Quake2 condumps and logfiles (*.txt, *.log)", "*.txt;*.log"},
                       {"Quake2 condumps only (*.txt)", "*.txt"},
                       {"Quake2 logfiles only (*.log)", "*.log"},
                       {"All files (*.*)", "*.*"}}},
            log);
        Window().UserClick(IDC_cmdScanForNames);
    }
    // Makes a transcript of that log as text; gives it.
    std::string Transcribe(const std::string& log, const std::string& transcript) {
        os.windows.ExpectFileToOpen(
            {.title = "Open a Quake2 condump/logfile for chat transcription",
             .folder = kQuake2Folder + "baseq2\\",
             .name = "",
             .kinds = {{"Quake2 logfiles and condumps (*.log, *.txt)", "*.log;*.txt"},
                       {"Quake2 logfiles only (*.log)", "*.log"},
                       {"Quake2 condumps only (*.txt)", "*.txt"},
                       {"All files (*.*)", "*.*"}}},
            log);
        os.shell.ExpectStart({.folder = "C:\\Windows\\",
                              .executable = "notepad.exe",
                              .arguments = " \"" + transcript + "\"",
                              .window = StartWindow::Maximised});
        Window().UserClick(IDC_cmdCreateTranscript);
        return os.files.Contents(transcript);
    }
    TextBox& Box(int box) { return Window().GetTextBox(IDC_txtPlayer1 + box - 1); }
    std::string Title() { return Text(IDC_fraChat); }
};

// Names that hold every byte which can stand in one, eleven of them each.
std::vector<std::string> NamesOfAllBytes() {
    std::vector<std::string> names;
    for (int byte = 1; byte <= 255; ++byte) {
        if (byte == '\r' || byte == '\n') {
            continue;
        }
        if (names.empty() || names.back().size() == 12) {
            names.emplace_back("P");
        }
        names.back() += static_cast<char>(byte);
    }
    return names;
}

// ---- One run after another ----

TEST_F(ChatTest, NamesOfAllBytesMatchTheirOwnLinesInTheNextRun) {
    const std::vector<std::string> names = NamesOfAllBytes();
    ASSERT_LE(names.size(), 24U);
    const std::string log = kQuake2Folder + "baseq2\\qconsole.log";
    std::string speech;
    for (const std::string& name : names) {
        speech += name + ": \xFF and \x01\r\n";
    }
    os.files.AddFile(log, speech);
    WriteSettings({"Game=Quake2", "ScanWarn=1", "TranscriptHTML=0"});
    StartOnMisc();
    Scan(log);
    for (std::size_t i = 0; i < names.size(); ++i) {
        EXPECT_EQ(Utf8ToGameText(Box(static_cast<int>(i) + 1).Text()), names[i]) << i;
    }
    Quit();
    StartOnMisc();
    const std::string text = Transcribe(log, kQuake2Folder + "baseq2\\qconsole (transcript).txt");
    EXPECT_THAT(text, HasSubstr("\r\n\r\n" + speech + "\r\n====="));
    Quit();
}

TEST_F(ChatTest, AUtf8NameMatchesItsLinesInTheNextRun) {
    const std::string line = "\xD0\xB4\xD1\x83\xD1\x8D\xD0\xBB\xD1\x8C: \xD0\xB4\xD0\xB0\r\n";
    const std::string log = kQuake2Folder + "baseq2\\qconsole.log";
    os.files.AddFile(log, line);
    WriteSettings({"Game=Quake2", "ScanWarn=1", "TranscriptHTML=0"});
    StartOnMisc();
    Scan(log);
    Quit();
    StartOnMisc();
    const std::string transcript = kQuake2Folder + "baseq2\\qconsole (transcript).txt";
    EXPECT_THAT(Transcribe(log, transcript), HasSubstr("\r\n\r\n" + line + "\r\n====="));
    // Typed by the user, it is the same name.
    Window().UserClick(IDC_cmdClearNames);
    Window().UserType("\xD0\xB4\xD1\x83\xD1\x8D");
    os.shell.ExpectStart({.folder = "C:\\Windows\\",
                          .executable = "notepad.exe",
                          .arguments = " \"" + transcript + "\"",
                          .window = StartWindow::Maximised});
    Window().UserClick(IDC_cmdCreateTranscript);
    EXPECT_THAT(os.files.Contents(transcript), HasSubstr("\r\n\r\n" + line + "\r\n====="));
}

TEST_F(ChatTest, TheWarningThatWasSkippedStaysSkipped) {
    WriteSettings({"Game=Quake2"});
    StartOnMisc();
    State().settings.ScanWarn = 1;
    Quit();
    EXPECT_THAT(os.files.Contents(kIni), HasSubstr("\r\nScanWarn=1\r\n"));
    StartOnMisc();
    os.files.AddFile(kQuake2Folder + "baseq2\\duel.log", "Bob: hi\n");
    Scan(kQuake2Folder + "baseq2\\duel.log");
    EXPECT_EQ(Box(1).Text(), "Bob");
}

TEST_F(ChatTest, ColoursThatWereChosenAreThereInTheNextRun) {
    WriteSettings({"Game=Quake2", "Player2Name=Bob"});
    StartOnMisc();
    os.windows.ExpectColour(0xFFFFFF, 0x402010);
    Window().UserDoubleClick(IDC_txtPlayer1);
    os.windows.ExpectColour(0x000000, 0x0000FF);
    Window().UserDoubleClick(IDC_txtPlayer2);
    os.windows.ExpectColour(0x000000, 0x00FF00);
    Window().UserDoubleClick(IDC_txtTranscriptMessages);
    Quit();
    StartOnMisc();
    EXPECT_EQ(Box(1).Background(), Colour(ColourRef{0x402010}));
    EXPECT_EQ(Box(2).Foreground(), Colour(ColourRef{0x0000FF}));
    EXPECT_EQ(Window().GetTextBox(IDC_txtTranscriptMessages).Foreground(),
              Colour(ColourRef{0x00FF00}));
}

// ---- Games ----

TEST_F(ChatTest, TheTitleFollowsTheGame) {
    WriteSettings({"Game=Quake3"});
    Start();
    EXPECT_EQ(Title(), "Quake3 Chat Transcript");
    Window().UserClick(IDC_optGameQuake1);
    EXPECT_EQ(Title(), "Quake1 Chat Transcript");
    Window().UserClick(IDC_optGameQuake2);
    EXPECT_EQ(Title(), "Quake2 Chat Transcript");
    Window().UserClick(IDC_optGameQuake3);
    EXPECT_EQ(Title(), "Quake3 Chat Transcript");
}

TEST_F(ChatTest, ATextThatIsNoGameLeavesTheTitleAndTheButtonsDoNothing) {
    WriteSettings({"Game=Quake4"});
    StartOnMisc();
    EXPECT_EQ(Title(), "Quake2 Chat Transcript");
    Window().UserClick(IDC_cmdScanForNames);
    Window().UserClick(IDC_cmdCreateTranscript);
    EXPECT_TRUE(os.windows.Shown().empty());
    Window().UserClick(IDC_optGameQuake1);
    EXPECT_EQ(Title(), "Quake1 Chat Transcript");
}

TEST_F(ChatTest, TheDialogShowsTheFolderOfTheSelectedMod) {
    WriteSettings({"Game=Quake2", "ScanWarn=1"});
    Start();
    Window().UserSelect(IDC_lstMods, "rocket");
    Window().UserSelectTab(IDC_SSTab1, 2);
    os.windows.ExpectFileToOpen(
        {.title = "Open a Quake2 condump/logfile for name scanning",
         .folder = kQuake2Folder + "rocket\\",
         .name = "",
         .kinds = {{"Quake2 condumps and logfiles (*.txt, *.log)", "*.txt;*.log"},
                   {"Quake2 condumps only (*.txt)", "*.txt"},
                   {"Quake2 logfiles only (*.log)", "*.log"},
                   {"All files (*.*)", "*.*"}}},
        std::nullopt);
    Window().UserClick(IDC_cmdScanForNames);
}

// ---- The start ----

TEST_F(ChatTest, TickingTheMessagesWhileTheSettingsAreReadMovesNoFocus) {
    WriteSettings({"Game=Quake2", "TranscriptGameplay=1"});
    Start();
    EXPECT_FALSE(os.log.Has("cmdCreateTranscript.SetFocus()"));
    EXPECT_TRUE(Window().GetCheckBox(IDC_chkTranscriptGameplay).Checked());
    Window().UserSelectTab(IDC_SSTab1, 2);
    Window().UserClick(IDC_chkTranscriptGameplay);
    EXPECT_EQ(Window().FocusedId(), IDC_cmdCreateTranscript);
}

TEST_F(ChatTest, ThatTheBoxesHoldNamesIsKnownFromTheStart) {
    WriteSettings({"Game=Quake2"});
    Start();
    EXPECT_FALSE(Window().AnyControl(IDC_cmdClearNames).Enabled());
    Quit();
    WriteSettings({"Game=Quake2", "Player24Name=x"});
    Start();
    EXPECT_TRUE(Window().AnyControl(IDC_cmdClearNames).Enabled());
}

}  // namespace
}  // namespace zentar
