#include "transcripts/chat_frame.h"

#include <functional>
#include <utility>

#include "core/console_lines.h"
#include "core/game_folders.h"
#include "core/game_text.h"
#include "core/hourglass.h"
#include "core/notepad.h"
#include "core/program_info.h"
#include "core/program_life.h"
#include "core/questions.h"
#include "platform/file_system.h"
#include "platform/shell.h"
#include "platform/window_services.h"
#include "transcripts/name_scan.h"
#include "transcripts/transcript_file.h"
#include "transcripts/transcript_messages.h"

namespace zentar {
namespace {

// Who has no mouse to double-click with.
std::function<bool(Key)> DoubleClickKey(const std::function<void()>& doubleClick) {
    return [doubleClick](Key key) {
        if (key == Key::F4) {
            doubleClick();
        }
        return key == Key::F4;
    };
}

}  // namespace

ChatFrame::ChatFrame(ProgramState& state, const Platform& platform,
                     const ChatFrameControls& controls)
    : state_(state), platform_(platform), controls_(controls), boxes_(state, controls) {
    BindButtons();
    BindBoxes();
}

void ChatFrame::BindButtons() {
    controls_.cmdScanForNames.SetEvents(GuardedClick(guard_, [this] { cmdScanForNames_Click(); }));
    controls_.cmdClearNames.SetEvents(GuardedClick(guard_, [this] { cmdClearNames_Click(); }));
    controls_.cmdCreateTranscript.SetEvents(
        GuardedClick(guard_, [this] { cmdCreateTranscript_Click(); }));
    ControlEvents html;
    html.click = [this] { chkTranscriptHTML_Click(); };
    controls_.chkTranscriptHTML.SetEvents(std::move(html));
    ControlEvents gameplay;
    gameplay.click = [this] { chkTranscriptGameplay_Click(); };
    controls_.chkTranscriptGameplay.SetEvents(std::move(gameplay));
}

void ChatFrame::BindBoxes() {
    for (std::size_t box = 0; box < kPlayerBoxes; ++box) {
        TextBox& txtPlayer = *controls_.txtPlayer[box];
        ControlEvents events;
        events.change = [this] { txtPlayer_Change(); };
        events.gotFocus = [&txtPlayer] { txtPlayer.SelectAll(); };
        events.doubleClick = [this, box] { guard_.Run([this, box] { txtPlayer_DblClick(box); }); };
        events.keyDown = DoubleClickKey(events.doubleClick);
        txtPlayer.SetEvents(std::move(events));
    }
    ControlEvents messages;
    messages.doubleClick = [this] { guard_.Run([this] { txtTranscriptMessages_DblClick(); }); };
    messages.keyDown = DoubleClickKey(messages.doubleClick);
    controls_.txtTranscriptMessages.SetEvents(std::move(messages));
}

void ChatFrame::Arrange(const GameInfo& game) {
    controls_.fraChat.SetText(std::string(game.id) + " Chat Transcript");
}

std::string ChatFrame::ModFolder() {
    const GameState& game = *state_.Game();
    return game.GameFolder + game.CurMod + "\\";
}

bool ChatFrame::GameFolderIsThere() {
    if (state_.Info() == nullptr) {
        return false;
    }
    CheckGameFolder(state_, platform_);
    return state_.GameFolderOK;
}

void ChatFrame::cmdScanForNames_Click() {
    if (!GameFolderIsThere()) {
        return;
    }
    if (state_.settings.ScanWarn == 0) {
        platform_.windows.Ask(messages::ScanMayErr());
        PollShiftKey(state_, platform_);
        if (state_.ShiftHeld) {
            state_.settings.ScanWarn = 1;
        }
    }
    if (const std::optional<std::string> path = ChooseLogToScan()) {
        ScanLog(*path);
    }
}

std::optional<std::string> ChatFrame::ChooseLogToScan() {
    std::optional<std::string> path =
        platform_.windows.ChooseFileToOpen(messages::LogToScan(state_.settings.Game, ModFolder()));
    if (!path || path->empty()) {
        return std::nullopt;
    }
    if (IsTranscript(*path)) {
        platform_.windows.Ask(messages::TranscriptCannotBeScanned());
        return std::nullopt;
    }
    return path;
}

void ChatFrame::ScanLog(const std::string& path) {
    const std::optional<std::vector<std::string>> names = NamesIn(path);
    if (!names) {
        // Nobody knows whether there are names in it, so it is not offered for deletion.
        platform_.windows.Ask(messages::LogNotReadable());
        return;
    }
    if (!names->empty()) {
        source_ = path;
        controls_.cmdCreateTranscript.SetFocus();
    } else if (platform_.windows.Ask(messages::NoNamesFound(path)) == Answer::No ||
               !MayChangeFile(platform_, path, messages::DeleteReadOnlyLog())) {
        return;
    } else if (!platform_.files.Delete(path).Ok()) {
        platform_.windows.Sound(Beep::Exclamation);
        return;
    }
    platform_.windows.Sound(Beep::Information);
}

// Puts the names into the boxes; those that are there stay where the log cannot be opened.
std::optional<std::vector<std::string>> ChatFrame::NamesIn(const std::string& path) {
    const bool quake3 = state_.settings.Game == kQuake3;
    const Hourglass hourglass(platform_.windows);
    source_.clear();
    const auto file = platform_.files.OpenForReading(path);
    if (!file.Ok()) {
        return std::nullopt;
    }
    cmdClearNames_Click();
    platform_.windows.PumpPending();
    ConsoleLines lines(*file.Value());
    std::vector<std::string> names = ScanForNames(lines, quake3);
    if (lines.Failed() && names.empty()) {
        return std::nullopt;
    }
    boxes_.Show(names);
    return names;
}

void ChatFrame::cmdClearNames_Click() {
    boxes_.ClearNames();
    PollShiftKey(state_, platform_);
    if (state_.ShiftHeld) {
        boxes_.ClearColours();
    }
    txtPlayer_Change();
    controls_.txtPlayer.front()->SetFocus();
}

void ChatFrame::txtPlayer_Change() { controls_.cmdClearNames.SetEnabled(!boxes_.AllEmpty()); }

void ChatFrame::txtPlayer_DblClick(std::size_t box) {
    if (!controls_.chkTranscriptHTML.Checked()) {
        return;
    }
    const bool isFree = controls_.txtPlayer[box]->Text().empty();
    const std::optional<ColourRef> chosen = platform_.windows.ChooseColour(
        isFree ? boxes_.Background().value_or(kWhite) : boxes_.Speech(box).value_or(kBlack));
    if (!chosen) {
        return;
    }
    if (isFree) {
        boxes_.SetBackground(*chosen);
    } else {
        boxes_.SetSpeech(box, *chosen);
        controls_.txtPlayer[box]->PutCaretFirst();
    }
    controls_.cmdCreateTranscript.SetFocus();
}

void ChatFrame::txtTranscriptMessages_DblClick() {
    if (!controls_.chkTranscriptHTML.Checked()) {
        return;
    }
    if (const auto chosen = platform_.windows.ChooseColour(boxes_.Messages().value_or(kBlack))) {
        boxes_.SetMessages(*chosen);
        controls_.cmdCreateTranscript.SetFocus();
    }
}

void ChatFrame::chkTranscriptHTML_Click() {
    const bool html = controls_.chkTranscriptHTML.Checked();
    controls_.txtTranscriptMessages.SetEnabled(html);
    controls_.labColourUsed.SetEnabled(html);
    boxes_.ShowColours(html);
}

void ChatFrame::chkTranscriptGameplay_Click() {
    // While the settings are read there is nobody whose focus could go anywhere.
    if (state_.FirstActivationDone) {
        controls_.cmdCreateTranscript.SetFocus();
    }
}

void ChatFrame::cmdCreateTranscript_Click() {
    if (!GameFolderIsThere()) {
        return;
    }
    const bool html = controls_.chkTranscriptHTML.Checked();
    boxes_.Compact();
    const std::optional<std::string> path = LogToTranscribe();
    if (!path) {
        return;
    }
    source_ = *path;
    const TranscriptOptions options = OptionsFor(source_, html);
    const Hourglass hourglass(platform_.windows);
    platform_.windows.PumpPending();
    Transcribe(options, *path);
}

// The one that was scanned, or one that the user picks.
std::optional<std::string> ChatFrame::LogToTranscribe() {
    std::optional<std::string> path = source_;
    if (source_.empty()) {
        path = platform_.windows.ChooseFileToOpen(
            messages::LogToTranscribe(state_.settings.Game, ModFolder()));
    }
    if (!path || path->empty()) {
        return std::nullopt;
    }
    if (IsTranscript(*path)) {
        platform_.windows.Ask(messages::TranscriptOfTranscript());
        return std::nullopt;
    }
    const Result<FileInfo> info = platform_.files.Info(*path);
    if (!info.Ok() && info.Error() == FileError::NotFound) {
        source_.clear();
        platform_.windows.Ask(messages::LogIsGone(*path));
        return std::nullopt;
    }
    return path;
}

TranscriptOptions ChatFrame::OptionsFor(const std::string& source, bool html) const {
    TranscriptOptions options;
    options.html = html;
    options.gameMessages = controls_.chkTranscriptGameplay.Checked();
    options.quake3 = state_.settings.Game == kQuake3;
    options.players = boxes_.ChosenPlayers();
    options.background = boxes_.Background();
    options.messages = boxes_.Messages();
    options.source = Utf8ToGameText(source);
    options.webSite = kWebSite;
    return options;
}

void ChatFrame::Transcribe(const TranscriptOptions& options, const std::string& source) {
    Status done = MakeTranscript(platform_.files, source, options);
    if (done.Ok()) {
        done = Open(TranscriptPath(source, options.html), options.html);
    } else {
        // The next time the user may name another log.
        source_.clear();
    }
    if (!done.Ok()) {
        // There is no transcript, or it stands beside the log and nothing opens it.
        platform_.windows.Sound(Beep::Exclamation);
    }
}

Status ChatFrame::Open(const std::string& transcript, bool html) {
    if (html) {
        return platform_.shell.OpenFile(transcript, state_.ProgramFolder);
    }
    return OpenInNotepad(state_, platform_.shell, "\"" + transcript + "\"");
}

}  // namespace zentar
