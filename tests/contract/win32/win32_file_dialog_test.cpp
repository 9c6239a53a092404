// What the user sees of the dialogs for files, and what comes of them.
#include <windows.h>

#include <commctrl.h>
#include <dlgs.h>
#include <windowsx.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/form.h"
#include "platform/win32/win32_text.h"
#include "platform/window_services.h"
#include "tests/contract/controls_contract.h"
#include "tests/contract/win32/picture_files.h"
#include "tests/contract/win32/system_dialog.h"
#include "tests/contract/win32/the_platform.h"
#include "tests/contract/win32/win32_user.h"

namespace zentar {
namespace {

namespace fs = std::filesystem;

using Names = std::vector<std::string>;
using Path = std::optional<std::string>;

const std::string kTitle = "Öffnen: дуэль";
constexpr int kName = edt1;
constexpr int kKind = cmb1;

WindowServices& Windows() { return ThePlatform().Services().windows; }

BOOL CALLBACK CompareClass(HWND window, LPARAM found) {
    wchar_t windowClass[32] = L"";
    GetClassNameW(window, windowClass, 32);
    if (windowClass != std::wstring(WC_LISTVIEWW))
        return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

// What the dialog lists, sorted.
Names Listed() {
    HWND list = nullptr;
    EnumChildWindows(FindDialog(kTitle), CompareClass, reinterpret_cast<LPARAM>(&list));
    Names names;
    for (int i = 0; i < ListView_GetItemCount(list); ++i) {
        wchar_t text[MAX_PATH] = L"";
        LVITEMW item{};
        item.pszText = text;
        item.cchTextMax = MAX_PATH;
        SendMessageW(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(i),
                     reinterpret_cast<LPARAM>(&item));
        names.push_back(Narrow(text));
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::function<bool()> SeesListed(const Names& names) {
    return [names] { return FindDialog(kTitle) != nullptr && Listed() == names; };
}

std::function<bool()> PicksKind(int index) {
    return [index] {
        const HWND dialog = FindDialog(kTitle);
        const HWND kinds = GetDlgItem(dialog, kKind);
        ComboBox_SetCurSel(kinds, index);
        SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(kKind, CBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(kinds));
        return true;
    };
}

Names KindsOf(HWND dialog) {
    const HWND combo = GetDlgItem(dialog, kKind);
    Names kinds;
    for (int i = 0; i < ComboBox_GetCount(combo); ++i) {
        wchar_t text[MAX_PATH] = L"";
        ComboBox_GetLBText(combo, i, text);
        kinds.push_back(Narrow(text));
    }
    return kinds;
}

class Win32FileDialog : public testing::Test {
  protected:
    Win32FileDialog() {
        folder_.Write("duel & дуэль.txt", "a");
        folder_.Write("console.log", "b");
        folder_.Write("config.cfg", "c");
    }

    FileQuestion Question(const std::string& name = "") const {
        return {kTitle,
                folder_.Name(),
                name,
                {{"Q2 condumps (*.txt, *.log)", "*.txt;*.log"}, {"All files (*.*)", "*.*"}}};
    }
    std::string In(const std::string& name) const { return folder_.Name() + "\\" + name; }

    static Path Open(const FileQuestion& question, const DialogSteps& steps) {
        const DialogUser user(steps);
        Path path = Windows().ChooseFileToOpen(question);
        EXPECT_EQ(FindDialog(kTitle), nullptr) << "the dialog is still there";
        return path;
    }
    static Path Save(const FileQuestion& question, const DialogSteps& steps) {
        const DialogUser user(steps);
        Path path = Windows().ChooseFileToSave(question);
        EXPECT_EQ(FindDialog(kTitle), nullptr) << "the dialog is still there";
        return path;
    }

    TestFolder folder_;
};

const std::function<bool()> kEnter = PressKeyIn(kTitle, kName, VK_RETURN);
const std::function<bool()> kEscape = PressKeyIn(kTitle, kName, VK_ESCAPE);

std::function<bool()> Types(const std::string& name) { return TypeInto(kTitle, kName, name); }

}  // namespace

TEST_F(Win32FileDialog, ShowsTheFolderTheNameAndTheKinds) {
    const auto look = [] {
        const HWND dialog = FindDialog(kTitle);
        EXPECT_EQ(TextOf(GetDlgItem(dialog, kName)), "console.log");
        EXPECT_EQ(KindsOf(dialog), (Names{"Q2 condumps (*.txt, *.log)", "All files (*.*)"}));
        EXPECT_EQ(ComboBox_GetCurSel(GetDlgItem(dialog, kKind)), 0);
        return true;
    };
    const DialogSteps steps = {SeesListed({"console.log", "duel & дуэль.txt"}), look, PicksKind(1),
                               SeesListed({"config.cfg", "console.log", "duel & дуэль.txt"}),
                               kEscape};
    EXPECT_EQ(Open(Question("console.log"), steps), std::nullopt);
    EXPECT_EQ(Save(Question("console.log"), steps), std::nullopt);
}

TEST_F(Win32FileDialog, AFolderWithABackslashAtItsEndIsTheSame) {
    FileQuestion question = Question();
    question.folder += "\\";
    EXPECT_EQ(Open(question, {SeesListed({"console.log", "duel & дуэль.txt"}), kEscape}),
              std::nullopt);
}

TEST_F(Win32FileDialog, AFolderThatIsMissingGivesWayToTheOneAround) {
    FileQuestion question = Question();
    question.folder += "\\none\\ctf\\";
    const DialogSteps steps = {SeesListed({"console.log", "duel & дуэль.txt"}), kEscape};
    EXPECT_EQ(Open(question, steps), std::nullopt);
    question.folder = In("console.log");
    EXPECT_EQ(Save(question, steps), std::nullopt);
}

TEST_F(Win32FileDialog, AFolderThatCannotBeIsNoReasonToShowNoDialog) {
    for (const char* folder : {"", "demos", "Y:\\none\\", "C:\\a|b<\\", "\\\\?\\C:\\"}) {
        FileQuestion question = Question();
        question.folder = folder;
        EXPECT_EQ(Open(question, {Types(In("console.log")), kEnter}), In("console.log")) << folder;
    }
}

TEST_F(Win32FileDialog, TheFolderIsShownAgainAfterTheUserWentElsewhere) {
    const TestFolder other;
    other.Write("other.txt", "d");
    EXPECT_EQ(Open(Question(), {Types(other.Name()), kEnter, SeesListed({"other.txt"}),
                                Types("other.txt"), kEnter}),
              other.Name() + "\\other.txt");
    EXPECT_EQ(Open(Question(), {SeesListed({"console.log", "duel & дуэль.txt"}), kEscape}),
              std::nullopt);
}

TEST_F(Win32FileDialog, ANameThatIsTypedIsOfThatFolder) {
    EXPECT_EQ(Open(Question(), {Types("duel & дуэль.txt"), kEnter}), In("duel & дуэль.txt"));
    EXPECT_EQ(Open(Question(), {Types("console.log"), ClickButton(kTitle, IDOK)}),
              In("console.log"));
    EXPECT_EQ(Open(Question(), {Types(In("config.cfg")), kEnter}), In("config.cfg"));
}

TEST_F(Win32FileDialog, AnOfferedNameIsTakenWithEnter) {
    EXPECT_EQ(Open(Question("duel & дуэль.txt"), {kEnter}), In("duel & дуэль.txt"));
    EXPECT_EQ(Save(Question("new & дуэль.txt"), {kEnter}), In("new & дуэль.txt"));
}

TEST_F(Win32FileDialog, ANameOfNoFileIsRefusedAndTheDialogStays) {
    const auto told = [] {
        const HWND box = GetLastActivePopup(FindDialog(kTitle));
        if (box == nullptr || box == FindDialog(kTitle) || !IsWindowVisible(box))
            return false;
        PostKey(GetFocus(), VK_RETURN);
        return true;
    };
    EXPECT_EQ(Open(Question(), {Types("none.txt"), kEnter, told, Types("console.log"), kEnter}),
              In("console.log"));
}

// However the system takes that: with a shorter name, or with a complaint.
TEST_F(Win32FileDialog, AMuchTooLongNameDoesNoHarm) {
    const auto cancelAll = [] {
        const HWND dialog = FindDialog(kTitle);
        if (dialog != nullptr)
            PostMessageW(GetLastActivePopup(dialog), WM_COMMAND, IDCANCEL, 0);
        return dialog == nullptr;
    };
    const auto postLongText = [] {
        const HWND dialog = FindDialog(kTitle);
        if (dialog != nullptr)
            PostText(GetDlgItem(dialog, kName), std::string(700, 'm'));
        return dialog != nullptr;
    };
    const auto isTyped = [] { return TextOf(GetDlgItem(FindDialog(kTitle), kName)).size() > 100; };
    const DialogSteps typed = {postLongText, isTyped, kEnter, cancelAll};
    EXPECT_EQ(Open(Question(), typed), std::nullopt);
    EXPECT_LT(Save(Question(), typed).value_or("").size(), static_cast<std::size_t>(MAX_PATH));
    const FileQuestion offered = Question(std::string(700, 'n'));
    EXPECT_EQ(Open(offered, {kEnter, cancelAll}), std::nullopt);
    EXPECT_LT(Save(offered, {kEnter, cancelAll}).value_or("").size(),
              static_cast<std::size_t>(MAX_PATH));
}

TEST_F(Win32FileDialog, AFolderThatIsTooLongForTheDialogDoesNoHarm) {
    const std::wstring native = L"\\\\?\\" + folder_.Path().wstring();
    std::wstring folder = native;
    for (int i = 0; i < 4; ++i) {
        folder += L"\\" + std::wstring(80, L'a');
        EXPECT_TRUE(CreateDirectoryW(folder.c_str(), nullptr));
    }
    FileQuestion question = Question();
    question.folder = Narrow(folder.substr(4));
    EXPECT_EQ(Open(question, {Types("x"), kEscape}), std::nullopt);
    for (; folder != native; folder.resize(folder.rfind(L'\\'))) {
        EXPECT_TRUE(RemoveDirectoryW(folder.c_str()));
    }
}

TEST_F(Win32FileDialog, CancellingGivesNothing) {
    const auto close = [] {
        return PostMessageW(FindDialog(kTitle), WM_SYSCOMMAND, SC_CLOSE, 0) != FALSE;
    };
    for (const std::function<bool()>& cancel :
         {kEscape, ClickButton(kTitle, IDCANCEL), std::function<bool()>(close)}) {
        EXPECT_EQ(Open(Question(), {Types("console.log"), cancel}), std::nullopt);
        EXPECT_EQ(Save(Question(), {Types("console.log"), cancel}), std::nullopt);
    }
}

TEST_F(Win32FileDialog, ANewFileGetsTheExtensionOfTheFirstKind) {
    FileQuestion question = Question();
    question.kinds = {{"Coloured text (*.ini)", "*.ini"}, {"All files (*.*)", "*.*"}};
    EXPECT_EQ(Save(question, {Types("new дуэль"), kEnter}), In("new дуэль.ini"));
    EXPECT_EQ(Save(question, {Types("new.ini"), kEnter}), In("new.ini"));
    question.name = "[BS]Mr. [C]Fish";
    EXPECT_EQ(Save(question, {kEnter}), In("[BS]Mr. [C]Fish.ini"));
    EXPECT_FALSE(fs::exists(folder_.Path() / "new.ini")) << "that is left to the program";
}

TEST_F(Win32FileDialog, SavingOverAFileAsksNothing) {
    const std::string file = folder_.Write("design.ini", "mine");
    FileQuestion question = Question("design.ini");
    question.kinds = {{"Coloured text (*.ini)", "*.ini"}};
    EXPECT_EQ(Save(question, {kEnter}), file);
    EXPECT_EQ(Save(question, {Types("design"), kEnter}), file);
    SetFileAttributesW((folder_.Path() / "design.ini").c_str(), FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(Save(question, {kEnter}), file);
    SetFileAttributesW((folder_.Path() / "design.ini").c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_EQ(BytesOf(folder_.Path() / "design.ini"), "mine");
}

TEST_F(Win32FileDialog, TheCurrentFolderStaysAsItIs) {
    const fs::path before = fs::current_path();
    EXPECT_EQ(Open(Question(), {Types("console.log"), kEnter}), In("console.log"));
    EXPECT_EQ(fs::current_path(), before);
    EXPECT_EQ(Save(Question(), {Types("new.txt"), kEnter}), In("new.txt"));
    EXPECT_EQ(fs::current_path(), before);
}

TEST_F(Win32FileDialog, ADialogWithoutKindsShowsEveryFile) {
    FileQuestion question = Question();
    question.kinds.clear();
    EXPECT_EQ(Open(question, {Types("config.cfg"), kEnter}), In("config.cfg"));
    EXPECT_EQ(Save(question, {Types("plain"), kEnter}), In("plain"));
}

TEST_F(Win32FileDialog, TakesInputFromTheWindowBelowAndGivesItBack) {
    const std::unique_ptr<Form> form = ThePlatform().Services().forms.Create(ContractDialogTable());
    form->Show();
    const HWND below = FindTopWindow(ContractDialogTable().caption);
    EXPECT_TRUE(IsWindowEnabled(below));
    const auto look = [below] {
        const HWND dialog = FindDialog(kTitle);
        EXPECT_FALSE(IsWindowEnabled(below));
        EXPECT_EQ(GetWindow(dialog, GW_OWNER), below);
        EXPECT_EQ(GetActiveWindow(), dialog);
        return true;
    };
    EXPECT_EQ(Open(Question(), {Types("x"), look, kEscape}), std::nullopt);
    EXPECT_TRUE(IsWindowEnabled(below));
    EXPECT_EQ(GetActiveWindow(), below);
}

TEST_F(Win32FileDialog, TheHourglassOfTheProgramIsNotShown) {
    Windows().SetPointer(Pointer::Hourglass);
    const auto look = [] {
        const HWND dialog = FindDialog(kTitle);
        SendMessageW(dialog, WM_SETCURSOR, reinterpret_cast<WPARAM>(dialog),
                     MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
        EXPECT_NE(GetCursor(), LoadCursorW(nullptr, IDC_WAIT));
        return true;
    };
    EXPECT_EQ(Open(Question(), {Types("x"), look, kEscape}), std::nullopt);
    Windows().SetPointer(Pointer::Default);
}

}  // namespace zentar
