// What a blind user hears of each control.
#include "tests/window/screen_reader.h"

#include <gtest/gtest.h>

#include "tests/window/shots_fixture.h"
#include "tests/window/user_input.h"
#include "tests/window/waiting.h"
#include "tests/window/windows_of.h"
#include "ui/resource.h"

namespace zentar::window_tests {
namespace {

using Speech = std::vector<Spoken>;

const Speech kBesideTheTabs = {
    {IDC_optGameQuake1, "radio button", "Q1"},
    {IDC_optGameQuake2, "radio button", "Q2"},
    {IDC_optGameQuake3, "radio button", "Q3"},
    {IDC_lstMods, "list", "Mod Selection"},
    {IDC_SSTab1, "tabs", "Tools"},
};

const Speech kShots = {
    {IDC_lstScreenshots, "list", "Screenshots"}, {IDC_imgShotView, "picture", "Screenshot"},
    {IDC_fraPreviewMode, "group", "View mode"},  {IDC_optModePreview, "radio button", "Preview."},
    {IDC_optModeReal, "radio button", "Real."},
};

const Speech kDemos = {
    {IDC_lstDemos, "list", "Demos"},
    {IDC_fraDemoProperties, "group", "Selected Demo Properties"},
    {IDC_fraDemos, "group", "Demo Filter"},
    {IDC_chkShowAllDemos, "check box", "List all available demos."},
    {IDC_fraTextContain, "group", "Only list the demos that actually"},
    {IDC_optTextNo, "radio button", "do not contain"},
    {IDC_optTextYes, "radio button", "contain"},
    {IDC_txtDemoFilter, "text", "Phrase"},
    {IDC_cmdFilter, "push button", "Go"},
    {IDC_lstDemoFilter, "list", "Pre-made phrases"},
};

const Speech kMiscBeforeNames = {
    {IDC_fraDemoInstaller, "group", "Q2 Demo Installer"},
    {IDC_picDemoInstaller, "picture", ""},  // only decoration
    {IDC_cmdDemoInstaller, "push button", "Install Demos"},
    {IDC_fraQ3BackRest, "group", "Quake3 Single-Player Progress"},
    {IDC_cmdQ3Backup, "push button", "Backup"},
    {IDC_cmdQ3Restore, "push button", "Restore"},
    {IDC_chkBackupAll, "check box",
     "Include name, model, sex, handicap, and railgun values when backing up."},
    {IDC_fraQ3ConfigEdit, "group", "Quake3 Config Editor"},
    {IDC_cmdQ3ConfigEdit, "push button", "Edit Quake3 Config"},
    {IDC_fraChat, "group", "Quake2 Chat Transcript"},
    {IDC_cmdScanForNames, "push button", "Scan For Names"},
    {IDC_cmdClearNames, "push button", "Clear"},
};

const Speech kMiscAfterNames = {
    {IDC_chkTranscriptHTML, "check box", "Create transcript as HTML code instead of plain text."},
    {IDC_txtTranscriptMessages, "text", "Colour used for game messages"},
    {IDC_chkTranscriptGameplay, "check box", "Include game messages."},
    {IDC_cmdCreateTranscript, "push button", "Create Transcript"},
};

// The 24 boxes for names are numbered.
Speech Misc() {
    Speech all = kMiscBeforeNames;
    for (int box = 0; box < 24; ++box) {
        all.push_back({IDC_txtPlayer1 + box, "text", "Player " + std::to_string(box + 1)});
    }
    all.insert(all.end(), kMiscAfterNames.begin(), kMiscAfterNames.end());
    return all;
}

const Speech kQ3Text = {
    {IDC_rtbQ3Text, "text", "Coloured text"},
    {IDC_cmdQ3TextBlack, "push button", "Black"},
    {IDC_cmdQ3TextRed, "push button", "Red"},
    {IDC_cmdQ3TextGreen, "push button", "Green"},
    {IDC_cmdQ3TextYellow, "push button", "Yellow"},
    {IDC_cmdQ3TextBlue, "push button", "Blue"},
    {IDC_cmdQ3TextCyan, "push button", "Cyan"},
    {IDC_cmdQ3TextMagenta, "push button", "Magenta"},
    {IDC_cmdQ3TextWhite, "push button", "White"},
    {IDC_fraQ3Text, "group", "This text code is designed to be used as"},
    {IDC_optQ3TextName, "radio button", "Player name."},
    {IDC_optQ3TextServer, "radio button", "Server name."},
    {IDC_optQ3TextPublic, "radio button", "Public speech."},
    {IDC_optQ3TextTeam, "radio button", "Team speech."},
    {IDC_optQ3TextAttacker, "radio button", "Attacker speech."},
    {IDC_optQ3TextTarget, "radio button", "Target speech."},
    {IDC_chkQ3TextKeyfox, "check box",
     "Make all text compatible with 'Keyfox' from its maker's web site."},
    {IDC_chkQ3TextOSP, "check box", "Make black text compatible with Quake 3 'OSP' mods."},
    {IDC_txtQ3TextCode, "text", "Quake 3 code"},
    {IDC_cmdQ3TextSave, "push button", "Save As..."},
    {IDC_cmdQ3TextOpen, "push button", "Open..."},
    {IDC_cmdQ3TextClipboard, "push button", "Clipboard"},
    {IDC_cmdQ3TextQ3Config, "push button", "Q3Config"},
    {IDC_chkQ3TextAddSlash, "check box", "Include a leading backslash when copying to clipboard."},
};

const Speech kFirstAid = {
    {IDC_lstSymptoms, "list", "Symptoms"},
    {IDC_txtRemedy, "text", "Remedies"},
    {IDC_cmdRemedy1, "push button", "Apply Remedy #1"},
    {IDC_cmdRemedy2, "push button", "Apply Remedy #2"},
};

const Speech kPreferences = {
    {IDC_tabPreferences, "tabs", "Preferences"},
    {IDC_txtRemote, "text", "Location of Remote Folder"},
    {IDC_cmdRemote, "push button", "Select the Remote Folder"},
    {IDC_chkExpert, "check box",
     "Use Zentar in Expert Mode (no warnings are given before any harmful actions)."},
    {IDC_chkAutoShowAll, "check box",
     "Automatically show all demos when initially switching to a different game mod."},
    {IDC_chkAutoNextShot, "check box",
     "Automatically select the next screenshot or image after deleting the current."},
    {IDC_chkAutoNextDemo, "check box",
     "Automatically select the next demo after deleting the current."},
};

const Speech kHelpList = {
    {IDC_lstQuestions, "list", "Help topics"},
    {IDC_cmdBack, "push button", "Back"},
};

const Speech kHelpAnswer = {
    {IDC_txtAnswer, "text", "Answer"},
    {IDC_cmdBack, "push button", "Back"},
};

const Speech kFullView = {{IDC_picFull, "picture", "Screenshot in full size"}};

class ScreenReaderWindow : public ShotsWindowTest {
  protected:
    Speech Page(int tab, int page) const {
        zentar_->ShowTab(tab);
        return reader_.Inside(zentar_->Control(page));
    }
    Speech Form(const std::string& title) const {
        return reader_.Inside(zentar_->WaitForForm(title));
    }
    void LeaveByEscape(const std::string& title) const {
        zentar_->LeaveBy(VK_ESCAPE, zentar_->WaitForForm(title));
    }

