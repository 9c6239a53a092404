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

// A picture of nothing but one colour is smaller.
constexpr std::uintmax_t kSmallestPicture = 2'000;

TEST(Pictures, OfEveryTabAndDialog) {
    const ZentarHome home;
    home.WriteIni();
    const ZentarDriver zentar(home);
    const HWND main = zentar.Main();
    const char* const tabs[] = {"shots", "demos", "misc", "q3text", "firstaid"};
    for (int tab = 0; tab < 5; ++tab) {
        zentar.ShowTab(tab);
        EXPECT_GT(TakePicture(main, tabs[tab]), kSmallestPicture);
    }
    zentar.ShowTab(kDemosTab);
    zentar.ClickItem(IDC_lstDemos, "edge final");
    EXPECT_GT(TakePicture(main, "demo selected"), kSmallestPicture);
    const HWND popup = zentar.OpenPopup(IDC_lstDemos, "edge final");
    zentar.Settle();
    EXPECT_GT(TakePicture(main, "popup"), kSmallestPicture);
    zentar.ClosePopup(popup);
    zentar.PressKey(VK_F2);
    const HWND rename = zentar.WaitForWindow("ZentarForm", "Rename Demo");
    zentar.Settle();
    EXPECT_GT(TakePicture(rename, "rename"), kSmallestPicture);
    Press(VK_ESCAPE);
    Eventually([rename] { return IsWindow(rename) == FALSE; });
    zentar.Settle();
    zentar.ClickOn(IDC_chkShowAllDemos);
    EXPECT_SOON(zentar.Usable(IDC_cmdFilter), true);
    zentar.Settle();
    EXPECT_GT(TakePicture(main, "filter"), kSmallestPicture);
    zentar.OpenMenuEntry('H', 'A');
    const HWND about = zentar.WaitForBox("About Zentar");
    zentar.Settle();
    EXPECT_GT(TakePicture(about, "about"), kSmallestPicture);
    AnswerBox(about, IDOK);
    zentar.OpenMenuEntry('P', 'P');
    const HWND preferences = zentar.WaitForWindow("ZentarForm", "Preferences");
    zentar.Settle();
    EXPECT_GT(TakePicture(preferences, "preferences"), kSmallestPicture);
}

TEST(Pictures, OfTheLargestWindowAndItsMenus) {
    const ZentarHome home;
    home.WriteIni();
    const ZentarDriver zentar(home);
    const HWND main = zentar.Main();
    for (const char menu : {'P', 'G', 'H'}) {
        PressWith(VK_MENU, static_cast<WORD>(menu));
        const HWND opened = zentar.WaitForWindow("#32768", "");
        zentar.Settle();
        EXPECT_GT(TakePicture(main, std::string("menu ") + menu), kSmallestPicture);
        zentar.ClosePopup(opened);
        Press(VK_ESCAPE);
        zentar.Settle();
    }
    ShowWindow(main, SW_MAXIMIZE);
    Eventually([main] { return IsZoomed(main) != FALSE; });
    for (int tab = 0; tab < 5; ++tab) {
        zentar.ShowTab(tab);
        EXPECT_GT(TakePicture(main, "large tab " + std::to_string(tab)), kSmallestPicture);
    }
}

TEST(Pictures, OfScreenshots) {
    const ZentarHome home;
    home.WriteIni();
    const ZentarDriver zentar(home);
    const HWND main = zentar.Main();
    zentar.ClickItem(IDC_lstScreenshots, "quake01.tga");
    EXPECT_GT(TakePicture(main, "shot in real mode"), kSmallestPicture);
    const HWND popup = zentar.OpenPopup(IDC_lstScreenshots, "quake01.tga *");
    zentar.Settle();
    EXPECT_GT(TakePicture(main, "shot popup"), kSmallestPicture);
    zentar.ClosePopup(popup);
    zentar.ClickItem(IDC_lstScreenshots, "wide.tga");
    EXPECT_GT(TakePicture(main, "wide shot"), kSmallestPicture);
    zentar.ClickOn(IDC_imgShotView);
    const HWND viewer = zentar.WaitForWindow("ZentarForm", "Zentar - Screenshot");
    zentar.Settle();
    EXPECT_GT(TakePicture(viewer, "viewer"), kSmallestPicture);
    Press(VK_ESCAPE);
    Eventually([viewer] { return IsWindowVisible(viewer) == FALSE; });
    zentar.ClickOn(IDC_optModePreview);
    zentar.ClickItem(IDC_lstScreenshots, "quake01.tga *");
    EXPECT_GT(TakePicture(main, "shot in preview mode"), kSmallestPicture);
    zentar.ClickItem(IDC_lstScreenshots, "quake00.tga");
    EXPECT_GT(TakePicture(main, "shot without preview"), kSmallestPicture);
    zentar.PressKey(VK_F2);
    const HWND rename = zentar.WaitForWindow("ZentarForm", "Rename Screenshot");
    zentar.Settle();
    EXPECT_GT(TakePicture(rename, "rename shot"), kSmallestPicture);
    Press(VK_ESCAPE);
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
    EXPECT_GT(TakePicture(zentar.Main(), "chat"), kSmallestPicture);
    DoubleClick(CentreOf(zentar.Control(IDC_txtPlayer1)));
    const HWND colours = WaitForColourDialog(zentar.Process());
    zentar.Settle();
    EXPECT_GT(TakePicture(colours, "colour dialog"), kSmallestPicture);
    CancelColourDialog(colours);
    zentar.ShowTab(kQ3TextTab);
    EXPECT_GT(TakePicture(zentar.Main(), "design"), kSmallestPicture);
    zentar.ClickOn(IDC_cmdQ3TextSave);
    const HWND save = WaitForFileDialog(zentar.Process(), "Save Quake 3 coloured text");
    zentar.Settle();
    EXPECT_GT(TakePicture(save, "save dialog"), kSmallestPicture);
    CancelFileDialog(save);
    zentar.ClickOn(IDC_cmdQ3TextOpen);
    const HWND open = WaitForFileDialog(zentar.Process(), "Open Quake 3 coloured text");
    zentar.Settle();
    EXPECT_GT(TakePicture(open, "open dialog"), kSmallestPicture);
    CancelFileDialog(open);
}

TEST(Pictures, OfFirstAidAndHelp) {
    const ZentarHome home;
    home.WriteIni();
    const ZentarDriver zentar(home);
    zentar.ShowTab(kFirstAidTab);
    zentar.ClickItem(IDC_lstSymptoms, "[ALL] Logitech mousewheel binds aren't working.");
    EXPECT_GT(TakePicture(zentar.Main(), "remedy"), kSmallestPicture);
    zentar.ClickOn(IDC_cmdRemedy2);
    const HWND setting = zentar.WaitForWindow("ZentarForm", "Change Logitech Setting");
    zentar.Settle();
    EXPECT_GT(TakePicture(setting, "logitech setting"), kSmallestPicture);
    Press(VK_ESCAPE);
    Eventually([setting] { return IsWindowVisible(setting) == FALSE; });
    zentar.PressKey(VK_F1);
    const HWND help = zentar.WaitForWindow("ZentarForm", "Zentar Help");
    zentar.Settle();
    EXPECT_GT(TakePicture(help, "help"), kSmallestPicture);
    Press(VK_DOWN);
    Press(VK_RETURN);
    zentar.Settle();
    EXPECT_GT(TakePicture(help, "help answer"), kSmallestPicture);
}

}  // namespace
}  // namespace zentar::window_tests
