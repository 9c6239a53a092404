// What gets into the boxes of rich text of Windows, and what does not.
#include <windows.h>

#include <richedit.h>

#include <chrono>
#include <string>

#include "platform/rtf/rtf_reader.h"
#include "platform/win32/win32_text.h"
#include "tests/contract/win32/clipboard_holder.h"
#include "tests/contract/win32/rich_text_user.h"
#include "tests/contract/win32/win32_user.h"

namespace zentar {
namespace {

using Win32RichText = RichTextUser;

// As a word processor writes it: fonts, sizes, a table, a picture, an object, a link.
const std::string kForeign =
    "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\froman Times New Roman;}{\\f1\\fswiss Impact;}}"
    "{\\colortbl;\\red1\\green2\\blue3;\\red255\\green0\\blue0;}"
    "\\viewkind4\\uc1\\pard\\qc\\f1\\fs144\\b\\cf1 Big\\b0\\fs24\\par"
    "{\\object\\objemb\\objw1440\\objh1440{\\*\\objclass Package}{\\*\\objdata "
    "0105000002000000080000005061636b61676500000000000000000004000000deadbeef}"
    "{\\result{\\pict\\wmetafile8 0100090000}}}"
    "{\\pict\\pngblip\\picw1\\pich1 89504e470d0a1a0a}"
    "\\trowd\\cellx1000\\cellx2000\\intbl\\cf2\\highlight1 one\\cell two\\cell\\row\\pard"
    "{\\field{\\*\\fldinst HYPERLINK \"http://zentar.example/\"}{\\fldrslt link}}\\par}";

}  // namespace

TEST_F(Win32RichText, OfForeignRichTextOnlyCharactersAndColoursArePasted) {
    Box().SetContent({{"ab", kGreen}});
    const std::string format = FormatOfAll();
    SelectText(1, 1);
    ASSERT_TRUE(PutOnClipboard({kForeign, L"other text"}));
    SendMessageW(Editor(), WM_PASTE, 0, 0);
    const RichText content = Box().Content();
    ASSERT_GE(content.runs.size(), 4U);
    EXPECT_EQ(content.runs.front(), (ColouredRun{"a", kGreen}));
    EXPECT_EQ(content.runs[1].colour, 0x030201U);
    EXPECT_EQ(content.runs[2].colour, kRed);
    EXPECT_EQ(content.runs.back(), (ColouredRun{"b", kGreen}));
    const std::string text = Box().Text();
    EXPECT_EQ(text.substr(0, 4), "aBig");
    for (const char* word : {"one", "two", "link"})
        EXPECT_NE(text.find(word), std::string::npos) << text;
    for (const char* word : {"Package", "deadbeef", "89504e", "HYPERLINK", "zentar", "other"})
        EXPECT_EQ(text.find(word), std::string::npos) << text;
    EXPECT_EQ(ObjectsInside(), 0);
    EXPECT_EQ(FormatOfAll(), format);
}

TEST_F(Win32RichText, APasteIsTakenBackAndDoneAgainInOneStep) {
    Box().SetContent({{"abcd", kGreen}});
    SelectText(1, 3);
    ASSERT_TRUE(PutOnClipboard({kForeign, {}}));
    SendMessageW(Editor(), WM_PASTE, 0, 0);
    const RichText pasted = Box().Content();
    PressWith({VK_CONTROL}, 'Z');
    EXPECT_EQ(Box().Content(), Rich({{"abcd", kGreen}}));
    EXPECT_FALSE(SendMessageW(Editor(), EM_CANUNDO, 0, 0));
    PressWith({VK_CONTROL}, 'Y');
    EXPECT_EQ(Box().Content(), pasted);
    EXPECT_TRUE(HasOneFont());
}

TEST_F(Win32RichText, EveryWayToPasteGoesTheSameWay) {
    ASSERT_TRUE(PutOnClipboard({"{\\rtf1{\\colortbl;\\red255;}\\cf1 x}", L"y"}));
    const auto expectPasted = [this](const char* how) {
        EXPECT_EQ(Box().Content(), Rich({{"x", kRed}})) << how;
        Box().SetText("");
    };
    EXPECT_TRUE(SendMessageW(Editor(), EM_CANPASTE, 0, 0));
    PressWith({VK_CONTROL}, 'V');
    expectPasted("Ctrl+V");
    PressWith({VK_SHIFT}, VK_INSERT);
    expectPasted("Shift+Insert");
    SendMessageW(Editor(), WM_PASTE, 0, 0);
    expectPasted("WM_PASTE");
    SendMessageW(Editor(), EM_PASTESPECIAL, CF_UNICODETEXT, 0);
    expectPasted("EM_PASTESPECIAL");
}

TEST_F(Win32RichText, TheAltGrKeyOnlyTypesCharacters) {
    ASSERT_TRUE(PutOnClipboard({"{\\rtf1{\\colortbl;\\red255;}\\cf1 x}", L"y"}));
    Box().SetContent({{"ab", kRed}});
    SelectText(1, 1);
    PostText(Editor(), "c");
    Settle();
    for (const WPARAM key : {'A', 'C', 'V', 'X', 'Y', 'Z'})
        PressWith({VK_CONTROL, VK_MENU}, key);
    EXPECT_EQ(Box().Content(), Rich({{"acb", kRed}}));
    EXPECT_EQ(Box().Caret(), 2);
    EXPECT_EQ(OnClipboard().text, L"y");
}

TEST_F(Win32RichText, PlainTextIsPastedInTheColourOfItsPlace) {
    Box().SetContent({{"a", kRed}, {"b", kGreen}});
    ASSERT_TRUE(PutOnClipboard({{}, L"1\r\n2\u0434\r\n"}));
    SelectText(1, 1);
    SendMessageW(Editor(), WM_PASTE, 0, 0);
    EXPECT_EQ(Box().Content(), Rich({{"a1 2\xD0\xB4", kRed}, {"b", kGreen}}));
    Box().ColourSelection(kWhite);
    SendMessageW(Editor(), WM_PASTE, 0, 0);
    const Runs runs = {{"a1 2\xD0\xB4", kRed}, {"1 2\xD0\xB4", kWhite}, {"b", kGreen}};
    EXPECT_EQ(Box().Content(), Rich(runs));
}

TEST_F(Win32RichText, WhereThereIsNoTextNothingIsPasted) {
    Box().SetContent({{"ab", kRed}});
    NoteChanges();
    SelectText(0, 2);
    ASSERT_TRUE(PutOnClipboard({"{\\rtf1{\\pict\\pngblip 8950}}", {}}));
    SendMessageW(Editor(), WM_PASTE, 0, 0);
    ASSERT_TRUE(PutOnClipboard({"no rich text at all", {}}));
    SendMessageW(Editor(), WM_PASTE, 0, 0);
    ASSERT_TRUE(PutOnClipboard({}));
    EXPECT_FALSE(SendMessageW(Editor(), EM_CANPASTE, 0, 0));
    SendMessageW(Editor(), WM_PASTE, 0, 0);
    EXPECT_EQ(Box().Content(), Rich({{"ab", kRed}}));
    EXPECT_EQ(Changes(), 0);
    ASSERT_TRUE(PutOnClipboard({"no rich text at all", L"plain"}));
    SendMessageW(Editor(), WM_PASTE, 0, 0);
    EXPECT_EQ(Box().Content(), Rich({{"plain", kRed}}));
    EXPECT_EQ(Changes(), 1);
}

TEST_F(Win32RichText, MegabytesOnTheClipboardAreNoTrouble) {
    std::string rtf = "{\\rtf1\\ansi{\\colortbl;\\red255\\green0\\blue0;\\red0\\green255\\blue0;}";
    while (rtf.size() < 5'000'000) {
        rtf += "\\cf1 ";
        rtf += std::string(50, 'a');
        rtf += "\\cf2 ";
        rtf += std::string(50, 'b');
    }
    ASSERT_TRUE(PutOnClipboard({rtf + "}", {}}));
    const auto start = std::chrono::steady_clock::now();
    SendMessageW(Editor(), WM_PASTE, 0, 0);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(30));
    EXPECT_EQ(Box().Text().size(), static_cast<std::size_t>(kMostRichText));
    PressWith({VK_CONTROL}, 'Z');
    EXPECT_EQ(Box().Text(), "");
}

