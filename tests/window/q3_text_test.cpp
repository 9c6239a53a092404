// The designer of coloured texts.
#include <gtest/gtest.h>

#include "platform/win32/win32_text.h"
#include "tests/contract/win32/clipboard_content.h"
#include "tests/window/commands_fixture.h"
#include "tests/window/file_dialog.h"
#include "tests/window/user_input.h"
#include "tests/window/waiting.h"
#include "tests/window/windows_of.h"
#include "ui/resource.h"

namespace zentar::window_tests {
namespace {

namespace fs = std::filesystem;

class Q3Text : public CommandsTest {
  protected:
    ZentarDriver& Open(const IniLines& settings = {}) {
        return CommandsTest::Open(kQ3TextTab, settings);
    }

    // Types into the editor, which gets the focus.
    void TypeText(const std::string& text) const {
        zentar_->ClickOn(IDC_rtbQ3Text);
        EXPECT_TRUE(zentar_->GetsFocus(IDC_rtbQ3Text));
        zentar_->TypeText(text);
    }

    // Selects so many characters at the end of the text.
    void SelectLast(int count) const {
        zentar_->PressKey(VK_END);
        for (int i = 0; i < count; ++i) {
            zentar_->PressKeyWith(VK_SHIFT, VK_LEFT);
        }
    }

