#include "tests/unit/program/program_test.h"

namespace zentar {
namespace {

using ::testing::HasSubstr;

class ShutdownTest : public ProgramTest {
  protected:
    ShutdownTest() {
        InstallGames();
        WriteSettings({"Game=Quake2"});
    }
};

TEST_F(ShutdownTest, WhatWasSelectedIsThereTheNextTime) {
    Start();
    Window().UserClick(IDC_optGameQuake1);
    Window().UserSelect(IDC_lstMods, "ctf");
    Quit();
    Start();
    EXPECT_TRUE(Window().GetOptionButton(IDC_optGameQuake1).Selected());
    EXPECT_EQ(Window().SelectedItem(IDC_lstMods), "ctf");
}

TEST_F(ShutdownTest, ExitFromTheMenuLeavesAsTheCloseButtonDoes) {
    Start();
    Window().UserPickMenu(IDM_mnuProgramExit);
    EXPECT_TRUE(Window().Closed());
    EXPECT_THAT(os.files.Contents(kIni), HasSubstr("// Zentar v0.99 BETA Settings File.\r\n"));
}

TEST_F(ShutdownTest, WhileAGameIsWatchedTheProgramStays) {
    Start();
    Window().GetTimer(IDC_tmrQ3Game).SetEnabled(true);
    const Message cannot = {
        "Can't Exit Yet",
        "You cannot exit Zentar at this time because you are either playing\r\n"
        "a Quake3 v1.17 demo or are involved in a modem-to-modem game.\r\n"
        "Please exit the demo or stop the game, and then you will be able to\r\n"
        "safely exit Zentar.",
        MessageIcon::Critical};
    const std::string before = os.files.Contents(kIni);
    os.windows.Expect(cannot);
    Window().UserClose();
    EXPECT_FALSE(Window().Closed());
    EXPECT_EQ(os.files.Contents(kIni), before);
    os.windows.Expect(cannot);
    Window().UserPickMenu(IDM_mnuProgramExit);
    EXPECT_FALSE(Window().Closed());
    Window().GetTimer(IDC_tmrQ3Game).SetEnabled(false);
    Quit();
}

TEST_F(ShutdownTest, SettingsAreSavedWhenWindowsEndsTheSession) {
    Start();
    Window().UserClick(IDC_optGameQuake3);
    Window().EndSession();
    EXPECT_THAT(os.files.Contents(kIni), HasSubstr("\r\nGame=Quake3\r\n"));
}

TEST_F(ShutdownTest, HiddenGameFilesArePutBackBetweenSettingsAndTemporaryFiles) {
    os.files.AddFile(kQuake3Folder + "baseq3\\pak4.zentar", "pak");
    Start();
    os.log.Clear();
    Quit();
    EXPECT_TRUE(os.files.Exists(kQuake3Folder + "baseq3\\pak4.pk3"));
    EXPECT_TRUE(os.log.Ordered(
        {"Replace c:\\program files\\zentar\\zentar.ini.zentar-new -> "
         "c:\\program files\\zentar\\zentar.ini",
         "Rename " + kQuake3Folder + "baseq3\\pak4.zentar -> " + kQuake3Folder + "baseq3\\pak4.pk3",
         "Delete C:\\Windows\\zentar-tmp.gif"}));
}

TEST_F(ShutdownTest, AndWhenWindowsEndsTheSession) {
    os.files.AddFile(kQuake3Folder + "baseq3\\pak6.zentar", "pak");
    Start();
    Window().EndSession();
    EXPECT_TRUE(os.files.Exists(kQuake3Folder + "baseq3\\pak6.pk3"));
}

TEST_F(ShutdownTest, SettingsComeFirstThenTheTemporaryFilesGo) {
    Start();
    os.files.AddFile("C:\\Windows\\zentar-tmp.gif", "busy");
    os.log.Clear();
    Quit();
    EXPECT_TRUE(
        os.log.Ordered({"Replace c:\\program files\\zentar\\zentar.ini.zentar-new -> "
                        "c:\\program files\\zentar\\zentar.ini",
                        "Delete C:\\Windows\\zentar-tmp.gif"}));
    EXPECT_FALSE(os.files.Exists("C:\\Windows\\zentar-tmp.gif"));
}

TEST_F(ShutdownTest, ClosingInTheMiddleOfAListingWaitsUntilItIsDone) {
    Start();
    os.windows.SetDuringPump([&] { Window().UserClose(); });
    Window().UserKey(Key::F5);
    Window().UserClick(IDC_optGameQuake3);
    os.windows.SetDuringPump({});
    EXPECT_TRUE(Window().Closed());
    EXPECT_THAT(os.files.Contents(kIni), HasSubstr("\r\nGame=Quake3\r\n"));
}

TEST_F(ShutdownTest, AboutNamesVersionAuthorsContactAndWebSite) {
    Start();
    os.windows.Expect({"About Zentar",
                       "Zentar v0.99 BETA\r\n\r\nMade by: The Zentar developers\r\n"
                       "Contact: through the web site below\r\n"
                       "Web site: https://zentar.example/",
                       MessageIcon::Information});
    Window().UserPickMenu(IDM_mnuHelpAbout);
}

}  // namespace
}  // namespace zentar
