// The help window as it is designed.

#include "ui/form_tables.h"

#include <gtest/gtest.h>

#include <string>

#include "ui/layout.h"
#include "ui/resource.h"

namespace zentar {
namespace {

const ControlRow& RowOf(int id) {
    for (const ControlRow& row : HelpTable().controls) {
        if (row.id == id) {
            return row;
        }
    }
    ADD_FAILURE() << "no control " << id;
    return HelpTable().controls.front();
}

TEST(HelpTableTest, IsAWindowBesideTheMainOne) {
    EXPECT_STREQ(HelpTable().caption, "Zentar Help");
    EXPECT_EQ(HelpTable().kind, FormKind::Companion);
    EXPECT_TRUE(HelpTable().menus.empty());
}

// The rest of the window is its frame.
TEST(HelpTableTest, IsAsLargeAsTheListNeeds) {
    constexpr int kTwips = 15;
    EXPECT_EQ(HelpTable().outerSize.width * kTwips, 4815);
    EXPECT_EQ(HelpTable().outerSize.height * kTwips, 5835);
    EXPECT_LT(HelpTable().clientSize.width, HelpTable().outerSize.width);
    EXPECT_LT(HelpTable().clientSize.height, HelpTable().outerSize.height);
}

TEST(HelpTableTest, ItsWordsAreThese) {
    EXPECT_STREQ(RowOf(IDC_labHeader).caption, "Please select a help topic from the list:");
    EXPECT_STREQ(RowOf(IDC_cmdBack).caption, "&Back");
    EXPECT_STREQ(RowOf(IDC_cmdBack).tooltip, "Click here to return to the list of help topics.");
    EXPECT_STREQ(RowOf(IDC_lstQuestions).name, "Help topics");
    EXPECT_STREQ(RowOf(IDC_txtAnswer).name, "Answer");
    EXPECT_STREQ(RowOf(IDC_txtAnswer).caption, "");
}

TEST(HelpTableTest, StartsWithTheList) {
    EXPECT_EQ(RowOf(IDC_lstQuestions).flags, 0);
    EXPECT_EQ(RowOf(IDC_txtAnswer).flags, ReadOnly | ManyLines | StartsHidden);
    EXPECT_EQ(RowOf(IDC_cmdBack).flags, StartsDisabled);
}

// Enter in the list opens a topic, so no button may take it.
TEST(HelpTableTest, EnterPressesNoButton) {
    for (const ControlRow& row : HelpTable().controls) {
        EXPECT_EQ(row.flags & PressedByEnter, 0) << row.id;
    }
}

TEST(HelpTableTest, TheAnswerStandsWhereTheListDoesAtAnySize) {
    for (const Size client : {Size{305, 350}, Size{290, 330}, Size{900, 700}}) {
        const auto places = LayoutControls(HelpTable(), HelpTable().controls, client, 96);
        ASSERT_EQ(places.size(), 4U);
        const Rect& header = places[0];
        const Rect& list = places[1];
        const Rect& answer = places[2];
        const Rect& back = places[3];
        EXPECT_EQ(list, answer);
        EXPECT_LE(header.top + header.height, list.top);
        EXPECT_LE(list.top + list.height, back.top);
        EXPECT_EQ(list.left + list.width, client.width - 8);
        EXPECT_EQ(back.top + back.height, client.height - 8);
    }
}

}  // namespace
}  // namespace zentar