    ScreenReader reader_;
};

TEST_F(ScreenReaderWindow, HearsWhatEachControlOfTheMainWindowIs) {
    Open();
    Speech atFirst = kBesideTheTabs;
    atFirst.insert(atFirst.end(), kShots.begin(), kShots.end());
    EXPECT_SOON(reader_.Inside(zentar_->Main()), atFirst);
    EXPECT_SOON(Page(kDemosTab, IDC_pagDemos), kDemos);
    EXPECT_SOON(Page(kMiscTab, IDC_pagMisc), Misc());
    EXPECT_SOON(Page(kQ3TextTab, IDC_pagQ3Text), kQ3Text);
    EXPECT_SOON(Page(kFirstAidTab, IDC_pagFirstAid), kFirstAid);
    // The names of frames and the like that change with the game are heard as they are then.
    zentar_->ClickOn(IDC_optGameQuake3);
    zentar_->ShowTab(kMiscTab);
    EXPECT_SOON(reader_.Of(zentar_->Control(IDC_fraChat)).name, "Quake3 Chat Transcript");
}

TEST_F(ScreenReaderWindow, HearsWhatEachControlOfTheOtherWindowsIs) {
    Open();
    zentar_->OpenMenuEntry('P', 'P');
    EXPECT_SOON(Form("Preferences"), kPreferences);
    LeaveByEscape("Preferences");

    View("quake00.tga", 0);
    zentar_->OpenForm(VK_F2, "Rename Screenshot");
    EXPECT_SOON(Form("Rename Screenshot"),
                (Speech{{1002, "text",
                         "Enter new name for \"quake00\".\r\n\r\n(Do not type the extension)."},
                        {IDOK, "push button", "OK"},
                        {IDCANCEL, "push button", "Cancel"}}));
    LeaveByEscape("Rename Screenshot");

    zentar_->OpenForm(VK_RETURN, "Zentar - Screenshot");
    EXPECT_SOON(Form("Zentar - Screenshot"), kFullView);
    LeaveByEscape("Zentar - Screenshot");

    zentar_->OpenForm(VK_F1, "Zentar Help");
    EXPECT_SOON(Form("Zentar Help"), kHelpList);
    zentar_->PressKey(VK_DOWN);
    zentar_->PressKey(VK_RETURN);
    zentar_->Settle();
    EXPECT_SOON(Form("Zentar Help"), kHelpAnswer);
}

}  // namespace
}  // namespace zentar::window_tests
