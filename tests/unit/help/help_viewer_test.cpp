// The help window, with a user in front of it.

#include "help/help_viewer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "help/help_topics.h"
#include "tests/doubles/memory_platform.h"
#include "ui/form_tables.h"
#include "ui/resource.h"

namespace zentar {
namespace {

constexpr const char* kPrompt = "Please select a help topic from the list:";
constexpr int kShots = 0;
constexpr int kDemos = 1;

std::string AnswerTo(std::string_view title) {
    const HelpTopic* topic = FindHelpTopic(title);
    return topic == nullptr ? "no such topic" : std::string(topic->answer);
}

class HelpViewerTest : public ::testing::Test {
  protected:
    HelpViewerTest() {
        state.settings.Virgin = 0;
        window = os.forms.Create(HelpTable());
        form = static_cast<MemoryForm*>(window.get());
        viewer.emplace(state, HelpControls{.lstQuestions = form->GetListBox(IDC_lstQuestions),
                                           .txtAnswer = form->GetTextBox(IDC_txtAnswer),
                                           .labHeader = form->GetLabel(IDC_labHeader),
                                           .cmdBack = form->GetButton(IDC_cmdBack)});
        FormEvents events;
        events.activate = [this] { viewer->Form9_Activate(); };
        events.keyDown = [this](Key key) { return viewer->Form9_KeyDown(key); };
        form->SetEvents(std::move(events));
    }

    void OpenWindow(int tab = kShots) {
        viewer->Form9_Load(tab);
        form->Show();
        form->Activate();
        os.log.Clear();
    }

    int IndexOf(std::string_view entry) {
        const std::vector<std::string> items = form->Items(IDC_lstQuestions);
        const auto at = std::find(items.begin(), items.end(), entry);
        EXPECT_NE(at, items.end()) << entry;
        return static_cast<int>(at - items.begin());
    }

    void DoubleClick(std::string_view entry) {
        form->UserDoubleClick(IDC_lstQuestions, IndexOf(entry));
    }

    MemoryListBox& List() {
        return dynamic_cast<MemoryListBox&>(form->GetListBox(IDC_lstQuestions));
    }

    void ExpectList() {
        EXPECT_TRUE(form->EffectivelyVisible(IDC_lstQuestions));
        EXPECT_FALSE(form->EffectivelyVisible(IDC_txtAnswer));
        EXPECT_FALSE(form->EffectivelyEnabled(IDC_cmdBack));
        EXPECT_EQ(form->AnyControl(IDC_labHeader).Text(), kPrompt);
        EXPECT_EQ(form->FocusedId(), IDC_lstQuestions);
    }

    void ExpectAnswer(std::string_view title) {
        EXPECT_FALSE(form->EffectivelyVisible(IDC_lstQuestions));
        EXPECT_TRUE(form->EffectivelyVisible(IDC_txtAnswer));
        EXPECT_TRUE(form->EffectivelyEnabled(IDC_cmdBack));
        EXPECT_EQ(form->FocusedId(), IDC_cmdBack);
        EXPECT_EQ(form->AnyControl(IDC_labHeader).Text(), "     " + std::string(title));
        EXPECT_EQ(form->AnyControl(IDC_txtAnswer).Text(), AnswerTo(title));
    }