TEST_F(Win32RichText, WhatIsCopiedHasItsColoursForOtherPrograms) {
    Box().SetContent({{"ab", kRed}, {"cd", kGreen}});
    SelectText(1, 3);
    PressWith({VK_CONTROL}, 'C');
    const ClipboardContent copied = OnClipboard();
    EXPECT_EQ(ReadRtf(copied.rtf), (Runs{{"b", kRed}, {"c", kGreen}}));
    EXPECT_EQ(copied.text, L"bc");
    EXPECT_EQ(Box().Text(), "abcd");
    NoteChanges();
    PressWith({VK_CONTROL}, 'X');
    EXPECT_EQ(Box().Content(), Rich({{"a", kRed}, {"d", kGreen}}));
    EXPECT_EQ(Changes(), 1);
    PressWith({VK_SHIFT}, VK_INSERT);
    EXPECT_EQ(Box().Content(), Rich({{"ab", kRed}, {"cd", kGreen}}));
}

// It would be nowhere any more.
TEST_F(Win32RichText, WhatCannotBeCopiedIsNotCutOut) {
    Box().SetText("abc");
    SelectText(1, 3);
    {
        const ClipboardHolder other(60'000);
        SendMessageW(Editor(), WM_CUT, 0, 0);
        EXPECT_EQ(Box().Text(), "abc");
    }
    SendMessageW(Editor(), WM_CUT, 0, 0);
    EXPECT_EQ(Box().Text(), "a");
    EXPECT_EQ(Narrow(OnClipboard().text), "bc");
}

TEST_F(Win32RichText, TextThatOtherProgramsSetIsTextAndNothingElse) {
    NoteChanges();
    SendMessageW(Editor(), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"{\\rtf1\\b x}\r\ny"));
    EXPECT_EQ(Box().Content(), Rich({{"{\\rtf1\\b x} y", kBlack}}));
    EXPECT_EQ(SendMessageW(Editor(), EM_GETLINECOUNT, 0, 0), 1);
    EXPECT_EQ(Changes(), 1);
    Box().SetContent({{"ab", kRed}});
    SelectText(1, 2);
    SendMessageW(Editor(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(L"{\\rtf1 1}\r\n2"));
    EXPECT_EQ(Box().Content(), Rich({{"a{\\rtf1 1} 2", kRed}}));
    EXPECT_EQ(SendMessageW(Editor(), EM_GETLINECOUNT, 0, 0), 1);
    EXPECT_EQ(Changes(), 3);
    EXPECT_TRUE(HasOneFont());
}

TEST_F(Win32RichText, NoKeyFormatsTheTextOrBreaksTheLine) {
    Box().SetContent({{"abc", kRed}});
    NoteChanges();
    SelectText(0, 3);
    const RichText before = Box().Content();
    const std::string format = FormatOfAll();
    for (const WPARAM key : {'B', 'E', 'I', 'J', 'L', 'M', 'R', 'U', '1', '2', '5'})
        PressWith({VK_CONTROL}, key);
    for (const WPARAM key : {WPARAM{VK_OEM_PLUS}, WPARAM{VK_OEM_MINUS}})
        PressWith({VK_CONTROL}, key);
    for (const WPARAM key : {WPARAM{'A'}, WPARAM{'L'}, WPARAM{VK_OEM_PERIOD}, WPARAM{VK_OEM_COMMA}})
        PressWith({VK_CONTROL, VK_SHIFT}, key);
    EXPECT_EQ(Box().Content(), before);
    EXPECT_EQ(FormatOfAll(), format);
    EXPECT_EQ(Changes(), 0);
    PressWith({VK_CONTROL}, VK_SPACE);
    EXPECT_EQ(Box().Content(), Rich({{" ", kRed}}));
    EXPECT_EQ(FormatOfAll(), format);
}

TEST_F(Win32RichText, ControlASelectsAll) {
    Box().SetContent({{"abc", kRed}, {"d", kGreen}});
    SelectText(1, 1);
    PressWith({VK_CONTROL}, 'A');
    EXPECT_EQ(Box().Caret(), 4);
    Box().ColourSelection(kWhite);
    EXPECT_EQ(Box().Content(), Rich({{"abcd", kWhite}}));
}

}  // namespace zentar
