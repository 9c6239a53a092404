// The popup menu of the demo list: which entries can be picked when it opens.
#include "tests/unit/demos/demos_tab_fixture.h"

namespace zentar {
namespace {

using samples::DemoKind;

struct Offered {
    bool play;
    bool fileCommands;
    bool renameWithMap;
    bool search;
    bool operator==(const Offered&) const = default;
};

void PrintTo(const Offered& offered, std::ostream* out) {
    *out << "play " << offered.play << ", file commands " << offered.fileCommands
         << ", rename with map " << offered.renameWithMap << ", search " << offered.search;
}

class DemoMenuTest : public DemosTabTest {
  protected:
    DemoMenuTest() {
        Use(kQuake3, "baseq3");
        AddDemo("[q3dm6]b.dm_48", DemoKind::Dm48, {.map = "q3dm6"});
        AddDemo("a.dm3", DemoKind::Dm3, {.map = "q3dm17"});
        AddDemo("new.dm_66", DemoKind::Dm66, {});
        AddDemo("text.dm3", "text");
        tab->RefreshDemoList();
    }
    // Opens the menu on an entry and gives what it offers.
    Offered Open(const std::string& entry) {
        RightClick(entry);
        EXPECT_FALSE(form->Popups().empty());
        const PopupShown& shown = form->Popups().back();
        EXPECT_EQ(shown.menuId, IDM_mnuDemos);
        const auto enabled = [&shown](int id) { return shown.enabled.at(id); };
        for (const int id : {IDM_mnuDemosRename, IDM_mnuDemosCopy, IDM_mnuDemosMove}) {
            EXPECT_EQ(enabled(id), enabled(IDM_mnuDemosDelete)) << id;
        }
        EXPECT_TRUE(enabled(IDM_mnuDemosDeleteAll));
        EXPECT_TRUE(enabled(IDM_mnuDemosRefresh));
        return {enabled(IDM_mnuDemosPlay), enabled(IDM_mnuDemosDelete),
                enabled(IDM_mnuDemosRenameMap), enabled(IDM_mnuDemosSearch)};
    }
    Offered OpenOnText() {
        os.windows.Expect(Offer("Quake3"), Answer::No);
        return Open("text");
    }
};

constexpr Offered kNothing = {false, false, false, false};
constexpr Offered kEverything = {true, true, true, true};
constexpr Offered kFileCommands = {false, true, false, false};

TEST_F(DemoMenuTest, WithoutASelectionNothingIsOffered) {
    EXPECT_EQ(Open("no such entry"), kNothing);
}

TEST_F(DemoMenuTest, AReadableDemoOffersEverything) { EXPECT_EQ(Open("a"), kEverything); }

TEST_F(DemoMenuTest, ADemoThatCarriesItsMapIsNotRenamedWithItAgain) {
    EXPECT_EQ(Open("[q3dm6]b "), (Offered{true, true, false, true}));
}

TEST_F(DemoMenuTest, AFileThatIsNoDemoOffersFileCommandsOnly) {
    EXPECT_EQ(OpenOnText(), kFileCommands);
}

TEST_F(DemoMenuTest, ACompressedDemoOffersNeitherMapNorSearch) {
    Open("a");
    EXPECT_EQ(Open("new  "), (Offered{true, true, false, false}));
}

TEST_F(DemoMenuTest, OnACompressedDemoPlayStaysAsTheMenuShowedItLast) {
    Open("no such entry");
    EXPECT_EQ(Open("new  "), kFileCommands);
    Open("a");
    EXPECT_EQ(Open("new  "), (Offered{true, true, false, false}));
    OpenOnText();
    EXPECT_EQ(Open("new  "), kFileCommands);
}

TEST_F(DemoMenuTest, AfterACompressedDemoTheOtherGamesDemosAreTreatedAsOne) {
    Open("a");
    Select("new  ");
    Use(kQuake2, "baseq2");
    AddDemo("duel.dm2", DemoKind::Dm2, {.map = "q2dm1"});
    tab->RefreshDemoList();
    EXPECT_EQ(Open("duel"), (Offered{true, true, false, false}));
    Use(kQuake3, "baseq3");
    Open("a");
    Use(kQuake2, "baseq2");
    EXPECT_EQ(Open("duel"), kEverything) << "until another Quake 3 demo was read";
}

TEST_F(DemoMenuTest, AnUnreadableDemoOffersFileCommandsOnly) {
    os.files.SetLocked(PathOf("a.dm3"));
    EXPECT_EQ(Open("a"), kFileCommands);
}

TEST_F(DemoMenuTest, TheMenuIsAboutTheDemoUnderThePointer) {
    Select("a");
    form->GetCheckBox(IDC_chkShowAllDemos).SetFocus();
    DuringNextPump([this] {
        EXPECT_EQ(form->FocusedId(), IDC_lstDemos);
        EXPECT_EQ(Selected(), "a");
    });
    Open("[q3dm6]b ");
    EXPECT_EQ(Selected(), "[q3dm6]b ");
    EXPECT_EQ(tab->SelectedDemo().Item, "[q3dm6]b ");
    EXPECT_EQ(form->FocusedId(), IDC_lstDemos);
}

TEST_F(DemoMenuTest, FocusSelectionAndMenuComeInThisOrderWithPumpsBetween) {
    os.log.Clear();
    Open("a");
    EXPECT_TRUE(os.log.Ordered({"Pump", "OpenForReading " + PathOf("a.dm3"), "Pump"}));
    EXPECT_GE(os.log.Count("Pump"), 3U);
}

TEST_F(DemoMenuTest, RightBesideTheEntriesTheSelectionStays) {
    Select("a");
    EXPECT_EQ(Open("no such entry"), kEverything);
    EXPECT_EQ(Selected(), "a");
}

TEST_F(DemoMenuTest, ARebuildWhileTheMenuIsAboutToOpenLeavesNothingToOffer) {
    DuringPumpNumber(3, [this] { tab->RefreshDemoList(); });
    EXPECT_EQ(Open("a"), kNothing);
}

TEST_F(DemoMenuTest, RefreshListListsTheFolderAnew) {
    AddDemo("z.dm3", "");
    form->SetPopupUser([this](int) { form->UserPickMenu(IDM_mnuDemosRefresh); });
    RightClick("a");
    EXPECT_EQ(Text(IDC_labNumDemos), "Total listed: 5 of 5.");
}

}  // namespace
}  // namespace zentar
