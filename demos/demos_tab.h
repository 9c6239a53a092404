// The Demos tab: the list of the current mod's demos, its filter, the properties of the selected
// demo, and the list's popup menu.
//
// Its procedures let waiting window messages run before they read files, so any of them can run
// inside another. Each then looks whether something newer has taken its place, and if so leaves the
// rest to that.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "core/command_guard.h"
#include "core/game_info.h"
#include "core/latest_only.h"
#include "core/popup_request.h"
#include "core/program_state.h"
#include "demos/demo_file_operations.h"
#include "demos/demo_header.h"
#include "demos/demo_info.h"
#include "demos/demo_list.h"
#include "demos/demo_list_view.h"
#include "demos/demo_playback.h"
#include "demos/demo_properties.h"
#include "demos/demo_transfer.h"
#include "demos/demos_tab_controls.h"
#include "demos/map_search.h"
#include "platform/platform.h"

namespace zentar {

class DemosTab : public DemoListView {
  public:
    // Binds the event procedures. `showPopup` opens the popup menu at the pointer;
    // `startupFinished` says whether the main window has been activated.
    DemosTab(ProgramState& state, const Platform& platform, const DemosTabControls& controls,
             std::function<void()> showPopup, std::function<bool()> startupFinished);
    DemosTab(const DemosTab&) = delete;
    DemosTab& operator=(const DemosTab&) = delete;

    const DemoInfo& SelectedDemo() const override { return demo_; }
    std::vector<std::string> ListedDemos() const override;
    void RefreshDemoList() override;
    void SetPendingReselection(const std::string& entry) override;
    std::string PathOfListed(const std::string& entry) const override;
    void OfferNotADemoRename() override;
    void RunCommand(const std::function<void()>& command) override;
    void ResetDemoProperties();

    // Puts back the game files that were hidden for an old demo.
    void RestoreHiddenPaks() { playback_.RestoreHiddenPaks(); }

    // For the game refresh.
    void FillPhraseList(const GameInfo& game);
    void ArrangeProperties(bool quake3);

    void lstDemos_Click();
    bool lstDemos_KeyDown(Key key);
    void lstDemos_MouseDown();
    void chkShowAllDemos_Click();
    void cmdFilter_Click();
    void txtDemoFilter_GotFocus();
    bool txtDemoFilter_KeyDown(Key key);
    void lstDemoFilter_DblClick();
    bool lstDemoFilter_KeyDown(Key key);
    void mnuDemosRefresh_Click();

  private:
    struct PendingReselection {
        std::string folder;
        std::string entry;
    };

    void BindEvents();
    void BindMenu();
    std::function<void()> AsCommand(std::function<void()> command);

    std::uint64_t ScanFolder();
    DemoFilter Filter() const;
    void ShowCount(std::uint64_t total);
    void SelectPending();

    bool ForceShowAll();
    void ShowSelectedFile();
    void ReadSelectedDemo();
    void ReadIfStillSelected();
    void ReadNow();
    bool ReadHeader();
    void PlayDemo();
    void TakeHeader(DemoHeader header);
    void DecideMenu();
    void UseChosenPhrase();

    ProgramState& state_;
    Platform platform_;
    DemosTabControls controls_;
    DemoProperties properties_;
    DemoFileOperations files_;
    DemoTransfer transfer_;
    DemoPlayback playback_;
    MapSearch mapSearch_;
    std::function<void()> showPopup_;
    std::function<bool()> startupFinished_;

    // Where the listed demos are, which may no longer be the current mod's folder.
    std::string listedFolder_;
    std::string listedExtension_;
    DemoInfo demo_;
    bool unread_ = false;  // it was selected, and its content is still to be read
    PendingReselection pending_;
    CommandGuard commands_;
    LatestOnly reading_;
    PopupRequest popup_;
    // Counted up with every selection and reset, and with every rebuild: how a procedure notices
    // that another one ran inside it.
    std::uint64_t selections_ = 0;
    std::uint64_t refreshes_ = 0;
};

}  // namespace zentar
