// A window that stands beside the main one.
#include <windows.h>

#include "tests/contract/controls_contract.h"
#include "tests/contract/win32/rich_text_user.h"
#include "tests/contract/win32/the_platform.h"
#include "tests/contract/win32/win32_user.h"

namespace zentar {
namespace {

const FormTable& CompanionTable() {
    static const FormTable table = {.kind = FormKind::Companion,
                                    .caption = "Contract companion",
                                    .clientSize = ContractDialogTable().clientSize,
                                    .controls = ContractDialogTable().controls,
                                    .menus = {},
                                    .outerSize = {321, 389}};
    return table;
}

class Win32Companion : public testing::Test {
  protected:
    Win32Companion() {
        FormEvents events;
        events.queryUnload = [this] {
            ++asked_;
            return true;
        };
        form_->SetEvents(std::move(events));
        form_->Show();
        Settle();
    }

    RECT Place() const {
        RECT place{};
        GetWindowRect(top_, &place);
        return place;
    }

    std::unique_ptr<Form> form_ = ThePlatform().Services().forms.Create(CompanionTable());
    HWND top_ = FindTopWindow(CompanionTable().caption);
    int asked_ = 0;
};

}  // namespace

TEST_F(Win32Companion, StandsInTheCornerInItsOuterSize) {
    RECT area{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    const RECT place = Place();
    const auto dpi = static_cast<int>(GetDpiForWindow(top_));
    EXPECT_EQ(place.right, area.right);
    EXPECT_EQ(place.top, area.top);
    EXPECT_EQ(place.right - place.left, MulDiv(321, dpi, 96));
    EXPECT_EQ(place.bottom - place.top, MulDiv(389, dpi, 96));
}

TEST_F(Win32Companion, CanBeMadeLargerButNotSmaller) {
    MINMAXINFO limits{};
    SendMessageW(top_, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
    const RECT place = Place();
    EXPECT_EQ(limits.ptMinTrackSize.x, place.right - place.left);
    EXPECT_EQ(limits.ptMinTrackSize.y, place.bottom - place.top);
    EXPECT_NE(GetWindowLongPtrW(top_, GWL_STYLE) & WS_THICKFRAME, 0);
}

TEST_F(Win32Companion, EscapeClosesItAndItComesBackWhereItWas) {
    SetWindowPos(top_, nullptr, 30, 40, 400, 420, SWP_NOZORDER);
    PostKey(GetFocus(), VK_ESCAPE);
    Settle();
    EXPECT_FALSE(IsWindowVisible(top_));
    EXPECT_EQ(asked_, 1);
    const RECT before = Place();
    form_->Show();
    Settle();
    EXPECT_TRUE(IsWindowVisible(top_));
    const RECT after = Place();
    EXPECT_TRUE(EqualRect(&before, &after));
}

}  // namespace zentar
