#include "firstaid/first_aid_tab.h"

#include <string>
#include <utility>
#include <vector>

#include "core/file_reading.h"
#include "core/game_folders.h"
#include "core/notepad.h"
#include "firstaid/first_aid_messages.h"
#include "firstaid/game_repairs.h"
#include "firstaid/message_patch.h"
#include "platform/file_system.h"
#include "platform/registry.h"
#include "platform/shell.h"
#include "platform/window_services.h"

namespace zentar {
namespace {

constexpr const char* kZoneAlarmKey = "Software\\Zone Labs\\ZoneAlarm";
constexpr const char* kLogitechKey = "Software\\Logitech\\MouseWare\\CurrentVersion\\Technical";
constexpr const char* kLogitechValue = "MouseHookDLLEnable";
constexpr const char* kQuake3Key = "Software\\Id\\Quake III Arena";

constexpr const char* kDriver = "opengl32.dll";
constexpr const char* kDriverSetAside = "opengl32.zentar";

}  // namespace

FirstAidTab::FirstAidTab(ProgramState& state, const Platform& platform,
                         const FirstAidControls& controls, FirstAidHost& host)
    : state_(state), platform_(platform), controls_(controls), host_(host) {
    controls_.lstSymptoms.SetItems({SymptomTexts().begin(), SymptomTexts().end()});
    ControlEvents list;
    list.click = [this] { lstSymptoms_Click(); };
    controls_.lstSymptoms.SetEvents(std::move(list));
    controls_.cmdRemedy1.SetEvents(GuardedClick(guard_, [this] { cmdRemedy1_Click(); }));
    controls_.cmdRemedy2.SetEvents(GuardedClick(guard_, [this] { cmdRemedy2_Click(); }));
}

void FirstAidTab::ClearRemedy() {
    controls_.txtRemedy.SetText("");
    ShowButtons(RemedyButtons::None);
}

std::optional<Symptom> FirstAidTab::Selected() const {
    const int index = controls_.lstSymptoms.SelectedIndex();
    return index < 0 ? std::nullopt : SymptomWithText(controls_.lstSymptoms.Item(index));
}

void FirstAidTab::lstSymptoms_Click() {
    const std::optional<Symptom> symptom = Selected();
    if (!symptom) {
        return;
    }
    const SymptomSituation situation = SituationFor(*symptom);
    controls_.txtRemedy.SetText(RemedyText(*symptom, situation));
    ShowButtons(ButtonsFor(*symptom, situation));
}

SymptomSituation FirstAidTab::SituationFor(Symptom symptom) const {
    SymptomSituation situation;
    situation.game = state_.settings.Game;
    if (const GameInfo* game = state_.Info()) {
        situation.base = game->BaseArgument();
    }
    if (symptom == Symptom::FreezesOnline) {
        situation.zoneAlarm =
            !platform_.registry.ReadString(kZoneAlarmKey, "CurrentVersion").value_or("").empty();
    }
    if (const std::optional<std::size_t> game = DriverGameOf(symptom)) {
        const std::string& folder = state_.games[*game].GameFolder;
        situation.driverStands = FileExists(platform_.files, folder + kDriver);
        situation.driverIsSetAside = FileExists(platform_.files, folder + kDriverSetAside);
    }
    return situation;
}

void FirstAidTab::ShowButtons(RemedyButtons buttons) {
    controls_.cmdRemedy1.SetEnabled(buttons == RemedyButtons::First ||
                                    buttons == RemedyButtons::Both);
    controls_.cmdRemedy2.SetEnabled(buttons == RemedyButtons::Second ||
                                    buttons == RemedyButtons::Both);
}

void FirstAidTab::cmdRemedy1_Click() {
    CheckGameFolder(state_, platform_);
    const std::optional<Symptom> symptom = Selected();
    if (state_.GameFolderOK && symptom) {
        ApplyFirst(*symptom);
    }
}

void FirstAidTab::ApplyFirst(Symptom symptom) {
    switch (symptom) {
        case Symptom::SettingsNotSaved:
            EditAutoexec();
            break;
        case Symptom::MousewheelDead:
            OpenMouseProperties();
            break;
        case Symptom::ExecingMessages:
        case Symptom::SoundBufferMessages:
        case Symptom::CouldntWriteMessages:
            RemoveMessages(symptom);
            break;
        case Symptom::GlideMissing:
        case Symptom::SoftwareMode:
        case Symptom::OpenGLMissing:
            RenameDriver(symptom, true);
            break;
        case Symptom::ModelNotSelectable:
        case Symptom::CrashOnModelChange:
        case Symptom::CrashOnScreenshot:
            RepairFolders(symptom);
            break;
        case Symptom::UnknownToAuth:
        case Symptom::ProtocolVersion:
            CheckForUpdate();
            break;
        case Symptom::TeamArenaInstallation:
            RestoreRegistry();
            break;
        case Symptom::DemosPlayBadly:
        case Symptom::FreezesOnline:
            break;
    }
}

// A remedy's game need not be the current one.
bool FirstAidTab::GameFolderIsThere(std::string_view game) {
    CheckGameFolder(state_, platform_, GameId(game));
    return state_.GameFolderOK;
}

void FirstAidTab::EditAutoexec() {
    const GameInfo* game = state_.Info();
    if (game == nullptr) {
        return;
    }
    const std::string path = state_.Game()->BaseModPath + "autoexec.cfg";
    if (!FileExists(platform_.files, path)) {
        if (!CreateAutoexec(platform_.files, path, state_.settings.Game).Ok()) {
            platform_.windows.Ask(messages::AutoexecNotCreated());
            return;
        }
        Tell(true);
        return;
    }
    if (platform_.windows.Ask(
            messages::AutoexecExists(state_.settings.Game, game->BaseArgument())) == Answer::Yes) {
        if (!OpenInNotepad(state_, platform_.shell, path).Ok()) {
            Tell(false);
        }
    }
}

void FirstAidTab::OpenMouseProperties() {
    Tell(true);
    const Status started =
        platform_.shell.StartProgram({.folder = state_.WindowsFolder + "System32\\",
                                      .executable = "rundll32.exe",
                                      .arguments = " shell32.dll,Control_RunDLL main.cpl @0",
                                      .window = StartWindow::Minimised});
    if (!started.Ok()) {
        Tell(false);
    }
}

void FirstAidTab::RepairFolders(Symptom symptom) {
    if (!GameFolderIsThere(kQuake2)) {
        return;
    }
    const GameState& quake2 = state_.games[kQuake2Row];
    if (symptom == Symptom::CrashOnScreenshot) {
        CreateScreenshotFolders(platform_.files, quake2.GameFolder);
    } else {
        MoveStrays(platform_.files, quake2.GameFolder, quake2.BaseModPath + "players\\");
    }
    Tell(true);
}

void FirstAidTab::RemoveMessages(Symptom symptom) {
    std::string executable;
    std::vector<std::string_view> texts;
    if (symptom == Symptom::SoundBufferMessages) {
        if (!GameFolderIsThere(kQuake2)) {
            return;
        }
        executable = state_.games[kQuake2Row].GameFolder + "quake2.exe";
        texts = {"Creating DS buffers", "...using primary buffer"};
    } else if (symptom == Symptom::CouldntWriteMessages) {
        if (!GameFolderIsThere(kQuake3)) {
            return;
        }
        executable = state_.games[kQuake3Row].GameFolder + "quake3.exe";
        texts = {"Couldn't write %s.\n"};
    } else {
        executable = state_.current.CurrentGameFolder + state_.current.CurrentExe;
        texts = {"execing %s"};
    }
    if (!PatchGameMessages(platform_.files, executable, texts).Ok()) {
        platform_.windows.Ask(messages::ExecutableNotChanged());
        return;
    }
    Tell(true);
}

void FirstAidTab::RenameDriver(Symptom symptom, bool setAside) {
    const std::string& folder = state_.games[*DriverGameOf(symptom)].GameFolder;
    const std::string from = folder + (setAside ? kDriver : kDriverSetAside);
    const std::string to = folder + (setAside ? kDriverSetAside : kDriver);
    const Status renamed = platform_.files.Rename(from, to);
    lstSymptoms_Click();
    if (!renamed.Ok()) {
        platform_.windows.Ask(messages::DriverNotRenamed());
        return;
    }
    Tell(true);
}

// The program asks nobody on the web: the user is left with Quake 3 as the current game and looks
// there.
void FirstAidTab::CheckForUpdate() {
    controls_.lstSymptoms.Select(-1);
    ClearRemedy();
    host_.SwitchGame(GameId(kQuake3));
    CheckGameFolder(state_, platform_);
}

// Without the game, right values could get wrong ones.
void FirstAidTab::RestoreRegistry() {
    if (!GameFolderIsThere(kQuake3)) {
        return;
    }
    const std::string& folder = state_.games[kQuake3Row].GameFolder;
    Tell(platform_.registry
             .WriteStrings(kQuake3Key, {{"CD", "D:\\setup\\"},
                                        {"INSTALLEXEPATH", folder + "quake3.exe"},
                                        {"INSTALLPATH", folder}})
             .Ok());
}

void FirstAidTab::cmdRemedy2_Click() {
    const std::optional<Symptom> symptom = Selected();
    if (!symptom) {
        return;
    }
    if (*symptom == Symptom::MousewheelDead) {
        ChangeLogitechSetting();
    } else if (DriverGameOf(*symptom)) {
        RenameDriver(*symptom, false);
    }
}

void FirstAidTab::ChangeLogitechSetting() {
    std::string current = platform_.registry.ReadString(kLogitechKey, kLogitechValue).value_or("");
    if (current.empty()) {
        current = "0";
    }
    const std::optional<std::string> answer =
        platform_.windows.AskText(messages::ChangeLogitechSetting(current));
    if (!answer || (*answer != "0" && *answer != "1")) {
        return;
    }
    if (!platform_.registry.WriteStrings(kLogitechKey, {{kLogitechValue, *answer}}).Ok()) {
        Tell(false);
        return;
    }
    if (platform_.windows.Ask(messages::LogitechSettingChanged()) == Answer::Yes) {
        // Where Windows refuses, the user restarts it by hand.
        IgnoreFailure(platform_.shell.RestartWindows());
        host_.CloseProgram();
    }
}

void FirstAidTab::Tell(bool done) {
    platform_.windows.Sound(done ? Beep::Information : Beep::Exclamation);
}

}  // namespace zentar
