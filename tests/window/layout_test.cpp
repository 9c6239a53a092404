// What the user can see of the windows at the screen's resolution and at other window sizes.
#include <gtest/gtest.h>

#include "tests/window/user_input.h"
#include "tests/window/waiting.h"
#include "tests/window/windows_of.h"
#include "tests/window/zentar_driver.h"
#include "ui/resource.h"

namespace zentar::window_tests {
namespace {

class Layout : public testing::Test {
  protected:
    Layout() {
        home_.WriteIni();
        zentar_ = std::make_unique<ZentarDriver>(home_);
    }

    static RECT AreaOf(HWND window) {
        RECT area{};
        GetWindowRect(window, &area);
        return area;
    }

    // A check box, an option button, a button or a label, but no frame.
    static bool HasCaption(HWND control) {
        const std::string kind = ClassOf(control);
        const LONG style = GetWindowLongW(control, GWL_STYLE);
        return kind == "Static" || (kind == "Button" && (style & BS_TYPEMASK) != BS_GROUPBOX);
    }

    void ExpectWholeCaptions(HWND window) const {
        for (const HWND control : Descendants(window)) {
            if (HasCaption(control) && IsWindowVisible(control)) {
                const RECT area = AreaOf(control);
                const SIZE needed = zentar_->CaptionSize(control);
                EXPECT_LE(needed.cx, area.right - area.left) << TextOf(control);
                EXPECT_LE(needed.cy, area.bottom - area.top) << TextOf(control);
            }
        }
    }

    ZentarHome home_;
    std::unique_ptr<ZentarDriver> zentar_;
};

TEST_F(Layout, NoCaptionOfTheMainWindowIsCut) {
    for (int tab = 0; tab < 5; ++tab) {
        zentar_->ShowTab(tab);
        ExpectWholeCaptions(zentar_->Main());
    }
    zentar_->ClickOn(IDC_optGameQuake3);
    zentar_->ShowTab(kDemosTab);
    zentar_->ClickItem(IDC_lstDemos, "duel  ");
    EXPECT_SOON(zentar_->Text(IDC_labDemoName), "Name: (n/a for v1.29f and higher)");
    ExpectWholeCaptions(zentar_->Main());
}

TEST_F(Layout, NoCaptionOfThePreferencesIsCut) {
    zentar_->OpenMenuEntry('P', 'P');
    const HWND preferences = zentar_->WaitForWindow("ZentarForm", "Preferences");
    zentar_->Settle();
    ExpectWholeCaptions(preferences);
}

TEST_F(Layout, TheListsGrowWithTheWindow) {
    zentar_->ShowTab(kDemosTab);
    const RECT window = AreaOf(zentar_->Main());
    const RECT demos = AreaOf(zentar_->Control(IDC_lstDemos));
    const RECT mods = AreaOf(zentar_->Control(IDC_lstMods));
    zentar_->Resize({window.right - window.left + 120, window.bottom - window.top + 100});
    const auto height = [this](int id) {
        const RECT area = AreaOf(zentar_->Control(id));
        return area.bottom - area.top;
    };
    EXPECT_SOON(height(IDC_lstMods), mods.bottom - mods.top + 100);
    EXPECT_SOON(height(IDC_lstDemos), demos.bottom - demos.top + 100);
    const RECT grown = AreaOf(zentar_->Control(IDC_lstDemos));
    EXPECT_EQ(grown.right - grown.left, demos.right - demos.left + 120);
}

TEST_F(Layout, TheWindowDoesNotShrinkBelowItsControls) {
    const RECT before = AreaOf(zentar_->Main());
    SetWindowPos(zentar_->Main(), nullptr, 0, 0, 200, 150, SWP_NOMOVE | SWP_NOZORDER);
    zentar_->Settle();
    const RECT after = AreaOf(zentar_->Main());
    EXPECT_EQ(after.right - after.left, before.right - before.left);
    EXPECT_EQ(after.bottom - after.top, before.bottom - before.top);
}

}  // namespace
}  // namespace zentar::window_tests
