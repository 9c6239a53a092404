// The commands on demos.

#include "samples/demo_maker.h"
#include "tests/fault/command_faults.h"
#include "tests/fault/commands.h"

namespace zentar {
namespace {

using samples::DemoKind;
using samples::MakeDemo;

const std::string kDemos = "C:\\Quake2\\ctf\\demos\\";
const std::string kDuel = kDemos + "duel.dm2";
const std::string kOther = kDemos + "other.dm2";
const std::string kFake = kDemos + "fake.dm2";
const std::string kRemoteDuel = "D:\\Remote\\duel.dm2";
const std::string kBestDuel = "C:\\Best\\duel.dm2";
const std::string kBase3 = "C:\\Quake3\\baseq3\\";

void PrepareFor(CommandRun& run, const std::string& game) {
    run.shell.toPick = "D:\\Unzipped\\";
    run.files.AddFile("C:\\Quake2\\quake2.exe", "game");
    run.files.AddFile(kDuel, MakeDemo(DemoKind::Dm2, {.levelName = "One"}));
    run.files.AddFile(kOther, MakeDemo(DemoKind::Dm2, {.levelName = "Two"}));
    run.files.AddFile(kRemoteDuel, "a demo of the same name");
    run.files.AddFile("D:\\Unzipped\\new.dm2", MakeDemo(DemoKind::Dm2, {.mod = "ctf"}));
    run.files.AddFile("D:\\Unzipped\\old.dm3", MakeDemo(DemoKind::Dm3, {.mod = "osp"}));
    run.files.AddFile("C:\\Quake3\\quake3.exe", "game");
    run.files.AddHugeFile("C:\\Quake3\\quake3-117.exe", 852'025, 0, "MZ");
    run.files.AddFolder("C:\\Quake3\\osp\\");
    run.files.AddFile(kBase3 + "demos\\duel.dm3", MakeDemo(DemoKind::Dm3, {}));
    for (const char* pak : {"pak4", "pak5", "pak6"}) {
        run.files.AddFile(kBase3 + pak + ".pk3", pak);
    }
    run.files.AddFile("C:\\Zentar\\zentar.ini",
                      "Virgin=0\r\nGame=" + game +
                          "\r\nQ2Folder=C:\\Quake2\\\r\nQ3Folder=C:\\Quake3\\\r\nCurMod2=ctf\r\n"
                          "Remote=D:\\Remote\\\r\nExpert=1\r\n");
}

void Prepare(CommandRun& run) { PrepareFor(run, "Quake2"); }

void PrepareQuake3(CommandRun& run) { PrepareFor(run, "Quake3"); }

// With a demo of the same name in the Remote Folder to come.
void PrepareBest(CommandRun& run) {
    Prepare(run);
    run.files.AddFile(kBestDuel, "of the same name");
}

void SelectDuel(CommandRun& run) {
    run.ShowTab(1);
    run.Window().UserSelect(IDC_lstDemos, "duel");
    run.ShowTab(2);
}

std::function<void(CommandRun&)> SelectDuelFor(const std::string& remote) {
    return [remote](CommandRun& run) {
        SelectDuel(run);
        run.program->State().settings.Remote = remote;
    };
}

std::function<void(CommandRun&)> Pick(int entry) {
    return [entry](CommandRun& run) {
        run.Window().GetMenu(entry).SetEnabled(true);
        run.ShowTab(1);
        run.Window().SetPopupUser([&run, entry](int) { run.Window().UserPickMenu(entry); });
        run.Window().UserRightClick(IDC_lstDemos, 0);
    };
}

void Install(CommandRun& run) { run.Window().UserClick(IDC_cmdDemoInstaller); }

void PlayToItsEnd(CommandRun& run) {
    Pick(IDM_mnuDemosPlay)(run);
    if (run.Window().GetTimer(IDC_tmrQ3Game).Enabled()) {
        run.Window().FireTimer(IDC_tmrQ3Game);
    }
}

std::vector<std::pair<std::string, std::string>> HiddenPaks() {
    std::vector<std::pair<std::string, std::string>> hidden;
    for (const char* pak : {"pak4", "pak5", "pak6"}) {
        hidden.emplace_back(kBase3 + pak + ".pk3", kBase3 + pak + ".zentar");
    }
    return hidden;
}

// Both names of each: one that stays hidden is missed under the other.
std::vector<Unsaid> PaksPutBackLater() {
    std::vector<Unsaid> unsaid;
    for (const auto& [shown, hidden] : HiddenPaks()) {
        unsaid.push_back({shown, "put back when the program starts a newer game, or ends"});
        unsaid.push_back({hidden, "put back when the program starts a newer game, or ends"});
    }
    return unsaid;
}

CommandCase PlayAndPutBack() {
    return {"PlayAndPutBack", PrepareQuake3,      PlayToItsEnd, {.moved = HiddenPaks()},
            SelectDuel,       PaksPutBackLater(), true};
}

const std::vector<Unsaid> kSeenInTheList = {{kDuel, "seen in the list"},
                                            {kOther, "seen in the list"}};

CommandCase OnDemo(const char* name, int entry, Allowed allowed) {
    return {name, Prepare, Pick(entry), std::move(allowed), SelectDuel, kSeenInTheList};
}

std::vector<CommandCase> DeletionsAndRenames() {
    return {
        OnDemo("Delete", IDM_mnuDemosDelete, {.given = {kDuel}}),
        OnDemo("DeleteAll", IDM_mnuDemosDeleteAll, {.given = {kDuel, kOther}}),
        OnDemo("Rename", IDM_mnuDemosRename, {.moved = {{kDuel, kDemos + "renamed.dm2"}}}),
        OnDemo("RenameWithMap", IDM_mnuDemosRenameMap,
               {.moved = {{kDuel, kDemos + "[dm1]_duel.dm2"}}}),
        CommandCase{"RenameWhatIsNoDemo",
                    [](CommandRun& run) {
                        Prepare(run);
                        run.files.AddFile(kFake, samples::MakeTextFile(2000));
                    },
                    [](CommandRun& run) { run.Window().UserSelect(IDC_lstDemos, "fake"); },
                    {.moved = {{kFake, kFake + "!"}}},
                    [](CommandRun& run) { run.ShowTab(1); },
                    {{kFake, "offered when the file can be read"},
                     {kFake + "!", "offered when the file can be read"}}},
    };
}

std::vector<CommandCase> CopiesAndMoves() {
    return {
        OnDemo("Copy", IDM_mnuDemosCopy, {.replaced = {kRemoteDuel}}),
        OnDemo("Move", IDM_mnuDemosMove,
               {.replaced = {kRemoteDuel}, .moved = {{kDuel, kRemoteDuel}}}),
        CommandCase{"MoveOnOneDrive",
                    [](CommandRun& run) {
                        Prepare(run);
                        run.files.AddFolder("C:\\Best\\");
                    },
                    Pick(IDM_mnuDemosMove),
                    {.moved = {{kDuel, kBestDuel}}},
                    SelectDuelFor("C:\\Best\\")},
        CommandCase{"MoveOverOneOnOneDrive",
                    PrepareBest,
                    Pick(IDM_mnuDemosMove),
                    {.replaced = {kBestDuel}, .moved = {{kDuel, kBestDuel}}},
                    SelectDuelFor("C:\\Best\\"),
                    kSeenInTheList},
        CommandCase{"MoveToItself",
                    [](CommandRun& run) {
                        Prepare(run);
                        run.files.AddDriveFor("S:\\", kDemos);
                    },
                    Pick(IDM_mnuDemosMove),
                    {},
                    SelectDuelFor("S:\\"),
                    {},
                    true},
    };
}

std::vector<CommandCase> Installations() {
    const std::string unzipped2 = "D:\\Unzipped\\new.dm2";
    const std::string installed2 = kDemos + "new.dm2";
    const std::string unzipped3 = "D:\\Unzipped\\old.dm3";
    const std::string installed3 = "C:\\Quake3\\osp\\demos\\old.dm3";
    return {
        CommandCase{"InstallWhatIsThere",
                    [unzipped2, installed2](CommandRun& run) {
                        Prepare(run);
                        run.files.AddFile(installed2, run.files.Contents(unzipped2));
                    },
                    Install,
                    {.moved = {{unzipped2, installed2}}},
                    SelectDuel,
                    {{unzipped2, "installed all the same"}}},
        CommandCase{"Install",
                    Prepare,
                    Install,
                    {.moved = {{unzipped2, installed2}}},
                    SelectDuel,
                    {{unzipped2, "installed all the same"}}},
        CommandCase{"InstallForQuake3",
                    PrepareQuake3,
                    Install,
                    {.moved = {{unzipped3, installed3}}},
                    SelectDuel,
                    {{unzipped3, "installed all the same"}}},
    };
}

INSTANTIATE_TEST_SUITE_P(Demos, CommandFaults, ::testing::ValuesIn(DemoCommands()), NameOfCommand);

// The packs are of no use to the next game under any other name.
TEST(PlaybackFault, ThePacksAreBackUnderTheirNamesAfterTheNextShutdown) {
    const CommandCase play = PlayAndPutBack();
    const int calls = static_cast<int>(CommandSweep(play).Calls().size());
    for (const FileError error : kFaults) {
        for (int call = 1; call <= calls; ++call) {
            CommandRun run(play);
            run.faulty.FailAt(call, error);
            PlayToItsEnd(run);
            const std::string failed = run.faulty.CallName(call);
            run.faulty.Restart();
            run.Window().UserClose();
            for (const auto& [shown, hidden] : HiddenPaks()) {
                EXPECT_TRUE(run.files.Exists(shown)) << shown << "; " << failed;
            }
        }
    }
}

}  // namespace

std::vector<CommandCase> DemoCommands() {
    std::vector<CommandCase> commands = DeletionsAndRenames();
    for (const std::vector<CommandCase>& more : {CopiesAndMoves(), Installations()}) {
        commands.insert(commands.end(), more.begin(), more.end());
    }
    commands.push_back(PlayAndPutBack());
    return commands;
}

}  // namespace zentar
