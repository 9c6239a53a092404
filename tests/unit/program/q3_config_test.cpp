// Single-player backups in the whole program.

#include "tests/unit/program/q3_config_fixture.h"

namespace zentar {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

TEST_F(Q3ConfigProgramTest, TheFramesSayWhatTheyDo) {
    StartOnMisc();
    EXPECT_EQ(Text(IDC_fraQ3BackRest), "Quake3 Single-Player Progress");
    EXPECT_EQ(Text(IDC_labQ3BackRest),
              "Click a button below to backup / restore your current Quake3 progress && awards.");
    EXPECT_EQ(Text(IDC_cmdQ3Backup), "Backup");
    EXPECT_EQ(Window().Tooltip(IDC_cmdQ3Backup),
              "Click here to backup your current Quake3 single-player progress.");
    EXPECT_EQ(Text(IDC_cmdQ3Restore), "Restore");
    EXPECT_EQ(Window().Tooltip(IDC_cmdQ3Restore),
              "Click here to restore your Quake3 single-player progress.");
    EXPECT_EQ(Text(IDC_chkBackupAll),
              "Include name, model, sex, handicap, and railgun values when backing up.");
    EXPECT_EQ(Window().Tooltip(IDC_chkBackupAll),
              "If unchecked, only your current awards and progress are backed-up.");
    EXPECT_EQ(Text(IDC_fraQ3ConfigEdit), "Quake3 Config Editor");
    EXPECT_EQ(Text(IDC_labQ3ConfigEdit),
              "Click the button to edit your \"baseq3\" config file in a more user-friendly "
              "format.");
    EXPECT_EQ(Text(IDC_cmdQ3ConfigEdit), "Edit Quake3 Config");
    EXPECT_EQ(Window().Tooltip(IDC_cmdQ3ConfigEdit),
              "Click here to edit \"baseq3\\q3config.cfg\" in a user-friendly format.");
}

TEST_F(Q3ConfigProgramTest, ABackupIsMadeWhateverGameIsCurrent) {
    StartOnMisc();
    ExpectSave(kBackup);
    os.files.AddFolder(kBackups);
    Window().UserClick(IDC_cmdQ3Backup);
    EXPECT_EQ(os.files.Contents(kBackup), std::string(kHead) + "seta g_sp1 \"a\"\r\n" + kFoot);
    EXPECT_THAT(os.windows.Sounds(), ElementsAre(Beep::Information));
    EXPECT_THAT(PointersSinceTheStart(), ElementsAre(Pointer::Hourglass, Pointer::Default));
    EXPECT_EQ(State().settings.Game, "Quake2");
}

TEST_F(Q3ConfigProgramTest, TheTickIsKeptAndAddsThePlayer) {
    StartOnMisc();
    Window().UserClick(IDC_chkBackupAll);
    ExpectSave(kBackup);
    os.files.AddFolder(kBackups);
    Window().UserClick(IDC_cmdQ3Backup);
    EXPECT_EQ(os.files.Contents(kBackup),
              std::string(kHead) + "seta g_sp1 \"a\"\r\nseta name \"Bob\"\r\n" + kFoot);
    Quit();
    EXPECT_THAT(os.files.Contents(kIni), HasSubstr("\r\nBackupAll=1\r\n"));
    Start();
    EXPECT_TRUE(Window().GetCheckBox(IDC_chkBackupAll).Checked());
}

TEST_F(Q3ConfigProgramTest, CancelBacksUpNothing) {
    StartOnMisc();
    for (const std::optional<std::string>& path :
         {std::optional<std::string>(), std::optional<std::string>("")}) {
        ExpectSave(path);
        Window().UserClick(IDC_cmdQ3Backup);
    }
    EXPECT_FALSE(os.files.Exists(kBackup));
    EXPECT_THAT(os.windows.Sounds(), IsEmpty());
}

TEST_F(Q3ConfigProgramTest, AnOlderBackupIsAskedAbout) {
    os.files.AddFile(kBackup, "older");
    const Message really = Confirm("Really overwrite the existing \"tier 3\" backup file?");
    StartOnMisc();
    ExpectSave(kBackup);
    os.windows.Expect(really, Answer::No);
    Window().UserClick(IDC_cmdQ3Backup);
    EXPECT_EQ(os.files.Contents(kBackup), "older");
    ExpectSave(kBackup);
    os.windows.Expect(really, Answer::Yes);
    Window().UserClick(IDC_cmdQ3Backup);
    EXPECT_THAT(os.files.Contents(kBackup), HasSubstr("g_sp1"));
}

TEST_F(Q3ConfigProgramTest, AReadOnlyBackupIsAskedAboutInExpertModeToo) {
    os.files.AddFile(kBackup, "older");
    os.files.SetReadOnly(kBackup);
    WriteSettings({"Game=Quake2", "Expert=1"});
    const Message readOnly = ReadOnlyQuestion(
        "Couldn't overwrite the backup due to it being read-only.\r\n"
        "Would you like me to remove this setting to force the overwrite?");
    StartOnMisc();
    ExpectSave(kBackup);
    os.windows.Expect(readOnly, Answer::No);
    Window().UserClick(IDC_cmdQ3Backup);
    EXPECT_EQ(os.files.Contents(kBackup), "older");
    EXPECT_TRUE(os.files.IsReadOnly(kBackup));
    ExpectSave(kBackup);
    os.windows.Expect(readOnly, Answer::Yes);
    Window().UserClick(IDC_cmdQ3Backup);
    EXPECT_THAT(os.files.Contents(kBackup), HasSubstr("g_sp1"));
    EXPECT_FALSE(os.files.IsReadOnly(kBackup));
}

TEST_F(Q3ConfigProgramTest, TheConfigIsNoBackupOfItself) {
    StartOnMisc();
    const std::string before = Config();
    ExpectSave("c:\\games\\quake3\\BASEQ3\\q3config.cfg");
    os.windows.Expect(
        Failure("You cannot backup \"q3config.cfg\" over itself!\r\n\r\n"
                "Please choose another name and try again."));
    Window().UserClick(IDC_cmdQ3Backup);
    EXPECT_EQ(Config(), before);
}

TEST_F(Q3ConfigProgramTest, ABackupThatCannotBeMadeIsToldOf) {
    os.files.AddFile(kBackup, "older");
    WriteSettings({"Game=Quake2", "Expert=1"});
    const Message failure = Failure(
        "The single-player game couldn't be backed-up.\r\n\r\n"
        "A file may be in use, or the drive may be full.");
    StartOnMisc();
    os.files.SetFreeSpace("C:\\", 5);
    for (const std::string& path : {kBackup, kBackups, std::string("C:\\Nowhere\\x.cfg")}) {
        ExpectSave(path);
        os.windows.Expect(failure);
        Window().UserClick(IDC_cmdQ3Backup);
    }
    EXPECT_EQ(os.files.Contents(kBackup), "older");
    EXPECT_THAT(os.windows.Sounds(), IsEmpty());
    EXPECT_EQ(os.windows.CurrentPointer(), Pointer::Default);
}

TEST_F(Q3ConfigProgramTest, WithoutTheGameOrItsConfigNothingIsDone) {
    os.files.Remove(kConfig);
    StartOnMisc();
    os.windows.Expect(NoConfig("backup from"));
    Window().UserClick(IDC_cmdQ3Backup);
    os.windows.Expect(NoConfig("restore to"));
    Window().UserClick(IDC_cmdQ3Restore);
    os.windows.Expect(NoConfig("edit"));
    Window().UserClick(IDC_cmdQ3ConfigEdit);
    os.files.Remove(kQuake3Folder + "quake3.exe");
    for (const int button : {IDC_cmdQ3Backup, IDC_cmdQ3Restore, IDC_cmdQ3ConfigEdit}) {
        os.windows.Expect(FolderUnknown("Quake3"));
        Window().UserClick(button);
    }
    EXPECT_EQ(State().settings.Game, "Quake2");
    EXPECT_THAT(os.windows.Sounds(), IsEmpty());
}

TEST_F(Q3ConfigProgramTest, ARestoreIsAskedAboutFirst) {
    os.files.AddFile(kBackup, std::string(kHead) + "seta g_sp1 \"b\"\r\n" + kFoot);
    StartOnMisc();
    const std::string before = Config();
    os.windows.Expect(reallyRestore_, Answer::No);
    Window().UserClick(IDC_cmdQ3Restore);
    os.windows.Expect(reallyRestore_, Answer::Yes);
    ExpectOpen(std::nullopt);
    Window().UserClick(IDC_cmdQ3Restore);
    os.windows.Expect(reallyRestore_, Answer::Yes);
    ExpectOpen("");
    Window().UserClick(IDC_cmdQ3Restore);
    EXPECT_EQ(Config(), before);
    EXPECT_THAT(os.windows.Sounds(), IsEmpty());
    os.windows.Expect(reallyRestore_, Answer::Yes);
    ExpectOpen(kBackup);
    Window().UserClick(IDC_cmdQ3Restore);
    EXPECT_EQ(Config(), before + "seta g_sp1 \"b\"\r\n");
    EXPECT_THAT(os.windows.Sounds(), ElementsAre(Beep::Information));
    EXPECT_THAT(PointersSinceTheStart(), ElementsAre(Pointer::Hourglass, Pointer::Default));
}

TEST_F(Q3ConfigProgramTest, InExpertModeARestoreIsNotAskedAboutButAReadOnlyConfigIs) {
    os.files.AddFile(kBackup, "seta g_sp1 \"b\"\r\n");
    os.files.SetReadOnly(kConfig);
    WriteSettings({"Game=Quake2", "Expert=1"});
    const Message readOnly = ReadOnlyQuestion(
        "Can't restore to \"q3config.cfg\" due to it being read-only.\r\n"
        "Would you like me to remove this setting to force the restoration?");
    StartOnMisc();
    const std::string before = Config();
    os.windows.Expect(readOnly, Answer::No);
    Window().UserClick(IDC_cmdQ3Restore);
    EXPECT_TRUE(os.files.IsReadOnly(kConfig));
    os.windows.Expect(readOnly, Answer::Yes);
    ExpectOpen(kBackup);
    Window().UserClick(IDC_cmdQ3Restore);
    EXPECT_EQ(Config(), before + "seta g_sp1 \"b\"\r\n");
    EXPECT_FALSE(os.files.IsReadOnly(kConfig));
}

TEST_F(Q3ConfigProgramTest, TheBoxCountsWhenTheFileIsChosen) {
    os.files.AddFile(kBackup, "seta name \"Ann\"\r\nseta g_sp1 \"b\"\r\n");
    WriteSettings({"Game=Quake2", "Expert=1", "BackupAll=1"});
    StartOnMisc();
    const std::string before = Config();
    ExpectOpen(kBackup);
    Window().UserClick(IDC_cmdQ3Restore);
    EXPECT_EQ(Config(), before + "seta name \"Ann\"\r\nseta g_sp1 \"b\"\r\n");
    Window().UserClick(IDC_chkBackupAll);
    ExpectOpen(kBackup);
    Window().UserClick(IDC_cmdQ3Restore);
    EXPECT_EQ(Config(), before + "seta name \"Ann\"\r\nseta g_sp1 \"b\"\r\nseta g_sp1 \"b\"\r\n");
}

TEST_F(Q3ConfigProgramTest, ARestoreThatFailsIsToldOf) {
    os.files.AddFile(kBackup, "seta g_sp1 \"b\"\r\n");
    WriteSettings({"Game=Quake2", "Expert=1"});
    const Message failure = Failure(
        "The single-player game couldn't be restored.\r\n\r\n"
        "A file may be in use or be no backup, or the drive may be full.");
    StartOnMisc();
    const std::string before = Config();
    for (const std::string& path : {kBackups, kQuake3Folder + "none.cfg"}) {
        ExpectOpen(path);
        os.windows.Expect(failure);
        Window().UserClick(IDC_cmdQ3Restore);
    }
    os.files.SetLocked(kConfig);
    ExpectOpen(kBackup);
    os.windows.Expect(failure);
    Window().UserClick(IDC_cmdQ3Restore);
    os.files.SetLocked(kConfig, false);
    EXPECT_EQ(Config(), before);
    EXPECT_THAT(os.windows.Sounds(), IsEmpty());
}

TEST_F(Q3ConfigProgramTest, OnlyQuake3NeedBeThere) {
    os.files.Remove(kQuake2Folder + "quake2.exe");
    os.files.AddFile(kBackup, "seta g_sp1 \"b\"\r\n");
    WriteSettings({"Game=Quake2", "Expert=1"});
    StartOnMisc();
    ExpectNotepad();
    Window().UserClick(IDC_cmdQ3ConfigEdit);
    ExpectSave(kBackup);
    Window().UserClick(IDC_cmdQ3Backup);
    ExpectOpen(kBackup);
    Window().UserClick(IDC_cmdQ3Restore);
    EXPECT_THAT(os.windows.Sounds(),
                ElementsAre(Beep::Information, Beep::Information, Beep::Information));
    EXPECT_EQ(State().settings.Game, "Quake2");
}

TEST_F(Q3ConfigProgramTest, TheFolderOfBackupsIsThereWhenTheDialogOpens) {
    StartOnMisc();
    EXPECT_FALSE(os.files.Exists(kBackups));
    ExpectSave(std::nullopt);
    Window().UserClick(IDC_cmdQ3Backup);
    EXPECT_TRUE(os.files.Exists(kBackups));
}

TEST_F(Q3ConfigProgramTest, ACancelledRestoreLeavesAWritableConfigAsItWas) {
    os.files.SetReadOnly(kConfig);
    WriteSettings({"Game=Quake2", "Expert=1"});
    StartOnMisc();
    const std::string before = Config();
    os.windows.Expect(
        ReadOnlyQuestion("Can't restore to \"q3config.cfg\" due to it being read-only.\r\n"
                         "Would you like me to remove this setting to force the restoration?"),
        Answer::Yes);
    ExpectOpen(std::nullopt);
    Window().UserClick(IDC_cmdQ3Restore);
    EXPECT_EQ(Config(), before);
    EXPECT_FALSE(os.files.IsReadOnly(kConfig));
}

TEST_F(Q3ConfigProgramTest, AFullDriveLeavesNoHalfOfARestore) {
    os.files.AddFile(kBackup, "seta g_sp1 \"" + std::string(600, 'b') + "\"\r\n");
    WriteSettings({"Game=Quake2", "Expert=1"});
    StartOnMisc();
    const std::string before = Config();
    os.files.SetFreeSpace("C:\\", 300);
    ExpectOpen(kBackup);
    os.windows.Expect(
        Failure("The single-player game couldn't be restored.\r\n\r\n"
                "A file may be in use or be no backup, or the drive may be full."));
    Window().UserClick(IDC_cmdQ3Restore);
    EXPECT_EQ(Config(), before);
}

TEST_F(Q3ConfigProgramTest, TheFolderOfBackupsIsDescribedWhenQuake3BecomesTheGame) {
    const std::string info = kBackups + "Single-Player Backups.txt";
    Start();
    EXPECT_FALSE(os.files.Exists(info));
    Window().UserClick(IDC_optGameQuake3);
    EXPECT_THAT(os.files.Contents(info), HasSubstr("Zentar v0.99 BETA Single-Player Backups\r\n"));
    os.files.AddFile(info, "changed");
    Window().UserClick(IDC_optGameQuake2);
    EXPECT_EQ(os.files.Contents(info), "changed");
    Window().UserClick(IDC_optGameQuake3);
    EXPECT_THAT(os.files.Contents(info), HasSubstr("Single-Player Backups\r\nWeb Site: "));
}

TEST_F(Q3ConfigProgramTest, ItIsDescribedAtTheStartAndInItsPlace) {
    WriteSettings({"Game=Quake3"});
    Start();
    EXPECT_TRUE(os.log.Ordered({"CreateFolder " + kBackups,
                                "Replace " + kBackups + "Single-Player Backups.txt.zentar-new -> " +
                                    kBackups + "Single-Player Backups.txt",
                                "lstDemoFilter.SetItems(31)", "Enumerate " + kQuake3Folder}));
}

TEST_F(Q3ConfigProgramTest, WithoutQuake3NothingIsDescribed) {
    os.files.Remove(kQuake3Folder + "quake3.exe");
    Start();
    Window().UserClick(IDC_optGameQuake3);
    EXPECT_FALSE(os.files.Exists(kBackups + "Single-Player Backups.txt"));
}

}  // namespace
}  // namespace zentar
