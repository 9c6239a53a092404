// Chat transcripts and coloured texts.

#include "tests/fault/command_faults.h"
#include "tests/fault/commands.h"

namespace zentar {
namespace {

const std::string kLog = "C:\\Quake2\\ctf\\duel.log";
const std::string kEmptyLog = "C:\\Quake2\\ctf\\empty.log";
const std::string kText = "C:\\Quake2\\ctf\\duel (transcript).txt";
const std::string kHtml = "C:\\Quake2\\ctf\\duel (transcript).htm";
const std::string kDesign = "C:\\Zentar\\data\\q3text\\Bob.ini";
const std::string kConfig = "C:\\Quake3\\baseq3\\q3config.cfg";

void Prepare(CommandRun& run) {
    run.files.AddFile("C:\\Quake2\\quake2.exe", "game");
    run.files.AddFile("C:\\Quake3\\quake3.exe", "game");
    run.files.AddFile(kLog, "Bob: hi\r\nfight!\r\nAnn: no end" + std::string(300'000, '!'));
    run.files.AddFile(kEmptyLog, "nobody speaks\r\n" + std::string(300'000, '\n') + "Bob: hi");
    run.files.AddFile(kText, "an older transcript");
    run.files.AddFile(kHtml, "an older transcript as HTML");
    run.files.AddFile(kDesign, "an older text");
    run.files.AddFile(kConfig, "seta x \"1\"\r\nseta last \"2\"");
    run.files.AddFile("C:\\Zentar\\zentar.ini",
                      "Virgin=0\r\nGame=Quake2\r\nQ2Folder=C:\\Quake2\\\r\nCurMod2=ctf\r\n"
                      "Q3Folder=C:\\Quake3\\\r\nExpert=1\r\nScanWarn=1\r\nPlayer1Name=Bob\r\n"
                      "TranscriptHTML=0\r\n");
    run.windows.toOpen = kLog;
    run.windows.toSave = kDesign;
}

void ClickOnMisc(CommandRun& run, int button) {
    run.ShowTab(2);
    run.Window().UserClick(button);
}

void ClickOnQ3Text(CommandRun& run, int button) {
    run.ShowTab(3);
    run.Window().UserIn(IDC_rtbQ3Text);
    run.Window().UserType("Bob");
    run.Window().UserClick(button);
}

const CommandCase kScanAndDelete = {"ScanAndDelete",
                                    Prepare,
                                    [](CommandRun& run) {
                                        run.windows.toOpen = kEmptyLog;
                                        ClickOnMisc(run, IDC_cmdScanForNames);
                                    },
                                    {.given = {kEmptyLog}}};

// A log that takes no line end only loses its last line, where that has none.
const std::vector<Unsaid> kLineEndForgone = {
    {kLog, "a log that cannot be changed is read as it is"},
    {kText, "its last line, where that has no end, is left out"},
    {kHtml, "its last line, where that has no end, is left out"}};

INSTANTIATE_TEST_SUITE_P(Chat, GivenAwayFaults, ::testing::Values(kScanAndDelete), NameOfCommand);

INSTANTIATE_TEST_SUITE_P(ChatAndQ3Text, CommandFaults, ::testing::ValuesIn(ChatAndQ3TextCommands()),
                         NameOfCommand);

}  // namespace

std::vector<CommandCase> ChatAndQ3TextCommands() {
    return {kScanAndDelete,
            CommandCase{"TranscriptAsText",
                        Prepare,
                        [](CommandRun& run) { ClickOnMisc(run, IDC_cmdCreateTranscript); },
                        {.replaced = {kText}, .appended = {kLog}},
                        {},
                        kLineEndForgone},
            CommandCase{"TranscriptAsHtml",
                        Prepare,
                        [](CommandRun& run) {
                            run.Window().GetCheckBox(IDC_chkTranscriptHTML).SetChecked(true);
                            ClickOnMisc(run, IDC_cmdCreateTranscript);
                        },
                        {.replaced = {kHtml}, .appended = {kLog}},
                        {},
                        kLineEndForgone},
            CommandCase{"SaveColouredText",
                        Prepare,
                        [](CommandRun& run) { ClickOnQ3Text(run, IDC_cmdQ3TextSave); },
                        {.replaced = {kDesign}}},
            CommandCase{"AddToConfig",
                        Prepare,
                        [](CommandRun& run) { ClickOnQ3Text(run, IDC_cmdQ3TextQ3Config); },
                        {.appended = {kConfig}}}};
}

}  // namespace zentar
