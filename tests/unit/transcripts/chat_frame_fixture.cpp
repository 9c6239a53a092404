#include "tests/unit/transcripts/chat_frame_fixture.h"

#include <utility>

namespace zentar {
namespace {

FileKind Condumps(const std::string& game) { return {game + " condumps only (*.txt)", "*.txt"}; }

FileKind Logs(const std::string& game) { return {game + " logfiles only (*.log)", "*.log"}; }

}  // namespace

ChatFrameTest::ChatFrameTest() {
    os.files.AddFolder("C:\\Zentar\\");
    os.files.AddFolder("C:\\Windows\\");
    state.ProgramFolder = "c:\\zentar\\";
    state.WindowsFolder = "C:\\Windows\\";
    state.settings.ScanWarn = 1;
    state.FirstActivationDone = true;
    for (std::size_t i = 0; i < kGameCount; ++i) {
        const GameInfo& game = AllGames()[i];
        state.games[i].GameFolder = "C:\\" + std::string(game.id) + "\\";
        state.games[i].CurMod = "ctf";
        os.files.AddFile(state.games[i].GameFolder + std::string(game.executable), "game");
        os.files.AddFolder(state.games[i].GameFolder + "ctf\\");
    }
    window = os.forms.Create(MainWindowTable());
    form = static_cast<MemoryForm*>(window.get());
    frame = std::make_unique<ChatFrame>(state, os.Services(), ChatFrameControlsOf(*window));
    form->Show();
    form->UserSelectTab(IDC_SSTab1, 2);
    UseGame(kQuake2);
    UseHtml(false);
    os.log.Clear();
}

void ChatFrameTest::UseGame(std::string_view game) {
    state.settings.Game = std::string(game);
    frame->Arrange(*state.Info());
}

std::string ChatFrameTest::AddLog(const std::string& name, const std::string& bytes) {
    const std::string path = Folder() + name;
    os.files.AddFile(path, bytes);
    return path;
}

void ChatFrameTest::ExpectLogToScan(std::optional<std::string> picked,
                                    std::function<void()> meanwhile) {
    const std::string& game = state.settings.Game;
    os.windows.ExpectFileToOpen(
        {.title = "Open a " + game + " condump/logfile for name scanning",
         .folder = Folder(),
         .name = "",
         .kinds = {{game + " condumps and logfiles (*.txt, *.log)", "*.txt;*.log"},
                   Condumps(game),
                   Logs(game),
                   {"All files (*.*)", "*.*"}}},
        std::move(picked), std::move(meanwhile));
}

void ChatFrameTest::ExpectLogToTranscribe(std::optional<std::string> picked,
                                          std::function<void()> meanwhile) {
    const std::string& game = state.settings.Game;
    os.windows.ExpectFileToOpen(
        {.title = "Open a " + game + " condump/logfile for chat transcription",
         .folder = Folder(),
         .name = "",
         .kinds = {{game + " logfiles and condumps (*.log, *.txt)", "*.log;*.txt"},
                   Logs(game),
                   Condumps(game),
                   {"All files (*.*)", "*.*"}}},
        std::move(picked), std::move(meanwhile));
}

void ChatFrameTest::ExpectNoNames(const std::string& path, Answer answer,
                                  std::function<void()> meanwhile) {
    os.windows.Expect({"Done",
                       "There were no player names found in:\r\n" + path +
                           "\r\n\r\nAs such, may I delete the file for you?",
                       MessageIcon::Question, MessageButtons::YesNo, DefaultButton::Second},
                      answer, std::move(meanwhile));
}

ProgramStart ChatFrameTest::Notepad(const std::string& transcript) {
    return {.folder = "C:\\Windows\\",
            .executable = "notepad.exe",
            .arguments = " \"" + transcript + "\"",
            .window = StartWindow::Maximised};
}

Message ChatFrameTest::Failure(const std::string& text) {
    return {"Error", text, MessageIcon::Exclamation};
}

void ChatFrameTest::Scan(const std::string& path) {
    ExpectLogToScan(path);
    form->UserClick(IDC_cmdScanForNames);
}

std::vector<std::string> ChatFrameTest::NamesIn(const std::string& bytes) {
    const std::string path = AddLog("scanned.log", bytes);
    Scan(path);
    return Names();
}

void ChatFrameTest::ClearWithShift() {
    os.windows.SetKeyState(PollKey::Shift, 0x8001);
    Clear();
    os.windows.SetKeyState(PollKey::Shift, 0);
}

std::string ChatFrameTest::CreateText(const std::string& log, const std::string& transcript) {
    ExpectLogToTranscribe(log);
    os.shell.ExpectStart(Notepad(transcript));
    Create();
    return os.files.Contents(transcript);
}

void ChatFrameTest::TypeName(std::size_t box, const std::string& name) {
    form->UserClick(BoxId(box));
    form->UserType(name);
}

std::vector<std::string> ChatFrameTest::Names() {
    std::vector<std::string> names;
    for (std::size_t box = 1; box <= kPlayerBoxes; ++box) {
        names.push_back(Box(box).Text());
    }
    while (!names.empty() && names.back().empty()) {
        names.pop_back();
    }
    return names;
}

}  // namespace zentar
