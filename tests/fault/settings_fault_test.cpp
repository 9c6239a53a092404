// The settings file while the disk fails or the program is killed.

#include "tests/fault/command_faults.h"
#include "tests/fault/commands.h"

namespace zentar {
namespace {

const std::string kIni = "C:\\Zentar\\zentar.ini";
const std::string kSpare = "C:\\Zentar\\data\\zentar.ini.new";
const std::string kOld = "Virgin=0\r\nGame=Quake1\r\nPlayer1Name=Bob\r\n";

void Prepare(CommandRun& run) { run.files.AddFile(kIni, kOld); }

// As an installation for everybody leaves it to an ordinary user.
void PrepareProtected(CommandRun& run) {
    Prepare(run);
    run.files.AddFolder("C:\\Zentar\\data\\q3text\\");
    run.files.SetWritingDenied("C:\\Zentar\\");
}

void Leave(CommandRun& run) {
    run.Window().UserClose();
    EXPECT_TRUE(run.Window().Closed());
}

INSTANTIATE_TEST_SUITE_P(Leaving, CommandFaults, ::testing::ValuesIn(LeavingCommands()),
                         NameOfCommand);

struct StartAndEnd {
    std::vector<std::string> calls;  // of the start
    std::string left;                // in the settings file, at the end
};

// Starts the program with that call failing, and leaves it.
StartAndEnd StartAndLeave(int failing = 0, FileError error = FileError::Other) {
    MemoryPlatform os;
    os.shell.programFolder = "C:\\Zentar";
    os.files.AddFolder("C:\\Windows\\");
    os.files.AddFile(kIni, kOld);
    FaultyFileSystem faulty(os.files);
    faulty.FailAt(failing, error);
    ZentarProgram program(os.Services(faulty));
    program.Start();
    const std::vector<std::string> calls = faulty.Calls();
    os.forms.Get(IDW_Form2).UserClose();
    return {calls, os.files.Contents(kIni)};
}

TEST(SettingsFaultTest, WhicheverReadOfTheSettingsFailsTheyAreNotLost) {
    // A run that could not read the settings must not replace them with defaults.
    const auto calls = static_cast<int>(StartAndLeave().calls.size());
    EXPECT_GT(calls, 0);
    for (const FileError error : kFaults) {
        if (error == FileError::NotFound) {
            continue;  // that is how a first run looks
        }
        for (int call = 1; call <= calls; ++call) {
            const StartAndEnd run = StartAndLeave(call, error);
            EXPECT_NE(run.left.find("Player1Name=Bob\r\n"), std::string::npos)
                << run.calls[static_cast<std::size_t>(call - 1)];
        }
    }
}

}  // namespace

std::vector<CommandCase> LeavingCommands() {
    const std::vector<Unsaid> nobodyIsLeft = {
        {kIni, "nobody is left to tell, and the settings are whole"}};
    return {CommandCase{"LeaveZentar", Prepare, Leave, {.replaced = {kIni}}, {}, nobodyIsLeft},
            CommandCase{"LeaveZentarInAProtectedFolder",
                        PrepareProtected,
                        Leave,
                        {.replaced = {kIni}, .rescued = {{kIni, kSpare}}},
                        {},
                        nobodyIsLeft}};
}

}  // namespace zentar
