#include <functional>
#include <utility>

#include "tests/unit/program/program_test.h"

namespace zentar {
namespace {

using ::testing::HasSubstr;

const Message kWelcome = {"Welcome",
                          "Welcome to Zentar!\r\n\r\n"
                          "This appears to be your first time using Zentar.\r\n"
                          "As such, you will need to tell Zentar where your\r\n"
                          "Quake games are.  Do you want to do this now?",
                          MessageIcon::Question, MessageButtons::YesNo};

Message Folders(const std::string& quake1, const std::string& quake2, const std::string& quake3) {
    return {"Current Folders",
            "Quake 1\t   " + quake1 + "\r\nQuake 2\t   " + quake2 + "\r\nQuake 3\t   " + quake3,
            MessageIcon::Information};
}

class WelcomeTest : public ProgramTest {
  protected:
    // The user who reads the help that comes first, and closes it.
    void ExpectHelp(std::function<void(MemoryForm& help)> reads = {}) {
        os.forms.SetUser(IDW_Form9, [this, reads = std::move(reads)](MemoryForm& help) {
            ++helps_;
            if (reads) {
                reads(help);
            }
        });
    }

    int helps_ = 0;
};

TEST_F(WelcomeTest, TheHelpComesFirstAtTheAuthorsDetails) {
    os.files.AddFile(kIni, "Virgin=1\r\nGame=Quake2\r\n");
    ExpectHelp([this](MemoryForm& help) {
        EXPECT_EQ(os.windows.Shown().size(), 0U);
        EXPECT_EQ(State().settings.Virgin, 1);
        EXPECT_EQ(help.AnyControl(IDC_labHeader).Text(),
                  "     Author Details And Program Legal Information");
        EXPECT_TRUE(help.EffectivelyVisible(IDC_txtAnswer));
        EXPECT_EQ(help.FocusedId(), IDC_cmdBack);
        EXPECT_FALSE(Window().CanReach(IDC_SSTab1));
    });
    os.windows.Expect(kWelcome, Answer::No);
    os.windows.Expect(Folders("c:", "c:", "c:"));
    Start();
    EXPECT_EQ(helps_, 1);
    EXPECT_EQ(State().settings.Virgin, 0);
    EXPECT_EQ(Window().FocusedId(), IDC_SSTab1);
}

TEST_F(WelcomeTest, ANewUserWhoSaysYesPicksTheThreeFoldersInOrder) {
    InstallGames();
    ExpectHelp();
    os.windows.Expect(kWelcome, Answer::Yes);
    os.shell.ExpectPick("Please locate your Quake1 folder:", "C:\\Games\\Quake");
    os.shell.ExpectPick("Please locate your Quake2 folder:", "C:\\Games\\Quake2\\");
    os.shell.ExpectPick("Please locate your Quake3 folder:", std::nullopt);
    os.windows.Expect(Folders(kQuake1Folder, kQuake2Folder, "c:"));
    Start();
    EXPECT_EQ(State().settings.Game, "Quake3");
    EXPECT_TRUE(Window().GetOptionButton(IDC_optGameQuake3).Selected());
    EXPECT_EQ(State().games[0].BaseModPath, kQuake1Folder + "id1\\");
    EXPECT_TRUE(State().games[1].GameInstalled);
    EXPECT_FALSE(State().games[2].GameInstalled);
}

TEST_F(WelcomeTest, AnAnswerOfNoStillShowsTheFoldersAndIsNotAskedAgain) {
    ExpectHelp();
    os.windows.Expect(kWelcome, Answer::No);
    os.windows.Expect(Folders("c:", "c:", "c:"));
    Start();
    Quit();
    const std::string ini = os.files.Contents(kIni);
    EXPECT_THAT(ini, HasSubstr("\r\nVirgin=0\r\n"));
    EXPECT_THAT(ini, HasSubstr("\r\nQ1Folder=c:\r\nQ2Folder=c:\r\nQ3Folder=c:\r\n"));
    Start();  // no box expected
    EXPECT_EQ(helps_, 1);
}

TEST_F(WelcomeTest, SomebodyWhoWasWelcomedIsNotWelcomedAgain) {
    os.files.AddFile(kIni, "Virgin=0\r\n");
    Start();
}

}  // namespace
}  // namespace zentar
