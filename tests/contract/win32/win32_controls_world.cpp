// The controls contract, kept by the windows of Windows.
#include <windows.h>

#include <commctrl.h>
#include <richedit.h>

#include <algorithm>
#include <chrono>
#include <map>

#include "platform/rtf/rtf_writer.h"
#include "platform/win32/win32_bitmap.h"
#include "platform/win32/win32_handle.h"
#include "tests/contract/controls_contract.h"
#include "tests/contract/full_screen_contract.h"
#include "tests/contract/win32/clipboard_content.h"
#include "tests/contract/win32/the_platform.h"
#include "tests/contract/win32/win32_user.h"

namespace zentar {
namespace {

using Clock = std::chrono::steady_clock;

WPARAM VirtualKeyOf(Key key) {
    constexpr WPARAM kKeys[] = {VK_F1,    VK_F2,     VK_F4,    VK_F5,     VK_DELETE,
                                VK_BACK,  VK_RETURN, VK_SPACE, VK_ESCAPE, VK_LEFT,
                                VK_RIGHT, VK_UP,     VK_DOWN};
    return kKeys[static_cast<std::size_t>(key)];
}

// How far a colour is from grey.
int Colourfulness(COLORREF colour) {
    const auto [least, most] =
        std::minmax({GetRValue(colour), GetGValue(colour), GetBValue(colour)});
    return most - least;
}

// Whether what the window shows on its surface is all as grey as that, give or take the rounding.
bool IsGrey(HWND window) {
    const COLORREF surface = GetSysColor(COLOR_BTNFACE);
    RECT client{};
    GetClientRect(window, &client);
    const WindowContext context(window);
    int most = 0;
    bool empty = true;
    for (int y = 0; y < client.bottom; ++y) {
        for (int x = 0; x < client.right; ++x) {
            const COLORREF pixel = GetPixel(context.Get(), x, y);
            most = std::max(most, Colourfulness(pixel));
            empty = empty && pixel == surface;
        }
    }
    EXPECT_FALSE(empty) << "the picture is nowhere to be seen";
    return most <= Colourfulness(surface) + 2;
}

bool ShowsColour(HWND window, COLORREF colour) {
    RECT client{};
    GetClientRect(window, &client);
    const WindowContext context(window);
    for (int y = 0; y < client.bottom; ++y) {
        for (int x = 0; x < client.right; ++x) {
            if (GetPixel(context.Get(), x, y) == colour)
                return true;
        }
    }
    return false;
}

class Win32ControlsWorld : public ControlsWorld {
  public:
    ~Win32ControlsWorld() override { Settle(); }

    std::unique_ptr<Form> Create(const FormTable& table) override {
        std::unique_ptr<Form> form = ThePlatform().Services().forms.Create(table);
        windows_[form.get()] = FindTopWindow(table.caption);
        return form;
    }

    void PumpPending() override { zentar::PumpPending(); }

    void Settle() override { zentar::Settle(); }

    void SettleUntil(Form& /*form*/, int /*timer*/,
                     const std::function<bool()>& condition) override {
        const auto end = Clock::now() + kPatience;
        while (!condition() && Clock::now() < end) {
            MsgWaitForMultipleObjects(0, nullptr, FALSE, kQuietMilliseconds, QS_ALLINPUT);
            PumpPending();
        }
        EXPECT_TRUE(condition());
    }

    void Click(Form& form, int id) override {
        PostClick(Of(form, id), MiddleOf(Of(form, id)));
        Settle();
    }
    void ClickEntry(Form& form, int list, int index) override {
        PostClick(Of(form, list), MiddleOfEntry(Of(form, list), index));
        Settle();
    }
    void DoubleClickEntry(Form& form, int list, int index) override {
        PostDoubleClick(Of(form, list), MiddleOfEntry(Of(form, list), index));
        Settle();
    }
    void RightClickEntry(Form& form, int list, int index) override {
        PostRightClick(Of(form, list), MiddleOfEntry(Of(form, list), index));
        Settle();
    }
    void ClickTab(Form& form, int tab, int index) override {
        RECT rect{};
        SendMessageW(Of(form, tab), TCM_GETITEMRECT, static_cast<WPARAM>(index),
                     reinterpret_cast<LPARAM>(&rect));
        PostClick(Of(form, tab), MiddleOf(rect));
        Settle();
    }
    void Type(Form& /*form*/, std::string_view text) override {
        PostText(GetFocus(), text);
        Settle();
    }
    void Press(Form& /*form*/, Key key) override {
        PostKey(GetFocus(), VirtualKeyOf(key));
        Settle();
    }
    void PickMenu(Form& form, int id) override {
        PostMessageW(Top(form), WM_COMMAND, MAKEWPARAM(id, 0), 0);
        Settle();
    }
    void CloseWindow(Form& form) override {
        PostMessageW(Top(form), WM_SYSCOMMAND, SC_CLOSE, 0);
        Settle();
    }

