// A window in memory, built from its table, with a user who clicks and types in it.
//
// What a user cannot do (click a control that is disabled, hidden, or behind a modal window) fails
// the test. So a test shows the window first, as the program does.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/form.h"
#include "tests/doubles/control_names.h"
#include "tests/doubles/event_log.h"
#include "tests/doubles/memory_controls.h"
#include "tests/doubles/memory_menus.h"
#include "tests/doubles/memory_rich_text.h"
#include "tests/doubles/mistake.h"
#include "tests/doubles/procedure_stack.h"

namespace zentar {

class MemoryForm;

// What all windows of a program have in common.
struct FormSession {
    ProcedureStack procedures;
    EventLog* log = nullptr;
    std::map<int, std::string> names = ReadControlNames();
    std::vector<MemoryForm*> forms;   // all that exist, the newest last
    std::vector<MemoryForm*> modals;  // those shown modally, the one in front last
    MemoryForm* front = nullptr;      // the one activated last
    std::map<int, std::function<void(MemoryForm&)>> users;  // of modal windows, by table id
};

// A popup menu as it opened: which of its entries, sub-menus included, could be picked.
struct PopupShown {
    int menuId = 0;
    std::map<int, bool> enabled;
};

class MemoryForm : public Form, private ControlHost {
  public:
    MemoryForm(const FormTable& table, std::shared_ptr<FormSession> session);
    ~MemoryForm() override;
    MemoryForm(const MemoryForm&) = delete;
    MemoryForm& operator=(const MemoryForm&) = delete;

    void SetEvents(FormEvents events) override { events_ = std::move(events); }
    void Show() override;
    // Activates the window, lets the user that SetUser named act, then closes it if it still
    // stands.
    void ShowModal() override;
    void Close() override;
    // Records the menu; the user that SetPopupUser named may pick from it, else it is dismissed.
    void ShowPopup(int menuId) override;

    Control& AnyControl(int id) override { return Core(id).AsControl(); }
    Label& GetLabel(int id) override { return Get<MemoryLabel>(id); }
    Frame& GetFrame(int id) override { return Get<MemoryFrame>(id); }
    Picture& GetPicture(int id) override { return Get<MemoryPicture>(id); }
    ImageBox& GetImageBox(int id) override { return Get<MemoryImageBox>(id); }
    PictureBox& GetPictureBox(int id) override { return Get<MemoryPictureBox>(id); }
    Button& GetButton(int id) override { return Get<MemoryButton>(id); }
    CheckBox& GetCheckBox(int id) override { return Get<MemoryCheckBox>(id); }
    OptionButton& GetOptionButton(int id) override { return Get<MemoryOptionButton>(id); }
    TextBox& GetTextBox(int id) override { return Get<MemoryTextBox>(id); }
    RichTextBox& GetRichTextBox(int id) override { return Get<MemoryRichTextBox>(id); }
    ListBox& GetListBox(int id) override { return Get<MemoryListBox>(id); }
    TabControl& GetTab(int id) override { return Get<MemoryTab>(id); }
    Timer& GetTimer(int id) override { return TimerOf(id); }
    MenuEntry& GetMenu(int id) override { return MenuOf(id); }

    // The user. A click on a list or a tab control names the entry with UserSelect or
    // UserSelectTab.
    void UserClick(int id);
    void UserSelect(int list, int index);
    void UserSelect(int list, std::string_view text);
    void UserDoubleClick(int list, int index);
    // The pointer is over the entry, or over none (-1).
    void UserRightClick(int list, int index);
    void UserRightClick(int imageBox);
    // What the user's mouse does is the box's own.
    MemoryPictureBox& UserMouseOn(int pictureBox);
    // On a text box or a picture box.
    void UserDoubleClick(int id);
    // Likewise what the user does in a box of rich text, which gets the focus.
    MemoryRichTextBox& UserIn(int richTextBox);
    void UserSelectTab(int tab, int index);
    void UserType(std::string_view text);
    // To the focused control, then to the window; an unused Enter presses a button.
    void UserKey(Key key);
    void UserPickMenu(int id);
    void UserClose();
    void FireTimer(int id);
    // Windows brings the window to the front.
    void Activate();
    void EndSession();

    void SetPopupUser(std::function<void(int menuId)> user) { popupUser_ = std::move(user); }
    const std::vector<PopupShown>& Popups() const { return popups_; }

