#include "tests/unit/program/program_test.h"

namespace zentar {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

// The whole file, with other values where a test says so.
std::string Golden(const std::vector<std::pair<std::string, std::string>>& changes) {
    std::vector<std::pair<std::string, std::string>> lines = {
        {"Virgin=", "0"},
        {"Game=", "Quake2"},
        {"Q1Folder=", "C:\\Games\\Quake\\"},
        {"Q2Folder=", "C:\\Games\\Quake2\\"},
        {"Q3Folder=", "C:\\Games\\Quake3\\"},
        {"CurMod1=", "id1"},
        {"CurMod2=", "baseq2"},
        {"CurMod3=", "baseq3"},
        {"Remote=", "c:\\"},
        {"Expert=", "0"},
        {"Preview=", "0"},
        {"AutoShowAll=", "1"},
        {"AutoNextShot=", "0"},
        {"AutoNextDemo=", "0"},
        {"BackupAll=", "0"},
        {"DemosAll=", "1"},
        {"DemosText=", "True"},
        {"DemosFilter=", "phrase"},
        {"ScanWarn=", "0"},
        {"TranscriptHTML=", "1"},
        {"TranscriptGameplay=", "0"},
        {"TranscriptMessages=", "-1"},
        {"TranscriptBackground=", "-1"},
    };
    for (int box = 1; box <= 24; ++box) {
        lines.emplace_back("Player" + std::to_string(box) + "Name=", "");
        lines.emplace_back("Player" + std::to_string(box) + "Colour=", "");
    }
    lines.insert(
        lines.end(),
        {{"Q3TextType=", "0"}, {"Q3TextKeyfox=", "0"}, {"Q3TextOSP=", "0"}, {"Q3TextText=", ""}});
    std::string text =
        "// Zentar v0.99 BETA Settings File.\r\n"
        "// Changes are NOT recommended!\r\n"
        "// ----------------------------\r\n";
    for (const auto& [key, value] : lines) {
        std::string written = value;
        for (const auto& [changedKey, changedValue] : changes) {
            written = changedKey == key ? changedValue : written;
        }
        text += key + written + "\r\n";
    }
    return text + "// ===================================================================\r\n";
}

class SettingsTest : public ProgramTest {
  protected:
    SettingsTest() { InstallGames(); }

    // What the file holds after a start with these lines and an exit.
    std::string AfterRoundTrip(const std::vector<std::string>& lines) {
        WriteSettings(lines);
        Start();
        Quit();
        return os.files.Contents(kIni);
    }

