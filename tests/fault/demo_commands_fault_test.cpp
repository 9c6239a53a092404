// Every command on demos, with each call of the file system failing in turn, and with the program
// killed there: each demo still exists whole, where its user would look for it.

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>

#include "samples/demo_maker.h"
#include "tests/doubles/faulty_file_system.h"
#include "tests/doubles/memory_platform.h"
#include "tests/fault/yes_windows.h"
#include "ui/resource.h"
#include "ui/zentar_program.h"

namespace zentar {
namespace {

using samples::DemoKind;
using samples::MakeDemo;

class UnzippedShell : public ScriptedShell {
  public:
    std::optional<std::string> PickFolder(const std::string& /*title*/) override {
        return "D:\\Unzipped\\";
    }
    Status StartProgram(const ProgramStart& /*start*/) override { return {}; }
};

const std::string kDemos = "C:\\Quake2\\ctf\\demos\\";

// A program on a file system that can fail, with the demo "duel" selected.
struct OneRun {
    explicit OneRun(const std::string& game) : faulty(files) {
        shell.programFolder = "C:\\Zentar";
        files.AddFolder("C:\\Windows\\");
        files.AddFolder("D:\\Remote\\");
        files.AddFile("C:\\Quake2\\quake2.exe", "game");
        files.AddFile(kDemos + "duel.dm2", MakeDemo(DemoKind::Dm2, {.levelName = "One"}));
        files.AddFile(kDemos + "other.dm2", MakeDemo(DemoKind::Dm2, {.levelName = "Two"}));
        files.AddFile("D:\\Remote\\duel.dm2", "a demo of the same name");
        files.AddFile("D:\\Unzipped\\new.dm2", MakeDemo(DemoKind::Dm2, {.mod = "ctf"}));
        files.AddFile("D:\\Unzipped\\old.dm3", MakeDemo(DemoKind::Dm3, {.mod = "osp"}));
        files.AddFile("C:\\Quake3\\quake3.exe", "game");
        files.AddHugeFile("C:\\Quake3\\quake3-117.exe", 852'025, 0, "MZ");
        files.AddFolder("C:\\Quake3\\osp\\");
        files.AddFile("C:\\Quake3\\baseq3\\demos\\duel.dm3", MakeDemo(DemoKind::Dm3, {}));
        for (const char* pak : {"pak4", "pak5", "pak6"}) {
            files.AddFile(std::string("C:\\Quake3\\baseq3\\") + pak + ".pk3", pak);
        }
        files.AddFile("C:\\Zentar\\zentar.ini",
                      "Virgin=0\r\nGame=" + game +
                          "\r\nQ2Folder=C:\\Quake2\\\r\nQ3Folder=C:\\Quake3\\\r\nCurMod2=ctf\r\n"
                          "Remote=D:\\Remote\\\r\nExpert=1\r\n");
        program.emplace(
            Platform{faulty, shell, windows, locale, images, pictures, registry, forms});
        program->Start();
        Window().Activate();
        Window().UserSelectTab(IDC_SSTab1, 1);
        Window().UserSelect(IDC_lstDemos, "duel");
        Window().UserSelectTab(IDC_SSTab1, 2);
        faulty.Restart();
    }

    MemoryForm& Window() { return forms.Get(IDW_Form2); }

    void Pick(int entry) {
        Window().GetMenu(entry).SetEnabled(true);
        menu = entry;
        Run();
    }

    void Run() {
        Window().UserSelectTab(IDC_SSTab1, 1);
        Window().SetPopupUser([this](int) { Window().UserPickMenu(menu); });
        Window().UserRightClick(IDC_lstDemos, 0);
    }

    EventLog log;
    MemoryFileSystem files;
    FaultyFileSystem faulty;
    UnzippedShell shell;
    YesWindows windows;
    FixedLocale locale;
    MemoryImageLibrary images{faulty, &log};
    MemoryPictures pictures;
    MemoryRegistry registry;
    MemoryFormFactory forms{&log};
    std::optional<ZentarProgram> program;
    int menu = 0;
};

struct CommandCase {
    const char* name;
    const char* game;
    std::function<void(OneRun&)> run;
    // Demos that the command was asked to delete or to overwrite.
    std::vector<std::string> given;
};

class DemoCommandsFault : public ::testing::TestWithParam<CommandCase> {
  protected:
    // The contents of all demos and packs, wherever they are.
    static std::vector<std::string> Treasures(const MemoryFileSystem& files) {
        std::vector<std::string> contents;
        for (const auto& [path, bytes] : files.AllFiles()) {
            const bool userSeesIt = !path.ends_with(".tmp");
            if (userSeesIt && path.find("Zentar\\") == std::string::npos) {
                contents.push_back(bytes);
            }
        }
        std::sort(contents.begin(), contents.end());
        return contents;
    }

