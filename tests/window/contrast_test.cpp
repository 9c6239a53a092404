// Whether every caption can be read in the colours of a user who needs white on black.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <memory>
#include <span>

#include "tests/window/screen_picture.h"
#include "tests/window/user_input.h"
#include "tests/window/waiting.h"
#include "tests/window/windows_of.h"
#include "tests/window/zentar_driver.h"
#include "ui/resource.h"

namespace zentar::window_tests {
namespace {

constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kGreen = RGB(63, 242, 63);
constexpr COLORREF kCyan = RGB(26, 235, 255);
constexpr COLORREF kGrey = RGB(128, 128, 128);

struct ColourOf {
    int element;
    COLORREF colour;
};

// As in the black scheme of Windows.
constexpr std::array<ColourOf, 13> kBlackScheme{{{COLOR_WINDOW, 0},
                                                 {COLOR_WINDOWTEXT, kWhite},
                                                 {COLOR_BTNFACE, 0},
                                                 {COLOR_BTNTEXT, kWhite},
                                                 {COLOR_BTNSHADOW, kGrey},
                                                 {COLOR_GRAYTEXT, kGreen},
                                                 {COLOR_HIGHLIGHT, kCyan},
                                                 {COLOR_HIGHLIGHTTEXT, 0},
                                                 {COLOR_MENU, 0},
                                                 {COLOR_MENUBAR, 0},
                                                 {COLOR_MENUTEXT, kWhite},
                                                 {COLOR_INFOBK, 0},
                                                 {COLOR_INFOTEXT, kWhite}}};

// Programs that start meanwhile find other colours.
class BlackScheme {
  public:
    BlackScheme() {
        for (const ColourOf& each : kBlackScheme) {
            before_.push_back({each.element, GetSysColor(each.element)});
        }
        Set(kBlackScheme);
    }
    ~BlackScheme() { Set(before_); }
    BlackScheme(const BlackScheme&) = delete;
    BlackScheme& operator=(const BlackScheme&) = delete;

  private:
    static void Set(std::span<const ColourOf> colours) {
        std::vector<INT> elements;
        std::vector<COLORREF> values;
        for (const ColourOf& each : colours) {
            elements.push_back(each.element);
            values.push_back(each.colour);
        }
        SetSysColors(static_cast<int>(elements.size()), elements.data(), values.data());
    }

