// What the boxes of rich text of Windows look like.
#include <windows.h>

#include <richedit.h>

#include <string>

#include "platform/win32/win32_handle.h"
#include "tests/contract/win32/rich_text_user.h"
#include "tests/contract/win32/the_platform.h"
#include "tests/contract/win32/visual_styles.h"
#include "tests/contract/win32/win32_user.h"

namespace zentar {
namespace {

using Win32RichTextLooks = RichTextUser;

COLORREF CornerOf(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    const WindowContext context(window);
    return GetPixel(context.Get(), client.right - 3, client.bottom - 3);
}

std::string Words(int count) {
    std::string words;
    for (int i = 0; i < count; ++i)
        words += "word ";
    return words;
}

}  // namespace

TEST_F(Win32RichTextLooks, TheTabKeyComesAndGoesAndKeepsWhatIsSelected) {
    Box().SetText("abc");
    SelectText(1, 2);
    PressWith({}, VK_TAB);
    EXPECT_TRUE(Main().GetTextBox(kReadOnlyText).HasFocus());
    PressWith({VK_SHIFT}, VK_TAB);
    EXPECT_TRUE(Box().HasFocus());
    EXPECT_EQ(Box().Text(), "abc");
    Box().ColourSelection(kRed);
    EXPECT_EQ(Box().Content(), Rich({{"a", kBlack}, {"b", kRed}, {"c", kBlack}}));
}

// The selection stays seen while the user goes to the colours; nothing is dragged into the text.
TEST_F(Win32RichTextLooks, TheEditorIsSetUpForColouring) {
    const LONG_PTR style = GetWindowLongPtrW(Editor(), GWL_STYLE);
    EXPECT_NE(style & ES_NOHIDESEL, 0);
    EXPECT_NE(style & ES_NOOLEDRAGDROP, 0);
    EXPECT_EQ(SendMessageW(Editor(), EM_GETLANGOPTIONS, 0, 0) & (IMF_AUTOFONT | IMF_AUTOKEYBOARD),
              0);
}

TEST_F(Win32RichTextLooks, LookingAtTheContentMovesNothing) {
    Box().SetContent({{Words(100), kRed}, {Words(100), kGreen}});
    SelectText(400, 420);
    SendMessageW(Editor(), EM_LINESCROLL, 0, 3);
    const LRESULT line = SendMessageW(Editor(), EM_GETFIRSTVISIBLELINE, 0, 0);
    ASSERT_GT(line, 0);
    NoteChanges();
    EXPECT_EQ(Box().Content().runs.size(), 2U);
    EXPECT_EQ(SendMessageW(Editor(), EM_GETFIRSTVISIBLELINE, 0, 0), line);
    CHARRANGE range{};
    SendMessageW(Editor(), EM_EXGETSEL, 0, reinterpret_cast<LPARAM>(&range));
    EXPECT_EQ(range.cpMin, 400);
    EXPECT_EQ(range.cpMax, 420);
    EXPECT_EQ(Changes(), 0);
}

TEST_F(Win32RichTextLooks, LinesWrapAndTheScrollBarStandsOnlyWhenThereAreMany) {
    const auto scrolls = [this] {
        return (GetWindowLongPtrW(Editor(), GWL_STYLE) & (WS_VSCROLL | WS_HSCROLL)) != 0;
    };
    Box().SetText("one line");
    EXPECT_FALSE(scrolls());
    EXPECT_EQ(SendMessageW(Editor(), EM_GETLINECOUNT, 0, 0), 1);
    Box().SetText(Words(100));
    EXPECT_TRUE(scrolls());
    EXPECT_EQ(GetWindowLongPtrW(Editor(), GWL_STYLE) & WS_HSCROLL, 0);
    EXPECT_GT(SendMessageW(Editor(), EM_GETLINECOUNT, 0, 0), 5);
}

TEST_F(Win32RichTextLooks, AnotherDpiChangesTheFontAndKeepsTheColours) {
    const Runs runs = {{"ab", kRed}, {"cd", kGreen}};
    Box().SetContent(runs);
    const std::string before = FormatOfAll();
    NoteChanges();
    RECT place{};
    GetWindowRect(Top(), &place);
    SendMessageW(Top(), WM_DPICHANGED, MAKEWPARAM(192, 192), reinterpret_cast<LPARAM>(&place));
    const std::string larger = FormatOfAll();
    EXPECT_NE(larger, before);
    EXPECT_TRUE(HasOneFont());
    EXPECT_EQ(Box().Content(), Rich(runs));
    Box().PutCaret(4);
    PostText(Editor(), "e");
    Settle();
    EXPECT_EQ(FormatOfAll(), larger);
    PressWith({VK_CONTROL}, 'Z');
    PressWith({VK_CONTROL}, 'Z');
    EXPECT_EQ(FormatOfAll(), larger);
    EXPECT_EQ(Box().Content(), Rich(runs));
    EXPECT_EQ(Changes(), 2);
    SendMessageW(Top(), WM_DPICHANGED, MAKEWPARAM(96, 96), reinterpret_cast<LPARAM>(&place));
    EXPECT_EQ(FormatOfAll(), before);
}

TEST_F(Win32RichTextLooks, TheWheelZoomsNothing) {
    Box().SetText(Words(100));
    const auto zoom = [this] {
        int numerator = 0;
        int denominator = 0;
        SendMessageW(Editor(), EM_GETZOOM, reinterpret_cast<WPARAM>(&numerator),
                     reinterpret_cast<LPARAM>(&denominator));
        return std::to_string(numerator) + "/" + std::to_string(denominator);
    };
    const std::string before = zoom();
    const HeldKeys held({VK_CONTROL});
    SendMessageW(Editor(), WM_MOUSEWHEEL, MAKEWPARAM(MK_CONTROL, WHEEL_DELTA), 0);
    EXPECT_EQ(zoom(), before);
}

TEST_F(Win32RichTextLooks, ABackgroundOfTheSystemFollowsTheSystem) {
    Box().SetBackground(SystemColour::Window);
    Main().GetTextBox(kText).SetBackground(SystemColour::Window);
    Settle();
    constexpr int kWindow = COLOR_WINDOW;
    const COLORREF before = GetSysColor(kWindow);
    const COLORREF another = RGB(30, 60, 90);
    EXPECT_EQ(CornerOf(Editor()), before);
    SetSysColors(1, &kWindow, &another);
    Settle();
    const COLORREF seen = CornerOf(Editor());
    SetSysColors(1, &kWindow, &before);
    Settle();
    EXPECT_EQ(seen, another);
    EXPECT_EQ(CornerOf(Editor()), before);
}

TEST_F(Win32RichTextLooks, TheHourglassStandsOverTheBoxToo) {
    const auto pointer = [this] {
        SendMessageW(Editor(), WM_SETCURSOR, reinterpret_cast<WPARAM>(Editor()),
                     MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
        return GetCursor();
    };
    EXPECT_NE(pointer(), LoadCursorW(nullptr, IDC_WAIT));
    ThePlatform().Services().windows.SetPointer(Pointer::Hourglass);
    EXPECT_EQ(pointer(), LoadCursorW(nullptr, IDC_WAIT));
    ThePlatform().Services().windows.SetPointer(Pointer::Default);
    EXPECT_NE(pointer(), LoadCursorW(nullptr, IDC_WAIT));
}

TEST(Win32RichTextWindow, TheBorderIsThatOfTextBoxes) {
    const VisualStyles styles;
    const std::unique_ptr<Form> form = ThePlatform().Services().forms.Create(ContractMainTable());
    form->GetRichTextBox(kRich).SetBackground(kOrange);
    form->Show();
    form->GetButton(kButton).SetFocus();
    Settle();
    const HWND top = FindTopWindow(ContractMainTable().caption);
    const auto edge = [top](int id, int depth) {
        const HWND window = FindControlWindow(top, id);
        const HDC context = GetWindowDC(window);
        const COLORREF colour = GetPixel(context, depth, 20);
        ReleaseDC(window, context);
        return colour;
    };
    EXPECT_EQ(edge(kRich, 0), edge(kManyLines, 0));
    const COLORREF unfocused = edge(kManyLines, 0);
    form->GetTextBox(kManyLines).SetFocus();
    Settle();
    const COLORREF focused = edge(kManyLines, 0);
    form->GetRichTextBox(kRich).SetFocus();
    Settle();
    EXPECT_EQ(edge(kRich, 0), focused);
    EXPECT_EQ(edge(kManyLines, 0), unfocused);
    form->GetButton(kButton).SetFocus();
    Settle();
    EXPECT_EQ(edge(kRich, 0), unfocused);
    EXPECT_NE(edge(kRich, 0), kOrange);
    EXPECT_EQ(edge(kRich, 1), kOrange);
    EXPECT_EQ(edge(kRich, 2), kOrange);
    form->GetRichTextBox(kRich).SetEnabled(false);
    form->GetTextBox(kManyLines).SetEnabled(false);
    Settle();
    EXPECT_EQ(edge(kRich, 0), edge(kManyLines, 0));
    EXPECT_EQ(edge(kRich, 1), GetSysColor(COLOR_BTNFACE));
}

TEST(Win32RichTextWindow, NoHandleStaysBehind) {
    const int fonts = UniqueFont::Live();
    const int brushes = UniqueBrush::Live();
    const int regions = UniqueRegion::Live();
    for (int i = 0; i < 5; ++i) {
        const std::unique_ptr<Form> form =
            ThePlatform().Services().forms.Create(ContractMainTable());
        form->GetTextBox(kText).SetBackground(kOrange);
        form->GetTextBox(kText).SetBackground(kRed);
        form->GetRichTextBox(kRich).SetBackground(kOrange);
        form->Show();
        ThePlatform().Services().windows.PumpPending();
        EXPECT_GT(UniqueBrush::Live(), brushes);
    }
    EXPECT_EQ(UniqueFont::Live(), fonts);
    EXPECT_EQ(UniqueBrush::Live(), brushes);
    EXPECT_EQ(UniqueRegion::Live(), regions);
}

}  // namespace zentar
