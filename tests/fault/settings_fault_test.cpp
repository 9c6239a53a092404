// The settings file while the disk fails or the program is killed.

#include <optional>

#include "tests/doubles/faulty_file_system.h"
#include "tests/doubles/memory_platform.h"
#include "ui/resource.h"
#include "ui/zentar_program.h"

namespace zentar {
namespace {

const std::string kIni = "C:\\Zentar\\zentar.ini";
const std::string kOld = "Virgin=0\r\nGame=Quake1\r\nPlayer1Name=Bob\r\n";

// One run of the program on a fresh machine, on a file system that can fail.
struct OneRun {
    OneRun() : faulty(os.files) {
        os.shell.programFolder = "C:\\Zentar";
        os.files.AddFolder("C:\\Windows\\");
        os.files.AddFile(kIni, kOld);
        program.emplace(os.Services(faulty));
        program->Start();
        Window().Activate();
    }

    MemoryForm& Window() { return os.forms.Get(IDW_Form2); }

    void Leave() {
        faulty.Restart();
        Window().UserClose();
    }

    MemoryPlatform os;
    FaultyFileSystem faulty;
    std::optional<ZentarProgram> program;
};

struct Shutdown {
    int calls = 0;
    std::string written;
};

Shutdown SoundShutdown() {
    OneRun run;
    run.Leave();
    return {run.faulty.CallCount(), run.os.files.Contents(kIni)};
}

TEST(SettingsFaultTest, KilledAtAnyCallOfShutdownTheFileIsTheOldOrTheNewOneWhole) {
    const Shutdown sound = SoundShutdown();
    ASSERT_NE(sound.written, kOld);
    ASSERT_GT(sound.calls, 5);
    for (const Unflushed unflushed : {Unflushed::Kept, Unflushed::Halved, Unflushed::Lost}) {
        for (int call = 1; call <= sound.calls; ++call) {
            OneRun run;
            run.faulty.Restart();
            run.faulty.KillAt(call, unflushed);
            run.Window().UserClose();
            const std::string left = run.os.files.Contents(kIni);
            EXPECT_TRUE(left == kOld || left == sound.written)
                << "killed at " << run.faulty.CallName(call) << ", left:\n"
                << left;
        }
    }
}

TEST(SettingsFaultTest, WhicheverCallOfShutdownFailsTheFileIsTheOldOrTheNewOneWhole) {
    const Shutdown sound = SoundShutdown();
    for (const FileError error : {FileError::NoSpace, FileError::AccessDenied, FileError::InUse}) {
        for (int call = 1; call <= sound.calls; ++call) {
            OneRun run;
            run.faulty.Restart();
            run.faulty.FailAt(call, error);
            run.Window().UserClose();
            EXPECT_TRUE(run.Window().Closed());
            const std::string left = run.os.files.Contents(kIni);
            EXPECT_TRUE(left == kOld || left == sound.written)
                << "failed: " << run.faulty.CallName(call) << ", left:\n"
                << left;
        }
    }
}

TEST(SettingsFaultTest, WhicheverReadOfTheSettingsFailsTheyAreNotLost) {
    // A run that could not read the settings must not replace them with defaults.
    for (int call = 1; call <= 12; ++call) {
        MemoryPlatform os;
        os.shell.programFolder = "C:\\Zentar";
        os.files.AddFolder("C:\\Windows\\");
        os.files.AddFile(kIni, "Virgin=0\r\n" + kOld);
        FaultyFileSystem faulty(os.files);
        faulty.FailAt(call, FileError::InUse);
        ZentarProgram program(os.Services(faulty));
        program.Start();
        os.forms.Get(IDW_Form2).UserClose();
        EXPECT_NE(os.files.Contents(kIni).find("Player1Name=Bob\r\n"), std::string::npos)
            << faulty.CallName(call);
    }
}

}  // namespace
}  // namespace zentar