    MemoryPlatform os;
    ProgramState state;
    std::unique_ptr<Form> window;
    MemoryForm* form = nullptr;
    std::optional<HelpViewer> viewer;
};

TEST_F(HelpViewerTest, OpensWithTheWholeList) {
    OpenWindow();
    EXPECT_EQ(form->Items(IDC_lstQuestions), HelpEntries());
    ExpectList();
}

TEST_F(HelpViewerTest, TheSectionOfTheTabInFrontIsSelectedAndOnTop) {
    const std::vector<std::string> headings = {"SCREENSHOTS ", "DEMOS ", "MISCELLANEOUS TOOLS ",
                                               "QUAKE 3 COLOURED TEXT ", "FIRST AID "};
    for (int tab = 0; tab < 5; ++tab) {
        OpenWindow(tab);
        EXPECT_EQ(form->SelectedItem(IDC_lstQuestions), headings[static_cast<std::size_t>(tab)]);
        EXPECT_EQ(List().FirstShown(), List().SelectedIndex());
    }
}

TEST_F(HelpViewerTest, WithoutATabItOpensAtTheFirstSection) {
    for (const int tab : {-1, 5}) {
        OpenWindow(tab);
        EXPECT_EQ(form->SelectedItem(IDC_lstQuestions), "READ THESE FIRST ");
        EXPECT_EQ(List().FirstShown(), 0);
    }
}

TEST_F(HelpViewerTest, ADoubleClickOpensTheTopic) {
    OpenWindow();
    DoubleClick("     Renaming A Demo");
    ExpectAnswer("Renaming A Demo");
}

TEST_F(HelpViewerTest, EnterOpensTheSelectedTopic) {
    OpenWindow();
    form->UserSelect(IDC_lstQuestions, "     Viewing Your Game Screenshots");
    ExpectList();
    form->UserKey(Key::Enter);
    ExpectAnswer("Viewing Your Game Screenshots");
}

TEST_F(HelpViewerTest, EveryTopicOpensWithItsOwnAnswer) {
    OpenWindow();
    for (const HelpSection& section : HelpSections()) {
        for (const HelpTopic& topic : section.topics) {
            DoubleClick(EntryOfTopic(topic.title));
            ExpectAnswer(topic.title);
            form->UserClick(IDC_cmdBack);
        }
    }
}

// The answer read before it may have been scrolled down.
TEST_F(HelpViewerTest, AnAnswerIsShownFromItsBeginning) {
    OpenWindow();
    DoubleClick("     Playing Back A Demo");
    const std::string shown = AnswerTo("Playing Back A Demo");
    EXPECT_TRUE(os.log.Ordered({"txtAnswer.SetText(" + shown + ")", "txtAnswer.PutCaretFirst()",
                                "txtAnswer.SetVisible(true)"}));
}

TEST_F(HelpViewerTest, HeadingsAndWhatStandsBetweenSectionsOpenNothing) {
    OpenWindow();
    const std::vector<std::string> items = form->Items(IDC_lstQuestions);
    for (int index = 0; index < static_cast<int>(items.size()); ++index) {
        if (items[static_cast<std::size_t>(index)].ends_with(' ')) {
            form->UserDoubleClick(IDC_lstQuestions, index);
            ExpectList();
            form->UserKey(Key::Enter);
            ExpectList();
            EXPECT_EQ(form->AnyControl(IDC_txtAnswer).Text(), "");
            EXPECT_EQ(List().SelectedIndex(), index);
        }
    }
}

TEST_F(HelpViewerTest, WithNothingSelectedEnterOpensNothing) {
    OpenWindow();
    form->GetListBox(IDC_lstQuestions).Select(-1);
    form->UserKey(Key::Enter);
    ExpectList();
}

TEST_F(HelpViewerTest, OnTheBackButtonAClickEnterAndBackspaceReturnToTheList) {
    OpenWindow();
    DoubleClick("     Renaming A Demo");
    form->UserClick(IDC_cmdBack);
    ExpectList();
    for (const Key key : {Key::Enter, Key::Backspace}) {
        DoubleClick("     Renaming A Demo");
        os.log.Clear();
        form->UserKey(key);
        ExpectList();
        EXPECT_TRUE(os.log.Has("lstQuestions.SetFocus()"));
    }
}

TEST_F(HelpViewerTest, InTheAnswerEnterAndBackspaceReturnToTheList) {
    OpenWindow();
    for (const Key key : {Key::Enter, Key::Backspace}) {
        DoubleClick("     Renaming A Demo");
        form->UserClick(IDC_txtAnswer);
        form->UserKey(key);
        ExpectList();
    }
}

TEST_F(HelpViewerTest, OtherKeysKeepTheAnswer) {
    OpenWindow();
    for (const int control : {IDC_cmdBack, IDC_txtAnswer}) {
        DoubleClick("     Renaming A Demo");
        form->AnyControl(control).SetFocus();
        for (const Key key : {Key::F1, Key::F2, Key::F5, Key::Delete, Key::Space, Key::Escape}) {
            form->UserKey(key);
        }
        EXPECT_TRUE(form->EffectivelyVisible(IDC_txtAnswer));
        EXPECT_EQ(form->FocusedId(), control);
        form->UserClick(IDC_cmdBack);
    }
}

TEST_F(HelpViewerTest, OtherKeysKeepTheList) {
    OpenWindow();
    form->UserSelect(IDC_lstQuestions, "     Renaming A Demo");
    for (const Key key : {Key::F1, Key::F2, Key::F5, Key::Delete, Key::Backspace, Key::Space}) {
        os.log.Clear();
        form->UserKey(key);
        EXPECT_THAT(os.log.All(), ::testing::IsEmpty());
        ExpectList();
    }
    EXPECT_EQ(form->SelectedItem(IDC_lstQuestions), "     Renaming A Demo");
}

TEST_F(HelpViewerTest, BackInTheListEverythingIsAsItWasLeft) {
    OpenWindow(kDemos);
    const int top = List().FirstShown();
    DoubleClick("     Deleting A Demo");
    os.log.Clear();
    form->UserClick(IDC_cmdBack);
    EXPECT_FALSE(os.log.Has("lstQuestions.SetItems(55)"));
    EXPECT_EQ(form->SelectedItem(IDC_lstQuestions), "     Deleting A Demo");
    EXPECT_EQ(List().FirstShown(), top);
    form->UserKey(Key::Enter);
    ExpectAnswer("Deleting A Demo");
}

TEST_F(HelpViewerTest, OpenedAnewItShowsTheListAtTheTabOfThatMoment) {
    OpenWindow(kShots);
    DoubleClick("     Renaming A Screenshot");
    form->UserClose();
    OpenWindow(kDemos);
    ExpectList();
    EXPECT_EQ(form->SelectedItem(IDC_lstQuestions), "DEMOS ");
    EXPECT_EQ(List().FirstShown(), IndexOf("DEMOS "));
}

TEST_F(HelpViewerTest, ANewUserFindsTheAuthorDetailsOpen) {
    state.settings.Virgin = 1;
    OpenWindow(kShots);
    ExpectAnswer(kAuthorDetails);
    form->UserClick(IDC_cmdBack);
    ExpectList();
    EXPECT_EQ(form->SelectedItem(IDC_lstQuestions), EntryOfTopic(kAuthorDetails));
    DoubleClick("     Which games does Zentar support?");
    ExpectAnswer("Which games does Zentar support?");
}

TEST_F(HelpViewerTest, ANewUserFindsThemOpenWheneverTheWindowComesToTheFront) {
    state.settings.Virgin = 1;
    OpenWindow();
    form->UserClick(IDC_cmdBack);
    form->Activate();
    ExpectAnswer(kAuthorDetails);
}

TEST_F(HelpViewerTest, WhoHasBeenWelcomedKeepsWhatIsShown) {
    OpenWindow();
    ExpectList();
    DoubleClick("     Renaming A Demo");
    form->Activate();
    ExpectAnswer("Renaming A Demo");
}

TEST_F(HelpViewerTest, TheAnswerCanBeReadButNotChanged) {
    OpenWindow();
    DoubleClick("     Renaming A Demo");
    form->UserClick(IDC_txtAnswer);
    form->UserType("x");
    form->UserKey(Key::Delete);
    EXPECT_EQ(form->AnyControl(IDC_txtAnswer).Text(), AnswerTo("Renaming A Demo"));
}

}  // namespace
}  // namespace zentar
