#include "tests/unit/program/program_test.h"

#include "core/remote_folder.h"

namespace zentar {
namespace {

using ::testing::HasSubstr;

const Message kExpertWarning = {"Confirm",
                                "WARNING: You are now switching to Expert Mode!\r\n\r\n"
                                "This means that your actions will NOT be confirmed\r\n"
                                "under ANY circumstances!  Are you sure about this?",
                                MessageIcon::Exclamation, MessageButtons::YesNo,
                                DefaultButton::Second};

const Message kRemoteInvalid = {"Folder Error",
                                "Your Remote Folder selection is invalid!\r\n\r\n"
                                "Zentar can't carry out the requested task.\r\n"
                                "Please select \"Preferences...\" from the\r\n"
                                "\"Program\" menu and select a new Remote\r\n"
                                "Folder, and then try this function again.",
                                MessageIcon::Exclamation};

class PreferencesTest : public ProgramTest {
  protected:
    PreferencesTest() { InstallGames(); }

    // Opens the dialog from the menu; `user` acts in it.
    void Open(const std::function<void(MemoryForm&)>& user) {
        os.forms.SetUser(IDW_Form4, user);
        Window().UserPickMenu(IDM_mnuProgramPreferences);
    }
};

TEST_F(PreferencesTest, ShowsWhatIsSet) {
    WriteSettings({"Remote=D:\\Demos", "Expert=1", "AutoShowAll=0", "AutoNextShot=1"});
    Start();
    bool opened = false;
    Open([&](MemoryForm& dialog) {  // and asks nothing about Expert Mode
        opened = true;
        EXPECT_EQ(dialog.GetTextBox(IDC_txtRemote).Text(), "D:\\Demos");
        EXPECT_TRUE(dialog.GetCheckBox(IDC_chkExpert).Checked());
        EXPECT_FALSE(dialog.GetCheckBox(IDC_chkAutoShowAll).Checked());
        EXPECT_TRUE(dialog.GetCheckBox(IDC_chkAutoNextShot).Checked());
        EXPECT_FALSE(dialog.GetCheckBox(IDC_chkAutoNextDemo).Checked());
    });
    EXPECT_TRUE(opened);
}

TEST_F(PreferencesTest, EveryChangeCountsAtOnceAndIsThereTheNextTime) {
    WriteSettings();
    Start();
    Open([&](MemoryForm& dialog) {
        dialog.UserClick(IDC_chkAutoShowAll);
        EXPECT_EQ(State().settings.AutoShowAll, 0);
        dialog.UserClick(IDC_chkAutoNextShot);
        EXPECT_EQ(State().settings.AutoNextShot, 1);
        dialog.UserClick(IDC_chkAutoNextDemo);
        EXPECT_EQ(State().settings.AutoNextDemo, 1);
        dialog.GetTextBox(IDC_txtRemote).SetText("D:\\Typed");
        EXPECT_EQ(State().settings.Remote, "D:\\Typed");
    });
    Quit();
    EXPECT_THAT(os.files.Contents(kIni),
                HasSubstr("\r\nRemote=D:\\Typed\r\nExpert=0\r\nPreview=0\r\n"
                          "AutoShowAll=0\r\nAutoNextShot=1\r\nAutoNextDemo=1\r\n"));
}

TEST_F(PreferencesTest, ExpertModeIsWarnedOfAndANoClearsTheBox) {
    WriteSettings();
    Start();
    Open([&](MemoryForm& dialog) {
        os.windows.Expect(kExpertWarning, Answer::No);
        dialog.UserClick(IDC_chkExpert);
        EXPECT_FALSE(dialog.GetCheckBox(IDC_chkExpert).Checked());
        EXPECT_EQ(State().settings.Expert, 0);
    });
}

TEST_F(PreferencesTest, AYesTurnsExpertModeOnAndClearingItAsksNothing) {
    WriteSettings();
    Start();
    Open([&](MemoryForm& dialog) {
        os.windows.Expect(kExpertWarning, Answer::Yes);
        dialog.UserClick(IDC_chkExpert);
        EXPECT_EQ(State().settings.Expert, 1);
        os.windows.Verify();
        dialog.UserClick(IDC_chkExpert);
        EXPECT_EQ(State().settings.Expert, 0);
    });
}

TEST_F(PreferencesTest, OpenedASecondTimeItShowsTheNewValues) {
    WriteSettings();
    Start();
    Open([&](MemoryForm& dialog) {
        os.windows.Expect(kExpertWarning, Answer::Yes);
        dialog.UserClick(IDC_chkExpert);
    });
    Open([&](MemoryForm& dialog) { EXPECT_TRUE(dialog.GetCheckBox(IDC_chkExpert).Checked()); });
    EXPECT_EQ(State().settings.Expert, 1);
}

TEST_F(PreferencesTest, AFolderFromThePickerGetsItsBackslash) {
    WriteSettings();
    Start();
    Open([&](MemoryForm& dialog) {
        os.shell.ExpectPick("Please specify a folder to be the Remote Folder:", "D:\\Remote");
        dialog.UserClick(IDC_cmdRemote);
        EXPECT_EQ(dialog.GetTextBox(IDC_txtRemote).Text(), "D:\\Remote\\");
        EXPECT_EQ(State().settings.Remote, "D:\\Remote\\");
        os.shell.ExpectPick("Please specify a folder to be the Remote Folder:", std::nullopt);
        dialog.UserClick(IDC_cmdRemote);
        EXPECT_EQ(State().settings.Remote, "D:\\Remote\\");
    });
}

TEST_F(PreferencesTest, TooltipsStandAsGiven) {
    WriteSettings();
    Start();
    Open([](MemoryForm& dialog) {
        EXPECT_EQ(dialog.Tooltip(IDC_labRemote),
                  "Specifies the folder where screenshots and demos can be copied/moved to.");
        EXPECT_EQ(dialog.Tooltip(IDC_cmdRemote),
                  "Click here to select a folder that you wish to be the Remote Folder.");
        EXPECT_EQ(dialog.Tooltip(IDC_chkExpert),
                  "If checked, you are NOT warned before any harmful actions are done.");
        EXPECT_EQ(dialog.Tooltip(IDC_chkAutoShowAll),
                  "If checked, all demos for a mod are shown when initially switching to it.");
        EXPECT_EQ(
            dialog.Tooltip(IDC_chkAutoNextShot),
            "If checked, the next screenshot or image is selected after you delete the current.");
        EXPECT_EQ(dialog.Tooltip(IDC_chkAutoNextDemo),
                  "If checked, the next demo is selected after you delete the current.");
    });
}

// ---- The Remote Folder's test ----

class RemoteFolderTest : public ProgramTest {
  protected:
    RemoteFolderTest() {
        WriteSettings();
        os.files.AddFolder("D:\\Remote\\");
        Start();
    }

