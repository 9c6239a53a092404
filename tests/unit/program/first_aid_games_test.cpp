// First Aid for the games' drivers, folders and registry settings.

#include "tests/unit/program/first_aid_fixture.h"

namespace zentar {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST_F(FirstAidTest, TheDriverIsSetAsideAndComesBack) {
    const struct {
        Symptom symptom;
        std::string folder;
    } cases[] = {{Symptom::GlideMissing, kQuake1Folder},
                 {Symptom::SoftwareMode, kQuake2Folder},
                 {Symptom::OpenGLMissing, kQuake3Folder}};
    StartOnFirstAid();
    for (const auto& [symptom, folder] : cases) {
        os.files.AddFile(folder + "opengl32.dll", "driver of " + folder);
        Pick(symptom);
        EXPECT_EQ(Buttons(), "1-");
        Window().UserClick(IDC_cmdRemedy1);
        EXPECT_EQ(os.files.Contents(folder + "opengl32.zentar"), "driver of " + folder);
        EXPECT_FALSE(os.files.Exists(folder + "opengl32.dll"));
        EXPECT_EQ(Buttons(), "-2");
        Window().UserClick(IDC_cmdRemedy2);
        EXPECT_EQ(os.files.Contents(folder + "opengl32.dll"), "driver of " + folder);
        EXPECT_EQ(Buttons(), "1-");
        os.files.AddFile(folder + "opengl32.zentar", "another");
        Pick(Symptom::DemosPlayBadly);
        Pick(symptom);
        EXPECT_EQ(Buttons(), "--");
    }
    EXPECT_EQ(os.windows.Sounds(), std::vector<Beep>(6, Beep::Information));
}

TEST_F(FirstAidTest, FoldersOfThoseNamesAreNoFiles) {
    os.files.AddFolder(kQuake2Folder + "opengl32.dll\\");
    os.files.AddFolder(kQuake2Folder + "baseq2\\autoexec.cfg\\");
    StartOnFirstAid();
    Pick(Symptom::SoftwareMode);
    EXPECT_EQ(Buttons(), "--");
    os.windows.Expect(
        Failure("The \"autoexec.cfg\" file couldn't be created.\r\n\r\n"
                "The folder may be protected, or its drive may be full."));
    Apply(Symptom::SettingsNotSaved);
}

TEST_F(FirstAidTest, ADriverThatIsHeldIsToldOf) {
    os.files.AddFile(kQuake2Folder + "opengl32.dll", "driver");
    StartOnFirstAid();
    Pick(Symptom::SoftwareMode);
    os.files.SetLocked(kQuake2Folder + "opengl32.dll");
    os.windows.Expect(
        Failure("The \"opengl32\" file couldn't be renamed.\r\n\r\n"
                "The game may be running, or its folder may be protected."));
    Window().UserClick(IDC_cmdRemedy1);
    EXPECT_EQ(Buttons(), "1-");
    EXPECT_THAT(os.windows.Sounds(), IsEmpty());
}

TEST_F(FirstAidTest, ADriverThatAppearedMeanwhileIsNotOverwritten) {
    os.files.AddFile(kQuake2Folder + "opengl32.dll", "driver");
    StartOnFirstAid();
    Pick(Symptom::SoftwareMode);
    os.files.AddFile(kQuake2Folder + "opengl32.zentar", "another");
    os.windows.Expect(
        Failure("The \"opengl32\" file couldn't be renamed.\r\n\r\n"
                "The game may be running, or its folder may be protected."));
    Window().UserClick(IDC_cmdRemedy1);
    EXPECT_EQ(os.files.Contents(kQuake2Folder + "opengl32.zentar"), "another");
    EXPECT_EQ(os.files.Contents(kQuake2Folder + "opengl32.dll"), "driver");
    EXPECT_EQ(Buttons(), "--");
}

TEST_F(FirstAidTest, StraysAreMovedAndScreenshotFoldersMadeWhateverGameIsCurrent) {
    os.files.AddFile(kQuake2Folder + "baseq2\\players\\stray.pcx", "stray");
    os.files.AddFile(kQuake2Folder + "baseq2\\players\\male\\tris.md2", "male");
    StartOnFirstAid();
    Window().UserClick(IDC_optGameQuake3);
    Apply(Symptom::ModelNotSelectable);
    EXPECT_EQ(os.files.Contents(kQuake2Folder + "Zentar Strays\\stray.pcx"), "stray");
    EXPECT_THAT(os.files.Names(kQuake2Folder + "baseq2\\players\\"), ElementsAre("male"));
    os.files.AddFile(kQuake2Folder + "baseq2\\players\\second.pcx", "second");
    Apply(Symptom::CrashOnModelChange);
    EXPECT_EQ(os.files.Contents(kQuake2Folder + "Zentar Strays\\second.pcx"), "second");
    Apply(Symptom::CrashOnScreenshot);
    EXPECT_TRUE(os.files.Exists(kQuake2Folder + "rocket\\scrnshot"));
    EXPECT_FALSE(os.files.Exists(kQuake2Folder + "Zentar Strays\\scrnshot"));
    EXPECT_EQ(os.windows.Sounds(), std::vector<Beep>(3, Beep::Information));
}

// Its folder is then no more than a drive, which nothing is looked for in.
TEST_F(FirstAidTest, AGameThatIsNotInstalledHasNoFoldersToRepair) {
    WriteSettings({"Game=Quake3"});
    os.files.Remove(kQuake2Folder + "quake2.exe");
    os.files.AddFile(kQuake2Folder + "baseq2\\players\\stray.pcx", "stray");
    StartOnFirstAid();
    EXPECT_EQ(State().games[kQuake2Row].GameFolder, "c:");
    const std::map<std::string, std::string> before = os.files.AllFiles();
    for (const Symptom symptom :
         {Symptom::ModelNotSelectable, Symptom::CrashOnModelChange, Symptom::CrashOnScreenshot}) {
        os.windows.Expect(FolderUnknown("Quake2"));
        Apply(symptom);
    }
    EXPECT_EQ(os.files.AllFiles(), before);
    EXPECT_FALSE(os.files.Exists(kQuake2Folder + "rocket\\scrnshot"));
    EXPECT_FALSE(os.files.Exists("C:\\Games\\scrnshot"));
    EXPECT_THAT(os.windows.Sounds(), IsEmpty());
}

TEST_F(FirstAidTest, AVersionMismatchSwitchesToQuake3AndLeavesNothingSelected) {
    for (const Symptom symptom : {Symptom::UnknownToAuth, Symptom::ProtocolVersion}) {
        StartOnFirstAid();
        Apply(symptom);
        EXPECT_EQ(State().settings.Game, "Quake3");
        EXPECT_TRUE(Window().GetOptionButton(IDC_optGameQuake3).Selected());
        EXPECT_EQ(Window().SelectedItem(IDC_lstSymptoms), "");
        EXPECT_EQ(Remedy(), "");
        EXPECT_EQ(Buttons(), "--");
        EXPECT_THAT(os.windows.Sounds(), IsEmpty());
        program.reset();
        WriteSettings({"Game=Quake2"});
    }
}

TEST_F(FirstAidTest, AVersionMismatchWithoutQuake3SaysSo) {
    os.files.Remove(kQuake3Folder + "quake3.exe");
    StartOnFirstAid();
    os.windows.Expect(FolderUnknown("Quake3"));
    Apply(Symptom::ProtocolVersion);
    EXPECT_EQ(State().settings.Game, "Quake3");
}

TEST_F(FirstAidTest, TheRegistryOfQuake3IsRestored) {
    StartOnFirstAid();
    Apply(Symptom::TeamArenaInstallation);
    const std::map<std::pair<std::string, std::string>, std::string> expected = {
        {{kQuake3Key, "CD"}, "D:\\setup\\"},
        {{kQuake3Key, "INSTALLEXEPATH"}, kQuake3Folder + "quake3.exe"},
        {{kQuake3Key, "INSTALLPATH"}, kQuake3Folder}};
    EXPECT_EQ(os.registry.strings, expected);
    EXPECT_THAT(os.windows.Sounds(), ElementsAre(Beep::Information));
}

TEST_F(FirstAidTest, WithoutQuake3ItsRegistryStaysAsItIs) {
    os.files.Remove(kQuake3Folder + "quake3.exe");
    StartOnFirstAid();
    os.windows.Expect(FolderUnknown("Quake3"));
    Apply(Symptom::TeamArenaInstallation);
    EXPECT_THAT(os.registry.strings, IsEmpty());
    EXPECT_THAT(os.windows.Sounds(), IsEmpty());
}

TEST_F(FirstAidTest, ARegistryThatRefusesSoundsTheOtherBeep) {
    os.registry.writeAnswer = FileError::AccessDenied;
    StartOnFirstAid();
    Apply(Symptom::TeamArenaInstallation);
    EXPECT_THAT(os.registry.strings, IsEmpty());
    EXPECT_THAT(os.windows.Sounds(), ElementsAre(Beep::Exclamation));
}

}  // namespace
}  // namespace zentar
