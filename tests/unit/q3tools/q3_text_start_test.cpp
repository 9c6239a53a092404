// The coloured text at the program's start.

#include "platform/rtf/rtf_writer.h"
#include "q3tools/colour_codes.h"
#include "tests/unit/q3tools/q3_text_fixture.h"

namespace zentar {
namespace {

class Q3TextStartTest : public Q3TextTabTest {
  protected:
    void AddDesign(const std::string& path, const std::vector<ColouredRun>& runs) {
        os.files.AddFile(path, WriteRtf(runs));
    }

    const std::string current_ = "c:\\zentar\\data\\q3text\\current.ini";
    const std::string last_ = "D:\\designs\\last.ini";
};

TEST_F(Q3TextStartTest, BeforeAllTheCodeIsThatOfTheDesigner) {
    const std::unique_ptr<Form> fresh = os.forms.Create(MainWindowTable());
    EXPECT_EQ(fresh->AnyControl(IDC_txtQ3TextCode).Text(), "seta name UnnamedPlayer");
}

TEST_F(Q3TextStartTest, WithoutAnyFileTheTextIsEmpty) {
    EXPECT_EQ(Text(), "");
    EXPECT_EQ(Code(), "seta name \"^^0^7\"");
    EXPECT_FALSE(Enabled(IDC_cmdQ3TextSave));
}

TEST_F(Q3TextStartTest, TheCurrentOneIsShown) {
    AddDesign(current_, {{"A", kQ3Red}, {"b", kQ3White}});
    Restart();
    EXPECT_EQ(Content().runs, (std::vector<ColouredRun>{{"A", kQ3Red}, {"b", kQ3White}}));
    EXPECT_EQ(Code(), "seta name \"^1A^7b\"");
    EXPECT_EQ(Caret(), 2);
    EXPECT_TRUE(Enabled(IDC_cmdQ3TextSave));
}

TEST_F(Q3TextStartTest, TheOneUsedLastTakesItsPlace) {
    AddDesign(current_, {{"current", kQ3Red}});
    AddDesign(last_, {{"last", kQ3Blue}});
    state.settings.Q3TextText = last_;
    Restart();
    EXPECT_EQ(Code(), "seta name \"^4last^7\"");
    EXPECT_EQ(Caret(), 4);
    Type("!");
    EXPECT_EQ(Text(), "last!");
}

TEST_F(Q3TextStartTest, OneThatIsGoneLeavesTheCurrentOne) {
    AddDesign(current_, {{"current", kQ3Red}});
    state.settings.Q3TextText = last_;
    Restart();
    EXPECT_EQ(Code(), "seta name \"^1current^7\"");
    EXPECT_EQ(Caret(), 7);
    EXPECT_EQ(state.settings.Q3TextText, last_);
}

TEST_F(Q3TextStartTest, OneThatCannotBeReadLeavesTheCurrentOne) {
    AddDesign(current_, {{"current", kQ3Red}});
    AddDesign(last_, {{"last", kQ3Red}});
    state.settings.Q3TextText = last_;
    os.files.SetLocked(last_);
    Restart();
    EXPECT_EQ(Text(), "current");
    os.files.SetLocked(current_);
    Restart();
    EXPECT_EQ(Text(), "");
}

TEST_F(Q3TextStartTest, TheCaretStandsBehindLettersOfMoreThanOneByte) {
    AddDesign(last_, {{"\xC3\xA4\xF0\x9F\x98\x80", kQ3Red}});
    state.settings.Q3TextText = last_;
    Restart();
    EXPECT_EQ(Caret(), 3);
    Type("x");
    EXPECT_EQ(Text(), "\xC3\xA4\xF0\x9F\x98\x80x");
}

TEST_F(Q3TextStartTest, NothingIsWrittenAtTheStart) {
    AddDesign(current_, {{"current", kQ3Red}});
    const auto before = os.files.AllFiles();
    state.settings.Q3TextText = last_;
    Restart();
    EXPECT_EQ(os.files.AllFiles(), before);
}

}  // namespace
}  // namespace zentar
