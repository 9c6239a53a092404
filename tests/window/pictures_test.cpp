// Pictures of everything the user sees, and that they could be taken.
#include <gtest/gtest.h>

#include "tests/window/colour_dialog.h"
#include "tests/window/file_dialog.h"
#include "tests/window/screen_picture.h"
#include "tests/window/user_input.h"
#include "tests/window/waiting.h"
#include "tests/window/windows_of.h"
#include "tests/window/zentar_driver.h"
#include "ui/resource.h"

namespace zentar::window_tests {
namespace {

TEST(Pictures, OfEveryTabAndDialog) {
    const ZentarHome home;
    home.WriteIni();
    const ZentarDriver zentar(home);
    const HWND main = zentar.Main();
    const char* const tabs[] = {"shots", "demos", "misc", "q3text", "firstaid"};
    for (int tab = 0; tab < 5; ++tab) {
        zentar.ShowTab(tab);
        EXPECT_TRUE(TakesPicture(main, tabs[tab]));
    }
    zentar.ShowTab(kDemosTab);
    zentar.ClickItem(IDC_lstDemos, "edge final");
    EXPECT_TRUE(TakesPicture(main, "demo selected"));
    const HWND popup = zentar.OpenPopup(IDC_lstDemos, "edge final");
    zentar.Settle();
    EXPECT_TRUE(TakesPicture(main, "popup"));
    zentar.ClosePopup(popup);
    const HWND rename = zentar.OpenForm(VK_F2, "Rename Demo");
    zentar.Settle();
    EXPECT_TRUE(TakesPicture(rename, "rename"));
    zentar.LeaveBy(VK_ESCAPE, rename);
    zentar.Settle();
    zentar.ClickOn(IDC_chkShowAllDemos);
    EXPECT_SOON(zentar.Usable(IDC_cmdFilter), true);
    zentar.Settle();
    EXPECT_TRUE(TakesPicture(main, "filter"));
    zentar.OpenMenuEntry('H', 'A');
    const HWND about = zentar.WaitForBox("About Zentar");
    zentar.Settle();
    EXPECT_TRUE(TakesPicture(about, "about"));
    AnswerBox(about, IDOK);
    zentar.OpenMenuEntry('P', 'P');
    const HWND preferences = zentar.WaitForForm("Preferences");
    zentar.Settle();
    EXPECT_TRUE(TakesPicture(preferences, "preferences"));
}

TEST(Pictures, OfTheLargestWindowAndItsMenus) {
    const ZentarHome home;
    home.WriteIni();
    const ZentarDriver zentar(home);
    const HWND main = zentar.Main();
    for (const char menu : {'P', 'G', 'H'}) {
        const HWND opened = zentar.OpenMenu(menu);
        zentar.Settle();
        EXPECT_TRUE(TakesPicture(main, std::string("menu ") + menu));
        zentar.CloseMenu(opened);
    }
    ShowWindow(main, SW_MAXIMIZE);
    EXPECT_SOON(IsZoomed(main) != FALSE, true);
    for (int tab = 0; tab < 5; ++tab) {
        zentar.ShowTab(tab);
        EXPECT_TRUE(TakesPicture(main, "large tab " + std::to_string(tab)));
    }
}

TEST(Pictures, OfScreenshots) {
    const ZentarHome home;
    home.WriteIni();
    const ZentarDriver zentar(home);
    const HWND main = zentar.Main();
    zentar.ClickItem(IDC_lstScreenshots, "quake01.tga");
    EXPECT_TRUE(TakesPicture(main, "shot in real mode"));
    const HWND popup = zentar.OpenPopup(IDC_lstScreenshots, "quake01.tga *");
    zentar.Settle();
    EXPECT_TRUE(TakesPicture(main, "shot popup"));
    zentar.ClosePopup(popup);
    zentar.ClickItem(IDC_lstScreenshots, "wide.tga");
    EXPECT_TRUE(TakesPicture(main, "wide shot"));
    zentar.ClickOn(IDC_imgShotView);
    const HWND viewer = zentar.WaitForForm("Zentar - Screenshot");
    zentar.Settle();
    EXPECT_TRUE(TakesPicture(viewer, "viewer"));
    zentar.LeaveBy(VK_ESCAPE, viewer);
    zentar.ClickOn(IDC_optModePreview);
    zentar.ClickItem(IDC_lstScreenshots, "quake01.tga *");
    EXPECT_TRUE(TakesPicture(main, "shot in preview mode"));
    zentar.ClickItem(IDC_lstScreenshots, "quake00.tga");
    EXPECT_TRUE(TakesPicture(main, "shot without preview"));
    const HWND rename = zentar.OpenForm(VK_F2, "Rename Screenshot");
    zentar.Settle();
    EXPECT_TRUE(TakesPicture(rename, "rename shot"));
}

TEST(Pictures, OfChatAndColouredText) {
    const ZentarHome home;
    const std::filesystem::path designs = home.Program() / "data" / "q3text";
    std::filesystem::create_directories(designs);
    WriteBytes(designs / "current.ini",
               R"({\rtf1\ansi{\colortbl;\red255\green0\blue0;\red255\green255\blue0;)"
               R"(\red255\green255\blue255;\red0\green255\blue0;\red0\green255\blue255;)"
               R"(\red0\green0\blue255;\red255\green0\blue255;}[\cf1 E\cf2 m\cf3 ber\cf0 ] )"
               R"(\cf4 the \cf5 quick \cf6 blue \cf7 fox\par})");
    home.WriteIni({"TranscriptBackground=12648447", "TranscriptMessages=8388608",
                   "Player1Name=Fred", "Player1Colour=32768", "Player2Name=Bob <3",
                   "Player2Colour=128", "Player3Name=Fragger", "TranscriptGameplay=1"});
    const ZentarDriver zentar(home);
    zentar.ShowTab(kMiscTab);
    EXPECT_TRUE(TakesPicture(zentar.Main(), "chat"));
    DoubleClick(CentreOf(zentar.Control(IDC_txtPlayer1)));
    const HWND colours = WaitForColourDialog(zentar.Process());
    zentar.Settle();
    EXPECT_TRUE(TakesPicture(colours, "colour dialog"));
    CancelColourDialog(colours);
    zentar.ShowTab(kQ3TextTab);
    EXPECT_TRUE(TakesPicture(zentar.Main(), "design"));
    zentar.ClickOn(IDC_cmdQ3TextSave);
    const HWND save = WaitForFileDialog(zentar.Process(), "Save Quake 3 coloured text");
    zentar.Settle();
    EXPECT_TRUE(TakesPicture(save, "save dialog"));
    CancelFileDialog(save);
    zentar.ClickOn(IDC_cmdQ3TextOpen);
    const HWND open = WaitForFileDialog(zentar.Process(), "Open Quake 3 coloured text");
    zentar.Settle();
    EXPECT_TRUE(TakesPicture(open, "open dialog"));
    CancelFileDialog(open);
}

TEST(Pictures, OfFirstAidAndHelp) {
    const ZentarHome home;
    home.WriteIni();
    const ZentarDriver zentar(home);
    zentar.ShowTab(kFirstAidTab);
    zentar.ClickItem(IDC_lstSymptoms, "[ALL] Logitech mousewheel binds aren't working.");
    EXPECT_TRUE(TakesPicture(zentar.Main(), "remedy"));
    zentar.ClickOn(IDC_cmdRemedy2);
    const HWND setting = zentar.WaitForForm("Change Logitech Setting");
    zentar.Settle();
    EXPECT_TRUE(TakesPicture(setting, "logitech setting"));
    zentar.LeaveBy(VK_ESCAPE, setting);
    const HWND help = zentar.OpenForm(VK_F1, "Zentar Help");
    zentar.Settle();
    EXPECT_TRUE(TakesPicture(help, "help"));
    zentar.PressKey(VK_DOWN);
    zentar.PressKey(VK_RETURN);
    zentar.Settle();
    EXPECT_TRUE(TakesPicture(help, "help answer"));
}

}  // namespace
}  // namespace zentar::window_tests
