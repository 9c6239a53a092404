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

}  // namespace
}  // namespace zentar::window_tests
