// The whole program put together: its windows, built from their tables, and the subsystems that
// work in them. Needs nothing but a Platform, so tests run it in memory.
#pragma once

#include <memory>

#include "core/game_selection.h"
#include "core/preferences.h"
#include "core/program_life.h"
#include "core/program_state.h"
#include "demos/demo_installer.h"
#include "demos/demos_tab.h"
#include "firstaid/first_aid_tab.h"
#include "help/help_viewer.h"
#include "platform/form.h"
#include "platform/platform.h"
#include "q3tools/q3_config_frames.h"
#include "q3tools/q3_text_tab.h"
#include "screenshots/full_view.h"
#include "screenshots/shots_tab.h"
#include "transcripts/chat_frame.h"

namespace zentar {

class ZentarProgram final : private GameFollowers, private LifeFollowers, private FirstAidHost {
  public:
    explicit ZentarProgram(const Platform& platform);
    ~ZentarProgram() override;
    ZentarProgram(const ZentarProgram&) = delete;
    ZentarProgram& operator=(const ZentarProgram&) = delete;

    // Shows the splash while the main window loads, then the main window. The message loop is the
    // caller's.
    void Start();

    ProgramState& State() { return state_; }

  private:
    void BuildMainWindow();
    void BindMainWindow();
    void ShowPreferences();
    void ShowFullSize(BitmapPtr shot);
    void ShowHelp();
    void LoadHelp();

    void FillDemoFilterList(const GameInfo& game) override;
    void DescribeBackups() override;
    void ArrangeChatFrame(const GameInfo& game) override;
    void ArrangeDemoInstaller(const GameInfo& game) override;
    void ArrangeDemoProperties(const GameInfo& game) override;
    void ResetPreviewCaption() override;
    void RefreshScreenshotList() override;
    void RefreshDemoList() override;
    void RefreshSymptom() override;

    void LoadCurrentDesign() override;
    void FollowSettings() override;
    void ClearRemedy() override;
    void ShowHelpModally() override;
    void RestoreHiddenPaks() override;

    void SwitchGame(const GameId& game) override;
    void CloseProgram() override;

    Platform platform_;
    ProgramState state_;
    std::unique_ptr<Form> Form2_;
    std::unique_ptr<ShotsTab> shots_;
    std::unique_ptr<DemosTab> demos_;
    std::unique_ptr<DemoInstaller> installer_;
    std::unique_ptr<ChatFrame> chat_;
    std::unique_ptr<Q3TextTab> q3Text_;
    std::unique_ptr<Q3ConfigFrames> q3Config_;
    std::unique_ptr<FirstAidTab> firstAid_;
    std::unique_ptr<GameSelection> games_;
    std::unique_ptr<ProgramLife> life_;
    std::unique_ptr<Form> Form3_;
    std::unique_ptr<FullView> fullView_;
    std::unique_ptr<Form> Form4_;
    std::unique_ptr<Preferences> preferences_;
    std::unique_ptr<Form> Form9_;
    std::unique_ptr<HelpViewer> help_;
    bool helpShown_ = false;  // the help window can be seen
};

}  // namespace zentar
