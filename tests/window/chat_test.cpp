// Scanning for names and making transcripts.
#include <gtest/gtest.h>

#include "platform/win32/win32_text.h"
#include "tests/window/colour_dialog.h"
#include "tests/window/commands_fixture.h"
#include "tests/window/file_dialog.h"
#include "tests/window/notepad.h"
#include "tests/window/program_texts.h"
#include "tests/window/screen_picture.h"
#include "tests/window/standin_browser.h"
#include "tests/window/user_input.h"
#include "tests/window/waiting.h"
#include "tests/window/windows_of.h"
#include "ui/resource.h"

namespace zentar::window_tests {
namespace {

namespace fs = std::filesystem;

// Who speaks in the sample.
const std::string kCondumpNames = "Fred, Bob <3, Fragger";

const Lines kScanWarning = {
    "Please note that scanning a condump/logfile for names is not always 100%",
    "successful due to these two situations:",
    "",
    "(1) Unknown console messages might get misinterpreted as a player name.",
    "(2) Silly players sometimes use console messages as their name.",
    "",
    "Due to this, please be aware that this scanning feature might find names",
    "that are not actually players (1) or might miss a name when it is actually",
    "present (2).  In either case, please contact the author with the name details",
    "so that they can be fixed in a future Zentar release -- thank you!",
    "",
    "Tip: Hold down Shift when clicking \"OK\" to skip this warning in future."};

BoxContents ScanWarning() {
    return {.title = "Information",
            .text = BoxLines(kScanWarning),
            .icon = BoxIcon::Information,
            .buttons = {IDOK},
            .defaultButton = IDOK};
}

class Chat : public CommandsTest {
  protected:
    ZentarDriver& Open(const IniLines& settings = {}) {
        return CommandsTest::Open(kMiscTab, settings);
    }

    fs::path Condump() const { return home_.Games() / "Quake2" / "baseq2" / "condump.txt"; }

    HWND FileDialog(const std::string& purpose) const {
        return WaitForFileDialog(zentar_->Process(),
                                 "Open a Quake2 condump/logfile for " + purpose);
    }

    void Scan(const std::string& file) const {
        zentar_->ClickOn(IDC_cmdScanForNames);
        ChooseFile(FileDialog("name scanning"), file);
        zentar_->Settle();
    }

    // The names in the boxes, up to the last one.
    std::string Names() const {
        std::string names;
        std::string between;
        for (int box = 0; box < 24; ++box) {
            const std::string name = zentar_->Text(IDC_txtPlayer1 + box);
            if (!name.empty()) {
                names.append(between).append(name);
                between.clear();
            }
            between += ", ";
        }
        return names;
    }

