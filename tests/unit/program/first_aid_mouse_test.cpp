// First Aid for mouse wheels.

#include "tests/unit/program/first_aid_fixture.h"

namespace zentar {
namespace {

using ::testing::ElementsAre;

TEST_F(FirstAidTest, TheMousePropertiesOpenBehindABeep) {
    StartOnFirstAid();
    os.shell.ExpectStart({.folder = "C:\\Windows\\System32\\",
                          .executable = "rundll32.exe",
                          .arguments = " shell32.dll,Control_RunDLL main.cpl @0",
                          .window = StartWindow::Minimised});
    Apply(Symptom::MousewheelDead);
    EXPECT_THAT(os.windows.Sounds(), ElementsAre(Beep::Information));
}

class LogitechTest : public FirstAidTest {
  protected:
    // The user's answer where the setting is `current`.
    void Answer(const std::string& current, std::optional<std::string> answer) {
        os.windows.ExpectText(
            {.title = "Change Logitech Setting",
             .prompt = "WARNING: Only use this function if you're using a Logitech mouse with a "
                       "driver version of 8.4 or higher!\r\n\r\n"
                       "Enter a number for the new setting (currently set to " +
                       current +
                       "):\r\n\r\n"
                       "1 = Default setting for Windows.\r\n"
                       "0 = Fix mousewheel for Quake games.",
             .answer = ""},
            std::move(answer));
        Pick(Symptom::DemosPlayBadly);
        Pick(Symptom::MousewheelDead);
        Window().UserClick(IDC_cmdRemedy2);
    }
    std::optional<std::string> Stored() {
        return os.registry.ReadString(kLogitechKey, "MouseHookDLLEnable");
    }

    const Message changed_ = {"Change Logitech Setting",
                              "The change has been successfully made!\r\n\r\n"
                              "However, a reboot is required for it to take effect.\r\n"
                              "Would you like to reboot your system right now?",
                              MessageIcon::Question, MessageButtons::YesNo, DefaultButton::Second};
};

TEST_F(LogitechTest, OnlyZeroAndOneAreTaken) {
    StartOnFirstAid();
    for (const char* answer : {"", " 0", "0 ", " 1", "00", "01", "10", "11", "2", "-1", "one", "O",
                               "0\r\n", "\xD9\xA0", "1.0"}) {
        Answer("0", answer);
        EXPECT_EQ(Stored(), std::nullopt) << answer;
    }
    Answer("0", std::nullopt);
    EXPECT_EQ(Stored(), std::nullopt);
}

TEST_F(LogitechTest, AnAnswerIsStoredAndTheRestartDeclined) {
    StartOnFirstAid();
    os.windows.Expect(changed_, Answer::No);
    Answer("0", "1");
    EXPECT_EQ(Stored(), "1");
    os.windows.Expect(changed_, Answer::No);
    Answer("1", "0");
    EXPECT_EQ(Stored(), "0");
    os.registry.strings[{kLogitechKey, "MouseHookDLLEnable"}] = "";
    Answer("0", "x");
    EXPECT_EQ(os.shell.restarts, 0);
    EXPECT_FALSE(Window().Closed());
}

TEST_F(LogitechTest, ARestartEndsTheProgramInOrder) {
    StartOnFirstAid();
    os.windows.Expect(changed_, Answer::Yes);
    Answer("0", "0");
    EXPECT_EQ(os.shell.restarts, 1);
    EXPECT_TRUE(Window().Closed());
    EXPECT_TRUE(
        os.log.Ordered({"WriteString " + kLogitechKey + " MouseHookDLLEnable", "RestartWindows",
                        "Replace c:\\program files\\zentar\\zentar.ini.zentar-new -> "
                        "c:\\program files\\zentar\\zentar.ini"}));
}

TEST_F(LogitechTest, ARestartThatWindowsRefusesEndsTheProgramAllTheSame) {
    os.shell.restartAnswer = FileError::AccessDenied;
    StartOnFirstAid();
    os.windows.Expect(changed_, Answer::Yes);
    Answer("0", "0");
    EXPECT_TRUE(Window().Closed());
}

TEST_F(LogitechTest, ASettingThatCannotBeWrittenAsksForNoRestart) {
    os.registry.writeAnswer = FileError::AccessDenied;
    StartOnFirstAid();
    Answer("0", "1");
    EXPECT_THAT(os.windows.Sounds(), ElementsAre(Beep::Exclamation));
}

}  // namespace
}  // namespace zentar
