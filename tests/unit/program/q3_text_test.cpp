// The Q3 Text tab in the whole program: its texts and options from one run to the next.

#include "platform/rtf/rtf_writer.h"
#include "q3tools/colour_codes.h"
#include "tests/unit/program/program_test.h"

namespace zentar {
namespace {

using ::testing::HasSubstr;

class Q3TextTest : public ProgramTest {
  protected:
    Q3TextTest() { InstallGames(); }

    void StartOnQ3Text() {
        Start();
        Window().UserSelectTab(IDC_SSTab1, 3);
    }
    std::string Code() { return Text(IDC_txtQ3TextCode); }

    const std::string folder_ = "c:\\program files\\zentar\\data\\q3text\\";
};

TEST_F(Q3TextTest, TheCurrentTextIsReadBeforeTheSettingsAndTheLastOneBehind) {
    os.files.AddFile(folder_ + "current.ini", WriteRtf(std::vector<ColouredRun>{{"c", kQ3Red}}));
    os.files.AddFile("D:\\last.ini", WriteRtf(std::vector<ColouredRun>{{"l", kQ3Blue}}));
    WriteSettings({"Game=Quake2", "Q3TextText=D:\\last.ini"});
    Start();
    EXPECT_TRUE(os.log.Ordered({
        "txtQ3TextCode.SetText(seta name \"^^0^7\")",
        "OpenForReading " + folder_ + "current.ini",
        "txtQ3TextCode.SetText(seta name \"^1c^7\")",
        "OpenForReading c:\\program files\\zentar\\zentar.ini",
        "OpenForReading D:\\last.ini",
        "rtbQ3Text.PutCaret(1)",
        "txtQ3TextCode.SetText(seta name \"^4l^7\")",
    }));
    EXPECT_EQ(Code(), "seta name \"^4l^7\"");
}

TEST_F(Q3TextTest, WithoutALastTextTheCurrentOneStays) {
    os.files.AddFile(folder_ + "current.ini", WriteRtf(std::vector<ColouredRun>{{"c", kQ3Red}}));
    WriteSettings({"Game=Quake2", "Q3TextText="});
    Start();
    EXPECT_EQ(Code(), "seta name \"^1c^7\"");
}

TEST_F(Q3TextTest, ATextThatWasSavedIsThereInTheNextRun) {
    WriteSettings({"Game=Quake2"});
    StartOnQ3Text();
    Window().UserIn(IDC_rtbQ3Text);
    Window().UserType("Bob");
    os.windows.ExpectFileToSave({.title = "Save Quake 3 coloured text",
                                 .folder = folder_,
                                 .name = "Bob",
                                 .kinds = {{"Quake 3 coloured text (*.ini)", "*.ini"}}},
                                folder_ + "Bob.ini");
    Window().UserClick(IDC_cmdQ3TextSave);
    Window().UserClick(IDC_optQ3TextTeam);
    Window().UserClick(IDC_chkQ3TextOSP);
    EXPECT_EQ(Code(), "bind pause \"say_team ^8Bob^7\"");
    Quit();
    EXPECT_THAT(os.files.Contents(kIni), HasSubstr("\r\nQ3TextText=" + folder_ + "Bob.ini\r\n"));
    StartOnQ3Text();
    EXPECT_EQ(Code(), "bind pause \"say_team ^8Bob^7\"");
    EXPECT_TRUE(Window().GetOptionButton(IDC_optQ3TextTeam).Selected());
    EXPECT_TRUE(Window().GetCheckBox(IDC_chkQ3TextOSP).Checked());
    EXPECT_FALSE(Window().GetCheckBox(IDC_chkQ3TextKeyfox).Checked());
}

TEST_F(Q3TextTest, TheSlashIsNotRemembered) {
    WriteSettings({"Game=Quake2"});
    StartOnQ3Text();
    Window().UserClick(IDC_chkQ3TextAddSlash);
    Quit();
    Start();
    EXPECT_FALSE(Window().GetCheckBox(IDC_chkQ3TextAddSlash).Checked());
}

TEST_F(Q3TextTest, TheCodeIsAddedToQuake3sOwnModWhateverIsSelected) {
    os.files.AddFile(kQuake3Folder + "baseq3\\q3config.cfg", "");
    os.files.AddFile(kQuake3Folder + "osp\\q3config.cfg", "");
    WriteSettings({"Game=Quake3", "CurMod3=osp", "Expert=1"});
    StartOnQ3Text();
    Window().UserIn(IDC_rtbQ3Text);
    Window().UserType("x");
    Window().UserClick(IDC_cmdQ3TextQ3Config);
    EXPECT_EQ(os.files.Contents(kQuake3Folder + "baseq3\\q3config.cfg"),
              "seta name \"^^0x^7\"\r\n");
    EXPECT_EQ(os.files.Contents(kQuake3Folder + "osp\\q3config.cfg"), "");
}

TEST_F(Q3TextTest, WithoutItsFolderTheTabWorksAllTheSame) {
    os.files.SetWritingDenied("C:\\Program Files\\Zentar\\");
    WriteSettings({"Game=Quake2"});
    StartOnQ3Text();
    Window().UserIn(IDC_rtbQ3Text);
    Window().UserType("x");
    EXPECT_EQ(Code(), "seta name \"^^0x^7\"");
    EXPECT_FALSE(os.files.Exists(folder_));
    os.windows.ExpectFileToSave({.title = "Save Quake 3 coloured text",
                                 .folder = folder_,
                                 .name = "x",
                                 .kinds = {{"Quake 3 coloured text (*.ini)", "*.ini"}}},
                                folder_ + "x.ini");
    os.windows.Expect({"Error",
                       "This coloured text couldn't be saved.\r\n\r\n"
                       "The folder may be protected, or its drive may be full.",
                       MessageIcon::Exclamation});
    Window().UserClick(IDC_cmdQ3TextSave);
    EXPECT_EQ(Code(), "seta name \"^^0x^7\"");
}

}  // namespace
}  // namespace zentar
