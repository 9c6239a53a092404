// What every control of a form has in common: a child window, its row of the table, its events.
#pragma once

#include <windows.h>

#include <functional>
#include <optional>
#include <string>

#include "platform/controls.h"
#include "platform/form_table.h"
#include "platform/win32/surface.h"

namespace zentar {

class ControlWindow;
class EventDispatcher;
class FocusKeeper;
class OleLibrary;

// What a control needs of its form.
class ControlHost {
  public:
    virtual ~ControlHost() = default;
    virtual EventDispatcher& Dispatcher() = 0;
    virtual FocusKeeper& Focus() = 0;
    virtual OleLibrary& Ole() = 0;
    virtual void MoveTop(const ControlRow& row, int twips) = 0;
    virtual void SetTooltipOf(HWND control, const std::string& text) = 0;
    // Makes the window of a control that has none yet, and those of all that stands on the same tab
    // page.
    virtual void NeedWindow(const ControlRow& row) = 0;
    // A control's menu is about to be asked for; a popup opens where that came from.
    virtual void NoteMenuRequest(bool byKeyboard) = 0;
    // The button that Enter presses while no button has the focus; null where there is none.
    virtual HWND DefaultButton() const = 0;
    // The program is at work: no control shows a pointer of its own.
    virtual bool ShowsHourglass() const = 0;
};

// What a control belongs to.
struct ControlPlace {
    ControlHost& host;
    const ControlRow& row;
    HINSTANCE instance = nullptr;
    Surface surface = Surface::WindowFace;  // behind it
};

// The system's window of a kind of control.
struct ControlStyle {
    const wchar_t* windowClass = nullptr;
    DWORD style = 0;
    DWORD exStyle = 0;
};

// Has no window until it is needed: those of a tab page that nobody has looked at yet only cost
// time when the program starts. Until then the control keeps what the program makes of it, as far
// as it can; for the rest the window is made.
class ControlWindow {
  public:
    explicit ControlWindow(const ControlPlace& place);
    ControlWindow(const ControlWindow&) = delete;
    ControlWindow& operator=(const ControlWindow&) = delete;
    virtual ~ControlWindow();

    // The control whose window that is; null for a window that is no control.
    static ControlWindow* Of(HWND window);

    // The place is in pixels, inside the parent.
    void MakeWindow(HWND parent, const Rect& at, HFONT font);
    // Null until it is made.
    HWND Handle() const { return handle_; }
    // Makes the window where there is none.
    HWND NeedWindow() const;
    const ControlRow& Row() const { return row_; }
    virtual Control& AsControl() = 0;
    // The surface that the control is for those inside it.
    virtual Surface InnerSurface() const { return surface_; }

    // What the parent is told about the control. From here to OnDpi only once there is a window.
    virtual void OnCommand(WORD /*code*/) {}
    virtual LRESULT OnNotify(const NMHDR& /*header*/) { return 0; }
    virtual HBRUSH OnColour(HDC context);
    // After the control got another size or font.
    virtual void OnLayout() {}
    // After a control that this one stands in was enabled or disabled.
    virtual void OnEnclosingEnabled() {}
    // The dpi of the window, at first and whenever it changes.
    virtual void OnDpi(int /*dpi*/) {}
    // Raises keyDown; true when the program used the key up.
    bool RaiseKey(Key key);

    void SetEvents(ControlEvents events) { events_ = std::move(events); }
    void SetEnabled(bool enabled);
    bool Enabled() const;
    void SetVisible(bool visible);
    bool Visible() const;
    void SetText(const std::string& text);
    std::string Text() const;
    void SetFocus();
    bool HasFocus() const;
    void SetTop(int twips);
    void SetTooltip(const std::string& text);

  protected:
    virtual ControlStyle Style() const = 0;
    // The window is there with its font, but nobody has seen it yet.
    virtual void OnMade() {}
    // The control's own messages, before the system's window procedure, which gets those that it
    // does not answer.
    virtual std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
    // Gives the system's window procedure a message before OnMessage is done with it.
    LRESULT PassOn(UINT message, WPARAM wParam, LPARAM lParam) const;

    void Raise(std::function<void()> ControlEvents::*event);
    void RaiseMenuRequest(bool byKeyboard);
    const ControlEvents& Events() const { return events_; }
    ControlHost& Host() const { return host_; }
    HINSTANCE Instance() const { return instance_; }
    // During menuRequested: the keyboard asked, so where the pointer is means nothing.
    bool KeyboardAsks() const { return keyboardAsks_; }
    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return SendMessageW(NeedWindow(), message, wParam, lParam);
    }
    void Redraw(bool erase) const;

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void Attach(HWND window);
    void Detach();

    // What the control is like as long as it has no window.
    struct Unmade {
        std::string text;
        std::string tooltip;
        bool enabled;
        bool visible;
    };

    ControlHost& host_;
    const ControlRow& row_;
    HINSTANCE instance_;
    Surface surface_;
    Unmade unmade_;
    HWND handle_ = nullptr;
    WNDPROC system_ = nullptr;  // the window procedure of the control's kind
    ControlEvents events_;
    bool keyboardAsks_ = false;
    bool annotated_ = false;  // the name is, for screen readers
};

// Gives a control of the platform's interface the window above.
template <typename Interface>
class ControlBase : public Interface, public ControlWindow {
  public:
    using ControlWindow::ControlWindow;

    Control& AsControl() override { return *this; }
    void SetEvents(ControlEvents events) override { ControlWindow::SetEvents(std::move(events)); }
    void SetEnabled(bool enabled) override { ControlWindow::SetEnabled(enabled); }
    bool Enabled() const override { return ControlWindow::Enabled(); }
    void SetVisible(bool visible) override { ControlWindow::SetVisible(visible); }
    bool Visible() const override { return ControlWindow::Visible(); }
    void SetText(const std::string& text) override { ControlWindow::SetText(text); }
    std::string Text() const override { return ControlWindow::Text(); }
    void SetFocus() override { ControlWindow::SetFocus(); }
    bool HasFocus() const override { return ControlWindow::HasFocus(); }
    void SetTop(int twips) override { ControlWindow::SetTop(twips); }
    void SetTooltip(const std::string& text) override { ControlWindow::SetTooltip(text); }
};

}  // namespace zentar
