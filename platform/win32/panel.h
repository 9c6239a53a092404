// Child windows that hold controls: frames and tab pages.
#pragma once

#include "platform/win32/control_window.h"
#include "platform/win32/reflect.h"

namespace zentar {

// The class of these windows; registered on the first call.
const wchar_t* PanelClass(HINSTANCE instance);
// The system tells only the panel itself that it was enabled or disabled; this tells what stands in
// it.
void TellEnclosed(HWND panel);

// Paints the surface and hands the controls' messages back to them.
template <typename Interface>
class Panel : public ControlBase<Interface> {
  public:
    Panel(const ControlPlace& place, Surface inner)
        : ControlBase<Interface>(place), inner_(inner) {}

    Surface InnerSurface() const override { return inner_; }

  protected:
    ControlStyle Style() const override {
        return {PanelClass(this->Instance()), WS_CLIPCHILDREN, WS_EX_CONTROLPARENT};
    }
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_ERASEBKGND || message == WM_PRINTCLIENT) {
            RECT client{};
            GetClientRect(this->Handle(), &client);
            FillRect(reinterpret_cast<HDC>(wParam), &client, SurfaceBrush(inner_));
            return TRUE;
        }
        if (message == WM_ENABLE) {
            TellEnclosed(this->Handle());
        }
        if (message >= WM_CTLCOLOREDIT && message <= WM_CTLCOLORSTATIC &&
            ControlWindow::Of(reinterpret_cast<HWND>(lParam)) == nullptr) {
            return reinterpret_cast<LRESULT>(PaintOn(inner_, reinterpret_cast<HDC>(wParam)));
        }
        if (const std::optional<LRESULT> answer = ReflectToControl(message, wParam, lParam)) {
            return answer;
        }
        return ControlBase<Interface>::OnMessage(message, wParam, lParam);
    }

  private:
    Surface inner_;
};

// A page of a tab control.
class Win32TabPage : public Panel<Control> {
  public:
    explicit Win32TabPage(const ControlPlace& place) : Panel(place, Surface::TabPage) {}
};

// A frame draws its border and caption itself: the system's group box takes another, wider font for
// the caption under some visual styles, and leaves its old caption standing when it changes.
class Win32Frame : public Panel<Frame> {
  public:
    explicit Win32Frame(const ControlPlace& place);

    void SetText(const std::string& text) override;
    void OnLayout() override;

  protected:
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    void Paint() const;
    void Draw(HDC context) const;

    bool bordered_;
    HFONT font_ = nullptr;  // the form's
    SIZE drawn_{};
};

}  // namespace zentar
