// What the user sees of an input box, and what comes of it.
#include <windows.h>

#include <algorithm>
#include <functional>
#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "platform/form.h"
#include "platform/win32/win32_handle.h"
#include "platform/win32/win32_text.h"
#include "platform/window_services.h"
#include "tests/contract/controls_contract.h"
#include "tests/contract/win32/the_platform.h"
#include "tests/contract/win32/win32_user.h"

namespace zentar {
namespace {

HWND Inside(HWND box, const wchar_t* windowClass) {
    return FindWindowExW(box, nullptr, windowClass, nullptr);
}

TextQuestion Question() {
    return {"Rename Demo", "Enter new name for \"fish & дуэль\".\r\n(Do not type the extension).",
            "fish & дуэль"};
}

// Asks, and lets the user act once the box is there.
std::optional<std::string> AskAndDo(const TextQuestion& question,
                                    const std::function<void(HWND)>& user) {
    bool acted = false;
    TryMeanwhile("the box in front", [&] {
        const HWND box = FindTopWindow(question.title);
        if (box == nullptr || !IsWindowVisible(box) || GetActiveWindow() != box)
            return false;
        acted = true;
        user(box);
        return true;
    });
    std::optional<std::string> answer = ThePlatform().Services().windows.AskText(question);
    EXPECT_TRUE(acted);
    EXPECT_EQ(FindTopWindow(question.title), nullptr) << "the box is still there";
    return answer;
}

// How many rows of the window's pixels hold something.
int RowsWithText(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    const WindowContext context(window);
    const COLORREF empty = GetPixel(context.Get(), client.right - 1, client.bottom - 1);
    int rows = 0;
    for (int y = 0; y < client.bottom; ++y) {
        int x = 0;
        while (x < client.right && GetPixel(context.Get(), x, y) == empty)
            ++x;
        rows += x < client.right ? 1 : 0;
    }
    return rows;
}

}  // namespace

TEST(Win32InputBox, ShowsThePromptAndTheWholeOfferedAnswerSelected) {
    const TextQuestion question = Question();
    AskAndDo(question, [&](HWND box) {
        const HWND edit = Inside(box, L"EDIT");
        EXPECT_EQ(TextOf(Inside(box, L"STATIC")), question.prompt);
        EXPECT_EQ(TextOf(edit), question.answer);
        EXPECT_EQ(GetFocus(), edit);
        DWORD first = 0;
        DWORD last = 0;
        SendMessageW(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&first),
                     reinterpret_cast<LPARAM>(&last));
        EXPECT_EQ(first, 0U);
        EXPECT_EQ(last, Widen(question.answer).size());
        EXPECT_NE(GetWindowLongPtrW(Inside(box, L"STATIC"), GWL_STYLE) & SS_NOPREFIX, 0)
            << "an & of the prompt would not be seen";
        PostKey(edit, VK_ESCAPE);
    });
}

TEST(Win32InputBox, EnterGivesWhatWasTyped) {
    const auto answer = AskAndDo(Question(), [](HWND) {
        PostText(GetFocus(), " дуэль 2 ");
        PostKey(GetFocus(), VK_RETURN);
    });
    EXPECT_EQ(answer, " дуэль 2 ");
}

TEST(Win32InputBox, AnEmptyAnswerIsNotTheSameAsCancel) {
    EXPECT_EQ(AskAndDo(Question(),
                       [](HWND box) {
                           SetWindowTextW(Inside(box, L"EDIT"), L"");
                           PostKey(GetFocus(), VK_RETURN);
                       }),
              "");
}

TEST(Win32InputBox, OkGivesTheOfferedAnswerAndCancelNone) {
    EXPECT_EQ(AskAndDo(Question(),
                       [](HWND box) {
                           const HWND button = FindControlWindow(box, IDOK);
                           PostClick(button, MiddleOf(button));
                       }),
              "fish & дуэль");
    EXPECT_EQ(AskAndDo(Question(),
                       [](HWND box) {
                           const HWND button = FindControlWindow(box, IDCANCEL);
                           PostClick(button, MiddleOf(button));
                       }),
              std::nullopt);
}

TEST(Win32InputBox, EscapeAndTheCloseButtonCancel) {
    EXPECT_EQ(AskAndDo(Question(), [](HWND) { PostKey(GetFocus(), VK_ESCAPE); }), std::nullopt);
    EXPECT_EQ(AskAndDo(Question(), [](HWND box) { PostMessageW(box, WM_SYSCOMMAND, SC_CLOSE, 0); }),
              std::nullopt);
}

TEST(Win32InputBox, TakesInputFromTheWindowBelowAndGivesItBack) {
    const std::unique_ptr<Form> form = ThePlatform().Services().forms.Create(ContractDialogTable());
    form->Show();
    const HWND below = FindTopWindow(ContractDialogTable().caption);
    EXPECT_TRUE(IsWindowEnabled(below));
    AskAndDo(Question(), [below](HWND box) {
        EXPECT_FALSE(IsWindowEnabled(below));
        EXPECT_EQ(GetWindow(box, GW_OWNER), below);
        PostKey(GetFocus(), VK_ESCAPE);
    });
    EXPECT_TRUE(IsWindowEnabled(below));
}

TEST(Win32InputBox, ALongNameWithoutABlankGoesOnInTheNextLine) {
    const auto rowsFor = [](std::size_t length) {
        int rows = 0;
        TextQuestion question = Question();
        question.prompt = std::string(length, 'm');
        AskAndDo(question, [&rows](HWND box) {
            RedrawWindow(box, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
            rows = RowsWithText(Inside(box, L"STATIC"));
            PostKey(GetFocus(), VK_ESCAPE);
        });
        return rows;
    };
    const int oneLine = rowsFor(10);
    EXPECT_GT(oneLine, 0);
    EXPECT_GE(rowsFor(100), 2 * oneLine);
}

}  // namespace zentar
