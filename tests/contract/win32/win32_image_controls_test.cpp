// What controls that show pictures put on the screen, and which pointer stands over them.
#include <windows.h>

#include <uxtheme.h>

#include <optional>
#include <utility>

#include <gtest/gtest.h>

#include "platform/win32/win32_bitmap.h"
#include "tests/contract/controls_contract.h"
#include "tests/contract/win32/picture_files.h"
#include "tests/contract/win32/the_platform.h"
#include "tests/contract/win32/visual_styles.h"
#include "tests/contract/win32/win32_user.h"

namespace zentar {
namespace {

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);

BitmapPtr MakePicture(Size size, const ColourAt& colour) {
    return ThePlatform().Services().pictures.Decode(BmpOf(size, colour));
}

BitmapPtr Plain(Size size, COLORREF colour) {
    return MakePicture(size, [colour](int, int) { return colour; });
}

COLORREF Shown(HWND window, POINT at) {
    const WindowContext context(window);
    return GetPixel(context.Get(), at.x, at.y);
}

// How many pixels of the window look about so.
int Count(HWND window, COLORREF colour) {
    RECT client{};
    GetClientRect(window, &client);
    const WindowContext context(window);
    int count = 0;
    for (int y = 0; y < client.bottom; ++y) {
        for (int x = 0; x < client.right; ++x)
            count += Distance(GetPixel(context.Get(), x, y), colour) < 70 ? 1 : 0;
    }
    return count;
}

HCURSOR PointerOver(HWND window) {
    SendMessageW(window, WM_SETCURSOR, reinterpret_cast<WPARAM>(window),
                 MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    return GetCursor();
}

class Win32ImageControls : public testing::Test {
  protected:
    Win32ImageControls() : form_(ThePlatform().Services().forms.Create(ContractMainTable())) {
        form_->Show();
        Settle();
    }
    ~Win32ImageControls() override {
        form_.reset();
        Settle();
    }
    Win32ImageControls(const Win32ImageControls&) = delete;
    Win32ImageControls& operator=(const Win32ImageControls&) = delete;

    Form& Main() { return *form_; }
    static HWND Control(int id) {
        return FindControlWindow(FindTopWindow(ContractMainTable().caption), id);
    }

  private:
    std::unique_ptr<Form> form_;
};

// Runs a step while the full screen window stands.
void OnFullScreen(Form& form, const std::function<void(HWND box)>& step) {
    bool came = false;
    TryMeanwhile("the full screen", [&] {
        const HWND top = FindTopWindow(ContractFullScreenTable().caption);
        if (!IsWindowVisible(top))
            return false;
        Settle();
        step(FindControlWindow(top, kFullPicture));
        came = true;
        PostMessageW(top, WM_CLOSE, 0, 0);
        return true;
    });
    form.ShowModal();
    EXPECT_TRUE(came);
}

}  // namespace

TEST_F(Win32ImageControls, APictureFitsIntoItsBoxWithItsProportions) {
    const HWND box = Control(kImage);
    RECT client{};
    GetClientRect(box, &client);
    const POINT middle = MiddleOf(box);
    const LONG right = client.right - 3;
    const LONG bottom = client.bottom - 3;
    Main().GetImageBox(kImage).SetImage(Plain({1000, 100}, kRed));
    Settle();
    EXPECT_EQ(Shown(box, middle), kRed);
    EXPECT_EQ(Shown(box, {2, middle.y}), kRed);
    EXPECT_EQ(Shown(box, {right, middle.y}), kRed);
    EXPECT_NE(Shown(box, {middle.x, 3}), kRed);
    EXPECT_NE(Shown(box, {middle.x, bottom}), kRed);
    Main().GetImageBox(kImage).SetImage(Plain({3, 20}, kBlue));
    Settle();
    EXPECT_EQ(Shown(box, middle), kBlue);
    EXPECT_EQ(Shown(box, {middle.x, 2}), kBlue);
    EXPECT_EQ(Shown(box, {middle.x, bottom}), kBlue);
    EXPECT_NE(Shown(box, {3, middle.y}), kBlue);
    EXPECT_EQ(Count(box, kRed), 0);
    Main().GetImageBox(kImage).SetImage(nullptr);
    Settle();
    EXPECT_EQ(Count(box, kBlue), 0);
}

TEST_F(Win32ImageControls, APictureIsTheRightWayUpAndRound) {
    const auto quarters = [](int x, int y) -> COLORREF {
        if (y < 30)
            return x < 60 ? kRed : kBlue;
        return x < 60 ? kBlack : RGB(255, 255, 0);
    };
    const HWND box = Control(kImage);
    RECT client{};
    GetClientRect(box, &client);
    Main().GetImageBox(kImage).SetImage(MakePicture({120, 60}, quarters));
    Settle();
    EXPECT_EQ(Shown(box, {client.right / 4, client.bottom / 4}), kRed);
    EXPECT_EQ(Shown(box, {client.right * 3 / 4, client.bottom / 4}), kBlue);
    EXPECT_EQ(Shown(box, {client.right / 4, client.bottom * 3 / 4}), kBlack);
    EXPECT_EQ(Shown(box, {client.right * 3 / 4, client.bottom * 3 / 4}), RGB(255, 255, 0));
}

TEST_F(Win32ImageControls, AButtonThatWentDownOrCameUpElsewhereIsNoClick) {
    int clicks = 0;
    ControlEvents events;
    events.click = [&clicks] { ++clicks; };
    Main().GetImageBox(kImage).SetEvents(events);
    const HWND box = Control(kImage);
    PostRelease(box, {5, 5});
    Settle();
    EXPECT_EQ(clicks, 0);
    PostPress(box, true, {5, 5});
    PostRelease(box, {-5, 5});
    PostRelease(box, {5, 5});
    Settle();
    EXPECT_EQ(clicks, 0);
    PostPress(box, true, {5, 5});
    PostRelease(box, {9, 9});
    Settle();
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(Win32ImageControls, TheCustomPointerStandsOverThePictureUnlessTheProgramIsAtWork) {
    const HWND box = Control(kImage);
    const HCURSOR arrow = PointerOver(box);
    Main().GetImageBox(kImage).SetPointer(BoxPointer::Custom);
    const HCURSOR custom = PointerOver(box);
    EXPECT_NE(custom, arrow);
    WindowServices& windows = ThePlatform().Services().windows;
    windows.SetPointer(Pointer::Hourglass);
    EXPECT_EQ(PointerOver(box), LoadCursorW(nullptr, IDC_WAIT));
    windows.SetPointer(Pointer::Default);
    EXPECT_EQ(PointerOver(box), custom);
    Main().GetImageBox(kImage).SetPointer(BoxPointer::Default);
    EXPECT_EQ(PointerOver(box), arrow);
}

TEST_F(Win32ImageControls, TheBoxesGiveTheirBitmapsBack) {
    const std::unique_ptr<Form> full =
        ThePlatform().Services().forms.Create(ContractFullScreenTable());
    const int bitmaps = UniqueBitmap::Live();
    const int contexts = UniqueMemoryContext::Live();
    for (int i = 0; i < 3; ++i) {
        const BitmapPtr picture = Plain({3000, 50}, kRed);
        Main().GetImageBox(kImage).SetImage(picture);
        full->GetPictureBox(kFullPicture).SetImage(picture);
        OnFullScreen(*full, [](HWND box) { EXPECT_GT(Count(box, kRed), 0); });
    }
    Main().GetImageBox(kImage).SetImage(nullptr);
    full->GetPictureBox(kFullPicture).SetImage(nullptr);
    EXPECT_EQ(UniqueBitmap::Live(), bitmaps);
    EXPECT_EQ(UniqueMemoryContext::Live(), contexts);
}

TEST_F(Win32ImageControls, AFullScreenWindowCoversTheScreenOfTheWindowInFront) {
    const std::unique_ptr<Form> full =
        ThePlatform().Services().forms.Create(ContractFullScreenTable());
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    const HWND main = FindTopWindow(ContractMainTable().caption);
    GetMonitorInfoW(MonitorFromWindow(main, MONITOR_DEFAULTTONEAREST), &monitor);
    OnFullScreen(*full, [&](HWND box) {
        RECT window{};
        RECT client{};
        GetWindowRect(GetParent(box), &window);
        GetWindowRect(box, &client);
        EXPECT_TRUE(EqualRect(&window, &monitor.rcMonitor));
        EXPECT_TRUE(EqualRect(&client, &monitor.rcMonitor));
        // The task bar shows no window that belongs to another.
        EXPECT_EQ(GetWindow(GetParent(box), GW_OWNER), main);
        EXPECT_EQ(Shown(box, {0, 0}), kBlack);
    });
}

TEST_F(Win32ImageControls, APictureStandsWhereItIsMovedPixelByPixelOnBlack) {
    const std::unique_ptr<Form> full =
        ThePlatform().Services().forms.Create(ContractFullScreenTable());
    PictureBox& picture = full->GetPictureBox(kFullPicture);
    picture.SetImage(MakePicture({400, 300}, Pattern));
    OnFullScreen(*full, [&picture](HWND window) {
        for (const Point place : {Point{10, 20}, Point{-100, -50}, Point{200, 5}, Point{0, 0}}) {
            picture.MoveImage(place);
            for (const auto& [x, y] : {std::pair{0, 0}, {399, 299}, {0, 299}, {150, 77}}) {
                const POINT at{place.x + x, place.y + y};
                EXPECT_TRUE(at.x < 0 || at.y < 0 || Shown(window, at) == Pattern(x, y));
            }
            EXPECT_EQ(Shown(window, {place.x + 400, place.y + 200}), kBlack);
            EXPECT_EQ(Shown(window, {place.x + 200, place.y + 300}), kBlack);
            EXPECT_TRUE(place.x <= 0 || Shown(window, {place.x - 1, place.y + 100}) == kBlack);
        }
        picture.SetImage(nullptr);
        Settle();
        EXPECT_EQ(Shown(window, {50, 50}), kBlack);
    });
}

TEST_F(Win32ImageControls, TheDragPointerComesAndGoesAtOnceThoughTheMouseIsHeld) {
    const std::unique_ptr<Form> full =
        ThePlatform().Services().forms.Create(ContractFullScreenTable());
    PictureBox& picture = full->GetPictureBox(kFullPicture);
    MouseEvents mouse;
    HCURSOR dragged = nullptr;
    mouse.down = [&](MouseButton, Point) {
        picture.SetPointer(BoxPointer::Custom);
        dragged = GetCursor();
    };
    mouse.up = [&] { picture.SetPointer(BoxPointer::Default); };
    picture.SetMouseEvents(mouse);
    OnFullScreen(*full, [&](HWND box) {
        SetCursorPos(100, 100);
        const HCURSOR arrow = PointerOver(box);
        PostPress(box, true, {100, 100});
        Settle();
        EXPECT_NE(dragged, arrow);
        PostRelease(box, {100, 100});
        Settle();
        EXPECT_EQ(GetCursor(), arrow);
    });
}

// Captions, without visual styles and with them.
class CaptionColours : public testing::TestWithParam<bool> {
  protected:
    CaptionColours() {
        if (GetParam())
            styles_.emplace();
        form_ = ThePlatform().Services().forms.Create(ContractMainTable());
        Option().SetText("Preview.");
        form_->Show();
        Settle();
        EXPECT_EQ(GetWindowTheme(Button()) != nullptr, GetParam());
    }
    ~CaptionColours() override {
        form_.reset();
        Settle();
    }
    CaptionColours(const CaptionColours&) = delete;
    CaptionColours& operator=(const CaptionColours&) = delete;

    OptionButton& Option() { return form_->GetOptionButton(kOptionA); }
    Form& Main() { return *form_; }
    static HWND Button() {
        return FindControlWindow(FindTopWindow(ContractMainTable().caption), kOptionA);
    }
    // Pixels right of the mark that are not those of the surface.
    static int Inked() {
        RECT client{};
        GetClientRect(Button(), &client);
        const WindowContext context(Button());
        const COLORREF surface = GetPixel(context.Get(), client.right - 1, 0);
        int count = 0;
        for (int y = 0; y < client.bottom; ++y) {
            for (int x = client.bottom; x < client.right; ++x)
                count += GetPixel(context.Get(), x, y) != surface ? 1 : 0;
        }
        return count;
    }

  private:
    std::optional<VisualStyles> styles_;
    std::unique_ptr<Form> form_;
};

INSTANTIATE_TEST_SUITE_P(WithAndWithoutStyles, CaptionColours, testing::Bool());

TEST_P(CaptionColours, ARedCaptionIsRedAndAVanishedOneIsNotSeen) {
    Main().GetCheckBox(kCheck).SetFocus();
    Settle();
    const int normal = Inked();
    EXPECT_GT(normal, 10);
    EXPECT_EQ(Count(Button(), kRed), 0);
    Option().SetCaptionColour(CaptionColour::Red);
    Settle();
    EXPECT_GT(Count(Button(), kRed), 5);
    EXPECT_NEAR(Inked(), normal, 4);
    Option().SetCaptionColour(CaptionColour::Vanished);
    Settle();
    EXPECT_EQ(Count(Button(), kRed), 0);
    EXPECT_EQ(Inked(), 0);
    Option().SetCaptionColour(CaptionColour::Normal);
    Settle();
    EXPECT_EQ(Inked(), normal);
}

TEST_P(CaptionColours, ADisabledCaptionIsGreyWhateverItsColour) {
    Option().SetCaptionColour(CaptionColour::Red);
    Option().SetEnabled(false);
    Settle();
    EXPECT_EQ(Count(Button(), kRed), 0);
    EXPECT_GT(Inked(), 10);
    Option().SetEnabled(true);
    Settle();
    EXPECT_GT(Count(Button(), kRed), 5);
}

TEST_P(CaptionColours, TheMarkStillTellsWhichOptionIsSelected) {
    Main().GetCheckBox(kCheck).SetFocus();
    Option().SetCaptionColour(CaptionColour::Vanished);
    Settle();
    const int selected = Count(Button(), kBlack);
    Main().GetOptionButton(kOptionB).SetSelected(true);
    Settle();
    EXPECT_LT(Count(Button(), kBlack), selected);
}

}  // namespace zentar