    std::string AfterRunWith(const std::string& bytes) {
        os.files.AddFile(kIni, "Virgin=0\r\n" + bytes);
        Start();
        Quit();
        return os.files.Contents(kIni);
    }
};

TEST_F(SettingsTest, TheFileIsWrittenByteForByte) { EXPECT_EQ(AfterRoundTrip({}), Golden({})); }

TEST_F(SettingsTest, NothingAUserHadSetIsLost) {
    EXPECT_EQ(AfterRoundTrip({"Game=Quake3",
                              "CurMod1=ctf",
                              "CurMod2=rocket",
                              "CurMod3=osp",
                              "Remote=D:\\Für später",
                              "Expert=1",
                              "Preview=1",
                              "AutoShowAll=0",
                              "AutoNextShot=1",
                              "AutoNextDemo=1",
                              "BackupAll=1",
                              "DemosAll=0",
                              "DemosText=False",
                              "DemosFilter=  Fr=ed\xE9 ",
                              "ScanWarn=1",
                              "TranscriptHTML=0",
                              "TranscriptGameplay=1",
                              "TranscriptMessages=255",
                              "TranscriptBackground=-5",
                              "Player1Name=Bob",
                              "Player1Colour=65280",
                              "Player10Name=\xC1\xEE\xEE \x80\x01",
                              "Player24Name=Ann=X",
                              "Player24Colour=0",
                              "Q3TextType=5",
                              "Q3TextKeyfox=1",
                              "Q3TextOSP=1",
                              "Q3TextText=C:\\a\\b.ini"}),
              Golden({{"Game=", "Quake3"},
                      {"CurMod1=", "ctf"},
                      {"CurMod2=", "rocket"},
                      {"CurMod3=", "osp"},
                      {"Remote=", "D:\\Für später"},
                      {"Expert=", "1"},
                      {"Preview=", "1"},
                      {"AutoShowAll=", "0"},
                      {"AutoNextShot=", "1"},
                      {"AutoNextDemo=", "1"},
                      {"BackupAll=", "1"},
                      {"DemosAll=", "0"},
                      {"DemosText=", "False"},
                      {"DemosFilter=", "  Fr=ed\xE9 "},
                      {"ScanWarn=", "1"},
                      {"TranscriptHTML=", "0"},
                      {"TranscriptGameplay=", "1"},
                      {"TranscriptMessages=", "255"},
                      {"TranscriptBackground=", "-5"},
                      {"Player1Name=", "Bob"},
                      {"Player1Colour=", "65280"},
                      {"Player10Name=", "\xC1\xEE\xEE \x80\x01"},
                      {"Player24Name=", "Ann=X"},
                      {"Player24Colour=", "0"},
                      {"Q3TextType=", "5"},
                      {"Q3TextKeyfox=", "1"},
                      {"Q3TextOSP=", "1"},
                      {"Q3TextText=", "C:\\a\\b.ini"}}));
}

TEST_F(SettingsTest, AValueThatDoesNotConvertLeavesTheSetting) {
    EXPECT_EQ(AfterRoundTrip({"Expert=1", "Expert=yes", "Expert=256", "Expert=", "DemosAll=maybe",
                              "DemosText=perhaps", "AutoNextDemo=-1", "TranscriptMessages=7",
                              "TranscriptMessages=99999999999"}),
              Golden({{"Expert=", "1"}, {"TranscriptMessages=", "7"}}));
}

TEST_F(SettingsTest, TheLastLineOfAKeyCounts) {
    EXPECT_EQ(AfterRoundTrip({"CurMod1=ctf", "CurMod1=id1", "Expert=0", "Expert=1"}),
              Golden({{"Expert=", "1"}}));
}

TEST_F(SettingsTest, KeysMatchOnlyAtTheLinesStartAndInTheirCase) {
    EXPECT_EQ(AfterRoundTrip({"expert=1", " Expert=1", "xExpert=1", "Expert =1", "//Expert=1",
                              "EXPERT=1", "Player01Name=X", "Player25Name=X", "Player0Name=X",
                              "virgin=1", "Unknown=1", "Expert"}),
              Golden({}));
}

TEST_F(SettingsTest, AnythingButZeroMeansPreviews) {
    EXPECT_THAT(AfterRoundTrip({"Preview=yes"}), HasSubstr("\r\nPreview=1\r\n"));
    EXPECT_THAT(AfterRoundTrip({"Preview= 0"}), HasSubstr("\r\nPreview=1\r\n"));
    EXPECT_THAT(AfterRoundTrip({"Preview=0"}), HasSubstr("\r\nPreview=0\r\n"));
}

TEST_F(SettingsTest, TheFilterStandsInItsControlsAfterTheStart) {
    WriteSettings(
        {"Game=Quake2", "AutoShowAll=0", "DemosAll=0", "DemosText=False", "DemosFilter=q2dm1"});
    Start();
    EXPECT_FALSE(Window().GetCheckBox(IDC_chkShowAllDemos).Checked());
    EXPECT_TRUE(Window().GetOptionButton(IDC_optTextNo).Selected());
    EXPECT_FALSE(Window().GetOptionButton(IDC_optTextYes).Selected());
    EXPECT_EQ(Text(IDC_txtDemoFilter), "q2dm1");
    EXPECT_TRUE(Window().GetTextBox(IDC_txtDemoFilter).Enabled());
    EXPECT_THAT(Demos(), ElementsAre("Duel"));
}

TEST_F(SettingsTest, TheNamesAndOptionsOfTranscriptsStandInTheirControlsAfterTheStart) {
    WriteSettings({"TranscriptHTML=1", "TranscriptGameplay=1", "Player1Name=Bob",
                   "Player1Colour=255", "Player9Name=\xC1\xEE\xEE", "Player24Name= x ",
                   "Player24Colour=65280", "TranscriptBackground=8", "TranscriptMessages=16"});
    Start();
    const auto box = [this](int number) -> TextBox& {
        return Window().GetTextBox(IDC_txtPlayer1 + number - 1);
    };
    EXPECT_TRUE(Window().GetCheckBox(IDC_chkTranscriptHTML).Checked());
    EXPECT_TRUE(Window().GetCheckBox(IDC_chkTranscriptGameplay).Checked());
    EXPECT_EQ(box(1).Text(), "Bob");
    EXPECT_EQ(box(9).Text(), "\xC3\x81\xC3\xAE\xC3\xAE");
    EXPECT_EQ(box(10).Text(), "");
    EXPECT_EQ(box(24).Text(), " x ");
    EXPECT_EQ(box(1).Foreground(), Colour(ColourRef{255}));
    EXPECT_EQ(box(2).Foreground(), Colour(SystemColour::WindowText));
    EXPECT_EQ(box(24).Foreground(), Colour(ColourRef{65280}));
    EXPECT_EQ(box(2).Background(), Colour(ColourRef{8}));
    EXPECT_EQ(Window().GetTextBox(IDC_txtTranscriptMessages).Foreground(), Colour(ColourRef{16}));
    EXPECT_TRUE(Window().AnyControl(IDC_txtTranscriptMessages).Enabled());
    EXPECT_TRUE(Window().AnyControl(IDC_cmdClearNames).Enabled());
}

TEST_F(SettingsTest, WithoutHtmlTheColoursOfTranscriptsAreKeptButNotShown) {
    const std::vector<std::string> lines = {"TranscriptHTML=0", "Player1Name=Bob",
                                            "Player1Colour=255", "TranscriptBackground=8",
                                            "TranscriptMessages=16"};
    WriteSettings(lines);
    Start();
    EXPECT_EQ(Window().GetTextBox(IDC_txtPlayer1).Foreground(), Colour(SystemColour::WindowText));
    EXPECT_EQ(Window().GetTextBox(IDC_txtPlayer1).Background(), Colour(SystemColour::Window));
    EXPECT_FALSE(Window().AnyControl(IDC_txtTranscriptMessages).Enabled());
    EXPECT_FALSE(Window().AnyControl(IDC_labColourUsed).Enabled());
    Quit();
    EXPECT_EQ(AfterRoundTrip(lines), Golden({{"TranscriptHTML=", "0"},
                                             {"Player1Name=", "Bob"},
                                             {"Player1Colour=", "255"},
                                             {"TranscriptBackground=", "8"},
                                             {"TranscriptMessages=", "16"}}));
}

TEST_F(SettingsTest, AsColoursTextsAreNumbersAsFarAsTheyGo) {
    EXPECT_EQ(AfterRoundTrip({"TranscriptMessages=12abc", "TranscriptBackground=blue",
                              "Player1Colour=12abc", "Player2Colour=blue"}),
              Golden({{"TranscriptMessages=", "12"},
                      {"TranscriptBackground=", "0"},
                      {"Player1Colour=", "12abc"},
                      {"Player2Colour=", "blue"}}));
}

TEST_F(SettingsTest, TheTypeOfATextSelectsItsOption) {
    const std::vector<int> options = {IDC_optQ3TextName,     IDC_optQ3TextServer,
                                      IDC_optQ3TextPublic,   IDC_optQ3TextTeam,
                                      IDC_optQ3TextAttacker, IDC_optQ3TextTarget};
    for (std::size_t type = 0; type < options.size(); ++type) {
        WriteSettings({"Q3TextType=" + std::to_string(type)});
        Start();
        for (std::size_t i = 0; i < options.size(); ++i) {
            EXPECT_EQ(Window().GetOptionButton(options[i]).Selected(), i == type) << type;
        }
        Quit();
        EXPECT_EQ(os.files.Contents(kIni), Golden({{"Q3TextType=", std::to_string(type)}}));
    }
}

TEST_F(SettingsTest, ANumberThatIsNoTypeIsKeptAndSelectsNothing) {
    for (const char* number : {"6", "200", "255"}) {
        WriteSettings({"Q3TextType=" + std::string(number)});
        Start();
        EXPECT_TRUE(Window().GetOptionButton(IDC_optQ3TextName).Selected());
        EXPECT_EQ(Text(IDC_txtQ3TextCode), "seta name \"^^0^7\"");
        Quit();
        EXPECT_EQ(os.files.Contents(kIni), Golden({{"Q3TextType=", number}}));
    }
    for (const char* number : {"256", "-1", "name"}) {
        EXPECT_EQ(AfterRoundTrip({"Q3TextType=" + std::string(number)}), Golden({}));
    }
}

TEST_F(SettingsTest, TheOptionsOfATextStandInTheirControlsAndItsCode) {
    WriteSettings({"Q3TextType=1", "Q3TextKeyfox=1", "Q3TextOSP=1"});
    Start();
    EXPECT_TRUE(Window().GetCheckBox(IDC_chkQ3TextKeyfox).Checked());
    EXPECT_TRUE(Window().GetCheckBox(IDC_chkQ3TextOSP).Checked());
    EXPECT_EQ(Text(IDC_txtQ3TextCode), "sv_hostname ^8^7");
}

TEST_F(SettingsTest, AMissingGameStoresItsDriveOnly) {
    os.files.Remove(kQuake1Folder + "glquake.exe");
    EXPECT_EQ(AfterRoundTrip({}), Golden({{"Q1Folder=", "c:"}}));
}

TEST_F(SettingsTest, AReadOnlyFileIsLeftAlone) {
    WriteSettings({"Game=Quake3", "Expert=1"});
    os.files.SetReadOnly(kIni);
    const std::string before = os.files.Contents(kIni);
    Start();
    Window().UserClick(IDC_optGameQuake1);
    Quit();
    EXPECT_EQ(os.files.Contents(kIni), before);
    EXPECT_TRUE(os.files.IsReadOnly(kIni));
    EXPECT_FALSE(os.files.Exists(kIni + ".zentar-new"));
}

TEST_F(SettingsTest, AFileThatCannotBeReadIsNotOverwrittenWithDefaults) {
    WriteSettings({"Game=Quake3"});
    const std::string before = os.files.Contents(kIni);
    os.files.SetLocked(kIni);
    os.windows.Expect({"Welcome",
                       "Welcome to Zentar!\r\n\r\n"
                       "This appears to be your first time using Zentar.\r\n"
                       "As such, you will need to tell Zentar where your\r\n"
                       "Quake games are.  Do you want to do this now?",
                       MessageIcon::Question, MessageButtons::YesNo},
                      Answer::No);
    os.windows.Expect({"Current Folders", "Quake 1\t   c:\r\nQuake 2\t   c:\r\nQuake 3\t   c:",
                       MessageIcon::Information});
    Start();
    os.files.SetLocked(kIni, false);
    Quit();
    EXPECT_EQ(os.files.Contents(kIni), before);
}

TEST_F(SettingsTest, AFullDiskLeavesTheOldFileWhole) {
    WriteSettings({"Game=Quake3"});
    const std::string before = os.files.Contents(kIni);
    Start();
    os.files.SetFreeSpace("C:\\", 100);
    Quit();
    EXPECT_EQ(os.files.Contents(kIni), before);
    EXPECT_FALSE(os.files.Exists(kIni + ".zentar-new"));
}

// ---- Files that are no settings files ----

TEST_F(SettingsTest, LinesMayEndInCrOrLfAlone) {
    EXPECT_THAT(AfterRunWith("Expert=1\nGame=Quake3\rScanWarn=1"),
                AllOf(HasSubstr("\r\nExpert=1\r\n"), HasSubstr("\r\nGame=Quake3\r\n"),
                      HasSubstr("\r\nScanWarn=1\r\n")));
}

TEST_F(SettingsTest, WithABomTheFirstLineIsNoKeyAndNothingElseBreaks) {
    os.files.AddFile(kIni, "\xEF\xBB\xBFGame=Quake3\r\nVirgin=0\r\nExpert=1\r\n");
    Start();
    Quit();
    EXPECT_THAT(os.files.Contents(kIni),
                AllOf(HasSubstr("\r\nGame=Quake2\r\n"), HasSubstr("\r\nExpert=1\r\n")));
}

TEST_F(SettingsTest, LinesWithNulsAreNoSettings) {
    using namespace std::string_literals;
    EXPECT_THAT(AfterRunWith("Remote=D:\\a\0b\r\nExpert=1\r\n"s),
                AllOf(HasSubstr("\r\nRemote=c:\\\r\n"), HasSubstr("\r\nExpert=1\r\n")));
}

TEST_F(SettingsTest, AnEndlessLineIsNoSetting) {
    EXPECT_THAT(AfterRunWith("Remote=" + std::string(1'000'000, 'x') + "\r\nExpert=1\r\n"),
                AllOf(HasSubstr("\r\nRemote=c:\\\r\n"), HasSubstr("\r\nExpert=1\r\n")));
}

TEST_F(SettingsTest, FiftyMegabytesOfAnythingDoNotMatter) {
    std::string bytes;
    std::uint32_t random = 1;
    while (bytes.size() < 50'000'000) {
        random = random * 1664525U + 1013904223U;
        bytes += static_cast<char>(random >> 24U);
    }
    EXPECT_THAT(AfterRunWith("\r\n" + bytes + "\r\nExpert=1\r\n"),
                AllOf(HasSubstr("\r\nExpert=1\r\n"), HasSubstr("\r\nGame=Quake2\r\n")));
}

TEST_F(SettingsTest, AnEmptyFileGivesTheDefaults) {
    EXPECT_THAT(AfterRunWith(""), HasSubstr("\r\nGame=Quake2\r\n"));
}

}  // namespace
}  // namespace zentar
