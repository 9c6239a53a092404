// Chat transcripts and coloured texts, with each call of the file system failing in turn, and with
// the program killed there: no log, transcript, coloured text or configuration is lost.

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "tests/doubles/faulty_file_system.h"
#include "tests/doubles/memory_platform.h"
#include "tests/fault/yes_windows.h"
#include "ui/resource.h"
#include "ui/zentar_program.h"

namespace zentar {
namespace {

const std::string kLog = "C:\\Quake2\\ctf\\duel.log";
const std::string kEmptyLog = "C:\\Quake2\\ctf\\empty.log";
const std::string kText = "C:\\Quake2\\ctf\\duel (transcript).txt";
const std::string kHtml = "C:\\Quake2\\ctf\\duel (transcript).htm";
const std::string kDesign = "C:\\Zentar\\data\\q3text\\Bob.ini";
const std::string kConfig = "C:\\Quake3\\baseq3\\q3config.cfg";

// A user who says yes, and picks these files.
class PickingWindows : public YesWindows {
  public:
    std::optional<std::string> ChooseFileToOpen(const FileQuestion& /*question*/) override {
        return toOpen;
    }
    std::optional<std::string> ChooseFileToSave(const FileQuestion& /*question*/) override {
        return kDesign;
    }

    std::string toOpen = kLog;
};

// A system on which everything opens.
class OpeningShell : public ScriptedShell {
  public:
    Status StartProgram(const ProgramStart& /*start*/) override { return {}; }
    Status OpenFile(const std::string& /*path*/, const std::string& /*folder*/) override {
        return {};
    }
};

// A program on a file system that can fail.
struct OneRun {
    OneRun() : faulty(files) {
        shell.programFolder = "C:\\Zentar";
        files.AddFolder("C:\\Windows\\");
        files.AddFile("C:\\Quake2\\quake2.exe", "game");
        files.AddFile("C:\\Quake3\\quake3.exe", "game");
        files.AddFile(kLog, "Bob: hi\r\nfight!\r\nAnn: no end" + std::string(300'000, '!'));
        files.AddFile(kEmptyLog, "nobody speaks\r\n" + std::string(300'000, '\n') + "Bob: hi");
        files.AddFile(kText, "an older transcript");
        files.AddFile(kHtml, "an older transcript as HTML");
        files.AddFile(kDesign, "an older text");
        files.AddFile(kConfig, "seta x \"1\"\r\nseta last \"2\"");
        files.AddFile("C:\\Zentar\\zentar.ini",
                      "Virgin=0\r\nGame=Quake2\r\nQ2Folder=C:\\Quake2\\\r\nCurMod2=ctf\r\n"
                      "Q3Folder=C:\\Quake3\\\r\nExpert=1\r\nScanWarn=1\r\nPlayer1Name=Bob\r\n"
                      "TranscriptHTML=0\r\n");
        program.emplace(Platform{faulty, shell, windows, locale, images, pictures, forms});
        program->Start();
        Window().Activate();
    }

    MemoryForm& Window() { return forms.Get(IDW_Form2); }

    void ClickOnMisc(int button) {
        Window().UserSelectTab(IDC_SSTab1, 2);
        Window().UserClick(button);
    }
    void ClickOnQ3Text(int button) {
        Window().UserSelectTab(IDC_SSTab1, 3);
        Window().UserIn(IDC_rtbQ3Text);
        Window().UserType("Bob");
        Window().UserClick(button);
    }

    EventLog log;
    MemoryFileSystem files;
    FaultyFileSystem faulty;
    OpeningShell shell;
    PickingWindows windows;
    FixedLocale locale;
    MemoryImageLibrary images{faulty, &log};
    MemoryPictures pictures;
    MemoryFormFactory forms{&log};
    std::optional<ZentarProgram> program;
};

using Files = std::map<std::string, std::string>;

struct CommandCase {
    const char* name;
    std::function<void(OneRun&)> run;
    // Files that the command was asked to replace: the older one, or the new one whole.
    std::vector<std::string> replaced;
    // Files that it was asked to append to: the older bytes, and behind them the new ones or the
    // beginning of those.
    std::vector<std::string> appended;
    // What the user said may go.
    std::vector<std::string> given;
};

bool Holds(const std::vector<std::string>& paths, const std::string& path) {
    return std::find(paths.begin(), paths.end(), path) != paths.end();
}

class ChatAndQ3TextFault : public ::testing::TestWithParam<CommandCase> {
  protected:
    ChatAndQ3TextFault() {
        OneRun run;
        before_ = run.files.AllFiles();
        run.faulty.Restart();
        GetParam().run(run);
        calls_ = run.faulty.CallCount();
        names_ = run.faulty.Calls();
        sound_ = run.files.AllFiles();
    }

    // A run in which the test has the command fail or the program killed.
    Files After(const std::function<void(FaultyFileSystem&)>& fault, std::string& where) {
        OneRun run;
        run.faulty.Restart();
        fault(run.faulty);
        GetParam().run(run);
        where += run.faulty.CallName(run.faulty.CallCount());
        return run.files.AllFiles();
    }

    bool IsWhole(const std::string& path, const std::string& old, const Files& now) const {
        const auto left = now.find(path);
        if (left == now.end()) {
            return Holds(GetParam().given, path);
        }
        if (left->second == old) {
            return true;
        }
        if (Holds(GetParam().appended, path)) {
            return left->second.starts_with(old) && sound_.at(path).starts_with(left->second);
        }
        return Holds(GetParam().replaced, path) && left->second == sound_.at(path);
    }

    void ExpectAllWhole(const Files& now, const std::string& where) const {
        for (const auto& [path, old] : before_) {
            EXPECT_TRUE(IsWhole(path, old, now)) << path << " is lost or broken; " << where;
        }
    }

    // Of a failure the program knows, so that it takes away what it began.
    void ExpectNothingLeftOver(const Files& now, const std::string& where) const {
        for (const auto& [path, bytes] : now) {
            EXPECT_TRUE(before_.contains(path) || sound_.contains(path))
                << path << " is left over; " << where;
        }
    }

    Files before_;
    Files sound_;
    int calls_ = 0;
    std::vector<std::string> names_;
};

TEST_P(ChatAndQ3TextFault, WithoutAFaultTheCommandDoesSomething) {
    EXPECT_GT(calls_, 2);
    EXPECT_NE(before_, sound_);
    for (const auto& [path, bytes] : before_) {
        EXPECT_TRUE(sound_.contains(path) || Holds(GetParam().given, path)) << path;
    }
}

TEST_P(ChatAndQ3TextFault, NothingIsLostWhicheverCallFails) {
    for (const FileError error :
         {FileError::NoSpace, FileError::InUse, FileError::NotFound, FileError::AccessDenied}) {
        for (int call = 1; call <= calls_; ++call) {
            std::string where = "failed: call " + std::to_string(call) + " of those until ";
            const Files now =
                After([&](FaultyFileSystem& files) { files.FailAt(call, error); }, where);
            ExpectAllWhole(now, where);
            if (error != FileError::NoSpace) {
                ExpectNothingLeftOver(now, where);
            }
        }
    }
}

TEST_P(ChatAndQ3TextFault, NothingIsLostWhenEverythingFailsFromSomeCallOn) {
    for (int call = 1; call <= calls_; ++call) {
        std::string where = "failed from call " + std::to_string(call) + " until ";
        ExpectAllWhole(
            After([&](FaultyFileSystem& files) { files.FailFrom(call, FileError::NoSpace); },
                  where),
            where);
    }
}

TEST_P(ChatAndQ3TextFault, NothingIsLostWhereverTheProgramIsKilled) {
    for (const Unflushed unflushed : {Unflushed::Kept, Unflushed::Halved, Unflushed::Lost}) {
        for (int call = 1; call <= calls_; ++call) {
            std::string where = "killed at call " + std::to_string(call) + " of those until ";
            ExpectAllWhole(
                After([&](FaultyFileSystem& files) { files.KillAt(call, unflushed); }, where),
                where);
        }
    }
}

class ScanAndDeleteFault : public ChatAndQ3TextFault {};

// A log goes only after it was read whole and the user said so: where any call fails, it stays;
// but for the question whether it is read-only, which the deletion answers as well.
TEST_P(ScanAndDeleteFault, TheLogGoesOnlyWhenAllWentWell) {
    for (const std::string& path : GetParam().given) {
        EXPECT_FALSE(sound_.contains(path));
        for (int call = 1; call <= calls_; ++call) {
            if (names_[static_cast<std::size_t>(call - 1)] == "Info " + path) {
                continue;
            }
            std::string where = "failed: call " + std::to_string(call) + " of those until ";
            const Files now = After(
                [&](FaultyFileSystem& files) { files.FailAt(call, FileError::Other); }, where);
            EXPECT_TRUE(now.contains(path)) << where;
        }
    }
}

const CommandCase kScanAndDelete = {"ScanAndDelete",
                                    [](OneRun& run) {
                                        run.windows.toOpen = kEmptyLog;
                                        run.ClickOnMisc(IDC_cmdScanForNames);
                                    },
                                    {},
                                    {},
                                    {kEmptyLog}};

INSTANTIATE_TEST_SUITE_P(Command, ScanAndDeleteFault, ::testing::Values(kScanAndDelete));

INSTANTIATE_TEST_SUITE_P(
    Commands, ChatAndQ3TextFault,
    ::testing::Values(kScanAndDelete,
                      CommandCase{"TranscriptAsText",
                                  [](OneRun& run) { run.ClickOnMisc(IDC_cmdCreateTranscript); },
                                  {kText},
                                  {kLog},
                                  {}},
                      CommandCase{
                          "TranscriptAsHtml",
                          [](OneRun& run) {
                              run.Window().GetCheckBox(IDC_chkTranscriptHTML).SetChecked(true);
                              run.ClickOnMisc(IDC_cmdCreateTranscript);
                          },
                          {kHtml},
                          {kLog},
                          {}},
                      CommandCase{"SaveColouredText",
                                  [](OneRun& run) { run.ClickOnQ3Text(IDC_cmdQ3TextSave); },
                                  {kDesign},
                                  {},
                                  {}},
                      CommandCase{"AddToConfig",
                                  [](OneRun& run) { run.ClickOnQ3Text(IDC_cmdQ3TextQ3Config); },
                                  {},
                                  {kConfig},
                                  {}}),
    [](const auto& command) { return std::string(command.param.name); });

}  // namespace
}  // namespace zentar
