// Single-player backups and the config editor.
#include <gtest/gtest.h>

#include "tests/window/commands_fixture.h"
#include "tests/window/file_dialog.h"
#include "tests/window/notepad.h"
#include "tests/window/program_texts.h"
#include "tests/window/waiting.h"
#include "ui/resource.h"

namespace zentar::window_tests {
namespace {

namespace fs = std::filesystem;

const std::string kProgress =
    "seta g_spScores1 \"\\l0\\1\\l1\\1\\l2\\2\"\r\n"
    "seta g_spAwards \"\\a0\\3\\a1\\1\"\r\n"
    "seta g_spSkill \"2\"\r\n";

class Q3Config : public CommandsTest {
  protected:
    ZentarDriver& Open(const IniLines& settings = {}) {
        return CommandsTest::Open(kMiscTab, settings);
    }
    HWND SaveDialog() const {
        return WaitForFileDialog(zentar_->Process(), "Backup a Quake 3 single-player game");
    }
    HWND OpenDialog() const {
        return WaitForFileDialog(zentar_->Process(),
                                 "Restore a backed-up Quake 3 single-player game");
    }
    fs::path Config() const { return home_.Games() / "Quake3/baseq3/q3config.cfg"; }
    fs::path Backups() const { return home_.Games() / "Quake3/Single-Player Backups"; }

    const BoxContents reallyRestore_ =
        Question({"Really restore a single-player game to Quake 3?",
                  "The current single-player game will be destroyed!"});
};

TEST_F(Q3Config, ABackupIsSavedAndRestored) {
    const ZentarDriver& zentar = Open({"Game=Quake3"});
    EXPECT_SOON(fs::exists(Backups() / "Single-Player Backups.txt"), true);
    const std::string config = ReadBytes(Config());
    zentar.ClickOn(IDC_cmdQ3Backup);
    const HWND save = SaveDialog();
    EXPECT_SOON(OfferedName(save), "");
    EXPECT_SOON(KindsIn(save), Lines{"Quake 3 single-player backups (*.cfg)"});
    ChooseFile(save, "tier 1");
    EXPECT_SOON(fs::exists(Backups() / "tier 1.cfg"), true);
    zentar.Settle();
    EXPECT_SOON(ReadBytes(Backups() / "tier 1.cfg"), kBackupHead + kProgress + kBackupFoot);
    EXPECT_SOON(ReadBytes(Config()), config);

    zentar.ClickOn(IDC_cmdQ3Restore);
    Answer(reallyRestore_, IDNO);
    zentar.ClickOn(IDC_cmdQ3Restore);
    Answer(reallyRestore_, IDYES);
    const HWND open = OpenDialog();
    EXPECT_SOON(KindsIn(open), Lines{"Quake 3 single-player backups (*.cfg)"});
    EXPECT_SOON(FilesListed(open), Lines{"tier 1.cfg"});
    ChooseFile(open, "tier 1.cfg");
    EXPECT_SOON(ReadBytes(Config()), config + kProgress);
}

TEST_F(Q3Config, TheTickAddsThePlayerAndIsKept) {
    ZentarDriver& zentar = Open({"Game=Quake3"});
    zentar.ClickOn(IDC_chkBackupAll);
    zentar.ClickOn(IDC_cmdQ3Backup);
    ChooseFile(SaveDialog(), "all.cfg");
    EXPECT_SOON(fs::exists(Backups() / "all.cfg"), true);
    zentar.Settle();
    EXPECT_SOON(ReadBytes(Backups() / "all.cfg"),
                kBackupHead + "seta name \"^1Ember^7Fox\"\r\n" + kProgress + kBackupFoot);
    EXPECT_EQ(zentar.Close(), 0);
    EXPECT_NE(ReadBytes(home_.Ini()).find("\r\nBackupAll=1\r\n"), std::string::npos);
    const ZentarDriver& again = CommandsTest::Open(kMiscTab, {"BackupAll=1"});
    EXPECT_TRUE(again.Checked(IDC_chkBackupAll));
}

TEST_F(Q3Config, OlderAndReadOnlyFilesAreAskedAbout) {
    const ZentarDriver& zentar = Open({"Game=Quake3"});
    WriteBytes(Backups() / "old.cfg", "older");
    zentar.ClickOn(IDC_cmdQ3Backup);
    ChooseFile(SaveDialog(), "old.cfg");
    Answer(Question({"Really overwrite the existing \"old\" backup file?"}), IDNO);
    EXPECT_SOON(ReadBytes(Backups() / "old.cfg"), "older");
    MakeReadOnly(Backups() / "old.cfg");
    zentar.ClickOn(IDC_cmdQ3Backup);
    ChooseFile(SaveDialog(), "old.cfg");
    Answer(Question({"Really overwrite the existing \"old\" backup file?"}), IDYES);
    Answer(FailureWithQuestion({"Couldn't overwrite the backup due to it being read-only.",
                                "Would you like me to remove this setting to force the "
                                "overwrite?"}),
           IDYES);
    EXPECT_SOON(ReadBytes(Backups() / "old.cfg"), kBackupHead + kProgress + kBackupFoot);
    MakeReadOnly(Config());
    zentar.ClickOn(IDC_cmdQ3Restore);
    Answer(reallyRestore_, IDYES);
    Answer(FailureWithQuestion({"Can't restore to \"q3config.cfg\" due to it being read-only.",
                                "Would you like me to remove this setting to force the "
                                "restoration?"}),
           IDNO);
    EXPECT_NE(GetFileAttributesW(Config().c_str()) & FILE_ATTRIBUTE_READONLY, 0U);
}

TEST_F(Q3Config, WithoutAConfigEachButtonSaysSo) {
    const ZentarDriver& zentar = Open();
    fs::remove(Config());
    for (const auto& [button, purpose] : {std::pair(IDC_cmdQ3Backup, "backup from"),
                                          {IDC_cmdQ3Restore, "restore to"},
                                          {IDC_cmdQ3ConfigEdit, "edit"}}) {
        zentar.ClickOn(button);
        Answer(Failure({"There is no \"q3config.cfg\" file to " + std::string(purpose) + "!", "",
                        "For some strange reason, this file doesn't currently exist.",
                        "You should start Quake 3 so that it can create this file,",
                        "and then come back and select this option again."}),
               IDOK);
    }
}

TEST_F(Q3Config, TheConfigOpensInNotepadLineByLine) {
    const ZentarDriver& zentar = Open({"Game=Quake1"});
    WriteBytes(Config(), "// generated by quake, do not modify\nbind x \"y\"\nseta a \"b\"\n");
    const std::string converted =
        "// generated by zentar, feel free to modify\r\nbind x \"y\"\r\nseta a \"b\"\r\n";
    for (int time = 0; time < 2; ++time) {
        zentar.ClickOn(IDC_cmdQ3ConfigEdit);
        const NotepadWindow notepad = CloseNotepad("q3config");
        EXPECT_EQ(notepad.text, converted);
        EXPECT_TRUE(notepad.maximised);
        EXPECT_SOON(ReadBytes(Config()), converted);
    }
    EXPECT_SOON(zentar.Checked(IDC_optGameQuake1), true);
}

}  // namespace
}  // namespace zentar::window_tests
