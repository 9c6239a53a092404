// Deleting, renaming, copying, moving and installing demos.
#include <gtest/gtest.h>

#include "platform/win32/win32_text.h"
#include "samples/demo_maker.h"
#include "tests/window/commands_fixture.h"
#include "tests/window/second_drive.h"
#include "tests/window/user_input.h"
#include "tests/window/waiting.h"
#include "tests/window/windows_of.h"
#include "ui/resource.h"

namespace zentar::window_tests {
namespace {

namespace fs = std::filesystem;

class Commands : public CommandsTest {
  protected:
    ZentarDriver& Open(const IniLines& settings = {}) { return CommandsTest::Open(1, settings); }

    fs::path Demos() const { return home_.Games() / "Quake2" / "baseq2" / "demos"; }
    bool IsHere(const std::string& demo) const {
        return fs::exists(Demos() / Widen(demo + ".dm2"));
    }
    fs::path There(const std::string& demo) const { return home_.Remote() / Widen(demo + ".dm2"); }
};

TEST_F(Commands, DeleteAsksAndSelectsTheNextDemoIfSoPreferred) {
    const ZentarDriver& zentar = Open({"AutoNextDemo=1"});
    zentar.Choose(IDC_lstDemos, "campaign", 'D');
    Answer(Question({"Really delete this demo?"}), IDNO);
    EXPECT_SOON(IsHere("campaign"), true);
    zentar.Choose(IDC_lstDemos, "campaign", 'D');
    Answer(Question({"Really delete this demo?"}), IDYES);
    EXPECT_SOON(IsHere("campaign"), false);
    EXPECT_SOON(zentar.Selected(IDC_lstDemos), "edge final");
    EXPECT_SOON(zentar.Text(IDC_labDemoName), "Name: The Edge");
}

TEST_F(Commands, TheDeleteKeyAsksAboutAReadOnlyDemo) {
    const ZentarDriver& zentar = Open({"Expert=1"});
    MakeReadOnly(Demos() / "campaign.dm2");
    const BoxContents question =
        FailureWithQuestion({"This demo couldn't be deleted due to being set as read-only.",
                             "Would you like me to remove this setting to force the deletion?"});
    zentar.ClickItem(IDC_lstDemos, "campaign");
    zentar.PressKey(VK_DELETE);
    Answer(question, IDNO);
    EXPECT_SOON(IsHere("campaign"), true);
    zentar.PressKey(VK_BACK);
    Answer(question, IDYES);
    EXPECT_SOON(IsHere("campaign"), false);
    EXPECT_SOON(zentar.Text(IDC_labNumDemos), "Total listed: 7 of 7.");
}

// Expert Mode asks nothing, and the next demo is selected at once.
TEST_F(Commands, ADeleteKeyThatIsHeldDownDeletesOneDemo) {
    const ZentarDriver& zentar = Open({"Expert=1", "AutoNextDemo=1"});
    zentar.ClickItem(IDC_lstDemos, "campaign");
    zentar.PressKey(VK_DELETE);
    EXPECT_SOON(zentar.Selected(IDC_lstDemos), "edge final");
    zentar.RepeatKey(VK_DELETE);
    EXPECT_SOON(zentar.Selected(IDC_lstDemos), "edge final");
    EXPECT_SOON(zentar.Text(IDC_labNumDemos), "Total listed: 7 of 7.");
    EXPECT_SOON(IsHere("edge final"), true);
}

TEST_F(Commands, DeleteAllListedLeavesWhatTheFilterHides) {
    const ZentarDriver& zentar =
        Open({"AutoShowAll=0", "DemosAll=0", "DemosText=True", "DemosFilter=Fred"});
    EXPECT_SOON(zentar.Items(IDC_lstDemos), (Lines{"edge final", "дуэль"}));
    zentar.Choose(IDC_lstDemos, "edge final", 'A');
    Answer(Question({"Really delete all listed demos?"}), IDYES);
    EXPECT_SOON(zentar.Text(IDC_labNumDemos), "Total listed: 0 of 6.");
    EXPECT_SOON(IsHere("campaign"), true);
    EXPECT_SOON(IsHere("дуэль"), false);
}

TEST_F(Commands, F2RenamesInAnInputBox) {
    const ZentarDriver& zentar = Open();
    zentar.ClickItem(IDC_lstDemos, "дуэль");
    const HWND box = zentar.OpenForm(VK_F2, "Rename Demo");
    const std::vector<HWND> inside = Descendants(box);
    Lines texts;
    for (const HWND control : inside) {
        texts.push_back(TextOf(control));
    }
    EXPECT_EQ(texts, (Lines{"Enter new name for \"дуэль\".\r\n(Do not type the extension).",
                            "дуэль", "OK", "Cancel"}));
    // The old name is selected, so typing replaces it.
    EXPECT_SOON(Send(FindControl(box, 1002), EM_GETSEL), MAKELONG(0, 5));
    zentar.AnswerInputBox("Rename Demo", "Größe & co");
    EXPECT_SOON(zentar.Selected(IDC_lstDemos), "Größe & co");
    EXPECT_SOON(IsHere("Größe & co"), true);
    EXPECT_SOON(zentar.Text(IDC_labDemoName), "Name: Warehouse");
}

TEST_F(Commands, EscapeLeavesTheNameAsItIs) {
    const ZentarDriver& zentar = Open();
    zentar.Choose(IDC_lstDemos, "campaign", 'M');
    const HWND box = zentar.WaitForForm("Rename Demo");
    zentar.TypeText("x");
    zentar.LeaveBy(VK_ESCAPE, box);
    EXPECT_SOON(IsHere("campaign"), true);
}

TEST_F(Commands, NamesThatCannotBeAreRefused) {
    const ZentarDriver& zentar = Open();
    const auto rename = [&](const std::string& name) {
        zentar.Choose(IDC_lstDemos, "campaign", 'M');
        zentar.AnswerInputBox("Rename Demo", name);
    };
    rename("a:b");
    Answer(Failure({"Can't rename due to illegal characters.", "",
                    "Filenames cannot have these characters",
                    "in them:   \"   \\   /   |   <   >   :   ?   *"}),
           IDOK);
    rename("untitled");
    Answer(Failure({"Can't rename due to another demo having that name.", "",
                    "Please choose another name and try again."}),
           IDOK);
    rename("con");
    Answer(
        Failure({"Can't rename due to Windows not allowing that name.", "",
                 "It may be too long, or be a name that Windows", "keeps for itself (eg. con)."}),
        IDOK);
    EXPECT_SOON(IsHere("campaign"), true);
    EXPECT_SOON(zentar.Selected(IDC_lstDemos), "campaign");
}

TEST_F(Commands, RenameWithMapPutsTheMapBeforeTheName) {
    const ZentarDriver& zentar = Open();
    zentar.Choose(IDC_lstDemos, "edge final", 'W');
    EXPECT_SOON(zentar.Selected(IDC_lstDemos), "[q2dm1]_edge final");
    EXPECT_SOON(IsHere("[q2dm1]_edge final"), true);
}

TEST_F(Commands, CopyAndMoveAskAndCarryTheDemo) {
    const ZentarDriver& zentar = Open();
    const std::string bytes = ReadBytes(Demos() / "campaign.dm2");
    zentar.Choose(IDC_lstDemos, "campaign", 'C');
    Answer(Question({"Really copy this demo to this folder?"}), IDYES);
    EXPECT_SOON(ReadBytes(There("campaign")) == bytes, true);
    EXPECT_SOON(zentar.Selected(IDC_lstDemos), "campaign");
    MakeReadOnly(There("campaign"));
    zentar.Choose(IDC_lstDemos, "campaign", 'R');
    Answer(Question({"Really move this demo to this folder?"}), IDYES);
    Answer(Question({"Demo already exists in Remote Folder -- Overwrite?"}), IDYES);
    const BoxContents readOnly =
        FailureWithQuestion({"Can't overwrite existing demo due to it being read-only.",
                             "Would you like me to remove this setting to force the overwrite?"});
    Answer(readOnly, IDNO);
    EXPECT_SOON(IsHere("campaign"), true);
    zentar.Choose(IDC_lstDemos, "campaign", 'R');
    Answer(Question({"Really move this demo to this folder?"}), IDYES);
    Answer(Question({"Demo already exists in Remote Folder -- Overwrite?"}), IDYES);
    Answer(readOnly, IDYES);
    EXPECT_SOON(IsHere("campaign"), false);
    EXPECT_SOON(ReadBytes(There("campaign")) == bytes, true);
    EXPECT_SOON(zentar.Text(IDC_labNumDemos), "Total listed: 7 of 7.");
}

TEST_F(Commands, ADemoIsMovedToAnotherDriveByACheckedCopy) {
    const SecondDrive drive(home_.Remote());
    const ZentarDriver& zentar = Open({"Expert=1", "Remote=" + drive.Root()});
    const std::string bytes = ReadBytes(Demos() / "edge final.dm2");
    zentar.Choose(IDC_lstDemos, "edge final", 'R');
    EXPECT_SOON(IsHere("edge final"), false);
    EXPECT_SOON(ReadBytes(There("edge final")) == bytes, true);
    EXPECT_EQ(std::distance(fs::directory_iterator(home_.Remote()), fs::directory_iterator()), 1);
}

TEST_F(Commands, ARemoteFolderThatIsTheDemosOwnUnderAnotherNameLosesNothing) {
    const SecondDrive drive(Demos());
    const ZentarDriver& zentar = Open({"Expert=1", "Remote=" + drive.Root()});
    const std::string bytes = ReadBytes(Demos() / "edge final.dm2");
    zentar.Choose(IDC_lstDemos, "edge final", 'R');
    Answer(Question({"Demo already exists in Remote Folder -- Overwrite?"}), IDYES);
    EXPECT_SOON(zentar.Text(IDC_labNumDemos), "Total listed: 8 of 8.");
    EXPECT_SOON(ReadBytes(Demos() / "edge final.dm2") == bytes, true);
}

TEST_F(Commands, AnInvalidRemoteFolderIsToldBeforeAnyFileIsTouched) {
    const ZentarDriver& zentar = Open({"Remote=C:\\No such folder\\"});
    zentar.Choose(IDC_lstDemos, "campaign", 'R');
    BoxContents invalid = Failure(
        {"Your Remote Folder selection is invalid!", "",
         "Zentar can't carry out the requested task.", "Please select \"Preferences...\" from the",
         "\"Program\" menu and select a new Remote", "Folder, and then try this function again."});
    invalid.title = "Folder Error";
    Answer(invalid, IDOK);
    EXPECT_SOON(IsHere("campaign"), true);
}

TEST_F(Commands, ALockedDemoStaysWhereItIs) {
    const ZentarDriver& zentar = Open({"Expert=1"});
    const HANDLE held = CreateFileW((Demos() / "campaign.dm2").c_str(), GENERIC_READ, 0, nullptr,
                                    OPEN_EXISTING, 0, nullptr);
    zentar.ClickItem(IDC_lstDemos, "campaign");
    zentar.PressKey(VK_DELETE);
    Answer(Failure({"This demo couldn't be deleted.", "",
                    "The file may be in use, or its folder may be protected."}),
           IDOK);
    CloseHandle(held);
    EXPECT_SOON(IsHere("campaign"), true);
}

// ---- the demo installer ----

class Installer : public Commands {
  protected:
    void Install(const std::string& game) const {
        zentar_->ShowTab(kMiscTab);
        zentar_->ClickOn(IDC_cmdDemoInstaller);
        zentar_->PickFolder("Please locate the folder with the unzipped " + game + " demos:",
                            Unzipped());
    }