    std::string Code() const { return zentar_->Text(IDC_txtQ3TextCode); }
    std::string Edited() const { return zentar_->Text(IDC_rtbQ3Text); }
    fs::path Designs() const { return home_.Program() / "data/q3text"; }
    fs::path Config() const { return home_.Games() / "Quake3/baseq3/q3config.cfg"; }
};

TEST_F(Q3Text, TheCodeFollowsWhatIsTypedAndColoured) {
    const ZentarDriver& zentar = Open();
    EXPECT_SOON(Code(), "seta name \"^^0^7\"");
    for (const int button : {IDC_cmdQ3TextSave, IDC_cmdQ3TextClipboard, IDC_cmdQ3TextQ3Config}) {
        EXPECT_SOON(zentar.Usable(button), false);
    }
    TypeText("Fox");
    EXPECT_SOON(Code(), "seta name \"^^0Fox^7\"");
    for (const int button : {IDC_cmdQ3TextSave, IDC_cmdQ3TextClipboard, IDC_cmdQ3TextQ3Config}) {
        EXPECT_SOON(zentar.Usable(button), true);
    }
    SelectLast(2);
    zentar.ClickOn(IDC_cmdQ3TextWhite);
    EXPECT_SOON(Code(), "seta name \"^^0F^7ox\"");
    // The editor has the keyboard again, and nothing is selected that typing would replace.
    EXPECT_TRUE(zentar.GetsFocus(IDC_rtbQ3Text));
    zentar_->TypeText("y");
    EXPECT_SOON(Edited().size(), 4U);
    SelectLast(1);
    zentar.ClickOn(IDC_cmdQ3TextRed);
    EXPECT_SOON(Code(), "seta name \"^^0F^7ox^1y^7\"");
}

TEST_F(Q3Text, TheColourForWhatIsTypedNextCanBeChosen) {
    const ZentarDriver& zentar = Open();
    zentar.ClickOn(IDC_cmdQ3TextYellow);
    EXPECT_SOON(Code(), "seta name \"^3^7\"");
    TypeText("ab");
    EXPECT_SOON(Code(), "seta name \"^3ab^7\"");
    zentar.ClickOn(IDC_cmdQ3TextCyan);
    zentar_->TypeText("c");
    EXPECT_SOON(Code(), "seta name \"^3ab^5c^7\"");
}

TEST_F(Q3Text, ADoubleQuoteBecomesAnApostropheAndTheCaretStays) {
    Open();
    TypeText("ab");
    zentar_->PressKey(VK_LEFT);
    zentar_->TypeText("\"x");
    EXPECT_SOON(Edited(), "a'xb");
    EXPECT_SOON(Code(), "seta name \"^^0a'xb^7\"");
}

TEST_F(Q3Text, UndoTakesBackAColour) {
    const ZentarDriver& zentar = Open();
    TypeText("ab");
    SelectLast(1);
    zentar.ClickOn(IDC_cmdQ3TextGreen);
    EXPECT_SOON(Code(), "seta name \"^^0a^2b^7\"");
    zentar_->PressKeyWith(VK_CONTROL, 'Z');
    EXPECT_SOON(Code(), "seta name \"^^0ab^7\"");
}

TEST_F(Q3Text, TypesAndOptionsChangeTheCode) {
    const ZentarDriver& zentar = Open();
    TypeText("hi");
    zentar.ClickOn(IDC_optQ3TextServer);
    EXPECT_SOON(Code(), "seta sv_hostname \"^0hi^7\"");
    zentar.ClickOn(IDC_optQ3TextPublic);
    EXPECT_SOON(Code(), "bind pause \"say ^0hi^7\"");
    zentar.ClickOn(IDC_optQ3TextTeam);
    EXPECT_SOON(Code(), "bind pause \"say_team ^0hi^7\"");
    zentar.ClickOn(IDC_optQ3TextAttacker);
    EXPECT_SOON(Code(), "bind pause \"tell_attacker ^0hi^7\"");
    zentar.ClickOn(IDC_optQ3TextTarget);
    EXPECT_SOON(Code(), "bind pause \"tell_target ^0hi^7\"");
    zentar.ClickOn(IDC_chkQ3TextKeyfox);
    EXPECT_SOON(Code(), "tell_target ^0hi^7");
    zentar.ClickOn(IDC_chkQ3TextOSP);
    EXPECT_SOON(Code(), "tell_target ^8hi^7");
    EXPECT_EQ(zentar_->Close(), 0);
    EXPECT_NE(ReadBytes(home_.Ini()).find("\r\nQ3TextType=5\r\nQ3TextKeyfox=1\r\nQ3TextOSP=1\r\n"),
              std::string::npos);
}

TEST_F(Q3Text, RichTextIsPastedWithItsColoursAlone) {
    Open();
    EXPECT_SOON(
        PutOnClipboard(
            {.rtf = R"({\rtf1\ansi{\fonttbl{\f0 Arial;}}{\colortbl;\red255\green0\blue0;)"
                    R"(\red18\green52\blue86;}{\object\objemb{\*\objdata 0105}{\result \cf1 X}})"
                    R"(\f0\fs96\cf1 ab\cf2 cde\par})",
             .text = {}}),
        true);
    TypeText("");
    zentar_->PressKeyWith(VK_CONTROL, 'V');
    // The second colour is none of the game's, which takes the character where it begins.
    EXPECT_SOON(Code(), "seta name \"^1abde^7\"");
    zentar_->PressKeyWith(VK_CONTROL, 'Z');
    EXPECT_SOON(Edited(), "");
}

TEST_F(Q3Text, ADesignOfAnyNameIsSavedAndOpenedAgain) {
    ZentarDriver& zentar = Open();
    const fs::path design = (Designs() / Widen("дуэль.ini")).make_preferred();
    fs::create_directories(Designs());
    WriteBytes(Designs() / Widen("Größe.ini"), "old");
    TypeText("a/b:c");
    SelectLast(1);
    zentar.ClickOn(IDC_cmdQ3TextBlue);
    zentar.ClickOn(IDC_cmdQ3TextSave);
    const HWND save = WaitForFileDialog(zentar.Process(), "Save Quake 3 coloured text");
    EXPECT_SOON(OfferedName(save).starts_with("a[FS]b[C]c"), true);
    EXPECT_SOON(KindsIn(save), Lines{"Quake 3 coloured text (*.ini)"});
    ChooseFile(save, "дуэль");
    EXPECT_SOON(fs::exists(design), true);
    zentar.Settle();
    const std::string saved = ReadBytes(design);
    EXPECT_EQ(saved.find("{\\rtf1"), 0U);
    TypeText("more");
    zentar.ClickOn(IDC_cmdQ3TextOpen);
    const HWND open = WaitForFileDialog(zentar.Process(), "Open Quake 3 coloured text");
    EXPECT_SOON(FilesListed(open), (Lines{"Größe.ini", "дуэль.ini"}));
    ChooseFile(open, "дуэль.ini");
    EXPECT_SOON(Code(), "seta name \"^^0a/b:^4c^7\"");
    EXPECT_EQ(zentar.Close(), 0);
    EXPECT_NE(ReadBytes(home_.Ini()).find("\r\nQ3TextText=" + Narrow(design.wstring()) + "\r\n"),
              std::string::npos);
    // The next start shows it again.
    zentar_ = std::make_unique<ZentarDriver>(home_);
    zentar_->ShowTab(kQ3TextTab);
    EXPECT_SOON(Code(), "seta name \"^^0a/b:^4c^7\"");
    EXPECT_SOON(Edited(), "a/b:c");
}

TEST_F(Q3Text, SavingOverADesignAsks) {
    const ZentarDriver& zentar = Open();
    fs::create_directories(Designs());
    const fs::path design = Designs() / "old.ini";
    WriteBytes(design, "old");
    MakeReadOnly(design);
    TypeText("new");
    const auto save = [&] {
        zentar.ClickOn(IDC_cmdQ3TextSave);
        ChooseFile(WaitForFileDialog(zentar.Process(), "Save Quake 3 coloured text"), "old.ini");
    };
    const BoxContents overwrite =
        Question({"Really overwrite the existing \"old\" coloured text file?"});
    const BoxContents readOnly =
        FailureWithQuestion({"Couldn't overwrite the file due to it being set as read-only.",
                             "Would you like me to remove this setting to force the overwrite?"});
    save();
    Answer(overwrite, IDNO);
    save();
    Answer(overwrite, IDYES);
    Answer(readOnly, IDNO);
    EXPECT_SOON(ReadBytes(design), "old");
    save();
    Answer(overwrite, IDYES);
    Answer(readOnly, IDYES);
    EXPECT_SOON(ReadBytes(design).starts_with("{\\rtf1"), true);
}

TEST_F(Q3Text, TheCodeGoesToTheClipboard) {
    const ZentarDriver& zentar = Open();
    TypeText("Fox");
    EXPECT_SOON(PutOnClipboard({}), true);
    const BoxContents question = Question({"Really copy the code to the Windows clipboard?"});
    zentar.ClickOn(IDC_cmdQ3TextClipboard);
    Answer(question, IDNO);
    EXPECT_EQ(Narrow(OnClipboard().text), "");
    zentar.ClickOn(IDC_cmdQ3TextClipboard);
    Answer(question, IDYES);
    EXPECT_SOON(Narrow(OnClipboard().text), "seta name \"^^0Fox^7\"");
    zentar.ClickOn(IDC_chkQ3TextAddSlash);
    zentar.ClickOn(IDC_cmdQ3TextClipboard);
    Answer(question, IDYES);
    EXPECT_SOON(Narrow(OnClipboard().text), "\\seta name \"^^0Fox^7\"");
}

TEST_F(Q3Text, TheCodeIsAddedToTheConfigWhateverTheGame) {
    const ZentarDriver& zentar = Open({"Game=Quake1"});
    TypeText("Fox");
    const std::string config = ReadBytes(Config());
    const BoxContents question = Question({"Really add the code to \"q3config.cfg\" ?"});
    zentar.ClickOn(IDC_cmdQ3TextQ3Config);
    Answer(question, IDNO);
    EXPECT_SOON(ReadBytes(Config()), config);
    MakeReadOnly(Config());
    zentar.ClickOn(IDC_cmdQ3TextQ3Config);
    Answer(question, IDYES);
    Answer(
        FailureWithQuestion({"Couldn't add to \"q3config.cfg\" due to it being set as read-only.",
                             "Would you like me to remove this setting to force the addition?"}),
        IDYES);
    EXPECT_SOON(ReadBytes(Config()), config + "seta name \"^^0Fox^7\"\r\n");
    fs::remove(Config());
    zentar.ClickOn(IDC_cmdQ3TextQ3Config);
    Answer(Failure({"There is no \"q3config.cfg\" file to add to!", "",
                    "For some strange reason, this file doesn't currently exist.",
                    "You should start Quake 3 so that it can create this file,",
                    "and then come back and select this option again."}),
           IDOK);
}

TEST_F(Q3Text, TheCurrentDesignIsThereFromTheStart) {
    fs::create_directories(Designs());
    WriteBytes(Designs() / "current.ini",
               R"({\rtf1\ansi{\colortbl;\red255\green0\blue255;\red255\green255\blue255;})"
               R"(\cf1 Mag\cf2 ic\par})");
    const ZentarDriver& zentar = Open();
    EXPECT_SOON(Code(), "seta name \"^6Mag^7ic\"");
    zentar.ClickOn(IDC_rtbQ3Text);
    zentar_->PressKey(VK_END);
    zentar_->TypeText("!");
    EXPECT_SOON(Code(), "seta name \"^6Mag^7ic!\"");
}

}  // namespace
}  // namespace zentar::window_tests
