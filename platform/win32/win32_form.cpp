#include "platform/win32/win32_form.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "platform/win32/tab_control.h"

namespace zentar {

Win32Form::Win32Form(const FormTable& table, Win32Session& session)
    : table_(table),
      style_(FormStyle::Of(table.kind)),
      session_(session),
      rows_(table.controls.begin(), table.controls.end()),
      tops_(rows_.size()),
      menus_(table.menus, session.dispatcher) {
    CreateFormWindow();
    focus_.SetForm(window_.Get());
    tooltips_.emplace(window_.Get(), session_.instance);
    tooltips_->SetDpi(dpi_);
    fonts_.emplace(dpi_);
    TakeIcons();
    CreateControls();
    session_.forms.Add(*this);
}

Win32Form::~Win32Form() {
    session_.forms.Remove(*this);
    SetWindowLongPtrW(window_.Get(), GWLP_USERDATA, 0);
    window_.Reset();
}

void Win32Form::SetEvents(FormEvents events) { events_ = std::move(events); }

void Win32Form::Show() {
    const bool first = !std::exchange(shown_, true);
    if (first && table_.kind == FormKind::Main) {
        // As the user's shortcut says: minimised, maximised or normal.
        ShowWindow(window_.Get(), SW_SHOWDEFAULT);
    } else if (table_.kind == FormKind::Splash) {
        // Nothing is to be done in it: the window that follows gets the focus.
        ShowWindow(window_.Get(), SW_SHOWNA);
    } else {
        ShowWindow(window_.Get(), IsIconic(window_.Get()) ? SW_RESTORE : SW_SHOW);
        SetForegroundWindow(window_.Get());
    }
    UpdateWindow(window_.Get());
}

void Win32Form::ShowModal() {
    if (IsWindowVisible(window_.Get())) {
        return;
    }
    const HWND owner = session_.forms.DialogOwner();
    SetWindowLongPtrW(window_.Get(), GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(owner));
    const bool first = !std::exchange(shown_, true);
    // Later a dialog stays where the user put it.
    if (first || table_.kind == FormKind::FullScreen) {
        MoveWindowTo(FirstPlace(owner));
    }
    modal_ = true;
    const EventDispatcher::Modal nested(session_.dispatcher);
    session_.dispatcher.Run(events_.load);
    OtherFormsDisabled others(session_.forms, window_.Get());
    ShowWindow(window_.Get(), SW_SHOW);
    session_.loop.RunWhile(modal_);
    modal_ = false;
    others.Restore();
    SetActiveWindow(owner);
    ShowWindow(window_.Get(), SW_HIDE);
    SetWindowLongPtrW(window_.Get(), GWLP_HWNDPARENT, 0);
    focus_.Forget();
}

void Win32Form::Close() {
    closeWaits_ = true;
    if (MayRunOutermost()) {
        TryToClose();
    }
}

void Win32Form::ShowPopup(int menuId) {
    const POINT place = PopupPlace();
    const int picked = TrackPopupMenuEx(menus_.MenuOf(menuId), TPM_RETURNCMD | TPM_RIGHTBUTTON,
                                        place.x, place.y, window_.Get(), nullptr);
    if (const Win32MenuEntry* entry = menus_.Find(picked)) {
        entry->Pick();
    }
}

bool Win32Form::MayRunOutermost() const {
    return session_.dispatcher.Idle() && IsWindowEnabled(window_.Get());
}

void Win32Form::Resume() {
    if ((activationWaits_ || closeWaits_) && MayRunOutermost()) {
        PostMessageW(window_.Get(), kResumeMessage, 0, 0);
    }
}

void Win32Form::TryToClose() {
    bool goes = true;
    if (events_.queryUnload) {
        session_.dispatcher.Run([&] { goes = events_.queryUnload(); });
    }
    // One asked for while the question was on the screen is answered with it.
    closeWaits_ = false;
    if (goes) {
        Hide();
    }
}

void Win32Form::Hide() {
    if (modal_) {
        // Its loop ends, and puts it away once the windows below take input again.
        modal_ = false;
        return;
    }
    ShowWindow(window_.Get(), SW_HIDE);
    if (table_.kind == FormKind::Main) {
        for (const auto& timer : timers_) {
            timer->SetEnabled(false);
        }
        PostQuitMessage(0);
    }
}

ControlWindow* Win32Form::FindControl(int id) const {
    const auto at = std::find_if(controls_.begin(), controls_.end(),
                                 [id](const auto& control) { return control->Row().id == id; });
    return at == controls_.end() ? nullptr : at->get();
}

template <typename Kind>
Kind& Win32Form::Find(int id) {
    ControlWindow* control = FindControl(id);
    auto* found = control == nullptr ? nullptr : dynamic_cast<Kind*>(&control->AsControl());
    if (found == nullptr) {
        std::abort();
    }
    return *found;
}

Control& Win32Form::AnyControl(int id) { return Find<Control>(id); }
Label& Win32Form::GetLabel(int id) { return Find<Label>(id); }
Frame& Win32Form::GetFrame(int id) { return Find<Frame>(id); }
Picture& Win32Form::GetPicture(int id) { return Find<Picture>(id); }
ImageBox& Win32Form::GetImageBox(int id) { return Find<ImageBox>(id); }
PictureBox& Win32Form::GetPictureBox(int id) { return Find<PictureBox>(id); }
Button& Win32Form::GetButton(int id) { return Find<Button>(id); }
CheckBox& Win32Form::GetCheckBox(int id) { return Find<CheckBox>(id); }
OptionButton& Win32Form::GetOptionButton(int id) { return Find<OptionButton>(id); }
TextBox& Win32Form::GetTextBox(int id) { return Find<TextBox>(id); }
RichTextBox& Win32Form::GetRichTextBox(int id) { return Find<RichTextBox>(id); }
ListBox& Win32Form::GetListBox(int id) { return Find<ListBox>(id); }
TabControl& Win32Form::GetTab(int id) { return Find<TabControl>(id); }

Timer& Win32Form::GetTimer(int id) {
    const auto at = std::find_if(timers_.begin(), timers_.end(),
                                 [id](const auto& timer) { return timer->Id() == id; });
    if (at == timers_.end()) {
        std::abort();
    }
    return **at;
}

MenuEntry& Win32Form::GetMenu(int id) {
    Win32MenuEntry* entry = menus_.Find(id);
    if (entry == nullptr) {
        std::abort();
    }
    return *entry;
}

}  // namespace zentar
