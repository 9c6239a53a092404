// The command "Scan For Names", from the click to the beep.

#include "tests/doubles/faulty_file_system.h"
#include "tests/unit/expected_boxes.h"
#include "tests/unit/transcripts/chat_frame_fixture.h"

namespace zentar {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string kSpeech = "Bob: hi\r\nAnn: yo\r\nBob: bye\r\n";

class ScanForNamesTest : public ChatFrameTest {
  protected:
    void ClickScan() { form->UserClick(IDC_cmdScanForNames); }

    // The user is told, and does something with the keyboard meanwhile.
    void ExpectWarning(std::uint16_t shift = 0) {
        os.windows.Expect(
            {"Information",
             "Please note that scanning a condump/logfile for names is not always 100%\r\n"
             "successful due to these two situations:\r\n"
             "\r\n"
             "(1) Unknown console messages might get misinterpreted as a player name.\r\n"
             "(2) Silly players sometimes use console messages as their name.\r\n"
             "\r\n"
             "Due to this, please be aware that this scanning feature might find names\r\n"
             "that are not actually players (1) or might miss a name when it is actually\r\n"
             "present (2).  In either case, please contact the author with the name details\r\n"
             "so that they can be fixed in a future Zentar release -- thank you!\r\n"
             "\r\n"
             "Tip: Hold down Shift when clicking \"OK\" to skip this warning in future.",
             MessageIcon::Information},
            Answer::Ok, [this, shift] { os.windows.SetKeyState(PollKey::Shift, shift); });
    }

