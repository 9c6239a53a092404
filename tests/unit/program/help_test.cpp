// The help window in the whole program.

#include "tests/unit/program/program_test.h"

namespace zentar {
namespace {

class HelpTest : public ProgramTest {
  protected:
    HelpTest() {
        InstallGames();
        WriteSettings({"Game=Quake2"});
    }

    MemoryForm& Help() { return os.forms.Get(IDW_Form9); }
    std::string Selected() { return Help().SelectedItem(IDC_lstQuestions); }
    int FirstShown() {
        return dynamic_cast<MemoryListBox&>(Help().GetListBox(IDC_lstQuestions)).FirstShown();
    }
    std::string Header() { return Help().AnyControl(IDC_labHeader).Text(); }
};

TEST_F(HelpTest, OpensAtTheSectionOfTheTabThatIsInFront) {
    Start();
    const struct {
        int tab;
        const char* heading;
        int index;
    } cases[] = {{0, "SCREENSHOTS ", 4},
                 {1, "DEMOS ", 15},
                 {2, "MISCELLANEOUS TOOLS ", 28},
                 {3, "QUAKE 3 COLOURED TEXT ", 36},
                 {4, "FIRST AID ", 43}};
    for (const auto& [tab, heading, index] : cases) {
        if (tab > 0) {
            Window().UserSelectTab(IDC_SSTab1, tab);
        }
        Window().UserPickMenu(IDM_mnuHelpTopics);
        EXPECT_TRUE(Help().Shown());
        EXPECT_EQ(Selected(), heading);
        EXPECT_EQ(FirstShown(), index) << heading;
        EXPECT_EQ(Help().Items(IDC_lstQuestions).size(), 55U);
        Help().UserClose();
        EXPECT_TRUE(Help().Closed());
    }
}

TEST_F(HelpTest, F1OpensItFromWhereverTheKeyboardIs) {
    Start();
    for (const int control : {IDC_lstMods, IDC_SSTab1, IDC_optGameQuake2}) {
        Window().AnyControl(control).SetFocus();
        Window().UserKey(Key::F1);
        EXPECT_TRUE(Help().Shown());
        Help().UserClose();
    }
}

TEST_F(HelpTest, StandsBesideTheMainWindowAndStaysAtWhatIsRead) {
    Start();
    Window().UserKey(Key::F1);
    Help().UserDoubleClick(IDC_lstQuestions, 5);
    EXPECT_EQ(Header(), "     Refreshing The Screenshots List");
    Window().UserSelectTab(IDC_SSTab1, 1);
    Window().UserKey(Key::F1);
    EXPECT_EQ(Header(), "     Refreshing The Screenshots List");
    Help().UserClose();
    Window().UserKey(Key::F1);
    EXPECT_EQ(Header(), "Please select a help topic from the list:");
    EXPECT_EQ(Selected(), "DEMOS ");
}

TEST_F(HelpTest, LaterItDoesNotOpenAtTheAuthorsDetails) {
    Start();
    Window().UserKey(Key::F1);
    Help().Activate();
    EXPECT_EQ(Header(), "Please select a help topic from the list:");
}

TEST_F(HelpTest, GoesWithTheProgram) {
    Start();
    Window().UserKey(Key::F1);
    Quit();
}

}  // namespace
}  // namespace zentar
