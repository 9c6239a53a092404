// Pictures of everything the user sees, and that they could be taken.
#include <gtest/gtest.h>

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
    zentar.ShowTab(1);
    zentar.ClickItem(IDC_lstDemos, "edge final");
    EXPECT_GT(TakePicture(main, "demo selected"), kSmallestPicture);
    const HWND popup = zentar.OpenPopup(IDC_lstDemos, "edge final");
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

TEST(Pictures, OfScreenshots) {
    const ZentarHome home;
    home.WriteIni();
    const ZentarDriver zentar(home);
    const HWND main = zentar.Main();
    zentar.ClickItem(IDC_lstScreenshots, "quake01.tga");
    EXPECT_GT(TakePicture(main, "shot in real mode"), kSmallestPicture);
    const HWND popup = zentar.OpenPopup(IDC_lstScreenshots, "quake01.tga *");
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

}  // namespace
}  // namespace zentar::window_tests
