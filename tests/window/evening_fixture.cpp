#include "tests/window/evening_fixture.h"

#include "platform/win32/win32_text.h"
#include "samples/demo_maker.h"
#include "tests/window/game_log.h"
#include "tests/window/image_library_file.h"
#include "tests/window/user_input.h"
#include "tests/window/waiting.h"
#include "tests/window/windows_of.h"
#include "ui/form_tables.h"
#include "ui/resource.h"

namespace zentar::window_tests {
namespace {

namespace fs = std::filesystem;

bool IsCommand(const ControlRow& row) {
    return row.kind == ControlKind::Button || row.kind == ControlKind::ColourButton ||
           row.kind == ControlKind::CheckBox || row.kind == ControlKind::OptionButton;
}

// What the stand-in games note is theirs.
Tree WithoutGameLogs(Tree tree) {
    std::erase_if(tree, [](const auto& file) { return file.first.ends_with("/standin.log"); });
    return tree;
}

// The files in the Windows folder that the program made.
Lines OwnFilesInWindows() {
    Lines found;
    for (const fs::directory_entry& entry : fs::directory_iterator(WindowsFolder())) {
        const std::string name = Narrow(entry.path().filename().wstring());
        if (name.starts_with("zentar") || name.starts_with("[Zentar]")) {
            found.push_back(name);
        }
    }
    return found;
}

}  // namespace

EveningTest::EveningTest() {
    for (const EveningGame& game : EveningGames()) {
        SetGameSeconds(At(game.folder), 0);
    }
    firstDay_ = ReadTree(home_.Program().parent_path());
    expected_ = firstDay_;
    for (const char* folder : {"Program/data/", "Program/data/q3text/"}) {
        expected_[folder] = "";
    }
    Restock();
}

// Before what stands in for others goes.
EveningTest::~EveningTest() { zentar_.reset(); }

fs::path EveningTest::At(const std::string& path) const {
    return home_.Program().parent_path() / Widen(path);
}

std::string EveningTest::Name(const std::string& path) const {
    return Narrow(At(path).make_preferred().wstring());
}

void EveningTest::Put(const std::string& path, const std::string& bytes) {
    for (std::size_t slash = path.find('/'); slash != std::string::npos;
         slash = path.find('/', slash + 1)) {
        expected_[path.substr(0, slash + 1)] = "";
    }
    fs::create_directories(At(path).parent_path());
    WriteBytes(At(path), bytes);
    expected_[path] = bytes;
}

void EveningTest::Moves(const std::string& from, const std::string& to) {
    expected_[to] = expected_.at(from);
    Goes(from);
}

void EveningTest::Goes(const std::string& path) { EXPECT_EQ(expected_.erase(path), 1U) << path; }

void EveningTest::Appends(const std::string& path, const std::string& bytes) {
    expected_.at(path) += bytes;
}

void EveningTest::Restock() {
    for (const EveningGame& game : EveningGames()) {
        for (const auto& [path, bytes] : firstDay_) {
            if ((path.starts_with(game.shots) || path.starts_with(game.demos)) &&
                !path.ends_with('/')) {
                Put(path, bytes);
            }
        }
        Put(game.folder + "opengl32.dll", "driver of " + game.name);
    }
    Put("Games/Quake2/baseq2/players/stray " + Number() + ".pcx", "stray " + Number());
    for (const char* mod : {"ctf", "", "not installed"}) {
        samples::DemoContents contents;
        contents.mod = mod;
        contents.levelName = "Level of pass " + Number();
        Put("Remote/Unzipped/for " + std::string(*mod == '\0' ? "base" : mod) + " " + Number() +
                ".dm2",
            samples::MakeDemo(samples::DemoKind::Dm2, contents));
    }
}

void EveningTest::ClickOn(int control) {
    zentar_->ClickOn(control);
    used_.insert(control);
}

void EveningTest::ClickIn(HWND window, int control) {
    zentar_->ClickIn(window, control);
    used_.insert(control);
}

void EveningTest::PickFromBar(char menu, char entry, int id) {
    zentar_->OpenMenuEntry(menu, entry);
    used_.insert(id);
}

void EveningTest::SwitchTo(const EveningGame& game) {
    ClickOn(game.option);
    EXPECT_SOON(zentar_->Selected(IDC_lstMods), game.mod);
    zentar_->Settle();
}

void EveningTest::DoubleClickItem(int list, const std::string& item) const {
    zentar_->ClickItem(list, item);
    const HWND box = zentar_->Control(list);
    WaitForKeyboard(zentar_->Process());
    DoubleClick(CentreOfItem(box, static_cast<int>(Send(box, LB_GETCURSEL))));
    zentar_->Settle();
}

void EveningTest::OpenMenuOf(int list) const {
    EXPECT_TRUE(zentar_->GetsFocus(list));
    zentar_->PressKey(VK_APPS);
    zentar_->ClosePopup(zentar_->WaitForWindow(kMenuClass, ""));
    zentar_->Settle();
}

void EveningTest::ShotCommand(const std::string& shot, int command) {
    Choose(shot, command);
    used_.insert(command);
}

void EveningTest::DemoCommand(const std::string& demo, int command) {
    zentar_->ChooseCommand(IDC_lstDemos, demo, command);
    used_.insert(command);
}

void EveningTest::AnswerNext(const std::string& title, int button) {
    AnswerBox(zentar_->WaitForBox(title), button);
    zentar_->Settle();
}

void EveningTest::Confirm() {
    if (!expert_) {
        AnswerNext("Confirm", IDYES);
    }
    zentar_->Settle();
}

void EveningTest::AgreeToReplace(const std::string& remoteFile) {
    if (expected_.contains("Remote/" + remoteFile)) {
        AnswerNext("Confirm", IDYES);
    }
    zentar_->Settle();
}

void EveningTest::Rename(const std::string& title, const std::string& name) {
    zentar_->AnswerInputBox(title, name);
    zentar_->Settle();
}

void EveningTest::RenameByKey(const std::string& title, const std::string& name) {
    for (const int button : {IDCANCEL, IDOK}) {
        const HWND box = zentar_->OpenForm(VK_F2, title);
        zentar_->TypeText(name);
        AnswerBox(box, button);
        zentar_->WaitUntilLeft(box);
    }
}

void EveningTest::Close(HWND window) {
    PostMessageW(window, WM_CLOSE, 0, 0);
    zentar_->WaitUntilLeft(window);
}

// ---- what is left at the end ----

void EveningTest::ExpectAllUsed() {
    for (const FormTable* table : {&MainWindowTable(), &PreferencesTable(), &HelpTable()}) {
        for (const ControlRow& row : table->controls) {
            EXPECT_TRUE(!IsCommand(row) || used_.contains(row.id)) << row.caption << " " << row.id;
        }
        for (const MenuRow& row : table->menus) {
            EXPECT_TRUE(row.kind != MenuKind::Entry || used_.contains(row.id)) << row.caption;
        }
    }
    used_.clear();
}

void EveningTest::ExpectFiles() {
    const Tree found = WithoutGameLogs(ReadTree(home_.Program().parent_path()));
    EXPECT_EQ(Differences(WithoutGameLogs(expected_), found), Lines{});
    EXPECT_EQ(OwnFilesInWindows(), Lines{});
}

}  // namespace zentar::window_tests
