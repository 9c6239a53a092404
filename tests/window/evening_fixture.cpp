#include "tests/window/evening_fixture.h"

#include <algorithm>

#include "platform/win32/win32_text.h"
#include "samples/demo_maker.h"
#include "tests/window/game_log.h"
#include "tests/window/image_library_file.h"
#include "tests/window/user_input.h"
#include "tests/window/waiting.h"
#include "tests/window/wallpaper.h"
#include "tests/window/windows_of.h"
#include "ui/form_tables.h"
#include "ui/resource.h"

namespace zentar::window_tests {
namespace {

namespace fs = std::filesystem;

const std::string kShots = "Games/Quake2/baseq2/scrnshot/";
const std::string kDemos = "Games/Quake2/baseq2/demos/";

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

EveningTest::EveningTest() : wallpaperBefore_(CurrentWallpaper()) {
    for (const char* game : {"Quake", "Quake2", "Quake3"}) {
        SetGameSeconds(home_.Games() / game, 0);
    }
    firstDay_ = ReadTree(home_.Program().parent_path());
    expected_ = firstDay_;
    for (const char* folder : {"Program/data/", "Program/data/q3text/"}) {
        expected_[folder] = "";
    }
    Restock();
}

EveningTest::~EveningTest() {
    zentar_.reset();
    SystemParametersInfoW(SPI_SETDESKWALLPAPER, 0, wallpaperBefore_.data(), SPIF_UPDATEINIFILE);
}

fs::path EveningTest::At(const std::string& path) const {
    return home_.Program().parent_path() / Widen(path);
}

std::string EveningTest::Name(const std::string& game) const {
    return Narrow((home_.Games() / game).make_preferred().wstring());
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
    for (const auto& [path, bytes] : firstDay_) {
        if ((path.starts_with(kShots) || path.starts_with(kDemos)) && !path.ends_with('/')) {
            Put(path, bytes);
        }
    }
    for (const char* game : {"Quake", "Quake2", "Quake3"}) {
        Put("Games/" + std::string(game) + "/opengl32.dll", "driver of " + std::string(game));
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
    Click(CentreOf(FindControl(window, control)));
    zentar_->Settle();
    used_.insert(control);
}

void EveningTest::PickFromBar(char menu, char entry, int id) {
    zentar_->OpenMenuEntry(menu, entry);
    used_.insert(id);
}

// What was done before may still be filling the list.
void EveningTest::WaitForEntry(int list, const std::string& entry) const {
    Eventually([&] {
        const Lines items = zentar_->Items(list);
        return std::any_of(items.begin(), items.end(), [&](const std::string& item) {
            return item == entry || item == entry + " *";
        });
    });
    zentar_->Settle();
}

void EveningTest::ShotCommand(const std::string& shot, int command) {
    WaitForEntry(IDC_lstScreenshots, shot);
    Choose(shot, command);
    used_.insert(command);
}

void EveningTest::DemoCommand(const std::string& demo, int command) {
    WaitForEntry(IDC_lstDemos, demo);
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
    const HWND box = zentar_->WaitForWindow("ZentarForm", title);
    Type(name);
    Press(VK_RETURN);
    WaitUntilGone(box);
    zentar_->Settle();
}

// ---- the first run, and what is in the menu bar ----

void EveningTest::FirstRun() {
    zentar_ = std::make_unique<ZentarDriver>(home_, ZentarDriver::Start::FirstRun);
    PostMessageW(zentar_->WaitForWindow("ZentarForm", "Zentar Help"), WM_CLOSE, 0, 0);
    AnswerBox(zentar_->WaitForBox("Welcome"), IDYES);
    for (const auto& [game, folder] :
         {std::pair("Quake1", "Quake"), {"Quake2", "Quake2"}, {"Quake3", "Quake3"}}) {
        zentar_->PickFolder("Please locate your " + std::string(game) + " folder:",
                            home_.Games() / folder);
    }
    AnswerNext("Current Folders", IDOK);
    EXPECT_SOON(zentar_->Selected(IDC_lstMods), "baseq3");
}

void EveningTest::GoHome() {
    EXPECT_SOON(zentar_->Checked(IDC_optGameQuake2), true);
    PickFromBar('P', 'X', IDM_mnuProgramExit);
    EXPECT_EQ(zentar_->WaitForExit(), 0);
    expected_["Program/zentar.ini"] =
        home_.WholeIni({"Expert=" + std::string(expert_ ? "1" : "0"),
                        "BackupAll=" + std::string(pass_ == 1 ? "1" : "0"), "DemosFilter=q2dm3",
                        "TranscriptGameplay=" + std::string(pass_ == 1 ? "1" : "0"),
                        "Q3TextText=" + FolderText(home_.Program()) + "data\\q3text\\evening " +
                            Number() + ".ini"});
    ExpectFiles();
    ExpectAllUsed();
}

void EveningTest::ComeBack() {
    pass_ = 2;
    Restock();
    zentar_ = std::make_unique<ZentarDriver>(home_);
}

void EveningTest::Preferences(bool switchToExpert) {
    PickFromBar('P', 'P', IDM_mnuProgramPreferences);
    const HWND window = zentar_->WaitForWindow("ZentarForm", "Preferences");
    zentar_->Settle();
    ClickIn(window, IDC_cmdRemote);
    zentar_->PickFolder("Please specify a folder to be the Remote Folder:", home_.Remote());
    EXPECT_SOON(TextOf(FindControl(window, IDC_txtRemote)), FolderText(home_.Remote()));
    for (const int option : {IDC_chkAutoShowAll, IDC_chkAutoNextShot, IDC_chkAutoNextDemo}) {
        ClickIn(window, option);
        ClickIn(window, option);
    }
    ClickIn(window, IDC_chkExpert);
    AnswerNext("Confirm", switchToExpert ? IDYES : IDNO);
    expert_ = switchToExpert;
    EXPECT_SOON(IsChecked(FindControl(window, IDC_chkExpert)), expert_);
    PostMessageW(window, WM_CLOSE, 0, 0);
    EXPECT_SOON(IsWindowVisible(window), FALSE);
    zentar_->Settle();
}

void EveningTest::GamesAndMenus() {
    PickFromBar('G', 'Q', IDM_mnuGameQuake1);
    EXPECT_SOON(zentar_->Selected(IDC_lstMods), "id1");
    PickFromBar('G', '3', IDM_mnuGameQuake3);
    EXPECT_SOON(zentar_->Selected(IDC_lstMods), "baseq3");
    ClickOn(IDC_optGameQuake1);
    ClickOn(IDC_optGameQuake3);
    ClickOn(IDC_optGameQuake2);
    EXPECT_SOON(zentar_->Selected(IDC_lstMods), "baseq2");
    PickFromBar('G', '2', IDM_mnuGameQuake2);
    PickFromBar('G', 'C', IDM_mnuGameCurrentFolders);
    AnswerNext("Current Folders", IDOK);
    PickFromBar('G', 'F', IDM_mnuGameGetFolder);
    zentar_->PickFolder("Please locate your Quake2 folder:", home_.Games() / "Quake2");
    PickFromBar('H', 'H', IDM_mnuHelpTopics);
    const HWND help = zentar_->WaitForWindow("ZentarForm", "Zentar Help");
    zentar_->Settle();
    const HWND list = FindControl(help, IDC_lstQuestions);
    ScrollTo(list, 1);
    DoubleClick(CentreOfItem(list, 1));
    EXPECT_SOON(IsUsable(FindControl(help, IDC_cmdBack)), true);
    ClickIn(help, IDC_cmdBack);
    PostMessageW(help, WM_CLOSE, 0, 0);
    EXPECT_SOON(IsWindowVisible(help), FALSE);
    PickFromBar('H', 'A', IDM_mnuHelpAbout);
    AnswerNext("About Zentar", IDOK);
    // The game wrote its note on backups when it was the current one.
    expected_["Games/Quake3/SINGLE-PLAYER Backups/Single-Player Backups.txt"] =
        BoxLines({"Zentar v0.99 BETA Single-Player Backups", "Web Site: " ZENTAR_WEB_SITE,
                  "----------------------------------",
                  "The files in this folder are backups of Quake 3 single-player games",
                  "and were created by Zentar.  You can restore these backups to Quake 3",
                  "by running Zentar and clicking the \"Misc\" tab and then \"Restore\".",
                  "Alternatively, you can copy-and-paste the data in the files here into",
                  "your existing \"q3config.cfg\" file, but be sure to paste them to the",
                  "very END of the file to ensure the existing settings get overwritten!",
                  "======================================================================", ""});
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
