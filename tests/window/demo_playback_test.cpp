// Playing demos in stand-in games, and searching the web for their maps.
#include <gtest/gtest.h>

#include <algorithm>

#include "platform/win32/win32_text.h"
#include "tests/window/game_log.h"
#include "tests/window/standin_browser.h"
#include "tests/window/user_input.h"
#include "tests/window/waiting.h"
#include "tests/window/windows_of.h"
#include "tests/window/zentar_driver.h"
#include "ui/resource.h"

namespace zentar::window_tests {
namespace {

using Lines = std::vector<std::string>;
using Starts = std::vector<GameStart>;

class Playback : public testing::Test {
  protected:
    Playback() {
        for (const char* game : {"Quake", "Quake2", "Quake3"}) {
            SetGameSeconds(home_.Games() / game, 0);
        }
    }

    ZentarDriver& Open(IniLines settings) {
        settings.emplace_back("Expert=1");
        home_.WriteIni(settings);
        zentar_ = std::make_unique<ZentarDriver>(home_);
        zentar_->ShowTab(kDemosTab);
        return *zentar_;
    }

    std::string Folder(const std::string& game) const {
        return Narrow((home_.Games() / game).wstring());
    }

    // The packs of the Quake 3 base folder that were later added to the game.
    Lines LaterPaks() const {
        Lines names;
        for (const auto& entry : std::filesystem::directory_iterator(Base())) {
            const std::string name = entry.path().filename().string();
            if (name.starts_with("pak") && name != "pak0.pk3") {
                names.push_back(name);
            }
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    std::filesystem::path Base() const { return home_.Games() / "Quake3" / "baseq3"; }

    const Lines kShown = {"pak4.pk3", "pak5.pk3", "pak6.pk3"};
    const Lines kHidden = {"pak4.zentar", "pak5.zentar", "pak6.zentar"};
    ZentarHome home_;
    std::unique_ptr<ZentarDriver> zentar_;
};

TEST_F(Playback, Quake1) {
    const ZentarDriver& zentar = Open({"Game=Quake1"});
    zentar.Choose(IDC_lstDemos, "speedrun e1m1", 'P');
    EXPECT_SOON(
        StartsIn(home_.Games() / "Quake"),
        (Starts{{"glquake.exe -game id1 +playdemo \"speedrun e1m1.dem\"", Folder("Quake"), "2"}}));
}

TEST_F(Playback, Quake2ByEnter) {
    const ZentarDriver& zentar = Open({"CurMod2=ctf"});
    zentar.ClickItem(IDC_lstDemos, "revival");
    zentar.PressKey(VK_RETURN);
    EXPECT_SOON(StartsIn(home_.Games() / "Quake2"),
                (Starts{{"quake2.exe +set game ctf +map revival.dm2", Folder("Quake2"), "2"}}));
}

TEST_F(Playback, Quake3OfEachGeneration) {
    const ZentarDriver& zentar = Open({"Game=Quake3"});
    const std::string rest = " +set fs_game baseq3 +demo \"duel\"";
    const std::string folder = Folder("Quake3");
    zentar.Choose(IDC_lstDemos, "duel ", 'P');
    Starts expected = {{"quake3-127h.exe" + rest, folder, "2"}};
    EXPECT_SOON(StartsIn(home_.Games() / "Quake3"), expected);
    EXPECT_SOON(LaterPaks(), kShown);
    DoubleClick(CentreOfItem(zentar.Control(IDC_lstDemos), 3));
    expected.push_back({"quake3.exe" + rest, folder, "2"});
    EXPECT_SOON(zentar.Selected(IDC_lstDemos), "duel  ");
    EXPECT_SOON(StartsIn(home_.Games() / "Quake3"), expected);
}

BoxContents CannotExit() {
    return {.title = "Can't Exit Yet",
            .text = BoxLines({"You cannot exit Zentar at this time because you are either playing",
                              "a Quake3 v1.17 demo or are involved in a modem-to-modem game.",
                              "Please exit the demo or stop the game, and then you will be able to",
                              "safely exit Zentar."}),
            .icon = BoxIcon::Critical,
            .buttons = {IDOK},
            .defaultButton = IDOK};
}

TEST_F(Playback, TheOldestQuake3HidesThePacksUntilItsWindowIsGone) {
    SetGameSeconds(home_.Games() / "Quake3", 300);
    ZentarDriver& zentar = Open({"Game=Quake3"});
    zentar.Choose(IDC_lstDemos, "duel", 'P');
    EXPECT_SOON(
        StartsIn(home_.Games() / "Quake3"),
        (Starts{{"quake3-117.exe +set fs_game baseq3 +demo \"duel\"", Folder("Quake3"), "2"}}));
    EXPECT_SOON(LaterPaks(), kHidden);
    HWND game = nullptr;
    ASSERT_TRUE(Eventually([&] {
        game = FindWindowW(L"StandinGame", L"Quake 3: Arena");
        return game != nullptr;
    }));
    Sleep(3'500);  // the watch has looked by then, and found the game
    EXPECT_SOON(LaterPaks(), kHidden);
    PostMessageW(zentar.Main(), WM_CLOSE, 0, 0);
    const HWND box = zentar.WaitForBox("Can't Exit Yet");
    EXPECT_EQ(zentar.Read(box), CannotExit());
    AnswerBox(box, IDOK);
    EXPECT_TRUE(zentar.Running());
    PostMessageW(game, WM_CLOSE, 0, 0);
    EXPECT_SOON(LaterPaks(), kShown);
    EXPECT_EQ(zentar.Close(), 0);
}

TEST_F(Playback, PacksLeftHiddenByAKilledZentarComeBack) {
    SetGameSeconds(home_.Games() / "Quake3", 300);
    Open({"Game=Quake3"}).Choose(IDC_lstDemos, "duel", 'P');
    HWND game = nullptr;
    ASSERT_TRUE(Eventually([&] {
        game = FindWindowW(L"StandinGame", nullptr);
        return game != nullptr;
    }));
    zentar_->Kill();
    PostMessageW(game, WM_CLOSE, 0, 0);
    EXPECT_SOON(LaterPaks(), kHidden);
    SetGameSeconds(home_.Games() / "Quake3", 0);
    EXPECT_EQ(Open({"Game=Quake3"}).Close(), 0);
    EXPECT_SOON(LaterPaks(), kShown);
}

TEST_F(Playback, PacksComeBackWhenTheSessionEnds) {
    for (const char* pak : {"pak4", "pak5", "pak6"}) {
        std::filesystem::rename(Base() / (std::string(pak) + ".pk3"),
                                Base() / (std::string(pak) + ".zentar"));
    }
    const ZentarDriver& zentar = Open({});
    EXPECT_SOON(LaterPaks(), kHidden);
    Send(zentar.Main(), WM_ENDSESSION, TRUE);
    EXPECT_SOON(LaterPaks(), kShown);
}

BoxContents OldGameNeeded(const std::string& version, const std::string& executable) {
    return {.title = "Error",
            .text = BoxLines(
                {"Zentar cannot play back this Quake 3 demo at this time.", "",
                 "This Q3 demo is of v" + version + "-compatible format, and thus you need",
                 "the v" + version + " Quake 3 executable to be in your Quake 3 folder to",
                 "play it.  Also, the executable must be named \"" + executable + "\".", "",
                 "Please visit " ZENTAR_WEB_SITE " to download",
                 "the executable (zipped format, file size is 805 K), and try again."}),
            .icon = BoxIcon::Exclamation,
            .buttons = {IDOK},
            .defaultButton = IDOK};
}

TEST_F(Playback, OldGamesOfAnotherLengthAreRefused) {
    const std::filesystem::path folder = home_.Games() / "Quake3";
    std::filesystem::resize_file(folder / "quake3-117.exe", 852'026);
    std::filesystem::remove(folder / "quake3-127h.exe");
    const ZentarDriver& zentar = Open({"Game=Quake3"});
    zentar.Choose(IDC_lstDemos, "duel", 'P');
    HWND box = zentar.WaitForBox("Error");
    EXPECT_EQ(zentar.Read(box), OldGameNeeded("1.17", "quake3-117.exe"));
    AnswerBox(box, IDOK);
    zentar.Choose(IDC_lstDemos, "duel ", 'P');
    box = zentar.WaitForBox("Error");
    EXPECT_EQ(zentar.Read(box), OldGameNeeded("1.27h", "quake3-127h.exe"));
    AnswerBox(box, IDOK);
    EXPECT_SOON(StartsIn(folder), Starts{});
    EXPECT_SOON(LaterPaks(), kShown);
}

TEST_F(Playback, OutsideExpertModeTheUserIsAsked) {
    home_.WriteIni();
    const ZentarDriver zentar(home_);
    zentar.ShowTab(kDemosTab);
    zentar.Choose(IDC_lstDemos, "campaign", 'P');
    HWND box = zentar.WaitForBox("Confirm");
    const BoxContents question{.title = "Confirm",
                               .text = "Really start Quake2 and play this demo?",
                               .icon = BoxIcon::Question,
                               .buttons = {IDYES, IDNO},
                               .defaultButton = IDNO};
    EXPECT_EQ(zentar.Read(box), question);
    AnswerBox(box, IDNO);
    EXPECT_SOON(StartsIn(home_.Games() / "Quake2"), Starts{});
    zentar.Choose(IDC_lstDemos, "campaign", 'P');
    AnswerBox(zentar.WaitForBox("Confirm"), IDYES);
    EXPECT_SOON(StartsIn(home_.Games() / "Quake2"),
                (Starts{{"quake2.exe +set game baseq2 +map campaign.dm2", Folder("Quake2"), "2"}}));
}

TEST_F(Playback, AMissingGameIsToldOfTheFolder) {
    const ZentarDriver& zentar = Open({});
    std::filesystem::remove(home_.Games() / "Quake2" / "quake2.exe");
    zentar.Choose(IDC_lstDemos, "campaign", 'P');
    const HWND box = zentar.WaitForBox("Folder Error");
    EXPECT_TRUE(zentar.Read(box).text.starts_with(
        "The correct folder for Quake2 is not specified!\r\n\r\nZentar can't carry out"));
    AnswerBox(box, IDOK);
}

TEST_F(Playback, AFileThatIsNoProgramIsTold) {
    WriteBytes(home_.Games() / "Quake2" / "quake2.exe", "This is no program.");
    const ZentarDriver& zentar = Open({});
    zentar.Choose(IDC_lstDemos, "campaign", 'P');
    const HWND box = zentar.WaitForBox("Error");
    EXPECT_EQ(zentar.Read(box).text, BoxLines({"Zentar couldn't start Quake2.", "",
                                               "Please make sure that \"quake2.exe\" can be",
                                               "started from its folder, and try again."}));
    AnswerBox(box, IDOK);
}

TEST_F(Playback, TheWebIsSearchedForTheMap) {
    const StandinBrowser browser;
    const ZentarDriver& zentar = Open({"CurMod2=ctf"});
    const std::string prefix = ZENTAR_MAP_SEARCH;
    const Lines searches = {prefix + "q2ctf1+McKinley+Revival", prefix + "McKinley+Revival",
                            prefix + "q2ctf1"};
    for (std::size_t entry = 0; entry < searches.size(); ++entry) {
        const HWND popup = zentar.OpenPopup(IDC_lstDemos, "revival");
        Press('S');
        for (std::size_t down = 0; down < entry; ++down) {
            Press(VK_DOWN);
        }
        Press(VK_RETURN);
        WaitUntilGone(popup);
        EXPECT_SOON(browser.Opened(),
                    Lines(searches.begin(), searches.begin() + static_cast<int>(entry) + 1));
        zentar.Settle();
    }
}

}  // namespace
}  // namespace zentar::window_tests
