// The whole program in memory, with Quake 3's configuration and the Misc tab in front.
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "tests/unit/expected_boxes.h"
#include "tests/unit/program/program_test.h"

namespace zentar {

inline const std::string kConfig = kQuake3Folder + "baseq3\\q3config.cfg";
inline const std::string kBackups = kQuake3Folder + "Single-Player Backups\\";
inline const std::string kBackup = kBackups + "tier 3.cfg";

inline constexpr const char* kHead =
    "// Zentar v0.99 BETA Quake 3 Single-Player Backup\r\n"
    "// Web Site: " ZENTAR_WEB_SITE
    "\r\n"
    "// -----------------------------------------\r\n";
inline constexpr const char* kFoot =
    "// ===================================================================\r\n";

inline Message NoConfig(const std::string& purpose) {
    return Failure("There is no \"q3config.cfg\" file to " + purpose +
                   "!\r\n\r\n"
                   "For some strange reason, this file doesn't currently exist.\r\n"
                   "You should start Quake 3 so that it can create this file,\r\n"
                   "and then come back and select this option again.");
}

inline FileQuestion Backups(const std::string& title) {
    return {.title = title,
            .folder = kBackups,
            .name = "",
            .kinds = {{"Quake 3 single-player backups (*.cfg)", "*.cfg"}}};
}

class Q3ConfigProgramTest : public ProgramTest {
  protected:
    Q3ConfigProgramTest() {
        InstallGames();
        os.files.AddFile(kConfig, "seta g_sp1 \"a\"\nseta name \"Bob\"\nbind x \"y\"\n");
        WriteSettings({"Game=Quake2"});
    }

    void StartOnMisc() {
        Start();
        Window().UserSelectTab(IDC_SSTab1, 2);
        os.windows.SetDuringPump({});
        pointersOfTheStart_ = std::ssize(os.windows.Pointers());
    }
    std::vector<Pointer> PointersSinceTheStart() {
        const std::vector<Pointer>& all = os.windows.Pointers();
        return {all.begin() + pointersOfTheStart_, all.end()};
    }
    void ExpectSave(std::optional<std::string> path) {
        os.windows.ExpectFileToSave(Backups("Backup a Quake 3 single-player game"),
                                    std::move(path));
    }
    void ExpectOpen(std::optional<std::string> path) {
        os.windows.ExpectFileToOpen(Backups("Restore a backed-up Quake 3 single-player game"),
                                    std::move(path));
    }
    void ExpectNotepad(Status result = {}) {
        os.shell.ExpectStart({.folder = "C:\\Windows\\",
                              .executable = "notepad.exe",
                              .arguments = " " + kConfig,
                              .window = StartWindow::Maximised},
                             result);
    }
    std::string Config() { return os.files.Contents(kConfig); }

    const Message reallyRestore_ = Confirm(
        "Really restore a single-player game to Quake 3?\r\n"
        "The current single-player game will be destroyed!");
    std::ptrdiff_t pointersOfTheStart_ = 0;
};

}  // namespace zentar
