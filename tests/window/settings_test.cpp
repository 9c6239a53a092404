// What is kept from one run to the next, and what the user's file looks like after each way to end.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/window/user_input.h"
#include "tests/window/waiting.h"
#include "tests/window/windows_of.h"
#include "tests/window/zentar_driver.h"
#include "ui/resource.h"

namespace zentar::window_tests {
namespace {

const IniLines kPlayer = {
    "Player7Name=^1Ember\xFF", "Player7Colour=255",    "Preview=0",      "BackupAll=0",
    "TranscriptHTML=1",        "TranscriptGameplay=0", "Q3TextKeyfox=0", "Q3TextOSP=0"};

TEST(Settings, AreWrittenToTheByteWhenTheProgramIsClosed) {
    const ZentarHome home;
    home.WriteIni(kPlayer);
    ZentarDriver zentar(home);
    zentar.ShowTab(kDemosTab);
    zentar.ClickOn(IDC_chkShowAllDemos);
    zentar.ClickOn(IDC_optTextNo);
    zentar.ClickOn(IDC_txtDemoFilter);
    zentar.TypeText("Größe");
    zentar.ClickOn(IDC_optGameQuake3);
    EXPECT_SOON(zentar.Selected(IDC_lstMods), "baseq3");
    EXPECT_EQ(zentar.Close(), 0);
    const std::string filter =
        "DemosFilter=Gr\xF6\xDF"
        "e";
    // Another mod was shown, so all demos are.
    EXPECT_SOON(ReadBytes(home.Ini()),
                home.WholeIni({"Game=Quake3", "DemosText=False", filter, "Player7Name=^1Ember\xFF",
                               "Player7Colour=255"}));
}

TEST(Settings, AreTheSameAfterARunThatChangedNothing) {
    const ZentarHome home;
    home.WriteIni(kPlayer);
    EXPECT_EQ(ZentarDriver(home).Close(), 0);
    const std::string first = ReadBytes(home.Ini());
    EXPECT_EQ(ZentarDriver(home).Close(), 0);
    EXPECT_SOON(ReadBytes(home.Ini()), first);
}

TEST(Settings, ExitInTheMenuSavesThem) {
    const ZentarHome home;
    home.WriteIni();
    ZentarDriver zentar(home);
    zentar.ClickOn(IDC_optGameQuake1);
    EXPECT_SOON(zentar.Selected(IDC_lstMods), "id1");
    zentar.OpenMenuEntry('P', 'X');
    EXPECT_EQ(zentar.WaitForExit(), 0);
    EXPECT_NE(ReadBytes(home.Ini()).find("\r\nGame=Quake1\r\n"), std::string::npos);
}

TEST(Settings, AReadOnlyFileStaysAsItIs) {
    const ZentarHome home;
    home.WriteIni();
    const std::string before = ReadBytes(home.Ini());
    SetFileAttributesW(home.Ini().c_str(), FILE_ATTRIBUTE_READONLY);
    ZentarDriver zentar(home);
    zentar.ClickOn(IDC_optGameQuake1);
    EXPECT_EQ(zentar.Close(), 0);
    EXPECT_SOON(ReadBytes(home.Ini()), before);
}

TEST(Settings, AKilledProgramLeavesTheOldFile) {
    const ZentarHome home;
    home.WriteIni();
    const std::string before = ReadBytes(home.Ini());
    ZentarDriver zentar(home);
    zentar.ClickOn(IDC_optGameQuake1);
    EXPECT_SOON(zentar.Selected(IDC_lstMods), "id1");
    zentar.Kill();
    EXPECT_SOON(ReadBytes(home.Ini()), before);
}

TEST(Settings, TheEndOfTheSessionSavesThem) {
    const ZentarHome home;
    home.WriteIni();
    const ZentarDriver zentar(home);
    zentar.ClickOn(IDC_optGameQuake1);
    EXPECT_SOON(zentar.Selected(IDC_lstMods), "id1");
    EXPECT_NE(Send(zentar.Main(), WM_QUERYENDSESSION), 0);
    Send(zentar.Main(), WM_ENDSESSION, TRUE);
    EXPECT_NE(ReadBytes(home.Ini()).find("\r\nGame=Quake1\r\n"), std::string::npos);
}

TEST(Settings, NoTemporaryFileStaysBehind) {
    const ZentarHome home;
    home.WriteIni();
    EXPECT_EQ(ZentarDriver(home).Close(), 0);
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(home.Program())) {
        names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (std::vector<std::string>{"data", "zentar.exe", "zentar.ini"}));
}

TEST(Settings, OnlyWhatConvertsUnderItsExactKeyCounts) {
    const ZentarHome home;
    home.WriteIni({"DemosText=False", "DemosText=maybe", "demosfilter=wrong", " DemosFilter=wrong",
                   "DemosFilter=right", "AutoShowAll=0", "DemosAll=0", "DemosAll=many",
                   "Expert=300", "game=Quake3"});
    ZentarDriver zentar(home);
    zentar.ShowTab(kDemosTab);
    EXPECT_SOON(zentar.Checked(IDC_optTextNo), true);
    EXPECT_SOON(zentar.Checked(IDC_chkShowAllDemos), false);
    EXPECT_SOON(zentar.Text(IDC_txtDemoFilter), "right");
    EXPECT_SOON(zentar.Checked(IDC_optGameQuake2), true);
    EXPECT_EQ(zentar.Close(), 0);
    const std::string ini = ReadBytes(home.Ini());
    EXPECT_NE(ini.find("\r\nExpert=0\r\n"), std::string::npos);
    EXPECT_NE(ini.find("\r\nDemosText=False\r\nDemosFilter=right\r\n"), std::string::npos);
}

TEST(Settings, AFileOfRandomBytesDoesNoHarm) {
    const ZentarHome home;
    std::string bytes = "\xEF\xBB\xBFGame=Quake3\r\n";
    unsigned random = 1;
    while (bytes.size() < 300'000) {
        random = random * 1664525U + 1013904223U;
        bytes += static_cast<char>(random >> 24U);
    }
    home.WriteIni();
    WriteBytes(home.Ini(), bytes + "\r\n" + ReadBytes(home.Ini()));
    ZentarDriver zentar(home);
    EXPECT_SOON(zentar.Checked(IDC_optGameQuake2), true);
    EXPECT_EQ(zentar.Close(), 0);
}

}  // namespace
}  // namespace zentar::window_tests
