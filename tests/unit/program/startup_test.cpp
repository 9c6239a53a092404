#include "tests/unit/program/program_test.h"

#include "core/messages.h"

namespace zentar {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class StartupTest : public ProgramTest {};

TEST_F(StartupTest, ShowsTheGameAndModOfLastTimeWithItsDemos) {
    InstallGames();
    WriteSettings({"Game=Quake2", "CurMod2=baseq2"});
    Start();
    EXPECT_TRUE(Window().GetOptionButton(IDC_optGameQuake2).Selected());
    EXPECT_THAT(Mods(), ElementsAre("baseq2", "rocket"));
    EXPECT_EQ(Window().SelectedItem(IDC_lstMods), "baseq2");
    EXPECT_THAT(Demos(), ElementsAre("Duel", "edge"));
    EXPECT_EQ(Text(IDC_labNumDemos), "Total listed: 2 of 2.");
}

TEST_F(StartupTest, TheStepsComeInTheirOrder) {
    InstallGames();
    WriteSettings({"Game=Quake2", "DemosAll=0"});
    os.files.AddFile("C:\\Windows\\zentar-tmp.htm", "left by a crash");
    Start();
    EXPECT_TRUE(os.log.Ordered({
        "Pump",  // the splash paints itself
        "CreateFolder c:\\program files\\zentar\\data\\",
        "CreateFolder c:\\program files\\zentar\\data\\q3text\\",
        "OpenForReading c:\\program files\\zentar\\zentar.ini",
        "optGameQuake2.SetSelected(true)",
        "lstDemoFilter.SetItems(60)",
        "cmdDemoInstaller.SetEnabled(true)",
        "labDemoVersion.SetVisible(false)",
        "Pump",
        "Enumerate C:\\Games\\Quake2\\",
        "lstMods.SetItems(2)",
        "lstMods.Select(0)",
        "chkShowAllDemos.SetChecked(true)",
        "Enumerate C:\\Games\\Quake2\\baseq2\\demos\\",
        "Delete C:\\Windows\\zentar-tmp.htm",
    }));
}

TEST_F(StartupTest, EachGamesFolderIsReadOnceForMods) {
    InstallGames();
    WriteSettings({"Game=Quake3"});
    Start();
    EXPECT_EQ(os.log.Count("Enumerate " + kQuake3Folder), 1U);
    EXPECT_EQ(os.log.Count("Enumerate " + kQuake3Folder + "baseq3\\demos\\"), 1U);
    EXPECT_EQ(os.log.Count("Enumerate " + kQuake2Folder), 0U);
}

TEST_F(StartupTest, WithoutASettingsFileEverythingHasItsDefault) {
    os.windows.Expect(messages::FirstRunWelcome(), Answer::No);
    os.windows.Expect({"Current Folders", "Quake 1\t   c:\r\nQuake 2\t   c:\r\nQuake 3\t   c:",
                       MessageIcon::Information});
    Start();
    EXPECT_EQ(State().settings.Game, "Quake2");
    EXPECT_EQ(State().settings.Remote, "c:\\");
    EXPECT_EQ(State().settings.AutoShowAll, 1);
    EXPECT_EQ(State().games[0].CurMod, "id1");
    EXPECT_EQ(State().games[1].CurMod, "baseq2");
    EXPECT_EQ(State().games[2].CurMod, "baseq3");
    EXPECT_TRUE(Window().GetCheckBox(IDC_chkShowAllDemos).Checked());
    EXPECT_EQ(Text(IDC_txtDemoFilter), "phrase");
}

TEST_F(StartupTest, AGameWithoutItsExecutableShowsAGreyDisabledModList) {
    os.files.AddFolder(kQuake2Folder + "baseq2\\demos\\");
    os.files.AddFolder(kQuake2Folder + "rocket\\");
    WriteSettings({"Game=Quake2"});
    Start();
    EXPECT_THAT(Mods(), IsEmpty());
    EXPECT_FALSE(Window().GetListBox(IDC_lstMods).Enabled());
    EXPECT_FALSE(Window().GetLabel(IDC_labMod).Enabled());
    EXPECT_EQ(Window().GetListBox(IDC_lstMods).Background(), SystemColour::ButtonFace);
    EXPECT_EQ(State().games[1].GameFolder, "c:");
    EXPECT_EQ(State().games[1].BaseModPath, "c:baseq2\\");
}

TEST_F(StartupTest, AnEmptyExecutableCountsAsMissing) {
    InstallGames();
    os.files.AddFile(kQuake2Folder + "quake2.exe", "");
    WriteSettings({"Game=Quake2"});
    Start();
    EXPECT_FALSE(State().games[1].GameInstalled);
}

TEST_F(StartupTest, TheFoldersForDesignsAreMade) {
    StartWithoutWelcome();
    EXPECT_TRUE(os.files.Exists(kProgramFolder + "data\\q3text\\"));
}

TEST_F(StartupTest, TemporaryFilesOfACrashedRunAreRemovedEvenIfReadOnly) {
    InstallGames();
    WriteSettings();
    for (const char* name : {"zentar-tmp.gif", "zentar-tmp.htm", "zentar-help.htm"}) {
        os.files.AddFile(std::string("C:\\Windows\\") + name, "stale");
        os.files.SetReadOnly(std::string("C:\\Windows\\") + name);
    }
    os.files.AddFile(kQuake1Folder + "id1\\zentar.cfg", "bind");
    os.files.SetReadOnly(kQuake1Folder + "id1\\zentar.cfg");
    Start();
    EXPECT_THAT(os.files.Names("C:\\Windows\\"), IsEmpty());
    EXPECT_TRUE(os.files.Exists(kQuake1Folder + "id1\\zentar.cfg"));
    EXPECT_FALSE(os.files.IsReadOnly(kQuake1Folder + "id1\\zentar.cfg"));
}

TEST_F(StartupTest, TheSplashIsGoneOnceTheWindowStands) {
    StartWithoutWelcome();
    EXPECT_FALSE(os.forms.Exists(IDW_Form1));
    EXPECT_TRUE(Window().Shown());
}

TEST_F(StartupTest, TheTabsGetTheFocusAndAreCaptionedAsGiven) {
    StartWithoutWelcome();
    EXPECT_EQ(Window().FocusedId(), IDC_SSTab1);
    EXPECT_STREQ(Window().Row(IDC_pagShots).caption, " Shots");
    EXPECT_STREQ(Window().Row(IDC_pagDemos).caption, " Demos");
    EXPECT_STREQ(Window().Row(IDC_pagMisc).caption, " Misc");
    EXPECT_STREQ(Window().Row(IDC_pagQ3Text).caption, " Q3 Text");
    EXPECT_STREQ(Window().Row(IDC_pagFirstAid).caption, " First Aid");
}

TEST_F(StartupTest, ALaterActivationIsNoFirstOne) {
    StartWithoutWelcome();
    Window().GetListBox(IDC_lstDemos).SetFocus();
    const int focused = Window().FocusedId();
    Window().Activate();
    EXPECT_EQ(Window().FocusedId(), focused);
}

TEST_F(StartupTest, KeysPressedBeforeTheStartAreForgotten) {
    os.windows.SetKeyState(PollKey::Shift, 0x8001);
    os.windows.SetKeyState(PollKey::Control, 0x0001);
    StartWithoutWelcome();
    PollShiftKey(State(), os.Services());
    EXPECT_FALSE(State().ShiftHeld);
    EXPECT_EQ(os.windows.KeyState(PollKey::Control), 0);
}

TEST_F(StartupTest, ShiftIsHeldOnlyWhenItIsDownAndWasPressedSinceTheLastPoll) {
    StartWithoutWelcome();
    const auto held = [this](std::uint16_t keyState) {
        os.windows.SetKeyState(PollKey::Shift, keyState);
        PollShiftKey(State(), os.Services());
        return State().ShiftHeld;
    };
    EXPECT_TRUE(held(0x8001));
    EXPECT_FALSE(held(0x8000));
    EXPECT_FALSE(held(0x0001));
    EXPECT_FALSE(held(0x0000));
}

}  // namespace
}  // namespace zentar
