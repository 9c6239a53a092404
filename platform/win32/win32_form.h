// A window of the program, built from its table.
#pragma once

#include <windows.h>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "platform/form.h"
#include "platform/win32/buttons.h"
#include "platform/win32/control_window.h"
#include "platform/win32/focus_keeper.h"
#include "platform/win32/fonts.h"
#include "platform/win32/form_menus.h"
#include "platform/win32/form_timer.h"
#include "platform/win32/tooltips.h"
#include "platform/win32/win32_session.h"

namespace zentar {

// Posted to a form that has something to do which had to wait.
inline constexpr UINT kResumeMessage = WM_APP + 1;

struct FormStyle {
    DWORD style = 0;
    DWORD exStyle = 0;

    static FormStyle Of(FormKind kind);
};

class Win32Form : public Form, private FormWindow, private ControlHost {
  public:
    Win32Form(const FormTable& table, Win32Session& session);
    Win32Form(const Win32Form&) = delete;
    Win32Form& operator=(const Win32Form&) = delete;
    ~Win32Form() override;

    void SetEvents(FormEvents events) override;
    void Show() override;
    void ShowModal() override;
    void Close() override;
    void ShowPopup(int menuId) override;

    Control& AnyControl(int id) override;
    Label& GetLabel(int id) override;
    Frame& GetFrame(int id) override;
    Picture& GetPicture(int id) override;
    ImageBox& GetImageBox(int id) override;
    PictureBox& GetPictureBox(int id) override;
    Button& GetButton(int id) override;
    CheckBox& GetCheckBox(int id) override;
    OptionButton& GetOptionButton(int id) override;
    TextBox& GetTextBox(int id) override;
    RichTextBox& GetRichTextBox(int id) override;
    ListBox& GetListBox(int id) override;
    TabControl& GetTab(int id) override;
    Timer& GetTimer(int id) override;
    MenuEntry& GetMenu(int id) override;

  private:
    // FormWindow
    HWND Window() const override { return window_.Get(); }
    void Resume() override;
    bool PreTranslate(MSG& message) override;

    // ControlHost
    EventDispatcher& Dispatcher() override { return session_.dispatcher; }
    FocusKeeper& Focus() override { return focus_; }
    OleLibrary& Ole() override { return session_.ole; }
    void MoveTop(const ControlRow& row, int twips) override;
    void SetTooltipOf(HWND control, const std::string& text) override {
        tooltips_->Set(control, text);
    }
    void NeedWindow(const ControlRow& row) override;
    void NoteMenuRequest(bool byKeyboard) override { menuByKeyboard_ = byKeyboard; }
    HWND DefaultButton() const override;
    bool ShowsHourglass() const override { return session_.pointer == Pointer::Hourglass; }

    // Building (win32_form_build.cpp)
    void CreateFormWindow();
    void CreateControls();
    void CreateControl(const ControlRow& row);
    const ControlWindow* PageOf(const ControlRow& row) const;
    void MakeWindow(ControlWindow& control);
    // Once all are made that are made together.
    void SetUp(ControlWindow& control) const;
    std::size_t IndexOf(const ControlRow& row) const {
        return static_cast<std::size_t>(&row - rows_.data());
    }
    std::unique_ptr<ControlWindow> MakeControl(const ControlPlace& place);
    ControlPlace PlaceOf(const ControlRow& row);
    // Every control that has its window.
    void ForEachMade(const std::function<void(ControlWindow&)>& act) const;
    void TakeIcons();

    // Places and sizes (win32_form_layout.cpp)
    void UseDpi(int screenDpi);
    int FittingDpi() const;
    SIZE FrameSize(SIZE client) const;
    SIZE DesignedSize() const;
    SIZE DesignedSizeOnScreen() const;
    RECT FirstPlace(HWND over) const;
    void MoveWindowTo(const RECT& place) const;
    void ApplyDpi();
    HFONT FontOf(const ControlRow& row) const;
    std::vector<Rect> ComputePlaces() const;
    void Layout();

    // Keys (win32_form_keys.cpp)
    bool OnKeyDown(const MSG& message);
    bool OnProgramKey(Key key, ControlWindow* control);
    bool OnEnter(ControlWindow* control);
    bool SwitchTab(WPARAM key) const;
    void ShowFocus() const;
    POINT PopupPlace() const;

    // Messages (win32_form_messages.cpp)
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    struct Handler;
    static const Handler kHandlers[];
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
    std::optional<LRESULT> OnActivate(WPARAM wParam, LPARAM lParam);
    std::optional<LRESULT> OnClose(WPARAM wParam, LPARAM lParam);
    std::optional<LRESULT> OnCommand(WPARAM wParam, LPARAM lParam);
    std::optional<LRESULT> OnDefaultId(WPARAM wParam, LPARAM lParam);
    std::optional<LRESULT> OnDpiChanged(WPARAM wParam, LPARAM lParam);
    std::optional<LRESULT> OnEnable(WPARAM wParam, LPARAM lParam);
    std::optional<LRESULT> OnEndSession(WPARAM wParam, LPARAM lParam);
    std::optional<LRESULT> OnMinMaxInfo(WPARAM wParam, LPARAM lParam);
    std::optional<LRESULT> OnQueryEndSession(WPARAM wParam, LPARAM lParam);
    std::optional<LRESULT> OnResume(WPARAM wParam, LPARAM lParam);
    std::optional<LRESULT> OnSetCursor(WPARAM wParam, LPARAM lParam);
    std::optional<LRESULT> OnSetFocus(WPARAM wParam, LPARAM lParam);
    std::optional<LRESULT> OnSettingChange(WPARAM wParam, LPARAM lParam);
    std::optional<LRESULT> OnSize(WPARAM wParam, LPARAM lParam);
    std::optional<LRESULT> OnSystemColours(WPARAM wParam, LPARAM lParam);
    std::optional<LRESULT> OnTimer(WPARAM wParam, LPARAM lParam);

    bool CanGrow() const {
        return table_.kind == FormKind::Main || table_.kind == FormKind::Companion;
    }
    bool MayRunOutermost() const;
    void TryToClose();
    void Hide();
    ControlWindow* FindControl(int id) const;
    template <typename Kind>
    Kind& Find(int id);

    const FormTable& table_;
    FormStyle style_;
    Win32Session& session_;
    std::vector<ControlRow> rows_;          // the table's, with the tops that the program set
    std::vector<std::optional<int>> tops_;  // in twips, of each row that the program moved
    std::vector<Rect> places_;              // where the controls stand, in pixels
    FormEvents events_;
    FocusKeeper focus_;
    FormMenus menus_;
    UniqueWindow window_;
    std::map<int, OptionGroup> optionGroups_;               // by the id of their parent
    std::vector<std::unique_ptr<ControlWindow>> controls_;  // one a row that is no timer
    std::vector<std::unique_ptr<Win32Timer>> timers_;
    std::optional<Tooltips> tooltips_;
    std::optional<Fonts> fonts_;
    UniqueIcon smallIcon_;
    UniqueIcon largeIcon_;
    int screenDpi_ = 96;
    int dpi_ = 96;        // of what stands in the window
    bool shown_ = false;  // has been, once
    bool modal_ = false;
    bool activationWaits_ = false;
    bool closeWaits_ = false;
    bool menuByKeyboard_ = false;
};

}  // namespace zentar
