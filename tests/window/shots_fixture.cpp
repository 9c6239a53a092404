#include "tests/window/shots_fixture.h"

#include <cstdlib>

#include "platform/win32/win32_text.h"
#include "tests/window/screen_picture.h"
#include "tests/window/user_input.h"
#include "tests/window/waiting.h"
#include "ui/resource.h"

namespace zentar::window_tests {

namespace fs = std::filesystem;

bool IsGateOf(int hall, COLORREF colour) {
    constexpr int kNear = 30;
    return std::abs(GetRValue(colour) - 200) <= kNear &&
           std::abs(GetGValue(colour) - (90 + 20 * (hall % 4))) <= kNear &&
           std::abs(GetBValue(colour) - 20) <= kNear;
}

fs::path ShotsWindowTest::Shots() const { return home_.Games() / "Quake2" / "baseq2" / "scrnshot"; }

bool ShotsWindowTest::IsHere(const std::string& file) const {
    return fs::exists(Shots() / Widen(file));
}

void ShotsWindowTest::ClickShot(const std::string& shot) const {
    zentar_->ClickItem(IDC_lstScreenshots, shot);
}

void ShotsWindowTest::Choose(const std::string& shot, int command) const {
    zentar_->ChooseCommand(IDC_lstScreenshots, shot, command);
}

// Beside the cross-hair in the middle.
bool ShotsWindowTest::ViewShowsHall(int hall) const {
    POINT place = CentreOf(zentar_->Control(IDC_imgShotView));
    place.x += 14;
    place.y += 7;
    return IsGateOf(hall, PixelAt(place));
}

// Then it looks as the page does beside it.
bool ShotsWindowTest::ViewIsEmpty() const {
    constexpr int kBeside = 5;
    RECT area{};
    GetWindowRect(zentar_->Control(IDC_imgShotView), &area);
    return PixelAt(CentreOf(zentar_->Control(IDC_imgShotView))) ==
           PixelAt({area.left - kBeside, area.top + kBeside});
}

void ShotsWindowTest::View(const std::string& shot, int hall) const {
    ClickShot(shot);
    EXPECT_SOON(zentar_->Selected(IDC_lstScreenshots), shot + " *");
    EXPECT_SOON(ViewShowsHall(hall), true);
    zentar_->Settle();
}

bool ShotsWindowTest::CaptionIsRed() const {
    constexpr int kSomeLetters = 10;
    return CountPixels(zentar_->Control(IDC_optModePreview), RGB(255, 0, 0)) > kSomeLetters;
}

}  // namespace zentar::window_tests