    const FormTable& Table() const { return table_; }
    const ControlRow& Row(int id) { return Core(id).Row(); }
    int TimerStarts(int id) { return TimerOf(id).Starts(); }
    std::string Tooltip(int id) { return Core(id).Tooltip(); }
    bool Shown() const { return shown_; }
    bool Closed() const { return closed_; }
    bool EffectivelyEnabled(int id) { return Core(id).EffectivelyEnabled(); }
    bool EffectivelyVisible(int id) { return shown_ && Core(id).EffectivelyVisible(); }
    // Whether the user's mouse reaches the control: it is seen, enabled, and behind no modal
    // window.
    bool CanReach(int id) const { return Obstacle(id).empty(); }
    int TopTwips(int id) { return Core(id).TopTwips(); }
    // Whether a character or the background of a text box, or the face of a button, has that
    // colour.
    bool Shows(int textBox, ColourRef colour) { return Core(textBox).Shows(colour); }
    bool AllSelected(int textBox) { return Get<MemoryTextBox>(textBox).AllSelected(); }
    std::vector<std::string> Items(int list) { return Get<MemoryListBox>(list).Items(); }
    std::string SelectedItem(int list);
    // The control with the focus, 0 for none.
    int FocusedId() const { return focused_ == nullptr ? 0 : focused_->Row().id; }

  private:
    void RunProcedure(const std::function<void()>& procedure) override;
    void Log(int id, const std::string& call) override;
    ControlCore* Focused() const override { return focused_; }
    void MoveFocus(ControlCore* to) override;
    void LeaveFocus(const ControlCore& going) override;
    ControlCore* NextTabStop(const ControlCore* from, const ControlCore* except) const;
    std::vector<ControlCore*> ChildrenOf(int parent) const override;

    void AddControl(const ControlRow& row);
    void AddMenu(const MenuRow& row);
    void ClaimId(int id);
    ControlCore& Core(int id) const;
    MemoryTimer& TimerOf(int id);
    MemoryMenuEntry& MenuOf(int id);
    template <typename Kind>
    Kind& Get(int id);
    std::string NameOf(int id) const { return zentar::NameOf(session_->names, id); }

    int Level() const;
    void CloseNow();
    void LogForm(const std::string& call);
    std::string Obstacle() const;
    std::string Obstacle(int id) const;
    bool TakesInput(const std::string& action) const;
    ControlCore* Reach(int id, const std::string& action, bool focuses = true);
    bool Uses(const std::function<bool(Key)>& procedure, Key key);
    void UnusedKey(Key key);
    bool CanPick(int id);
    bool IsBelow(int menuId, const MenuRow& row);

    const FormTable table_;
    std::shared_ptr<FormSession> session_;
    FormEvents events_;
    std::vector<std::unique_ptr<ControlCore>> controls_;  // in the order of the table
    std::map<int, ControlCore*> byId_;
    std::map<int, MemoryTimer> timers_;
    std::map<int, MemoryMenuEntry> menus_;
    std::map<int, bool> claimedIds_;
    ControlCore* focused_ = nullptr;
    bool shown_ = false;
    bool closed_ = false;
    bool closeWaits_ = false;
    std::function<void(int)> popupUser_;
    std::vector<PopupShown> popups_;
};

class MemoryFormFactory : public FormFactory {
  public:
    explicit MemoryFormFactory(EventLog* log = nullptr) { session_->log = log; }

    std::unique_ptr<Form> Create(const FormTable& table) override;

    // The window made last from the table of this number; aborts when there is none.
    MemoryForm& Get(int tableId);
    bool Exists(int tableId) const { return Find(tableId) != nullptr; }
    // What the user does in a modal window of this table each time it is shown.
    void SetUser(int tableId, std::function<void(MemoryForm&)> user);
    // How controls are called in the log.
    void SetNames(std::map<int, std::string> names) { session_->names = std::move(names); }
    // Whether no event procedure is under way.
    bool Idle() const { return session_->procedures.Idle(); }

  private:
    MemoryForm* Find(int tableId) const;
    std::shared_ptr<FormSession> session_ = std::make_shared<FormSession>();
};

template <typename Kind>
Kind& MemoryForm::Get(int id) {
    auto* control = dynamic_cast<Kind*>(&Core(id));
    if (control == nullptr)
        Mistake(NameOf(id) + " is a control of another kind");
    return *control;
}

}  // namespace zentar
