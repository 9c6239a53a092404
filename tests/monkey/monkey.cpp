#include "tests/monkey/monkey.h"

#include <algorithm>
#include <cstdio>

#include <gtest/gtest.h>

#include "core/text.h"

namespace zentar::monkey {
namespace {

using Touch = WatchedFileSystem::Touch;

bool IsBelow(const std::string& folded, const std::string& folder) {
    return !folder.empty() && folded.starts_with(Folded(folder));
}

// Others lead nowhere.
bool IsAbsolute(const std::string& path) { return path.size() > 2 && path[2] == '\\'; }

}  // namespace

Monkey::Monkey(std::uint64_t seed)
    : dice_(seed),
      watched_(files_, [this](Touch touch, const std::string& path) { CheckTouch(touch, path); }),
      world_(files_, pictures_, images_, ledger_, dice_),
      shell_(dice_, world_, chosen_, watched_),
      windows_(dice_, world_, ledger_, chosen_),
      user_(dice_, forms_, costs_) {
    world_.Make();
    windows_.SetDuringPump([this] { user_.ActMeanwhile(); });
    ledger_.Begin();
    costs_.OfAnything(nullptr);
    StartProgram();
    CheckFiles();
}

void Monkey::StartProgram() {
    program_.emplace(
        Platform{watched_, shell_, windows_, locale_, images_, pictures_, registry_, forms_});
    program_->Start();
    Main().Activate();
    user_.Uses(*program_);
}

void Monkey::EndProgram() {
    user_.Leaves();
    program_.reset();
}

void Monkey::Step() {
    ledger_.Begin();
    costs_.OfAnything(&program_->State());
    DoSomething();
    if (Main().Closed()) {
        EndProgram();
        StartProgram();
    }
    CheckFiles();
    CheckWindow();
}

void Monkey::DoSomething() {
    constexpr std::size_t kStepsPerHappening = 12;
    constexpr std::size_t kStepsPerKill = 700;
    constexpr std::size_t kStepsPerSession = 700;
    if (dice_.OneIn(kStepsPerHappening)) {
        world_.Happen();
    } else if (dice_.OneIn(kStepsPerKill)) {
        EndProgram();
        StartProgram();
    } else if (dice_.OneIn(kStepsPerSession)) {
        Main().EndSession();
    } else {
        user_.Act();
    }
}

// Folders that a command may write to: the program's own, the games', and those that the user has
// pointed it at.
bool Monkey::IsWithinReach(const std::string& folded) {
    for (const std::string& folder : {kProgramFolder, kWindowsFolder, kTemporaryFolder}) {
        if (IsBelow(folded, folder)) {
            return true;
        }
    }
    const bool chosen =
        std::any_of(chosen_.folders.begin(), chosen_.folders.end(),
                    [&](const std::string& folder) { return folded.starts_with(folder); });
    if (chosen || !program_) {
        return chosen;
    }
    const ProgramState& state = program_->State();
    // A game that is not installed has a drive for its folder, which leads nowhere.
    const bool inGame =
        std::any_of(state.games.begin(), state.games.end(), [&](const GameState& game) {
            return game.GameFolder.ends_with('\\') && IsBelow(folded, game.GameFolder);
        });
    return inGame || costs_.IsInRemoteFolder(folded);
}

void Monkey::CheckTouch(Touch touch, const std::string& path) {
    const std::string folded = Folded(path);
    if (IsBelow(folded, kPrivateFolder)) {
        ADD_FAILURE() << "It looked into " << path;
    }
    if (touch == Touch::Change && IsAbsolute(folded) && !IsWithinReach(folded)) {
        ADD_FAILURE() << "It would change " << path;
    }
}

void Monkey::CheckFiles() {
    for (const std::string& loss : ledger_.Lost(watched_.TakeChanged())) {
        ADD_FAILURE() << "Lost or broken is " << loss;
    }
}

void Monkey::CheckWindow() {
    if (!Main().Shown() || !forms_.Idle()) {
        return;
    }
    EXPECT_EQ(windows_.CurrentPointer(), Pointer::Default);
    CheckDemoCount();
    CheckShotCount();
    CheckGame();
    CheckTexts();
}

void Monkey::CheckDemoCount() {
    const std::string text = Main().AnyControl(IDC_labNumDemos).Text();
    const int count = Main().GetListBox(IDC_lstDemos).Count();
    int listed = -1;
    int total = -1;
    int end = 0;
    std::sscanf(text.c_str(), "Total listed: %d of %d.%n", &listed, &total, &end);
    EXPECT_EQ(static_cast<std::size_t>(end), text.size()) << text;
    EXPECT_EQ(listed, count) << text;
    EXPECT_GE(total, count) << text;
    EXPECT_EQ(Main().GetListBox(IDC_lstDemos).Enabled(), count > 0);
}

void Monkey::CheckShotCount() {
    const std::string text = Main().AnyControl(IDC_labNumShots).Text();
    const int count = Main().GetListBox(IDC_lstScreenshots).Count();
    int total = -1;
    int tga = 0;
    int jpg = 0;
    int pcx = 0;
    int end = 0;
    std::sscanf(text.c_str(), "Total: %d  (tga=%d,  jpg=%d,  pcx=%d).%n", &total, &tga, &jpg, &pcx,
                &end);
    EXPECT_EQ(static_cast<std::size_t>(end), text.size()) << text;
    EXPECT_EQ(total, count) << text;
    EXPECT_EQ(tga + jpg + pcx, count) << text;
    EXPECT_EQ(Main().GetListBox(IDC_lstScreenshots).Enabled(), count > 0);
}

void Monkey::CheckGame() {
    ProgramState& state = program_->State();
    const int game = GameIndex(state.settings.Game);
    ASSERT_GE(game, 0) << state.settings.Game;
    for (int each = 0; each < 3; ++each) {
        EXPECT_EQ(Main().GetOptionButton(IDC_optGameQuake1 + each).Selected(), each == game);
        EXPECT_EQ(Main().GetMenu(IDM_mnuGameQuake1 + each).Checked(), each == game);
    }
    ListBox& mods = Main().GetListBox(IDC_lstMods);
    EXPECT_EQ(mods.Enabled(), mods.Count() > 0);
    if (mods.SelectedIndex() >= 0) {
        EXPECT_EQ(mods.Item(mods.SelectedIndex()), state.current.SelectedMod);
    } else {
        EXPECT_EQ(state.current.SelectedMod, state.Info()->baseMod);
    }
}

void Monkey::CheckTexts() {
    bool anyName = false;
    for (int box = 0; box < static_cast<int>(kPlayerBoxes); ++box) {
        anyName = anyName || !Main().AnyControl(IDC_txtPlayer1 + box).Text().empty();
    }
    EXPECT_EQ(Main().AnyControl(IDC_cmdClearNames).Enabled(), anyName);
    const bool anyText = !Main().AnyControl(IDC_rtbQ3Text).Text().empty();
    EXPECT_EQ(Main().AnyControl(IDC_cmdQ3TextSave).Enabled(), anyText);
    EXPECT_EQ(Main().AnyControl(IDC_cmdQ3TextClipboard).Enabled(), anyText);
}

}  // namespace zentar::monkey