    bool Check(const std::string& remote) {
        State().settings.Remote = remote;
        CheckRemoteFolder(State(), os.Services());
        return State().RemoteFolderOK;
    }
};

TEST_F(RemoteFolderTest, AWritableFolderPassesAndNothingIsLeftInIt) {
    EXPECT_TRUE(Check("D:\\Remote\\"));
    EXPECT_TRUE(os.files.Names("D:\\Remote\\").empty());
}

TEST_F(RemoteFolderTest, AMissingFolderIsReported) {
    os.windows.Expect(kRemoteInvalid);
    EXPECT_FALSE(Check("D:\\Nowhere\\"));
}

TEST_F(RemoteFolderTest, AFolderThatRefusesFilesIsReported) {
    os.files.SetWritingDenied("D:\\Remote\\");
    os.windows.Expect(kRemoteInvalid);
    EXPECT_FALSE(Check("D:\\Remote\\"));
}

TEST_F(RemoteFolderTest, AFailedTestChangesNoSetting) {
    os.windows.Expect(kRemoteInvalid);
    EXPECT_FALSE(Check("D:\\Nowhere\\Deeper\\"));
    EXPECT_EQ(State().settings.Remote, "D:\\Nowhere\\Deeper\\");
}

TEST_F(RemoteFolderTest, AFolderTypedWithoutBackslashIsTestedBesideIt) {
    os.files.SetWritingDenied("D:\\Remote\\");
    EXPECT_TRUE(Check("D:\\Remote"));
    EXPECT_TRUE(os.log.Has("Delete D:\\Remotezentar.tmp"));
}

}  // namespace
}  // namespace zentar
