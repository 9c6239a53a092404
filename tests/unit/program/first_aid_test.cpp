// The First Aid tab: symptoms, settings and messages.

#include "tests/unit/program/first_aid_fixture.h"

namespace zentar {
namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

TEST_F(FirstAidTest, TheTabSaysWhatItIsFor) {
    StartOnFirstAid();
    EXPECT_EQ(Text(IDC_labFirstAid),
              "This area is used to fix known problems associated with the Quake games.  Such "
              "fixes can be done manually by yourself but are automated here for your "
              "convenience.  Simply click on a symptom to see its remedy.");
    EXPECT_EQ(Text(IDC_labSymptom), "Symptoms");
    EXPECT_EQ(Text(IDC_labRemedy), "Remedies");
    EXPECT_EQ(Window().Tooltip(IDC_lstSymptoms),
              "Shows the game problems that are fixable by Zentar.");
    EXPECT_EQ(Window().Tooltip(IDC_txtRemedy), "Shows remedies for the symptoms selected above.");
    EXPECT_EQ(Text(IDC_cmdRemedy1), "Apply Remedy #1");
    EXPECT_EQ(Text(IDC_cmdRemedy2), "Apply Remedy #2");
    EXPECT_EQ(Window().Tooltip(IDC_cmdRemedy1),
              "Click here to apply Remedy #1 as described above.");
    EXPECT_EQ(Window().Tooltip(IDC_cmdRemedy2),
              "Click here to apply Remedy #2 as described above.");
}

TEST_F(FirstAidTest, AtFirstNoRemedyIsShown) {
    StartOnFirstAid();
    EXPECT_THAT(Window().Items(IDC_lstSymptoms), ElementsAreArray(SymptomTexts()));
    EXPECT_EQ(Window().SelectedItem(IDC_lstSymptoms), "");
    EXPECT_EQ(Remedy(), "");
    EXPECT_EQ(Buttons(), "--");
}

TEST_F(FirstAidTest, TheFirstActivationTakesARemedyAway) {
    program.emplace(os.Services());
    program->Start();
    Window().UserSelectTab(IDC_SSTab1, 4);
    Pick(Symptom::MousewheelDead);
    EXPECT_EQ(Buttons(), "12");
    Window().Activate();
    EXPECT_EQ(Remedy(), "");
    EXPECT_EQ(Buttons(), "--");
    Pick(Symptom::CrashOnScreenshot);
    Window().Activate();
    EXPECT_EQ(Buttons(), "1-");
}

TEST_F(FirstAidTest, ASymptomShowsItsRemedyAndButtons) {
    StartOnFirstAid();
    const std::string expected[] = {"1-", "--", "--", "12", "1-", "--", "1-", "1-",
                                    "1-", "--", "1-", "1-", "1-", "1-", "--", "1-"};
    for (std::size_t i = 0; i < kSymptomCount; ++i) {
        const auto symptom = static_cast<Symptom>(i);
        Pick(symptom);
        SymptomSituation situation;
        situation.game = "Quake2";
        situation.base = " \"baseq2\"";
        EXPECT_EQ(Remedy(), RemedyText(symptom, situation)) << i;
        EXPECT_EQ(Buttons(), expected[i]) << i;
    }
}

TEST_F(FirstAidTest, AnotherGameShowsItselfInTheRemedyAtOnce) {
    StartOnFirstAid();
    Pick(Symptom::SettingsNotSaved);
    EXPECT_THAT(Remedy(), HasSubstr(" your Quake2 \"baseq2\" folder "));
    Window().UserClick(IDC_optGameQuake1);
    EXPECT_THAT(Remedy(), HasSubstr(" your Quake1 \"id1\" folder "));
    Pick(Symptom::ExecingMessages);
    EXPECT_THAT(Remedy(), HasSubstr(" your Quake1 game executable"));
    Window().UserClick(IDC_optGameQuake3);
    EXPECT_THAT(Remedy(), HasSubstr(" your Quake3 game executable"));
}

TEST_F(FirstAidTest, TheFirewallIsFoundInTheRegistry) {
    StartOnFirstAid();
    Pick(Symptom::FreezesOnline);
    EXPECT_THAT(Remedy(), HasSubstr("you don't have it installed"));
    os.registry.strings[{"Software\\Zone Labs\\ZoneAlarm", "CurrentVersion"}] = "";
    Pick(Symptom::DemosPlayBadly);
    Pick(Symptom::FreezesOnline);
    EXPECT_THAT(Remedy(), HasSubstr("you don't have it installed"));
    os.registry.strings[{"Software\\Zone Labs\\ZoneAlarm", "CurrentVersion"}] = "2.6";
    Pick(Symptom::DemosPlayBadly);
    Pick(Symptom::FreezesOnline);
    EXPECT_THAT(Remedy(), HasSubstr("since you have this installed"));
    EXPECT_EQ(Buttons(), "--");
}

TEST_F(FirstAidTest, ARemedyNeedsTheCurrentGame) {
    os.files.Remove(kQuake2Folder + "quake2.exe");
    StartOnFirstAid();
    os.windows.Expect(FolderUnknown("Quake2"));
    Apply(Symptom::MousewheelDead);
    EXPECT_THAT(os.windows.Sounds(), IsEmpty());
    os.windows.ExpectText({.title = "Change Logitech Setting",
                           .prompt = "WARNING: Only use this function if you're using a Logitech "
                                     "mouse with a driver version of 8.4 or higher!\r\n\r\n"
                                     "Enter a number for the new setting (currently set to 0):"
                                     "\r\n\r\n1 = Default setting for Windows.\r\n"
                                     "0 = Fix mousewheel for Quake games.",
                           .answer = ""},
                          std::nullopt);
    Window().UserClick(IDC_cmdRemedy2);
}

TEST_F(FirstAidTest, AnAutoexecIsCreatedOnceAndThenEdited) {
    const std::string path = kQuake2Folder + "baseq2\\autoexec.cfg";
    const Message exists = {
        "Error",
        "Your Quake2 \"baseq2\" folder already has an \"autoexec.cfg\" file!\r\n\r\n"
        "As such, please edit this file with your custom commands and they\r\n"
        "will be kept and not destroyed from game to game.  Would you like\r\n"
        "to edit this file right now?",
        MessageIcon::Question, MessageButtons::YesNo, DefaultButton::Second};
    WriteSettings({"Game=Quake2", "CurMod2=rocket"});
    StartOnFirstAid();
    Apply(Symptom::SettingsNotSaved);
    const std::string made = os.files.Contents(path);
    EXPECT_THAT(made, StartsWith("// Quake2 AutoExec Config by Zentar v0.99 BETA\r\n//\r\n"));
    EXPECT_THAT(os.windows.Sounds(), ElementsAre(Beep::Information));
    EXPECT_FALSE(os.files.Exists(kQuake2Folder + "rocket\\autoexec.cfg"));
    os.windows.Expect(exists, Answer::No);
    Window().UserClick(IDC_cmdRemedy1);
    os.windows.Expect(exists, Answer::Yes);
    os.shell.ExpectStart(Notepad(path));
    Window().UserClick(IDC_cmdRemedy1);
    EXPECT_EQ(os.files.Contents(path), made);
    EXPECT_THAT(os.windows.Sounds(), ElementsAre(Beep::Information));
}

TEST_F(FirstAidTest, AnAutoexecThatCannotBeMadeIsToldOf) {
    os.files.SetWritingDenied(kQuake2Folder + "baseq2\\");
    StartOnFirstAid();
    os.windows.Expect(
        Failure("The \"autoexec.cfg\" file couldn't be created.\r\n\r\n"
                "The folder may be protected, or its drive may be full."));
    Apply(Symptom::SettingsNotSaved);
    EXPECT_THAT(os.windows.Sounds(), IsEmpty());
}

TEST_F(FirstAidTest, MessagesAreWipedOutOfTheRightExecutables) {
    os.files.AddFile(kQuake1Folder + "glquake.exe", "one.execing %s\nend");
    os.files.AddFile(kQuake2Folder + "quake2.exe",
                     "two.execing %s\n-...using primary buffer\n-Creating DS buffers\n.");
    os.files.AddFile(kQuake3Folder + "quake3.exe", "three.execing %s\n-Couldn't write %s.\n.end");
    const std::string zeros(30, '\0');
    StartOnFirstAid();
    Window().UserClick(IDC_optGameQuake1);
    Apply(Symptom::SoundBufferMessages);
    EXPECT_EQ(os.files.Contents(kQuake2Folder + "quake2.exe"),
              "two.execing %s\n" + zeros.substr(0, 25) + zeros.substr(0, 21) + ".");
    Apply(Symptom::CouldntWriteMessages);
    EXPECT_EQ(os.files.Contents(kQuake3Folder + "quake3.exe"),
              "three.execing %s\n" + zeros.substr(0, 21) + "end");
    Apply(Symptom::ExecingMessages);
    EXPECT_EQ(os.files.Contents(kQuake1Folder + "glquake.exe"),
              "one" + zeros.substr(0, 12) + "end");
    EXPECT_THAT(os.windows.Sounds(),
                ElementsAre(Beep::Information, Beep::Information, Beep::Information));
    const std::map<std::string, std::string> once = os.files.AllFiles();
    Window().UserClick(IDC_cmdRemedy1);
    EXPECT_EQ(os.files.AllFiles(), once);
    EXPECT_EQ(os.windows.Sounds().size(), 4U);
}

TEST_F(FirstAidTest, AnExecutableThatCannotBeChangedIsToldOf) {
    const std::string game = kQuake2Folder + "quake2.exe";
    os.files.AddFile(game, "two.execing %s\n");
    os.files.SetReadOnly(game);
    StartOnFirstAid();
    os.windows.Expect(
        Failure("The game's executable couldn't be changed.\r\n\r\n"
                "The game may be running, or the file may be write-protected."));
    Apply(Symptom::ExecingMessages);
    EXPECT_EQ(os.files.Contents(game), "two.execing %s\n");
    EXPECT_THAT(os.windows.Sounds(), IsEmpty());
}

TEST_F(FirstAidTest, MessagesOfAGameThatIsNotInstalledCannotBeRemoved) {
    WriteSettings({"Game=Quake1"});
    os.files.Remove(kQuake2Folder + "quake2.exe");
    os.files.Remove(kQuake3Folder + "quake3.exe");
    StartOnFirstAid();
    os.windows.Expect(FolderUnknown("Quake2"));
    Apply(Symptom::SoundBufferMessages);
    os.windows.Expect(FolderUnknown("Quake3"));
    Apply(Symptom::CouldntWriteMessages);
    EXPECT_THAT(os.windows.Sounds(), IsEmpty());
}

}  // namespace
}  // namespace zentar
