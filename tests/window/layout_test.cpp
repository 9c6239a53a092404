// What the user can see of the windows at the screen's resolution and at other window sizes.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "tests/window/user_input.h"
#include "tests/window/waiting.h"
#include "tests/window/windows_of.h"
#include "tests/window/zentar_driver.h"
#include "ui/resource.h"

namespace zentar::window_tests {
namespace {

// In dots per inch: those that Windows offers of its own accord, from the screen's own on. To a
// lower one the marks of check boxes and option buttons do not shrink before the user logs on anew.
// The last is too high for the main window to fit on any usual screen in full size.
std::vector<int> Resolutions() {
    std::vector<int> resolutions = {96, 120, 144, 192, 384};
    const auto own = static_cast<int>(GetDpiForSystem());
    std::erase_if(resolutions, [own](int dpi) { return dpi < own; });
    return resolutions;
}

using Lines = std::vector<std::string>;

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

    void ExpectWholeCaptions(HWND window) const { EXPECT_SOON(CutCaptions(window), Lines{}); }

    Lines CutCaptions(HWND window) const {
        Lines cut;
        for (const HWND control : Descendants(window)) {
            if (HasCaption(control) && IsWindowVisible(control)) {
                const RECT area = AreaOf(control);
                const SIZE needed = zentar_->CaptionSize(control);
                if (needed.cx > area.right - area.left || needed.cy > area.bottom - area.top) {
                    cut.push_back(TextOf(control));
                }
            }
        }
        return cut;
    }

    static RECT InsideOf(HWND window) {
        RECT client{};
        GetClientRect(window, &client);
        MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&client), 2);
        return client;
    }

    static std::string NameOf(HWND control) {
        return ClassOf(control) + " " + std::to_string(GetDlgCtrlID(control)) + " \"" +
               TextOf(control) + "\"";
    }

    struct Place {
        HWND control;
        HWND parent;
        RECT area;
    };

    static std::vector<Place> VisiblePlaces(HWND window) {
        std::vector<Place> places;
        for (const HWND control : Descendants(window)) {
            if (IsWindowVisible(control)) {
                places.push_back({control, GetParent(control), AreaOf(control)});
            }
        }
        return places;
    }

    // Every control stands inside its parent, and beside the others in it. A look at a window that
    // is just being moved finds them elsewhere.
    static void ExpectEachInItsPlace(HWND window) { EXPECT_SOON(Misplaced(window), Lines{}); }

    static Lines Misplaced(HWND window) {
        Lines faults;
        const std::vector<Place> places = VisiblePlaces(window);
        for (auto one = places.begin(); one != places.end(); ++one) {
            const RECT around = InsideOf(one->parent);
            if (one->area.left < around.left || one->area.top < around.top ||
                one->area.right > around.right || one->area.bottom > around.bottom) {
                faults.push_back(NameOf(one->control) + " sticks out");
            }
            for (auto other = one + 1; other != places.end(); ++other) {
                RECT common{};
                if (one->parent == other->parent &&
                    IntersectRect(&common, &one->area, &other->area)) {
                    faults.push_back(NameOf(one->control) + " covers " + NameOf(other->control));
                }
            }
        }
        return faults;
    }

    void ExpectTidyTabs() const {
        for (int tab = 0; tab < 5; ++tab) {
            SCOPED_TRACE("tab " + std::to_string(tab));
            zentar_->ShowTab(tab);
            ExpectWholeCaptions(zentar_->Main());
            ExpectEachInItsPlace(zentar_->Main());
        }
    }

    void ExpectTidyAtEveryResolution(HWND window) const {
        for (const int dpi : Resolutions()) {
            SCOPED_TRACE(std::to_string(dpi) + " dpi");
            zentar_->ChangeDpi(window, dpi);
            zentar_->Settle();
            ExpectWholeCaptions(window);
            ExpectEachInItsPlace(window);
        }
    }

    void Maximise() const {
        ShowWindow(zentar_->Main(), SW_MAXIMIZE);
        EXPECT_SOON(IsZoomed(zentar_->Main()) != FALSE, true);
        zentar_->Settle();
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
    const HWND preferences = zentar_->WaitForForm("Preferences");
    zentar_->Settle();
    ExpectWholeCaptions(preferences);
}

TEST_F(Layout, EveryControlOfTheTabsHasItsPlaceAtEveryResolution) {
    for (const int dpi : Resolutions()) {
        SCOPED_TRACE(std::to_string(dpi) + " dpi");
        zentar_->ChangeDpi(zentar_->Main(), dpi);
        zentar_->Settle();
        ExpectTidyTabs();
    }
}

TEST_F(Layout, EveryControlOfTheTabsHasItsPlaceInALargeWindow) {
    Maximise();
    ExpectTidyTabs();
}

TEST_F(Layout, EveryControlOfTheOtherWindowsHasItsPlaceAtEveryResolution) {
    const HWND help = zentar_->OpenForm(VK_F1, "Zentar Help");
    zentar_->Settle();
    ExpectTidyAtEveryResolution(help);
    zentar_->LeaveBy(VK_ESCAPE, help);
    zentar_->OpenMenuEntry('P', 'P');
    const HWND preferences = zentar_->WaitForForm("Preferences");
    zentar_->Settle();
    ExpectTidyAtEveryResolution(preferences);
}

TEST_F(Layout, APromptHasRoomForItsLinesAndNoMore) {
    zentar_->ShowTab(kFirstAidTab);
    zentar_->ClickItem(IDC_lstSymptoms, "[ALL] Logitech mousewheel binds aren't working.");
    zentar_->ClickOn(IDC_cmdRemedy2);
    const HWND setting = zentar_->WaitForForm("Change Logitech Setting");
    zentar_->Settle();
    const HWND prompt = FindWindowExW(setting, nullptr, L"Static", nullptr);
    const RECT area = AreaOf(prompt);
    const LONG needed = zentar_->CaptionSize(prompt).cy;
    constexpr LONG kLines = 6;
    EXPECT_LT(area.bottom - area.top - needed, 2 * needed / kLines) << "two lines stay empty";
    ExpectTidyAtEveryResolution(setting);
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
    const auto width = [this](int id) {
        const RECT area = AreaOf(zentar_->Control(id));
        return area.right - area.left;
    };
    EXPECT_SOON(width(IDC_lstDemos), demos.right - demos.left + 120);
}

TEST_F(Layout, TheWindowDoesNotShrinkBelowItsControls) {
    const RECT before = AreaOf(zentar_->Main());
    SetWindowPos(zentar_->Main(), nullptr, 0, 0, 200, 150, SWP_NOMOVE | SWP_NOZORDER);
    zentar_->Settle();
    const auto size = [this] {
        const RECT area = AreaOf(zentar_->Main());
        return std::pair(area.right - area.left, area.bottom - area.top);
    };
    EXPECT_SOON(size(), std::pair(before.right - before.left, before.bottom - before.top));
}

}  // namespace
}  // namespace zentar::window_tests