    std::vector<ColourOf> before_;
};

// The brightness that the eye sees, from 0 to 1.
double Luminance(COLORREF colour) {
    const auto linear = [](int channel) {
        const double part = channel / 255.0;
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(GetRValue(colour)) + 0.7152 * linear(GetGValue(colour)) +
           0.0722 * linear(GetBValue(colour));
}

// From 1 for the same brightness to 21 for black and white.
double Contrast(COLORREF one, COLORREF other) {
    const auto [darker, brighter] = std::minmax(Luminance(one), Luminance(other));
    return (brighter + 0.05) / (darker + 0.05);
}

// Of the text in a part of a window: of whatever stands out most from the colour that fills it.
double ContrastIn(HWND window, const RECT& part) {
    RECT area{};
    GetWindowRect(window, &area);
    const LONG width = area.right - area.left;
    const LONG height = area.bottom - area.top;
    const std::vector<RGBQUAD> pixels = PixelsOf(window);
    if (pixels.size() != static_cast<std::size_t>(width) * static_cast<std::size_t>(height)) {
        return 1;  // another size by now
    }
    std::map<COLORREF, int> counts;
    for (LONG y = part.top; y < part.bottom; ++y) {
        for (LONG x = part.left; x < part.right; ++x) {
            const RGBQUAD& pixel = pixels[static_cast<std::size_t>(y * width + x)];
            ++counts[RGB(pixel.rgbRed, pixel.rgbGreen, pixel.rgbBlue)];
        }
    }
    const auto behind =
        std::max_element(counts.begin(), counts.end(),
                         [](const auto& a, const auto& b) { return a.second < b.second; });
    double highest = 1;
    for (const auto& [colour, count] : counts) {
        highest = std::max(highest, Contrast(colour, behind->first));
    }
    return highest;
}

// The screen shows a moment later what the program has drawn.
bool HasContrast(HWND window, const RECT& part, double least) {
    return Eventually([&] { return ContrastIn(window, part) >= least; });
}

class HighContrast : public testing::Test {
  protected:
    HighContrast() {
        home_.WriteIni({"Player1Name=Fred", "Player2Name=Bob", "Player2Colour=128",
                        "TranscriptBackground=12648447"});
        zentar_ = std::make_unique<ZentarDriver>(home_);
    }

    // Where a control's text stands: beside its mark, inside its edge.
    static RECT TextPart(HWND control) {
        constexpr int kEdge = 4;
        constexpr int kMark = 18;
        RECT part{};
        GetWindowRect(control, &part);
        OffsetRect(&part, -part.left, -part.top);
        const LONG kind = GetWindowLongW(control, GWL_STYLE) & BS_TYPEMASK;
        const bool marked = kind == BS_AUTOCHECKBOX || kind == BS_AUTORADIOBUTTON;
        if (ClassOf(control) == "Button" && marked) {
            part.left = MulDiv(kMark, static_cast<int>(GetDpiForSystem()), 96);
        } else if (ClassOf(control) != "Static") {
            InflateRect(&part, -kEdge, -kEdge);
        }
        return part;
    }

    static bool ShowsText(HWND control) {
        const std::string kind = ClassOf(control);
        const bool known = kind == "Static" || kind == "Button" || kind == "Edit";
        return known && IsWindowVisible(control) && !TextOf(control).empty();
    }

    void ExpectReadable(HWND window) const {
        zentar_->Settle();
        for (const HWND control : Descendants(window)) {
            // The theme of buttons that take no input is the system's own affair.
            if (ShowsText(control) && (IsUsable(control) || ClassOf(control) == "Static")) {
                EXPECT_TRUE(HasContrast(control, TextPart(control), 3)) << TextOf(control);
            }
        }
    }

    // The caption stands on the upper line of the frame's edge, which is but grey.
    void ExpectReadableFrame(int id) const {
        constexpr RECT kFirstLetters = {8, 0, 60, 13};
        EXPECT_TRUE(HasContrast(zentar_->Control(id), kFirstLetters, 8))
            << TextOf(zentar_->Control(id));
    }

    const BlackScheme scheme_;
    ZentarHome home_;
    std::unique_ptr<ZentarDriver> zentar_;
};

TEST_F(HighContrast, EveryCaptionOfTheTabsCanBeRead) {
    for (int tab = 0; tab < 5; ++tab) {
        SCOPED_TRACE("tab " + std::to_string(tab));
        zentar_->ShowTab(tab);
        ExpectReadable(zentar_->Main());
    }
    zentar_->ShowTab(kMiscTab);
    ExpectReadableFrame(IDC_fraChat);
    zentar_->ShowTab(kDemosTab);
    ExpectReadableFrame(IDC_fraDemos);
    ExpectReadableFrame(IDC_fraDemoProperties);
}

TEST_F(HighContrast, EveryCaptionOfTheOtherWindowsCanBeRead) {
    ExpectReadable(zentar_->OpenForm(VK_F1, "Zentar Help"));
    zentar_->LeaveBy(VK_ESCAPE, zentar_->WaitForForm("Zentar Help"));
    zentar_->ShowTab(kDemosTab);
    zentar_->ClickItem(IDC_lstDemos, "edge final");
    ExpectReadable(zentar_->Main());
    const HWND rename = zentar_->OpenForm(VK_F2, "Rename Demo");
    ExpectReadable(rename);
    zentar_->LeaveBy(VK_ESCAPE, rename);
    zentar_->OpenMenuEntry('P', 'P');
    ExpectReadable(zentar_->WaitForForm("Preferences"));
}

// The yellow behind the names is the user's own; the system's text colour is not made for it.
TEST_F(HighContrast, ANameWithoutAColourCanBeReadOnTheUsersBackground) {
    zentar_->ShowTab(kMiscTab);
    const HWND box = zentar_->Control(IDC_txtPlayer1);
    RECT area{};
    GetWindowRect(box, &area);
    EXPECT_SOON(PixelAt({area.right - 5, area.bottom - 5}), COLORREF{12648447});
    EXPECT_TRUE(HasContrast(box, TextPart(box), 8));
}

}  // namespace
}  // namespace zentar::window_tests