    fs::path Unzipped() const { return home_.Remote() / "Unzipped"; }

    void Add(const std::string& name, samples::DemoKind kind, const std::string& mod) const {
        fs::create_directories(Unzipped());
        samples::DemoContents contents;
        contents.mod = mod;
        WriteBytes(Unzipped() / Widen(name), samples::MakeDemo(kind, contents));
    }
};

TEST_F(Installer, MovesDemosIntoTheirMods) {
    Add("für CTF.dm2", samples::DemoKind::Dm2, "ctf");
    Add("base.dm2", samples::DemoKind::Dm2, "");
    Add("lost.dm2", samples::DemoKind::Dm2, "not installed");
    const ZentarDriver& zentar = Open();
    Install("Quake2");
    Answer(Done({"Number of demos successfully installed: 2 out of 3.", "",
                 "Some demos could not be installed because you do",
                 "not have the required Quake2 mod that is needed to", "play them back."},
                BoxIcon::Exclamation),
           IDOK);
    EXPECT_SOON(fs::exists(home_.Games() / "Quake2" / "CTF" / "demos" / Widen("für CTF.dm2")),
                true);
    EXPECT_SOON(IsHere("base"), true);
    EXPECT_SOON(fs::exists(Unzipped() / "lost.dm2"), true);
    EXPECT_SOON(fs::exists(Unzipped() / "base.dm2"), false);
    EXPECT_SOON(zentar.Text(IDC_labNumDemos), "Total listed: 9 of 9.");
}

TEST_F(Installer, FromAnotherDriveToo) {
    Add("a.dm3", samples::DemoKind::Dm3, "osp");
    Add("b.dm_66", samples::DemoKind::Dm66, "");
    const SecondDrive drive(home_.Games());
    const ZentarDriver& zentar = Open({"Game=Quake3", "Q3Folder=" + drive.Root() + "Quake3\\"});
    zentar.ShowTab(kMiscTab);
    EXPECT_SOON(zentar.Text(IDC_fraDemoInstaller), "Q3 Demo Installer");
    Install("Quake3");
    Answer(Done({"Number of demos successfully installed: 2 out of 2."}, BoxIcon::Information),
           IDOK);
    const fs::path games = home_.Games() / "Quake3";
    EXPECT_SOON(fs::exists(games / "OSP" / "demos" / "a.dm3"), true);
    EXPECT_SOON(fs::exists(games / "baseq3" / "demos" / "b.dm_66"), true);
    EXPECT_SOON(fs::is_empty(Unzipped()), true);
}

TEST_F(Installer, IsOfNoUseForQuake1) {
    const ZentarDriver& zentar = Open({"Game=Quake1"});
    zentar.ShowTab(kMiscTab);
    EXPECT_SOON(zentar.Text(IDC_fraDemoInstaller), "Q2/3 Demo Installer");
    EXPECT_SOON(zentar.Text(IDC_cmdDemoInstaller), "Unavailable");
    EXPECT_SOON(zentar.Usable(IDC_cmdDemoInstaller), false);
    zentar.ClickOn(IDC_optGameQuake2);
    EXPECT_SOON(zentar.Text(IDC_fraDemoInstaller), "Q2 Demo Installer");
    EXPECT_SOON(zentar.Usable(IDC_cmdDemoInstaller), true);
}

}  // namespace
}  // namespace zentar::window_tests