    void DoubleClickOn(int id) const {
        DoubleClick(CentreOf(zentar_->Control(id)));
        zentar_->Settle();
    }
};

TEST_F(Chat, AScanWarnsAndFillsTheBoxes) {
    const ZentarDriver& zentar = Open();
    EXPECT_SOON(zentar.Usable(IDC_cmdClearNames), false);
    zentar.ClickOn(IDC_cmdScanForNames);
    Answer(ScanWarning(), IDOK);
    const HWND dialog = FileDialog("name scanning");
    EXPECT_SOON(KindsIn(dialog), (Lines{"Quake2 condumps and logfiles (*.txt, *.log)",
                                        "Quake2 condumps only (*.txt)",
                                        "Quake2 logfiles only (*.log)", "All files (*.*)"}));
    EXPECT_SOON(FilesListed(dialog), (Lines{"condump.txt", "demos", "scrnshot"}));
    ChooseFile(dialog, "condump.txt");
    EXPECT_SOON(Names(), kCondumpNames);
    EXPECT_TRUE(zentar.GetsFocus(IDC_cmdCreateTranscript));
    EXPECT_SOON(zentar.Usable(IDC_cmdClearNames), true);
    zentar.ClickOn(IDC_cmdClearNames);
    EXPECT_SOON(Names(), "");
    EXPECT_TRUE(zentar.GetsFocus(IDC_txtPlayer1));
    EXPECT_SOON(zentar.Usable(IDC_cmdClearNames), false);
    // Without Shift the warning comes again.
    zentar.ClickOn(IDC_cmdScanForNames);
    Answer(ScanWarning(), IDOK);
    CancelFileDialog(FileDialog("name scanning"));
}

TEST_F(Chat, ShiftSkipsTheWarningInFuture) {
    ZentarDriver& zentar = Open();
    // Wine may let go of the key just when the program looks; then the warning comes again.
    const bool skipped = Eventually([&] {
        zentar.ClickOn(IDC_cmdScanForNames);
        const HWND front = Eventually([&] { return FindTop(zentar.Process(), kDialogClass); });
        const bool warned = TextOf(front) == "Information";
        if (warned) {
            const HeldKey shift(VK_SHIFT);
            zentar.LeaveBy(VK_RETURN, front);
            FileDialog("name scanning");
        }
        CancelFileDialog(FileDialog("name scanning"));
        return !warned;
    });
    EXPECT_TRUE(skipped);
    zentar.Settle();
    EXPECT_EQ(zentar.Close(), 0);
    EXPECT_NE(ReadBytes(home_.Ini()).find("\r\nScanWarn=1\r\n"), std::string::npos);
}

TEST_F(Chat, AFileWithoutNamesIsOfferedForDeletion) {
    Open({"ScanWarn=1"});
    const fs::path quiet = Condump().parent_path() / "quiet.log";
    WriteBytes(quiet, "server: hello\r\n");
    const std::string path = Narrow(quiet.wstring());
    const BoxContents question = {.title = "Done",
                                  .text = BoxLines({"There were no player names found in:", path,
                                                    "", "As such, may I delete the file for you?"}),
                                  .icon = BoxIcon::Question,
                                  .buttons = {IDYES, IDNO},
                                  .defaultButton = IDNO};
    Scan("quiet.log");
    Answer(question, IDNO);
    EXPECT_SOON(fs::exists(quiet), true);
    Scan(path);
    Answer(question, IDYES);
    EXPECT_SOON(fs::exists(quiet), false);
}

TEST_F(Chat, TranscriptsAreNeitherScannedNorTranscribed) {
    const ZentarDriver& zentar = Open({"ScanWarn=1"});
    WriteBytes(Condump().parent_path() / "old (Transcript).txt", "Fred: hi\r\n");
    Scan("old (Transcript).txt");
    Answer(Failure({"You cannot use a transcript for name scanning!"}), IDOK);
    zentar.ClickOn(IDC_cmdCreateTranscript);
    ChooseFile(FileDialog("chat transcription"), "old (Transcript).txt");
    Answer(Failure({"Sorry, you cannot create transcripts of transcripts.",
                    "The Universe would become unravelled if you did!"}),
           IDOK);
}

TEST_F(Chat, APlainTranscriptOpensInNotepad) {
    const ZentarDriver& zentar = Open({"ScanWarn=1", "TranscriptHTML=0", "TranscriptGameplay=1"});
    const std::string log = ReadBytes(Condump());
    Scan("condump.txt");
    EXPECT_SOON(Names(), kCondumpNames);
    zentar.ClickOn(IDC_cmdCreateTranscript);
    const NotepadWindow notepad = CloseNotepad("(transcript)");
    EXPECT_EQ(notepad.title.find("condump (transcript)"), 0U) << notepad.title;
    EXPECT_TRUE(notepad.maximised);
    EXPECT_SOON(ReadBytes(Condump()), log + "\r\n");
    EXPECT_SOON(ReadBytes(Condump().parent_path() / "condump (transcript).txt"),
                kTranscriptHead + "Chat transcript of \"" + Narrow(Condump().wstring()) +
                    "\".\r\n\r\n" + kTranscriptChosen + "Fred, Bob <3, Fragger.\r\n\r\n" +
                    kTranscriptStart +
                    "==== InitGame ====\r\n"
                    "Fred entered the game\r\n"
                    "Bob <3 entered the game\r\n"
                    "Fred: gl & hf\r\n"
                    "Bob <3: you too <b>Fred</b>\r\n"
                    "Bob <3 was railed by Fred\r\n"
                    "(Fred): the armour is gone\r\n"
                    "Fragger: \"gg\"\r\n"
                    "fraglimit hit.\r\n"
                    "Fred: gg\r\n" +
                    kTranscriptEnd);
}

TEST_F(Chat, AnHtmlTranscriptHasTheColoursThatAreChosen) {
    const StandinBrowser viewer(StandinBrowser::Opens::HtmlFiles);
    ZentarDriver& zentar = Open({"ScanWarn=1"});
    Scan("condump.txt");
    EXPECT_SOON(Names(), kCondumpNames);
    DoubleClickOn(IDC_txtPlayer1);
    ChooseColour(WaitForColourDialog(zentar.Process()), RGB(0, 128, 0));
    EXPECT_TRUE(zentar.GetsFocus(IDC_cmdCreateTranscript));
    DoubleClickOn(IDC_txtPlayer1 + 23);  // a free box: the background
    ChooseColour(WaitForColourDialog(zentar.Process()), RGB(255, 255, 192));
    zentar.Settle();
    DoubleClickOn(IDC_txtTranscriptMessages);
    ChooseColour(WaitForColourDialog(zentar.Process()), RGB(0, 0, 128));
    zentar.Settle();
    zentar.ClickOn(IDC_txtPlayer1 + 1);
    zentar.PressKey(VK_F4);
    CancelColourDialog(WaitForColourDialog(zentar.Process()));
    EXPECT_SOON(PixelAt(CentreOf(zentar.Control(IDC_txtPlayer1 + 20))) == RGB(255, 255, 192), true);
    zentar.ClickOn(IDC_cmdCreateTranscript);
    const fs::path page = Condump().parent_path() / "condump (transcript).htm";
    EXPECT_SOON(viewer.Opened(), Lines{Narrow(page.wstring())});
    const std::string html = ReadBytes(page);
    EXPECT_NE(html.find("<body bgcolor=\"ffffc0\" text=\"000080\">\r\n"), std::string::npos);
    EXPECT_NE(html.find("<font color=\"008000\">Fred: gl & hf</font><br>\r\n"
                        "Bob &lt;3: you too &lt;b&gt;Fred&lt;/b&gt;<br>\r\n"
                        "<font color=\"008000\">(Fred): the armour is gone</font><br>\r\n"
                        "Fragger: \"gg\"<br>\r\n"
                        "<font color=\"008000\">Fred: gg</font><br>\r\n"),
              std::string::npos);
    EXPECT_EQ(zentar.Close(), 0);
    const std::string ini = ReadBytes(home_.Ini());
    EXPECT_NE(ini.find("TranscriptMessages=8388608\r\nTranscriptBackground=12648447\r\n"
                       "Player1Name=Fred\r\nPlayer1Colour=32768\r\n"
                       "Player2Name=Bob <3\r\nPlayer2Colour=\r\n"),
              std::string::npos);
}

TEST_F(Chat, ColoursAreShownOnlyForHtml) {
    const ZentarDriver& zentar =
        Open({"TranscriptBackground=65280", "TranscriptMessages=255", "Player1Name=Fred"});
    const POINT box = CentreOf(zentar.Control(IDC_txtPlayer1 + 20));
    EXPECT_SOON(PixelAt(box) == RGB(0, 255, 0), true);
    EXPECT_SOON(zentar.Usable(IDC_txtTranscriptMessages), true);
    EXPECT_SOON(zentar.Usable(IDC_labColourUsed), true);
    zentar.ClickOn(IDC_chkTranscriptHTML);
    EXPECT_SOON(PixelAt(box) == GetSysColor(COLOR_WINDOW), true);
    EXPECT_SOON(zentar.Usable(IDC_txtTranscriptMessages), false);
    EXPECT_SOON(zentar.Usable(IDC_labColourUsed), false);
    DoubleClickOn(IDC_txtPlayer1);
    EXPECT_EQ(FindTop(zentar.Process(), kDialogClass), nullptr);
    zentar.ClickOn(IDC_chkTranscriptGameplay);
    EXPECT_TRUE(zentar.GetsFocus(IDC_cmdCreateTranscript));
}

TEST_F(Chat, ALogThatWasScannedAndIsGoneIsForgotten) {
    const ZentarDriver& zentar = Open({"ScanWarn=1"});
    Scan("condump.txt");
    EXPECT_SOON(Names(), kCondumpNames);
    fs::remove(Condump());
    zentar.ClickOn(IDC_cmdCreateTranscript);
    std::string gone = Narrow(Condump().wstring());
    gone.insert(0, 1, '"').append("\" no longer exists!");
    Answer(Failure({gone}), IDOK);
    zentar.ClickOn(IDC_cmdCreateTranscript);
    const HWND dialog = FileDialog("chat transcription");
    EXPECT_SOON(KindsIn(dialog), (Lines{"Quake2 logfiles and condumps (*.log, *.txt)",
                                        "Quake2 logfiles only (*.log)",
                                        "Quake2 condumps only (*.txt)", "All files (*.*)"}));
    CancelFileDialog(dialog);
}

TEST_F(Chat, GoldenNamesOutliveARestart) {
    const ZentarDriver& first = Open({"ScanWarn=1", "Game=Quake1", "TranscriptHTML=0"});
    first.ClickOn(IDC_cmdScanForNames);
    ChooseFile(
        WaitForFileDialog(first.Process(), "Open a Quake1 condump/logfile for name scanning"),
        "qconsole.log");
    EXPECT_SOON(Names(), "PackFile, \u00C5\u00ED\u00E2\u00E5\u00F2, Bob [\u0090\u2018]");
    EXPECT_EQ(zentar_->Close(), 0);
    zentar_ = std::make_unique<ZentarDriver>(home_);
    zentar_->ShowTab(kMiscTab);
    zentar_->ClickOn(IDC_cmdCreateTranscript);
    ChooseFile(WaitForFileDialog(zentar_->Process(),
                                 "Open a Quake1 condump/logfile for chat transcription"),
               "qconsole.log");
    CloseNotepad("(transcript)");
    const std::string transcript = ReadBytes(home_.Games() / "Quake/id1/qconsole (transcript).txt");
    EXPECT_NE(transcript.find("\r\n\xC5\xED\xE2\xE5\xF2: hello there\r\n"
                              "Bob [\x90\x91]: hi \xC5\xED\xE2\xE5\xF2\r\n"
                              "\xC5\xED\xE2\xE5\xF2: nice: one\r\n"),
              std::string::npos);
}

TEST_F(Chat, TheCaptionFollowsTheGame) {
    const ZentarDriver& zentar = Open();
    EXPECT_SOON(zentar.Text(IDC_fraChat), "Quake2 Chat Transcript");
    zentar.ClickOn(IDC_optGameQuake3);
    EXPECT_SOON(zentar.Text(IDC_fraChat), "Quake3 Chat Transcript");
}

}  // namespace
}  // namespace zentar::window_tests
