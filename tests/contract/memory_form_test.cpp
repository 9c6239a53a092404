// What tests rely on in the windows in memory beyond the contract.
#include <array>
#include <map>
#include <memory>

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include "tests/contract/controls_contract.h"
#include "tests/doubles/memory_platform.h"
#include "ui/resource.h"

namespace zentar {
namespace {

constexpr ControlRow PlainRow(int id, int parent, const char* caption) {
    ControlRow row;
    row.id = id;
    row.parent = parent;
    row.caption = caption;
    return row;
}

class MemoryFormTest : public testing::Test {
  protected:
    MemoryPlatform platform_;
    std::unique_ptr<Form> owner_ = platform_.forms.Create(ContractMainTable());
    MemoryForm& form_ = platform_.forms.Get(kMainForm);
};

}  // namespace

TEST_F(MemoryFormTest, AUserWhoClicksWhatTakesNoInputFailsTheTest) {
    EXPECT_NONFATAL_FAILURE(form_.UserClick(kButton), "not shown");
    form_.Show();
    EXPECT_NONFATAL_FAILURE(form_.UserClick(kDisabledButton), "disabled");
    EXPECT_NONFATAL_FAILURE(form_.UserClick(kHiddenButton), "hidden");
    EXPECT_NONFATAL_FAILURE(form_.UserClick(kButtonTwo), "hidden");
    form_.GetFrame(kFrame).SetEnabled(false);
    EXPECT_NONFATAL_FAILURE(form_.UserClick(kChild), "disabled");
    form_.GetListBox(kList).SetItems({"a"});
    EXPECT_NONFATAL_FAILURE(form_.UserSelect(kList, "b"), "no entry");
    EXPECT_NONFATAL_FAILURE(form_.UserPickMenu(kMenuGrey), "disabled");
    form_.GetMenu(kMenuMore).SetEnabled(false);
    EXPECT_NONFATAL_FAILURE(form_.UserPickMenu(kMenuDeep), "disabled");
    EXPECT_NONFATAL_FAILURE(form_.FireTimer(kTimer), "disabled");
    form_.GetCheckBox(kCheck).SetFocus();
    EXPECT_NONFATAL_FAILURE(form_.UserType("a"), "no text box");
}

TEST_F(MemoryFormTest, AUserCannotReachAWindowBehindAModalOne) {
    form_.Show();
    const std::unique_ptr<Form> dialog = platform_.forms.Create(ContractDialogTable());
    platform_.forms.SetUser(kDialogForm, [&](MemoryForm&) {
        EXPECT_NONFATAL_FAILURE(form_.UserClick(kButton), "modal");
        EXPECT_NONFATAL_FAILURE(form_.UserClose(), "modal");
    });
    dialog->ShowModal();
    form_.UserClick(kButton);
}

TEST_F(MemoryFormTest, AModalWindowThatNeverClosesFailsTheTest) {
    const std::unique_ptr<Form> dialog = platform_.forms.Create(ContractDialogTable());
    FormEvents events;
    events.queryUnload = [] { return false; };
    dialog->SetEvents(events);
    EXPECT_NONFATAL_FAILURE(dialog->ShowModal(), "would not close");
}

TEST_F(MemoryFormTest, APopupShowsWhichOfItsEntriesCouldBePicked) {
    form_.Show();
    form_.GetMenu(kPopupPlay).SetEnabled(false);
    form_.ShowPopup(kPopup);
    ASSERT_EQ(form_.Popups().size(), 1U);
    EXPECT_EQ(form_.Popups()[0].menuId, kPopup);
    EXPECT_EQ(form_.Popups()[0].enabled,
              (std::map<int, bool>{{kPopupPlay, false}, {kPopupDelete, true}}));
}

TEST_F(MemoryFormTest, TheLogTellsTheOrderOfStepsOfAllServices) {
    platform_.forms.SetNames({{kLabel, "labNumDemos"}, {kList, "lstDemos"}});
    platform_.files.AddFolder("C:\\Games\\Quake2");
    form_.GetLabel(kLabel).SetText("Scanning...");
    platform_.windows.PumpPending();
    EXPECT_TRUE(platform_.files.Enumerate("C:\\Games\\Quake2\\", [](const FolderEntry&) {}).Ok());
    form_.GetListBox(kList).SetItems({"a", "b"});
    form_.GetListBox(kList).Select(1);
    EXPECT_TRUE(platform_.log.Ordered({"labNumDemos.SetText(Scanning...)", "Pump",
                                       "Enumerate C:\\Games\\Quake2\\", "lstDemos.SetItems(2)",
                                       "lstDemos.Select(1)", "lstDemos.click"}));
}

TEST_F(MemoryFormTest, ControlsAreCalledByTheirNamesInTheProgram) {
    const std::map<int, std::string> names = ReadControlNames();
    EXPECT_EQ(NameOf(names, IDC_lstDemos), "lstDemos");
    EXPECT_EQ(NameOf(names, 65'000), "#65000");
}

TEST_F(MemoryFormTest, AnEndingSessionTellsTheProgramAndClosesTheWindow) {
    int told = 0;
    FormEvents events;
    events.sessionEnding = [&] { ++told; };
    form_.SetEvents(events);
    form_.Show();
    form_.EndSession();
    EXPECT_EQ(told, 1);
    EXPECT_TRUE(form_.Closed());
}

// Windows has its own way of dying, with a message on the screen.
#ifndef _WIN32
TEST_F(MemoryFormTest, MistakesOfTheProgramEndIt) {
    EXPECT_DEATH(form_.GetLabel(12'345), "no control #12345");
    EXPECT_DEATH(form_.GetLabel(kButton), "of another kind");
    EXPECT_DEATH(form_.GetTimer(kButton), "no timer");
    EXPECT_DEATH(form_.GetMenu(kButton), "no menu entry");
    EXPECT_DEATH(form_.ShowPopup(kMenuFile), "no popup");
    EXPECT_DEATH(form_.GetListBox(kList).Select(0), "which has 0");
    const std::array twins = {PlainRow(1, 0, "a"), PlainRow(1, 0, "b")};
    EXPECT_DEATH(platform_.forms.Create({1, FormKind::Dialog, "", {}, twins, {}}), "two rows");
    const std::array orphan = {PlainRow(1, 2, "a")};
    EXPECT_DEATH(platform_.forms.Create({1, FormKind::Dialog, "", {}, orphan, {}}), "no control");
}
#endif

}  // namespace zentar