    // What is left after a scan that has been refused or given up.
    void ExpectNothingDone() {
        EXPECT_THAT(Names(), ElementsAre("Old"));
        EXPECT_THAT(os.windows.Sounds(), IsEmpty());
        EXPECT_THAT(os.windows.Pointers(), IsEmpty());
        EXPECT_EQ(os.windows.Pumps(), 0);
        EXPECT_EQ(os.files.TotalOpens(), 0);
    }
};

TEST_F(ScanForNamesTest, DoesItsStepsInOrder) {
    const std::string log = AddLog("duel.log", kSpeech);
    TypeName(1, "Old");
    state.settings.ScanWarn = 0;
    ExpectWarning();
    ExpectLogToScan(log);
    os.log.Clear();
    ClickScan();
    EXPECT_TRUE(os.log.Ordered({
        "Ask Information",
        "ChooseFileToOpen Open a Quake2 condump/logfile for name scanning",
        "Pointer Hourglass",
        "OpenForReading " + log,
        "txtPlayer1.SetText()",
        "txtPlayer24.SetText()",
        "txtPlayer1.SetFocus()",
        "Pump",
        "txtPlayer1.SetText(Bob)",
        "txtPlayer2.SetText(Ann)",
        "Pointer Default",
        "cmdCreateTranscript.SetFocus()",
        "Sound Information",
    }));
    EXPECT_EQ(os.windows.Pumps(), 1);
    EXPECT_THAT(Names(), ElementsAre("Bob", "Ann"));
    EXPECT_EQ(form->FocusedId(), IDC_cmdCreateTranscript);
    EXPECT_THAT(os.windows.Sounds(), ElementsAre(Beep::Information));
    EXPECT_TRUE(Enabled(IDC_cmdClearNames));
    EXPECT_EQ(os.files.Contents(log), kSpeech);
}

// ---- The game's folder ----

TEST_F(ScanForNamesTest, WithoutTheGameNothingIsAsked) {
    TypeName(1, "Old");
    state.settings.ScanWarn = 0;
    os.files.Remove("C:\\Quake2\\quake2.exe");
    os.windows.Expect(FolderUnknown("Quake2"));
    ClickScan();
    EXPECT_FALSE(state.GameFolderOK);
    ExpectNothingDone();
}

TEST_F(ScanForNamesTest, ATextThatIsNoGameDoesNothing) {
    TypeName(1, "Old");
    state.settings.Game = "Quake4";
    ClickScan();
    Create();
    ExpectNothingDone();
}

// ---- The warning ----

TEST_F(ScanForNamesTest, TheWarningComesAgainUnlessShiftIsHeld) {
    state.settings.ScanWarn = 0;
    for (const std::uint16_t shift : std::vector<std::uint16_t>{0x0000, 0x0001, 0x8000}) {
        ExpectWarning(shift);
        ExpectLogToScan(std::nullopt);
        ClickScan();
        EXPECT_EQ(state.settings.ScanWarn, 0) << shift;
    }
    ExpectWarning(0x8001);
    ExpectLogToScan(std::nullopt);
    ClickScan();
    EXPECT_EQ(state.settings.ScanWarn, 1);
    ExpectLogToScan(std::nullopt);
    ClickScan();
}

TEST_F(ScanForNamesTest, AShiftForTheWarningClearsNoColours) {
    const std::string log = AddLog("duel.log", kSpeech);
    state.settings.ScanWarn = 0;
    state.settings.TranscriptBackground = 0x123456;
    ExpectWarning(0x8001);
    Scan(log);
    EXPECT_EQ(state.settings.TranscriptBackground, 0x123456);
}

// ---- The dialog ----

TEST_F(ScanForNamesTest, TheDialogIsThatOfTheGameAndItsMod) {
    for (const std::string_view game : {kQuake1, kQuake2, kQuake3}) {
        UseGame(game);
        ExpectLogToScan(std::nullopt);
        ClickScan();
    }
}

TEST_F(ScanForNamesTest, CancelAndAnEmptyPathEndItSilently) {
    TypeName(1, "Old");
    ExpectLogToScan(std::nullopt);
    ClickScan();
    ExpectNothingDone();
    ExpectLogToScan("");
    ClickScan();
    ExpectNothingDone();
}

TEST_F(ScanForNamesTest, ATranscriptIsRefusedInWhateverCase) {
    TypeName(1, "Old");
    for (const char* name :
         {"duel (transcript).txt", "duel (TRANSCRIPT).TXT", "a (Transcript) of mine.log"}) {
        const std::string path = AddLog(name, kSpeech);
        os.windows.Expect(Failure("You cannot use a transcript for name scanning!"));
        Scan(path);
    }
    ExpectNothingDone();
    Scan(AddLog("(transcript).txt", kSpeech));
    EXPECT_THAT(Names(), ElementsAre("Bob", "Ann"));
}

// ---- While it runs ----

TEST_F(ScanForNamesTest, ClicksWhileItRunsDoNothing) {
    const std::string log = AddLog("duel.log", kSpeech);
    int clicks = 0;
    os.windows.SetDuringPump([&] {
        ++clicks;
        EXPECT_EQ(os.windows.CurrentPointer(), Pointer::Hourglass);
        ClickScan();
        Create();
        EXPECT_FALSE(Enabled(IDC_cmdClearNames));
        UseHtml();
        DoubleClick(1);
    });
    Scan(log);
    EXPECT_EQ(clicks, 1);
    EXPECT_THAT(Names(), ElementsAre("Bob", "Ann"));
    EXPECT_EQ(os.windows.CurrentPointer(), Pointer::Default);
}

TEST_F(ScanForNamesTest, ThePointerIsNormalBeforeTheQuestion) {
    const std::string log = AddLog("empty.log", "");
    ExpectNoNames(log, Answer::No,
                  [this] { EXPECT_EQ(os.windows.CurrentPointer(), Pointer::Default); });
    Scan(log);
}

TEST_F(ScanForNamesTest, ItClearsColoursOnlyWhileShiftIsHeld) {
    const std::string log = AddLog("duel.log", kSpeech);
    state.settings.PlayerColour[0] = "255";
    Scan(log);
    EXPECT_EQ(state.settings.PlayerColour[0], "255");
    os.windows.SetKeyState(PollKey::Shift, 0x8001);
    Scan(log);
    EXPECT_EQ(state.settings.PlayerColour[0], "");
}

// ---- No names ----

TEST_F(ScanForNamesTest, OnYesALogWithoutNamesGoes) {
    const std::string log = AddLog("empty.log", "nothing\r\n");
    TypeName(3, "Old");
    ExpectNoNames(log, Answer::Yes);
    Scan(log);
    EXPECT_FALSE(os.files.Exists(log));
    EXPECT_THAT(Names(), IsEmpty());
    EXPECT_THAT(os.windows.Sounds(), ElementsAre(Beep::Information));
    EXPECT_EQ(form->FocusedId(), IDC_txtPlayer1);
    EXPECT_FALSE(Enabled(IDC_cmdClearNames));
}

TEST_F(ScanForNamesTest, OnNoItStaysAndNothingIsHeard) {
    const std::string log = AddLog("empty.log", "nothing\r\n");
    ExpectNoNames(log, Answer::No);
    Scan(log);
    EXPECT_TRUE(os.files.Exists(log));
    EXPECT_THAT(os.windows.Sounds(), IsEmpty());
}

TEST_F(ScanForNamesTest, InExpertModeItIsAskedAboutToo) {
    state.settings.Expert = 1;
    const std::string log = AddLog("empty.log", "nothing\r\n");
    ExpectNoNames(log, Answer::No);
    Scan(log);
    EXPECT_TRUE(os.files.Exists(log));
}

TEST_F(ScanForNamesTest, OneThatIsReadOnlyIsAskedAboutOnceMore) {
    const Message readOnly = {
        "Error",
        "This condump/logfile couldn't be deleted due to being set as read-only.\r\n"
        "Would you like me to remove this setting to force the deletion?",
        MessageIcon::Exclamation, MessageButtons::YesNo, DefaultButton::Second};
    const std::string log = AddLog("empty.log", "nothing\r\n");
    os.files.SetReadOnly(log);
    ExpectNoNames(log, Answer::Yes);
    os.windows.Expect(readOnly, Answer::No);
    Scan(log);
    EXPECT_TRUE(os.files.IsReadOnly(log));
    EXPECT_THAT(os.windows.Sounds(), IsEmpty());
    ExpectNoNames(log, Answer::Yes);
    os.windows.Expect(readOnly, Answer::Yes);
    Scan(log);
    EXPECT_FALSE(os.files.Exists(log));
    EXPECT_THAT(os.windows.Sounds(), ElementsAre(Beep::Information));
}

TEST_F(ScanForNamesTest, OneThatCannotBeDeletedStaysAndABeepTellsSo) {
    const std::string log = AddLog("empty.log", "nothing\r\n");
    ExpectNoNames(log, Answer::Yes, [&] { os.files.SetLocked(log); });
    Scan(log);
    EXPECT_TRUE(os.files.Exists(log));
    EXPECT_THAT(os.windows.Sounds(), ElementsAre(Beep::Exclamation));
}

// ---- Logs that cannot be read ----

TEST_F(ScanForNamesTest, ALogThatCannotBeReadIsNotOfferedForDeletion) {
    const std::string held = AddLog("held.log", kSpeech);
    os.files.SetLocked(held);
    for (const std::string& path :
         std::vector<std::string>{held, Folder() + "gone.log", "C:\\Quake2\\ctf"}) {
        TypeName(1, "Old");
        os.windows.Expect(Failure("This condump/logfile couldn't be read.\r\n\r\n"
                                  "Another program may be using it, or it may be protected."),
                          Answer::Ok,
                          [this] { EXPECT_EQ(os.windows.CurrentPointer(), Pointer::Default); });
        Scan(path);
        EXPECT_THAT(Names(), ElementsAre("Old"));
        EXPECT_THAT(os.windows.Sounds(), IsEmpty());
    }
    EXPECT_TRUE(os.files.Exists(held));
}

TEST_F(ScanForNamesTest, NeitherIsOneOfWhichOnlyTheBeginningCouldBeRead) {
    const std::string log = AddLog("held.log", std::string(400'000, '\n') + "Bob: hi\n");
    FaultyFileSystem faulty(os.files);
    ChatFrame other(state, os.Services(faulty), ChatFrameControlsOf(*window));
    faulty.Restart();
    faulty.FailAt(4, FileError::Other);  // the executable's Info, the opening and the first block
    os.windows.Expect(
        Failure("This condump/logfile couldn't be read.\r\n\r\n"
                "Another program may be using it, or it may be protected."));
    Scan(log);
    EXPECT_EQ(faulty.CallName(4), "ReadAt " + log);
    EXPECT_TRUE(os.files.Exists(log));
    EXPECT_THAT(os.windows.Sounds(), IsEmpty());
}

// ---- What it remembers ----

TEST_F(ScanForNamesTest, ATranscriptIsMadeOfTheLogThatHadNames) {
    const std::string log = AddLog("duel.log", kSpeech);
    Scan(log);
    os.shell.ExpectStart(Notepad(Folder() + "duel (transcript).txt"));
    Create();
}

TEST_F(ScanForNamesTest, TheNextScanForgetsItAtItsStart) {
    Scan(AddLog("duel.log", kSpeech));
    const std::string empty = AddLog("empty.log", "");
    ExpectNoNames(empty, Answer::No);
    Scan(empty);
    ExpectLogToTranscribe(std::nullopt);
    Create();
}

TEST_F(ScanForNamesTest, AScanOfALogThatCannotBeReadForgetsItToo) {
    Scan(AddLog("duel.log", kSpeech));
    os.windows.Expect(
        Failure("This condump/logfile couldn't be read.\r\n\r\n"
                "Another program may be using it, or it may be protected."));
    Scan(Folder() + "gone.log");
    EXPECT_THAT(Names(), ElementsAre("Bob", "Ann"));
    ExpectLogToTranscribe(std::nullopt);
    Create();
}

TEST_F(ScanForNamesTest, AScanThatIsGivenUpForgetsNothing) {
    Scan(AddLog("duel.log", kSpeech));
    ExpectLogToScan(std::nullopt);
    ClickScan();
    os.shell.ExpectStart(Notepad(Folder() + "duel (transcript).txt"));
    Create();
}

}  // namespace
}  // namespace zentar
