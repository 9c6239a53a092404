#include "ui/zentar_program.h"

#include <utility>

#include "core/messages.h"
#include "core/text.h"
#include "platform/shell.h"
#include "platform/window_services.h"
#include "q3tools/progress_backup.h"
#include "ui/form_bindings.h"
#include "ui/form_tables.h"
#include "ui/resource.h"

namespace zentar {

ZentarProgram::ZentarProgram(const Platform& platform) : platform_(platform) {}

ZentarProgram::~ZentarProgram() = default;

void ZentarProgram::Start() {
    state_.ProgramFolder = WithBackslash(LowerCase(platform_.shell.ProgramFolder()));
    const std::unique_ptr<Form> Form1 = platform_.forms.Create(SplashTable());
    Form1->Show();
    platform_.windows.PumpPending();
    BuildMainWindow();
    BindMainWindow();
    life_->Form2_Load();
    Form2_->Show();
}

void ZentarProgram::BuildMainWindow() {
    Form2_ = platform_.forms.Create(MainWindowTable());
    Form& Form2 = *Form2_;
    shots_ = std::make_unique<ShotsTab>(
        state_, platform_, ShotsTabControlsOf(Form2),
        [&Form2] { Form2.ShowPopup(IDM_mnuScreenshot); },
        [this](BitmapPtr shot) { ShowFullSize(std::move(shot)); });
    demos_ = std::make_unique<DemosTab>(
        state_, platform_, DemosTabControlsOf(Form2), [&Form2] { Form2.ShowPopup(IDM_mnuDemos); },
        [this] { return state_.FirstActivationDone; });
    installer_ =
        std::make_unique<DemoInstaller>(state_, platform_, DemoInstallerControlsOf(Form2), *demos_);
    chat_ = std::make_unique<ChatFrame>(state_, platform_, ChatFrameControlsOf(Form2));
    q3Text_ = std::make_unique<Q3TextTab>(state_, platform_, Q3TextControlsOf(Form2));
    q3Config_ = std::make_unique<Q3ConfigFrames>(state_, platform_, Q3ConfigControlsOf(Form2));
    FirstAidHost& firstAidHost = *this;
    firstAid_ =
        std::make_unique<FirstAidTab>(state_, platform_, FirstAidControlsOf(Form2), firstAidHost);
    GameFollowers& followers = *this;
    games_ = std::make_unique<GameSelection>(state_, platform_, GameSelectionControlsOf(Form2),
                                             followers);
    LifeFollowers& lifeFollowers = *this;
    life_ = std::make_unique<ProgramLife>(state_, platform_, *games_, SettingsControlsOf(Form2),
                                          Form2.GetTab(IDC_SSTab1), Form2.GetTimer(IDC_tmrQ3Game),
                                          lifeFollowers);
}

void ZentarProgram::BindMainWindow() {
    Form& Form2 = *Form2_;
    FormEvents events;
    events.activate = [this] { life_->Form2_Activate(); };
    events.queryUnload = [this] { return life_->Form2_QueryUnload(); };
    events.sessionEnding = [this] { life_->Form2_SessionEnding(); };
    events.keyDown = [this](Key key) {
        if (key == Key::F1) {
            ShowHelp();
        }
        return key == Key::F1;
    };
    Form2.SetEvents(std::move(events));
    Form2.GetMenu(IDM_mnuProgramPreferences).SetClick([this] { ShowPreferences(); });
    Form2.GetMenu(IDM_mnuProgramExit).SetClick([this] { Form2_->Close(); });
    Form2.GetMenu(IDM_mnuHelpTopics).SetClick([this] { ShowHelp(); });
    Form2.GetMenu(IDM_mnuHelpAbout).SetClick([this] {
        platform_.windows.Ask(messages::AboutZentar());
    });
}

void ZentarProgram::ShowPreferences() {
    if (!Form4_) {
        Form4_ = platform_.forms.Create(PreferencesTable());
        preferences_ =
            std::make_unique<Preferences>(state_, platform_, PreferencesControlsOf(*Form4_));
        FormEvents events;
        events.activate = [this] { preferences_->Form4_Activate(); };
        Form4_->SetEvents(std::move(events));
    }
    preferences_->Form4_Load();
    Form4_->ShowModal();
}

void ZentarProgram::ShowFullSize(BitmapPtr shot) {
    if (!Form3_) {
        Form3_ = platform_.forms.Create(FullViewTable());
        fullView_ = std::make_unique<FullView>(*Form3_, Form3_->GetPictureBox(IDC_picFull));
    }
    fullView_->Show(std::move(shot));
}

// Where the help is open already, it stays at what the user reads.
void ZentarProgram::ShowHelp() {
    if (!helpShown_) {
        LoadHelp();
    }
    Form9_->Show();
}

void ZentarProgram::ShowHelpModally() {
    LoadHelp();
    Form9_->ShowModal();
}

void ZentarProgram::LoadHelp() {
    if (!Form9_) {
        Form9_ = platform_.forms.Create(HelpTable());
        help_ = std::make_unique<HelpViewer>(state_, HelpControlsOf(*Form9_));
        FormEvents events;
        events.activate = [this] { help_->Form9_Activate(); };
        events.keyDown = [this](Key key) { return help_->Form9_KeyDown(key); };
        events.queryUnload = [this] {
            helpShown_ = false;
            return true;
        };
        Form9_->SetEvents(std::move(events));
    }
    helpShown_ = true;
    help_->Form9_Load(Form2_->GetTab(IDC_SSTab1).SelectedTab());
}

void ZentarProgram::FillDemoFilterList(const GameInfo& game) { demos_->FillPhraseList(game); }

void ZentarProgram::DescribeBackups() {
    if (!state_.Q3BackupFolder.empty()) {
        WriteBackupsInfo(platform_.files, state_.Q3BackupFolder);
    }
}

void ZentarProgram::ArrangeChatFrame(const GameInfo& game) { chat_->Arrange(game); }

void ZentarProgram::ArrangeDemoInstaller(const GameInfo& game) { installer_->Arrange(game); }

void ZentarProgram::ArrangeDemoProperties(const GameInfo& game) {
    demos_->ArrangeProperties(game.id == kQuake3);
}

void ZentarProgram::ResetPreviewCaption() { shots_->ResetPreviewCaption(); }

void ZentarProgram::RefreshScreenshotList() { shots_->RefreshScreenshotList(); }

void ZentarProgram::RefreshDemoList() { demos_->RefreshDemoList(); }

void ZentarProgram::RefreshSymptom() { firstAid_->lstSymptoms_Click(); }

void ZentarProgram::LoadCurrentDesign() { q3Text_->LoadCurrent(); }

void ZentarProgram::FollowSettings() {
    chat_->chkTranscriptHTML_Click();
    q3Text_->LoadLastUsed();
    chat_->txtPlayer_Change();
}

void ZentarProgram::ClearRemedy() { firstAid_->ClearRemedy(); }

void ZentarProgram::SwitchGame(const GameId& game) { games_->SetCurrentGame(game); }

void ZentarProgram::CloseProgram() { Form2_->Close(); }

void ZentarProgram::RestoreHiddenPaks() { demos_->RestoreHiddenPaks(); }

}  // namespace zentar
