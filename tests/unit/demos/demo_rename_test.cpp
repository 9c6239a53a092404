// Renaming demos.

#include <gmock/gmock.h>

#include "tests/unit/demos/demos_tab_fixture.h"

namespace zentar {
namespace {

using samples::DemoKind;
using ::testing::ElementsAre;

class DemoRename : public DemosTabTest {
  protected:
    DemoRename() {
        Use(kQuake2, "baseq2");
        AddDemo("duel.dm2", DemoKind::Dm2, {.map = "q2dm1", .levelName = "The Edge"});
        AddDemo("other.dm2", DemoKind::Dm2, {.map = "q2dm2", .levelName = "Tokay's Towers"});
        tab->RefreshDemoList();
    }

    void ExpectBox(const std::string& name, std::optional<std::string> answer) {
        os.windows.ExpectText(
            {"Rename Demo", "Enter new name for \"" + name + "\".\r\n(Do not type the extension).",
             name},
            std::move(answer));
    }

    // Renames an entry by the menu.
    void Rename(const std::string& entry, const std::string& bare, const std::string& answer) {
        ExpectBox(bare, answer);
        Pick(entry, IDM_mnuDemosRename);
    }

    static Message Illegal() {
        return Failure(
            "Can't rename due to illegal characters.\r\n\r\nFilenames cannot have these "
            "characters\r\nin them:   \"   \\   /   |   <   >   :   ?   *");
    }
};

TEST_F(DemoRename, TheDemoGetsTheNameAndStaysSelected) {
    Rename("duel", "duel", "final");
    EXPECT_THAT(Names(), ElementsAre("final.dm2", "other.dm2"));
    EXPECT_EQ(Selected(), "final");
    EXPECT_EQ(Text(IDC_labDemoName), "Name: The Edge");
}

TEST_F(DemoRename, F2RenamesToo) {
    ExpectBox("duel", "final");
    PressOn("duel", Key::F2);
    EXPECT_THAT(Listed(), ElementsAre("final", "other"));
}

TEST_F(DemoRename, WithNothingSelectedF2DoesNothing) {
    form->GetListBox(IDC_lstDemos).SetFocus();
    form->UserKey(Key::F2);
    EXPECT_EQ(Names().size(), 2U);
}

TEST_F(DemoRename, CancelAnEmptyAnswerAndTheOldNameChangeNothing) {
    ExpectBox("duel", std::nullopt);
    Pick("duel", IDM_mnuDemosRename);
    for (const char* answer : {"", "   ", "duel", " duel ", "duel.dm2", ".dm2"}) {
        Rename("duel", "duel", answer);
        EXPECT_THAT(Names(), ElementsAre("duel.dm2", "other.dm2")) << answer;
        EXPECT_EQ(Selected(), "duel");
    }
}

TEST_F(DemoRename, BlanksAroundTheAnswerDoNotCount) {
    Rename("duel", "duel", "  big final ");
    EXPECT_THAT(Names(), ElementsAre("big final.dm2", "other.dm2"));
}

TEST_F(DemoRename, AnExtensionThatWasTypedIsNotAddedAgain) {
    Rename("duel", "duel", "final.DM2");
    EXPECT_THAT(Names(), ElementsAre("final.DM2", "other.dm2"));
    EXPECT_EQ(Selected(), "final");
    Rename("final", "final", "last.dm3");
    EXPECT_THAT(Names(), ElementsAre("last.dm3.dm2", "other.dm2"));
}

TEST_F(DemoRename, OnlyTheCaseMayChange) {
    Rename("duel", "duel", "Duel");
    EXPECT_THAT(Names(), ElementsAre("Duel.dm2", "other.dm2"));
    EXPECT_EQ(Selected(), "Duel");
}

TEST_F(DemoRename, Quake3DemosKeepTheirExtensionsAndMarkers) {
    UseQuake3Demos();
    Rename("duel ", "duel", "mid");
    EXPECT_EQ(Selected(), "mid ");
    Rename("duel  ", "duel", "new.dm_66");
    EXPECT_EQ(Selected(), "new  ");
    Rename("duel", "duel", "old.dm3");
    EXPECT_EQ(Selected(), "old");
    EXPECT_THAT(Names(), ElementsAre("mid.dm_48", "new.dm_66", "old.dm3"));
}

TEST_F(DemoRename, ATypedExtensionOfAnotherGenerationDoesNotChangeTheFiles) {
    UseQuake3Demos();
    Rename("duel ", "duel", "mid.dm3");
    EXPECT_THAT(Names(), ElementsAre("duel.dm3", "duel.dm_66", "mid.dm3.dm_48"));
}

TEST_F(DemoRename, EachIllegalCharacterIsRefused) {
    for (const char* answer : {"a\"b", "a\\b", "a/b", "a:b", "a?b", "a*b", "a<b", "a>b", "a|b"}) {
        ExpectBox("duel", answer);
        os.windows.Expect(Illegal());
        Pick("duel", IDM_mnuDemosRename);
        EXPECT_THAT(Names(), ElementsAre("duel.dm2", "other.dm2")) << answer;
    }
}

TEST_F(DemoRename, TwoIllegalCharactersAreRefusedTwice) {
    ExpectBox("duel", "a:b?");
    os.windows.Expect(Illegal());
    os.windows.Expect(Illegal());
    Pick("duel", IDM_mnuDemosRename);
    EXPECT_EQ(Selected(), "duel");
}

TEST_F(DemoRename, AnotherDemoIsNeverRenamedOver) {
    const std::string bytes = os.files.Contents(PathOf("other.dm2"));
    ExpectBox("duel", "OTHER");
    os.windows.Expect(
        Failure("Can't rename due to another demo having that name.\r\n\r\n"
                "Please choose another name and try again."));
    Pick("duel", IDM_mnuDemosRename);
    EXPECT_EQ(os.files.Contents(PathOf("other.dm2")), bytes);
    EXPECT_EQ(Selected(), "duel");
}

TEST_F(DemoRename, NamesThatWindowsCannotHoldAreRefused) {
    for (const std::string& answer : {std::string("con"), std::string(300, 'x')}) {
        ExpectBox("duel", answer);
        os.windows.Expect(
            Failure("Can't rename due to Windows not allowing that name.\r\n\r\n"
                    "It may be too long, or be a name that Windows\r\n"
                    "keeps for itself (eg. con)."));
        Pick("duel", IDM_mnuDemosRename);
        EXPECT_THAT(Names(), ElementsAre("duel.dm2", "other.dm2"));
    }
}

TEST_F(DemoRename, AReadOnlyDemoIsRenamedAndStaysReadOnly) {
    os.files.SetReadOnly(PathOf("duel.dm2"));
    Rename("duel", "duel", "final");
    EXPECT_TRUE(os.files.IsReadOnly(PathOf("final.dm2")));
}

TEST_F(DemoRename, ADemoThatVanishedIsToldAndLeavesTheList) {
    ExpectBox("duel", "final");
    os.windows.Expect(Failure("This demo is no longer in its folder."));
    Select("duel");
    os.files.Remove(PathOf("duel.dm2"));
    form->GetListBox(IDC_lstDemos).SetFocus();
    form->UserKey(Key::F2);
    EXPECT_THAT(Listed(), ElementsAre("other"));
}

TEST_F(DemoRename, AProtectedFolderIsTold) {
    os.files.SetWritingDenied(state.current.DemoFolder);
    ExpectBox("duel", "final");
    os.windows.Expect(
        Failure("This demo couldn't be renamed.\r\n\r\n"
                "The file may be in use, or its folder may be protected."));
    Pick("duel", IDM_mnuDemosRename);
    EXPECT_EQ(Selected(), "duel");
}

// ---- with its map ----

TEST_F(DemoRename, TheMapComesBeforeTheNameAndTheDemoStaysSelected) {
    Pick("duel", IDM_mnuDemosRenameMap);
    EXPECT_THAT(Names(), ElementsAre("[q2dm1]_duel.dm2", "other.dm2"));
    EXPECT_EQ(Selected(), "[q2dm1]_duel");
    EXPECT_FALSE(MenuEnabled(IDM_mnuDemosRenameMap));
}

TEST_F(DemoRename, WithItsMapAQuake3DemoKeepsItsMarker) {
    UseQuake3Demos();
    Pick("duel ", IDM_mnuDemosRenameMap);
    EXPECT_EQ(Selected(), "[q3dm6]_duel ");
    EXPECT_THAT(Names(), ElementsAre("[q3dm6]_duel.dm_48", "duel.dm3", "duel.dm_66"));
}

TEST_F(DemoRename, AMapThatNoFileNameMayHoldIsRefused) {
    AddDemo("packed.dm2", DemoKind::Dm2, {.map = "pack/dm1"});
    tab->RefreshDemoList();
    os.windows.Expect(Illegal());
    Pick("packed", IDM_mnuDemosRenameMap);
    EXPECT_THAT(Names(), ElementsAre("duel.dm2", "other.dm2", "packed.dm2"));
    EXPECT_EQ(Selected(), "packed");
}

TEST_F(DemoRename, AMapOfControlBytesIsRefused) {
    AddDemo("odd.dm2", DemoKind::Dm2,
            {.map = "q2\x01"
                    "dm1"});
    tab->RefreshDemoList();
    os.windows.Expect(
        Failure("Can't rename due to Windows not allowing that name.\r\n\r\n"
                "It may be too long, or be a name that Windows\r\n"
                "keeps for itself (eg. con)."));
    Pick("odd", IDM_mnuDemosRenameMap);
    EXPECT_THAT(Names(), ElementsAre("duel.dm2", "odd.dm2", "other.dm2"));
}

TEST_F(DemoRename, WithItsMapNoOtherFileIsRenamedOver) {
    AddDemo("[q2dm1]_duel.dm2", "precious");
    os.windows.Expect(
        Failure("Can't rename due to another demo having that name.\r\n\r\n"
                "Please choose another name and try again."));
    Pick("duel", IDM_mnuDemosRenameMap);
    EXPECT_EQ(os.files.Contents(PathOf("[q2dm1]_duel.dm2")), "precious");
}

TEST_F(DemoRename, AHostileMapIsRefusedWithOneMessage) {
    AddDemo("hostile.dm2", DemoKind::Dm2, {.map = std::string(5000, '?')});
    tab->RefreshDemoList();
    os.windows.Expect(Illegal());
    Pick("hostile", IDM_mnuDemosRenameMap);
    EXPECT_EQ(Selected(), "hostile");
}

TEST_F(DemoRename, AMapTooLongForANameIsRefused) {
    AddDemo("long.dm2", DemoKind::Dm2, {.map = std::string(5000, 'm')});
    tab->RefreshDemoList();
    os.windows.Expect(
        Failure("Can't rename due to Windows not allowing that name.\r\n\r\n"
                "It may be too long, or be a name that Windows\r\n"
                "keeps for itself (eg. con)."));
    Pick("long", IDM_mnuDemosRenameMap);
    EXPECT_EQ(Selected(), "long");
}

TEST_F(DemoRename, AnEndlessTypedNameIsRefusedOnce) {
    ExpectBox("duel", std::string(30'000, '?'));
    os.windows.Expect(
        Failure("Can't rename due to Windows not allowing that name.\r\n\r\n"
                "It may be too long, or be a name that Windows\r\n"
                "keeps for itself (eg. con)."));
    Pick("duel", IDM_mnuDemosRename);
}

TEST_F(DemoRename, WithItsMapAVanishedDemoIsTold) {
    os.windows.Expect(Failure("This demo is no longer in its folder."));
    form->SetPopupUser([this](int) {
        os.files.Remove(PathOf("duel.dm2"));
        form->UserPickMenu(IDM_mnuDemosRenameMap);
    });
    RightClick("duel");
    EXPECT_THAT(Listed(), ElementsAre("other"));
}

}  // namespace
}  // namespace zentar