    void RightClick(Form& form, int id) override {
        PostRightClick(Of(form, id), MiddleOf(Of(form, id)));
        Settle();
    }
    void DoubleClick(Form& form, int id) override {
        PostDoubleClick(Of(form, id), MiddleOf(Of(form, id)));
        Settle();
    }
    void PressMouse(Form& form, int id, MouseButton button, Point at) override {
        PostPress(Of(form, id), button == MouseButton::Left, {at.x, at.y});
        Settle();
    }
    void DragMouse(Form& form, int id, Point to) override {
        PostMove(Of(form, id), {to.x, to.y});
        Settle();
    }
    void ReleaseMouse(Form& form, int id) override {
        PostRelease(Of(form, id), {0, 0});
        Settle();
    }

    void SelectText(Form& form, int rich, int from, int to) override {
        CHARRANGE range{from, to};
        SetFocus(Of(form, rich));
        SendMessageW(Of(form, rich), EM_EXSETSEL, 0, reinterpret_cast<LPARAM>(&range));
        Settle();
    }
    void Paste(Form& form, int rich, const std::vector<ColouredRun>& runs) override {
        ASSERT_TRUE(PutOnClipboard({WriteRtf(runs), {}}));
        PostMessageW(Of(form, rich), WM_PASTE, 0, 0);
        Settle();
    }
    void Undo(Form& form, int rich) override {
        PostMessageW(Of(form, rich), EM_UNDO, 0, 0);
        Settle();
    }

    void PickFromPopup(Form& form, int downs, int /*id*/) override {
        InPopup(form, [downs](HWND top) {
            for (int i = 0; i < downs; ++i)
                PostKey(top, VK_DOWN);
            PostKey(top, VK_RETURN);
        });
    }
    void DismissPopup(Form& form) override {
        InPopup(form, [](HWND top) { PostKey(top, VK_ESCAPE); });
    }
    void InModal(Form& form, std::function<void()> user) override {
        TryMeanwhile("the form", [this, &form, user] {
            if (!Shown(form))
                return false;
            Settle();
            user();
            return true;
        });
    }

    bool TakesInput(Form& form, int id) override { return MouseReaches(Of(form, id)); }
    // Nobody sees what has no window.
    bool Seen(Form& form, int id) override {
        const HWND control = SearchControlWindow(Top(form), id);
        return control != nullptr && IsWindowVisible(control) != FALSE;
    }
    bool Shown(Form& form) override { return IsWindowVisible(Top(form)) != FALSE; }

    bool ShownGrey(Form& form, int picture) override {
        Settle();
        return IsGrey(Of(form, picture));
    }
    bool Shows(Form& form, int textBox, ColourRef colour) override {
        Settle();
        return ShowsColour(Of(form, textBox), colour);
    }
    std::string Tooltip(Form& form, int id) override {
        PostMove(Of(form, id), {1, 1});
        Settle();
        return TooltipOf(Top(form), Of(form, id));
    }

    int FirstShown(Form& form, int list) override {
        return static_cast<int>(SendMessageW(Of(form, list), LB_GETTOPINDEX, 0, 0));
    }

    int TopTwips(Form& form, int id) override {
        const HWND control = Of(form, id);
        RECT rect{};
        GetWindowRect(control, &rect);
        POINT corner{rect.left, rect.top};
        ScreenToClient(GetParent(control), &corner);
        const auto dpi = static_cast<int>(GetDpiForWindow(control));
        return MulDiv(corner.y, 96 * 15, dpi);
    }

    BitmapPtr MakeBitmap(Size size) override { return Win32Bitmap::Make(size); }

  private:
    HWND Top(Form& form) const { return windows_.at(&form); }
    HWND Of(Form& form, int id) const { return FindControlWindow(Top(form), id); }

    void InPopup(Form& form, std::function<void(HWND)> keys) {
        TryMeanwhile("the popup", [top = Top(form), keys] {
            if (FindWindowW(L"#32768", nullptr) == nullptr)
                return false;
            keys(top);
            return true;
        });
    }

    std::map<Form*, HWND> windows_;
};

std::unique_ptr<ControlsWorld> MakeWin32ControlsWorld() {
    return std::make_unique<Win32ControlsWorld>();
}

const auto kWin32 = testing::Values(&MakeWin32ControlsWorld);

}  // namespace

INSTANTIATE_TEST_SUITE_P(Win32, ButtonsContract, kWin32);
INSTANTIATE_TEST_SUITE_P(Win32, TextAndListContract, kWin32);
INSTANTIATE_TEST_SUITE_P(Win32, FocusContract, kWin32);
INSTANTIATE_TEST_SUITE_P(Win32, FormContract, kWin32);
INSTANTIATE_TEST_SUITE_P(Win32, LooksContract, kWin32);
INSTANTIATE_TEST_SUITE_P(Win32, ImageControlsContract, kWin32);
INSTANTIATE_TEST_SUITE_P(Win32, TextColourContract, kWin32);
INSTANTIATE_TEST_SUITE_P(Win32, PageBehindContract, kWin32);
INSTANTIATE_TEST_SUITE_P(Win32, RichTextContract, kWin32);
INSTANTIATE_TEST_SUITE_P(Win32, FullScreenContract, kWin32);

}  // namespace zentar
