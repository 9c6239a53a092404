// What the text boxes of Windows do beyond what every text box does.
#include <array>
#include <string>

#include "platform/win32/win32_text.h"
#include "tests/contract/win32/rich_text_user.h"
#include "tests/contract/win32/the_platform.h"
#include "tests/contract/win32/win32_user.h"

namespace zentar {
namespace {

class Win32TextBoxes : public RichTextUser {
  protected:
    HWND Box(int id) const { return FindControlWindow(Top(), id); }

    // Presses the key in a box that gets the focus for it.
    void PressIn(int id, WPARAM key) {
        Main().GetTextBox(id).SetFocus();
        PressIn(Box(id), {VK_CONTROL}, key);
    }
    using RichTextUser::PressIn;

    std::string SelectedIn(int id) {
        DWORD first = 0;
        DWORD last = 0;
        SendMessageW(Box(id), EM_GETSEL, reinterpret_cast<WPARAM>(&first),
                     reinterpret_cast<LPARAM>(&last));
        return Main().GetTextBox(id).Text().substr(first, last - first);
    }
};

LOGFONTW FontOf(HWND window) {
    LOGFONTW font{};
    GetObjectW(reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0)), sizeof font, &font);
    return font;
}

}  // namespace

TEST_F(Win32TextBoxes, TheWordUnderADoubleClickIsSelectedWhenTheProgramHearsOfIt) {
    Main().GetTextBox(kText).SetText("wordwordwordwordwordword");
    std::string selected;
    ControlEvents events;
    events.doubleClick = [&] { selected = SelectedIn(kText); };
    Main().GetTextBox(kText).SetEvents(events);
    PostDoubleClick(Box(kText), {20, 8});
    Settle();
    EXPECT_EQ(selected, "wordwordwordwordwordword");
    EXPECT_NE(GetCapture(), Box(kText));
}

TEST_F(Win32TextBoxes, AfterADoubleClickTheMouseSelectsNothingInADialogsPlace) {
    Main().GetTextBox(kText).SetText("one two three");
    ControlEvents events;
    events.doubleClick = [&] {
        EXPECT_EQ(GetCapture(), nullptr);
        PostMove(Box(kText), {100, 8});
        ThePlatform().Services().windows.PumpPending();
    };
    Main().GetTextBox(kText).SetEvents(events);
    PostDoubleClick(Box(kText), {8, 8});
    Settle();
    EXPECT_EQ(SelectedIn(kText).substr(0, 3), "one");
    EXPECT_EQ(SelectedIn(kText).find("two"), std::string::npos);
}

TEST_F(Win32TextBoxes, ControlASelectsAllInEveryBox) {
    for (const int id : {kText, kReadOnlyText, kManyLines}) {
        Main().GetTextBox(id).SetText("some text");
        Main().GetTextBox(id).PutCaretFirst();
        EXPECT_EQ(SelectedIn(id), "");
        PressIn(id, 'A');
        EXPECT_EQ(SelectedIn(id), "some text") << id;
    }
}

TEST_F(Win32TextBoxes, NoKeyBreaksALineInABoxOfManyLines) {
    Main().GetTextBox(kManyLines).SetText("text");
    for (const WPARAM key : {WPARAM{'I'}, WPARAM{'J'}, WPARAM{'M'}, WPARAM{VK_RETURN}})
        PressIn(kManyLines, key);
    EXPECT_EQ(Main().GetTextBox(kManyLines).Text(), "text");
}

TEST_F(Win32TextBoxes, ABoxOfManyLinesBreaksAndScrollsThem) {
    std::string words;
    for (int i = 0; i < 200; ++i)
        words += "word ";
    const HWND box = Box(kManyLines);
    Main().GetTextBox(kManyLines).SetText(words);
    EXPECT_GT(SendMessageW(box, EM_GETLINECOUNT, 0, 0), 10);
    EXPECT_EQ(SendMessageW(Box(kText), EM_GETLINECOUNT, 0, 0), 1);
    SendMessageW(box, EM_SETSEL, 900, 900);
    SendMessageW(box, EM_SCROLLCARET, 0, 0);
    EXPECT_GT(SendMessageW(box, EM_GETFIRSTVISIBLELINE, 0, 0), 0);
    Main().GetTextBox(kManyLines).PutCaretFirst();
    EXPECT_EQ(SendMessageW(box, EM_GETFIRSTVISIBLELINE, 0, 0), 0);
}

TEST_F(Win32TextBoxes, TheTabKeyLeavesABoxOfManyLines) {
    Main().GetTextBox(kManyLines).SetFocus();
    PressIn(Box(kManyLines), {}, VK_TAB);
    EXPECT_FALSE(Main().GetTextBox(kManyLines).HasFocus());
    EXPECT_EQ(Main().GetTextBox(kManyLines).Text(), "");
}

TEST_F(Win32TextBoxes, ACodeStandsInCourierNewOfTheOtherTextsSize) {
    const LOGFONTW code = FontOf(Box(kReadOnlyText));
    EXPECT_EQ(Narrow(code.lfFaceName), "Courier New");
    EXPECT_EQ(code.lfHeight, FontOf(Box(kText)).lfHeight);
    EXPECT_NE(Narrow(FontOf(Box(kText)).lfFaceName), "Courier New");
}

}  // namespace zentar
