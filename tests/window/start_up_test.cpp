// What the user finds when the program has started.
#include <gtest/gtest.h>

#include "tests/window/image_library_file.h"
#include "tests/window/user_input.h"
#include "tests/window/waiting.h"
#include "tests/window/windows_of.h"
#include "tests/window/zentar_driver.h"
#include "ui/resource.h"

namespace zentar::window_tests {
namespace {

using Lines = std::vector<std::string>;

TEST(StartUp, TheStoredGameIsSelectedAndItsModsAreListedWithoutTheFoldersThatAreNoMods) {
    const ZentarHome home;
    home.WriteIni();
    const ZentarDriver zentar(home);
    EXPECT_SOON(zentar.Checked(IDC_optGameQuake2), true);
    EXPECT_SOON(zentar.Checked(IDC_optGameQuake1), false);
    EXPECT_SOON(zentar.Checked(IDC_optGameQuake3), false);
    EXPECT_SOON(zentar.Items(IDC_lstMods),
                (Lines{"baseq2", "ctf", "docs2", "lithium", "rocket arena"}));
    EXPECT_SOON(zentar.Selected(IDC_lstMods), "baseq2");
}

TEST(StartUp, TheDemosOfTheModAreListedInAlphabeticalOrderAndCounted) {
    const ZentarHome home;
    home.WriteIni();
    const ZentarDriver zentar(home);
    zentar.ShowTab(kDemosTab);
    EXPECT_SOON(zentar.Items(IDC_lstDemos),
                (Lines{"[q2dm3] warm-up", "campaign", "edge final", "empty", "Größe [q2dm1]",
                       "shopping list", "untitled", "дуэль"}));
    EXPECT_SOON(zentar.Text(IDC_labNumDemos), "Total listed: 8 of 8.");
}

TEST(StartUp, TheStoredModIsSelectedAgain) {
    const ZentarHome home;
    home.WriteIni({"CurMod2=ctf"});
    const ZentarDriver zentar(home);
    zentar.ShowTab(kDemosTab);
    EXPECT_SOON(zentar.Selected(IDC_lstMods), "ctf");
    EXPECT_SOON(zentar.Items(IDC_lstDemos), (Lines{"revival", "stronghold"}));
}

TEST(StartUp, TheTabsHaveTheKeyboard) {
    const ZentarHome home;
    home.WriteIni();
    const ZentarDriver zentar(home);
    EXPECT_TRUE(zentar.GetsFocus(IDC_SSTab1));
}

TEST(StartUp, AMissingGameShowsAnEmptyListThatCannotBeUsed) {
    const ZentarHome home;
    home.WriteIni();
    std::filesystem::remove(home.Games() / "Quake2" / "quake2.exe");
    const ZentarDriver zentar(home);
    zentar.ShowTab(kDemosTab);
    EXPECT_SOON(zentar.Items(IDC_lstMods), Lines{});
    EXPECT_SOON(zentar.Usable(IDC_lstMods), false);
    EXPECT_SOON(zentar.Usable(IDC_labMod), false);
    EXPECT_SOON(zentar.Items(IDC_lstDemos), Lines{});
    EXPECT_SOON(zentar.Usable(IDC_lstDemos), false);
    EXPECT_SOON(zentar.Text(IDC_labNumDemos), "Total listed: 0 of 0.");
}

TEST(StartUp, AModWithoutADemosFolderShowsAnEmptyListThatCannotBeUsed) {
    const ZentarHome home;
    home.WriteIni({"CurMod2=lithium"});
    const ZentarDriver zentar(home);
    zentar.ShowTab(kDemosTab);
    EXPECT_SOON(zentar.Text(IDC_labNumDemos), "Total listed: 0 of 0.");
    EXPECT_SOON(zentar.Usable(IDC_lstDemos), false);
    EXPECT_SOON(zentar.Usable(IDC_lstMods), true);
}

TEST(StartUp, TheFolderForColouredTextsIsMade) {
    const ZentarHome home;
    home.WriteIni();
    const ZentarDriver zentar(home);
    EXPECT_SOON(std::filesystem::is_directory(home.Program() / "data" / "q3text"), true);
}

BoxContents Welcome() {
    return {.title = "Welcome",
            .text = BoxLines({"Welcome to Zentar!", "",
                              "This appears to be your first time using Zentar.",
                              "As such, you will need to tell Zentar where your",
                              "Quake games are.  Do you want to do this now?"}),
            .icon = BoxIcon::Question,
            .buttons = {IDYES, IDNO},
            .defaultButton = IDYES};
}

TEST(StartUp, TemporaryFilesOfACrashedRunAreGone) {
    const std::filesystem::path windows = WindowsFolder();
    const std::vector<std::filesystem::path> stale = {
        windows / "zentar-tmp.gif", windows / "zentar-tmp.htm", windows / "zentar-help.htm"};
    for (const std::filesystem::path& file : stale) {
        WriteBytes(file, "stale");
        SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY);
    }
    const ZentarHome home;
    home.WriteIni();
    const std::filesystem::path config = home.Games() / "Quake" / "id1" / "zentar.cfg";
    WriteBytes(config, "bind");
    SetFileAttributesW(config.c_str(), FILE_ATTRIBUTE_READONLY);
    const ZentarDriver zentar(home);
    for (const std::filesystem::path& file : stale) {
        EXPECT_SOON(std::filesystem::exists(file), false) << file;
    }
    EXPECT_SOON(ReadBytes(config), "bind");
    EXPECT_EQ(GetFileAttributesW(config.c_str()) & FILE_ATTRIBUTE_READONLY, 0U);
}

// A new user has read the author's details.
void CloseHelp(const ZentarDriver& zentar) {
    PostMessageW(zentar.WaitForForm("Zentar Help"), WM_CLOSE, 0, 0);
}

TEST(FirstRun, TheWelcomeIsFollowedByTheCurrentFolders) {
    const ZentarHome home;
    ZentarDriver zentar(home, ZentarDriver::Start::FirstRun);
    const HWND help = zentar.WaitForForm("Zentar Help");
    EXPECT_SOON(TextOf(FindControl(help, IDC_labHeader)),
                "     Author Details And Program Legal Information");
    EXPECT_SOON(IsWindowEnabled(zentar.Main()), FALSE);
    EXPECT_FALSE(zentar.HasBox());
    PostMessageW(help, WM_CLOSE, 0, 0);
    const HWND welcome = zentar.WaitForBox("Welcome");
    EXPECT_EQ(zentar.Read(welcome), Welcome());
    AnswerBox(welcome, IDNO);
    const HWND folders = zentar.WaitForBox("Current Folders");
    const std::string drive = FolderText(home.Program()).substr(0, 2);
    std::string lower = drive;
    lower[0] = static_cast<char>(std::tolower(lower[0]));
    EXPECT_EQ(zentar.Read(folders).text,
              BoxLines({"Quake 1\t   " + lower, "Quake 2\t   " + lower, "Quake 3\t   " + lower}));
    AnswerBox(folders, IDOK);
    EXPECT_TRUE(zentar.GetsFocus(IDC_SSTab1));
    EXPECT_EQ(zentar.Close(), 0);
    EXPECT_NE(ReadBytes(home.Ini()).find("\r\nVirgin=0\r\n"), std::string::npos);
}

TEST(FirstRun, PickedFoldersAreUsedAtOnce) {
    const ZentarHome home;
    ZentarDriver zentar(home, ZentarDriver::Start::FirstRun);
    CloseHelp(zentar);
    AnswerBox(zentar.WaitForBox("Welcome"), IDYES);
    for (const auto& [game, folder] :
         {std::pair("Quake1", "Quake"), {"Quake2", "Quake2"}, {"Quake3", "Quake3"}}) {
        zentar.PickFolder("Please locate your " + std::string(game) + " folder:",
                          home.Games() / folder);
    }
    const HWND folders = zentar.WaitForBox("Current Folders");
    EXPECT_EQ(zentar.Read(folders).text,
              BoxLines({"Quake 1\t   " + FolderText(home.Games() / "Quake"),
                        "Quake 2\t   " + FolderText(home.Games() / "Quake2"),
                        "Quake 3\t   " + FolderText(home.Games() / "Quake3")}));
    AnswerBox(folders, IDOK);
    EXPECT_SOON(zentar.Selected(IDC_lstMods), "baseq3");
    EXPECT_EQ(zentar.Close(), 0);
}

TEST(FirstRun, YesAsksForTheThreeGamesInTurn) {
    const ZentarHome home;
    ZentarDriver zentar(home, ZentarDriver::Start::FirstRun);
    CloseHelp(zentar);
    AnswerBox(zentar.WaitForBox("Welcome"), IDYES);
    for (const std::string game : {"Quake1", "Quake2", "Quake3"}) {
        AnswerBox(zentar.WaitForPicker("Please locate your " + game + " folder:"), IDCANCEL);
    }
    AnswerBox(zentar.WaitForBox("Current Folders"), IDOK);
    EXPECT_EQ(zentar.Close(), 0);
    EXPECT_NE(ReadBytes(home.Ini()).find("\r\nGame=Quake3\r\n"), std::string::npos);
}

}  // namespace
}  // namespace zentar::window_tests
