// The demo installer's frame on the Misc tab.

#include "core/messages.h"
#include "tests/unit/program/program_test.h"

namespace zentar {
namespace {

using ::testing::ElementsAre;

class DemoInstallerTest : public ProgramTest {
  protected:
    void StartWith(const std::string& game) {
        InstallGames();
        WriteSettings({"Game=" + game});
        Start();
        Window().UserSelectTab(IDC_SSTab1, 2);
    }

    void Pick(const std::string& game, std::optional<std::string> folder) {
        os.shell.ExpectPick("Please locate the folder with the unzipped " + game + " demos:",
                            std::move(folder));
        Window().UserClick(IDC_cmdDemoInstaller);
    }

    bool pumped = false;
    bool Enabled(int id) { return Window().AnyControl(id).Enabled(); }
};

TEST_F(DemoInstallerTest, SaysWhatItInstallsForTheGame) {
    StartWith("Quake2");
    EXPECT_EQ(Text(IDC_fraDemoInstaller), "Q2 Demo Installer");
    EXPECT_EQ(Text(IDC_labDemoInstaller), "Click the button to install a folder of demos into Q2.");
    EXPECT_EQ(Text(IDC_cmdDemoInstaller), "Install Demos");
    EXPECT_EQ(Window().Tooltip(IDC_cmdDemoInstaller),
              "Click here to select a folder of unzipped Quake2 demos to install.");
    Window().UserClick(IDC_optGameQuake3);
    EXPECT_EQ(Text(IDC_fraDemoInstaller), "Q3 Demo Installer");
    EXPECT_EQ(Text(IDC_labDemoInstaller), "Click the button to install a folder of demos into Q3.");
    EXPECT_EQ(Window().Tooltip(IDC_cmdDemoInstaller),
              "Click here to select a folder of unzipped Quake3 demos to install.");
}

TEST_F(DemoInstallerTest, IsOfNoUseForQuake1) {
    StartWith("Quake1");
    EXPECT_EQ(Text(IDC_fraDemoInstaller), "Q2/3 Demo Installer");
    EXPECT_EQ(Text(IDC_labDemoInstaller), "This function is only used for Quake 2/3 demos.");
    EXPECT_EQ(Text(IDC_cmdDemoInstaller), "Unavailable");
    for (const int id :
         {IDC_fraDemoInstaller, IDC_picDemoInstaller, IDC_labDemoInstaller, IDC_cmdDemoInstaller}) {
        EXPECT_FALSE(Enabled(id)) << id;
    }
    Window().UserClick(IDC_optGameQuake2);
    for (const int id :
         {IDC_fraDemoInstaller, IDC_picDemoInstaller, IDC_labDemoInstaller, IDC_cmdDemoInstaller}) {
        EXPECT_TRUE(Enabled(id)) << id;
    }
}

TEST_F(DemoInstallerTest, WithoutAGameItDoesNothing) {
    StartWith("Quake4");
    Window().UserClick(IDC_cmdDemoInstaller);
}

TEST_F(DemoInstallerTest, CancellingThePickerIsSilent) {
    StartWith("Quake2");
    Pick("Quake2", std::nullopt);
}

TEST_F(DemoInstallerTest, InstallsAFolderAndListsWhatCameToTheMod) {
    StartWith("Quake2");
    os.files.AddFile("D:\\Unzipped\\new.dm2", Demo(samples::DemoKind::Dm2, "q2dm8"));
    os.windows.Expect(
        {"Done", "Number of demos successfully installed: 1 out of 1.", MessageIcon::Information});
    os.windows.SetDuringPump([this] {
        pumped = true;
        EXPECT_EQ(os.windows.CurrentPointer(), Pointer::Hourglass);
    });
    Pick("Quake2", "D:\\Unzipped");
    EXPECT_TRUE(pumped);
    EXPECT_THAT(Demos(), ElementsAre("Duel", "edge", "new"));
    EXPECT_EQ(os.windows.CurrentPointer(), Pointer::Default);
}

TEST_F(DemoInstallerTest, KeepsTheSelectedDemoSelected) {
    StartWith("Quake2");
    Window().UserSelectTab(IDC_SSTab1, 1);
    Window().UserSelect(IDC_lstDemos, "edge");
    Window().UserSelectTab(IDC_SSTab1, 2);
    os.files.AddFile("D:\\Unzipped\\new.dm2", Demo(samples::DemoKind::Dm2, "q2dm8"));
    os.windows.Expect(
        {"Done", "Number of demos successfully installed: 1 out of 1.", MessageIcon::Information});
    Pick("Quake2", "D:\\Unzipped\\");
    EXPECT_EQ(Window().SelectedItem(IDC_lstDemos), "edge");
}

TEST_F(DemoInstallerTest, AFolderWithoutDemosIsASuccess) {
    StartWith("Quake3");
    os.files.AddFolder("D:\\Unzipped\\");
    os.windows.Expect(
        {"Done", "Number of demos successfully installed: 0 out of 0.", MessageIcon::Information});
    Pick("Quake3", "D:\\Unzipped");
}

TEST_F(DemoInstallerTest, SaysWhenAModIsMissing) {
    StartWith("Quake2");
    samples::DemoContents contents;
    contents.mod = "lithium";
    os.files.AddFile("D:\\Unzipped\\far.dm2", MakeDemo(samples::DemoKind::Dm2, contents));
    os.files.AddFile("D:\\Unzipped\\near.dm2", Demo(samples::DemoKind::Dm2, "q2dm8"));
    os.windows.Expect({"Done",
                       "Number of demos successfully installed: 1 out of 2.\r\n\r\nSome demos "
                       "could not be installed because you do\r\nnot have the required Quake2 mod "
                       "that is needed to\r\nplay them back.",
                       MessageIcon::Exclamation});
    Pick("Quake2", "D:\\Unzipped");
    EXPECT_TRUE(os.files.Exists("D:\\Unzipped\\far.dm2"));
}

TEST_F(DemoInstallerTest, WithoutTheGameItTellsThatFirst) {
    StartWith("Quake2");
    os.files.Remove(kQuake2Folder + "quake2.exe");
    os.windows.Expect(messages::GameFolderUnknown("Quake2"));
    Window().UserClick(IDC_cmdDemoInstaller);
}

}  // namespace
}  // namespace zentar
