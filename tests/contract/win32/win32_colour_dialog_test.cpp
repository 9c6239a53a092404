// What the user sees of the dialog for colours, and what comes of it.
#include <windows.h>

#include <colordlg.h>

#include <functional>
#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "platform/window_services.h"
#include "tests/contract/win32/system_dialog.h"
#include "tests/contract/win32/the_platform.h"
#include "tests/contract/win32/win32_user.h"

namespace zentar {
namespace {

// The dialog's own.
const std::string kTitle = "Color";
constexpr int kBasicColours = COLOR_BOX1;
constexpr int kMixedColours = COLOR_CUSTOM1;
constexpr int kAddToMixed = COLOR_ADD;
constexpr int kColoursARow = 8;

constexpr ColourRef kBrown = 0x3060A0;
constexpr ColourRef kRed = 0x0000FF;

std::optional<ColourRef> Choose(ColourRef shown, const DialogSteps& steps) {
    const DialogUser user(steps);
    const auto colour = ThePlatform().Services().windows.ChooseColour(shown);
    EXPECT_EQ(FindDialog(kTitle), nullptr) << "the dialog is still there";
    return colour;
}

std::function<bool()> Press(int button) { return ClickButton(kTitle, button); }

std::function<bool()> Type(int textBox, const std::string& text) {
    return TypeInto(kTitle, textBox, text);
}

// Clicks on the middle of a coloured square.
std::function<bool()> ClickSquare(int box, int rows, int column, int row) {
    return [=] {
        const HWND dialog = FindDialog(kTitle);
        if (dialog == nullptr)
            return false;
        RECT area{};
        GetWindowRect(GetDlgItem(dialog, box), &area);
        MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&area), 2);
        const LONG width = (area.right - area.left) / kColoursARow;
        const LONG height = (area.bottom - area.top) / rows;
        PostClick(dialog,
                  {area.left + column * width + width / 2, area.top + row * height + height / 2});
        return true;
    };
}

std::function<bool()> ClickBasic(int column, int row) {
    return ClickSquare(kBasicColours, 6, column, row);
}

}  // namespace

TEST(Win32ColourDialog, ShowsTheColourAndOkGivesIt) {
    const auto look = [] {
        const HWND dialog = FindDialog(kTitle);
        if (dialog == nullptr)
            return false;
        EXPECT_EQ(TextOf(GetDlgItem(dialog, COLOR_RED)), "160");
        EXPECT_EQ(TextOf(GetDlgItem(dialog, COLOR_GREEN)), "96");
        EXPECT_EQ(TextOf(GetDlgItem(dialog, COLOR_BLUE)), "48");
        EXPECT_TRUE(MouseReaches(GetDlgItem(dialog, COLOR_RED)));
        return true;
    };
    EXPECT_EQ(Choose(kBrown, {look, Press(IDOK)}), kBrown);
    EXPECT_EQ(Choose(kWhite, {Press(IDOK)}), kWhite);
    EXPECT_EQ(Choose(0, {PressKeyIn(kTitle, COLOR_RED, VK_RETURN)}), 0U);
}

TEST(Win32ColourDialog, ABasicColourIsPickedWithAClick) {
    EXPECT_EQ(Choose(kBrown, {ClickBasic(0, 1), Press(IDOK)}), kRed);
    EXPECT_EQ(Choose(kBrown, {ClickBasic(7, 5), Press(IDOK)}), kWhite);
    EXPECT_EQ(Choose(kBrown, {ClickBasic(0, 5), Press(IDOK)}), 0U);
}

TEST(Win32ColourDialog, ColoursAreMixedByNumber) {
    EXPECT_EQ(Choose(0, {Type(COLOR_RED, "17"), Type(COLOR_GREEN, "34"), Type(COLOR_BLUE, "255"),
                         Press(IDOK)}),
              0xFF2211U);
}

TEST(Win32ColourDialog, CancellingGivesNothing) {
    EXPECT_EQ(Choose(kBrown, {ClickBasic(0, 1), Press(IDCANCEL)}), std::nullopt);
    EXPECT_EQ(Choose(kBrown, {PressKeyIn(kTitle, COLOR_RED, VK_ESCAPE)}), std::nullopt);
}

TEST(Win32ColourDialog, AColourThatWasMixedIsOfferedAgain) {
    EXPECT_EQ(Choose(kBrown, {Press(kAddToMixed), Press(IDOK)}), kBrown);
    EXPECT_EQ(Choose(kRed, {ClickSquare(kMixedColours, 2, 0, 0), Press(IDOK)}), kBrown);
}

}  // namespace zentar