    static void ExpectNothingLost(const MemoryFileSystem& before, const MemoryFileSystem& after,
                                  const std::string& where) {
        const std::vector<std::string> kept = Treasures(after);
        for (const auto& [path, bytes] : before.AllFiles()) {
            const auto& given = GetParam().given;
            if (std::find(given.begin(), given.end(), path) == given.end() &&
                path.find("Zentar\\") == std::string::npos) {
                EXPECT_TRUE(std::binary_search(kept.begin(), kept.end(), bytes))
                    << path << " is lost; " << where;
            }
        }
    }
};

TEST_P(DemoCommandsFault, NothingIsLostWhicheverCallFails) {
    const OneRun before(GetParam().game);
    OneRun sound(GetParam().game);
    GetParam().run(sound);
    ASSERT_GT(sound.faulty.CallCount(), 0);
    for (const FileError error : {FileError::NoSpace, FileError::InUse, FileError::NotFound}) {
        for (int call = 1; call <= sound.faulty.CallCount(); ++call) {
            OneRun run(GetParam().game);
            run.faulty.FailAt(call, error);
            GetParam().run(run);
            ExpectNothingLost(before.files, run.files, "failed: " + run.faulty.CallName(call));
        }
    }
}

TEST_P(DemoCommandsFault, NothingIsLostWhereverTheProgramIsKilled) {
    const OneRun before(GetParam().game);
    OneRun sound(GetParam().game);
    GetParam().run(sound);
    for (const Unflushed unflushed : {Unflushed::Kept, Unflushed::Halved, Unflushed::Lost}) {
        for (int call = 1; call <= sound.faulty.CallCount(); ++call) {
            OneRun run(GetParam().game);
            run.faulty.KillAt(call, unflushed);
            GetParam().run(run);
            ExpectNothingLost(before.files, run.files, "killed at " + run.faulty.CallName(call));
        }
    }
}

void PlayToItsEnd(OneRun& run) {
    run.Pick(IDM_mnuDemosPlay);
    if (run.Window().GetTimer(IDC_tmrQ3Game).Enabled()) {
        run.Window().FireTimer(IDC_tmrQ3Game);
    }
}

// The packs are of no use to the next game under any other name.
TEST(PlaybackFault, ThePacksAreBackUnderTheirNamesAfterTheNextShutdown) {
    OneRun sound("Quake3");
    PlayToItsEnd(sound);
    ASSERT_GT(sound.faulty.CallCount(), 0);
    for (const FileError error : {FileError::NoSpace, FileError::InUse, FileError::NotFound}) {
        for (int call = 1; call <= sound.faulty.CallCount(); ++call) {
            OneRun run("Quake3");
            run.faulty.FailAt(call, error);
            PlayToItsEnd(run);
            run.faulty.Restart();
            run.Window().UserClose();
            for (const char* pak : {"pak4", "pak5", "pak6"}) {
                const std::string path = std::string("C:\\Quake3\\baseq3\\") + pak + ".pk3";
                EXPECT_TRUE(run.files.Exists(path)) << path << "; " << run.faulty.CallName(call);
            }
        }
    }
}

CommandCase MenuCase(const char* name, int entry, std::vector<std::string> given = {}) {
    return {name, "Quake2", [entry](OneRun& run) { run.Pick(entry); }, std::move(given)};
}

const std::string kOverwritten = "D:\\Remote\\duel.dm2";

INSTANTIATE_TEST_SUITE_P(
    Commands, DemoCommandsFault,
    ::testing::Values(
        MenuCase("Delete", IDM_mnuDemosDelete, {kDemos + "duel.dm2"}),
        MenuCase("DeleteAll", IDM_mnuDemosDeleteAll, {kDemos + "duel.dm2", kDemos + "other.dm2"}),
        MenuCase("Rename", IDM_mnuDemosRename), MenuCase("RenameWithMap", IDM_mnuDemosRenameMap),
        MenuCase("Copy", IDM_mnuDemosCopy, {kOverwritten}),
        MenuCase("Move", IDM_mnuDemosMove, {kOverwritten}),
        CommandCase{"MoveOnOneDrive",
                    "Quake2",
                    [](OneRun& run) {
                        run.files.AddFolder("C:\\Best\\");
                        run.program->State().settings.Remote = "C:\\Best\\";
                        run.Pick(IDM_mnuDemosMove);
                    },
                    {}},
        CommandCase{"MoveOverOneOnOneDrive",
                    "Quake2",
                    [](OneRun& run) {
                        run.files.AddFile("C:\\Best\\duel.dm2", "of the same name");
                        run.program->State().settings.Remote = "C:\\Best\\";
                        run.Pick(IDM_mnuDemosMove);
                    },
                    {}},
        CommandCase{"MoveToItself",
                    "Quake2",
                    [](OneRun& run) {
                        run.files.AddDriveFor("S:\\", kDemos);
                        run.program->State().settings.Remote = "S:\\";
                        run.Pick(IDM_mnuDemosMove);
                    },
                    {}},
        CommandCase{"InstallWhatIsThere",
                    "Quake2",
                    [](OneRun& run) {
                        run.files.AddFile(kDemos + "new.dm2",
                                          run.files.Contents("D:\\Unzipped\\new.dm2"));
                        run.Window().UserClick(IDC_cmdDemoInstaller);
                    },
                    {}},
        CommandCase{"Install",
                    "Quake2",
                    [](OneRun& run) { run.Window().UserClick(IDC_cmdDemoInstaller); },
                    {}},
        CommandCase{"InstallQuake3",
                    "Quake3",
                    [](OneRun& run) { run.Window().UserClick(IDC_cmdDemoInstaller); },
                    {}},
        CommandCase{"PlayAndPutBack", "Quake3", PlayToItsEnd, {}}),
    [](const auto& command) { return std::string(command.param.name); });

}  // namespace
}  // namespace zentar
