// The full-size viewer.
#include <gtest/gtest.h>

#include "tests/window/screen_picture.h"
#include "tests/window/shots_fixture.h"
#include "tests/window/user_input.h"
#include "tests/window/waiting.h"
#include "tests/window/windows_of.h"
#include "ui/resource.h"

namespace zentar::window_tests {
namespace {

class FullViewWindow : public ShotsWindowTest {
  protected:
    // Shows a shot and opens the viewer by a click on it.
    HWND OpenViewer(const std::string& shot, int hall) {
        Open();
        View(shot, hall);
        return OpenAgain();
    }

    HWND OpenAgain() const {
        zentar_->ClickOn(IDC_imgShotView);
        const HWND viewer = zentar_->WaitForForm("Zentar - Screenshot");
        zentar_->Settle();
        return viewer;
    }

    static SIZE Screen() { return {GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)}; }

    // The pixel beside the cross-hair of a hall whose picture stands there.
    static COLORREF BesideCrossHair(POINT middle) {
        return PixelAt({middle.x + 10, middle.y + 10});
    }
};

TEST_F(FullViewWindow, CoversTheScreenWithTheShotInItsMiddle) {
    const HWND viewer = OpenViewer("quake00.tga", 0);
    const SIZE screen = Screen();
    const RECT whole{0, 0, screen.cx, screen.cy};
    EXPECT_TRUE(Eventually([&] {
        RECT area{};
        GetWindowRect(viewer, &area);
        return EqualRect(&area, &whole) != FALSE;
    }));
    EXPECT_SOON(IsGateOf(0, BesideCrossHair({screen.cx / 2, screen.cy / 2})), true);
    const LONG left = (screen.cx - 640) / 2;
    EXPECT_SOON(PixelAt({left - 1, screen.cy / 2}), RGB(0, 0, 0));
    EXPECT_SOON(PixelAt({left + 1, screen.cy / 2 + 3}) != RGB(0, 0, 0), true);
    EXPECT_SOON(PixelAt({left + 638, screen.cy / 2 + 3}) != RGB(0, 0, 0), true);
    EXPECT_SOON(PixelAt({left + 640, screen.cy / 2}), RGB(0, 0, 0));
    // It does not follow the mouse.
    HoldButton({screen.cx / 2, screen.cy / 2});
    MovePointer({screen.cx / 2 + 100, screen.cy / 2 + 60});
    zentar_->Settle();
    ReleaseButton();
    zentar_->Settle();
    EXPECT_SOON(IsGateOf(0, BesideCrossHair({screen.cx / 2, screen.cy / 2})), true);
    EXPECT_SOON(PixelAt({left - 1, screen.cy / 2}), RGB(0, 0, 0));
}

TEST_F(FullViewWindow, ClosesByKeysDoubleClickAndRightButton) {
    HWND viewer = OpenViewer("quake00.tga", 0);
    for (const int key : {VK_SPACE, VK_ESCAPE, VK_RETURN}) {
        zentar_->PressKey('X');
        EXPECT_TRUE(IsWindowVisible(viewer));
        zentar_->LeaveBy(static_cast<WORD>(key), viewer);
        viewer = OpenAgain();
    }
    DoubleClick(CentreOf(viewer));
    zentar_->WaitUntilLeft(viewer);
    viewer = OpenAgain();
    Click(CentreOf(viewer), MouseButton::Right);
    zentar_->WaitUntilLeft(viewer);
    // The list opens it, too, and has the keyboard again afterwards.
    ClickShot("quake00.tga");
    viewer = zentar_->OpenForm(VK_RETURN, "Zentar - Screenshot");
    zentar_->LeaveBy(VK_ESCAPE, viewer);
    EXPECT_TRUE(zentar_->GetsFocus(IDC_lstScreenshots));
}

TEST_F(FullViewWindow, ALargerShotIsDraggedUpToItsEdges) {
    const HWND viewer = OpenViewer("wide.tga", 5);
    const SIZE screen = Screen();
    const SIZE shot{2560, 1440};
    ASSERT_LT(screen.cx, shot.cx);
    POINT middle{screen.cx / 2, screen.cy / 2};
    EXPECT_SOON(IsGateOf(5, BesideCrossHair(middle)), true);
    // A mark of the picture: its cross-hair, which is white.
    EXPECT_SOON(PixelAt(middle), RGB(255, 255, 255));
    HoldButton(middle);
    for (int step = 1; step <= 5; ++step) {
        MovePointer({middle.x - 20 * step, middle.y - 10 * step});
        zentar_->Settle();
    }
    middle = {middle.x - 100, middle.y - 50};
    EXPECT_SOON(PixelAt(middle), RGB(255, 255, 255));
    // Far beyond the right lower edge: there it stops.
    MovePointer({5, 5});
    zentar_->Settle();
    ReleaseButton();
    const POINT atEdge{screen.cx - shot.cx / 2, screen.cy - shot.cy / 2};
    const POINT reached{std::max<LONG>(middle.x - (screen.cx / 2 - 100 - 5), atEdge.x),
                        std::max<LONG>(middle.y - (screen.cy / 2 - 50 - 5), atEdge.y)};
    EXPECT_SOON(PixelAt(reached), RGB(255, 255, 255));
    // The right button closes it in the middle of a drag.
    HoldButton({screen.cx / 2, screen.cy / 2});
    Click({screen.cx / 2, screen.cy / 2}, MouseButton::Right);
    zentar_->WaitUntilLeft(viewer);
    ReleaseButton();
}

TEST_F(FullViewWindow, ArrowKeysMoveALargerShotForAsLongAsTheyAreHeld) {
    const HWND viewer = OpenViewer("wide.tga", 5);
    const SIZE screen = Screen();
    zentar_->PressKey(VK_RIGHT);
    zentar_->RepeatKey(VK_RIGHT);
    zentar_->PressKey(VK_DOWN);
    const POINT middle{screen.cx / 2 - 4 * 64, screen.cy / 2 - 64};
    EXPECT_SOON(PixelAt(middle), RGB(255, 255, 255));
    EXPECT_SOON(IsGateOf(5, BesideCrossHair(middle)), true);
    zentar_->LeaveBy(VK_ESCAPE, viewer);
}

}  // namespace
}  // namespace zentar::window_tests
