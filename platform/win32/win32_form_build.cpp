// Makes the window and the controls of a form.

#include <algorithm>
#include <cstdlib>

#include "platform/win32/buttons.h"
#include "platform/win32/colour_button.h"
#include "platform/win32/image_box.h"
#include "platform/win32/label.h"
#include "platform/win32/list_box.h"
#include "platform/win32/panel.h"
#include "platform/win32/picture.h"
#include "platform/win32/picture_box.h"
#include "platform/win32/rich_text_box.h"
#include "platform/win32/tab_control.h"
#include "platform/win32/text_box.h"
#include "platform/win32/win32_form.h"
#include "platform/win32/win32_text.h"
#include "platform/win32/window_class.h"

namespace zentar {
namespace {

const wchar_t* FormClass(HINSTANCE instance, WNDPROC procedure) {
    WNDCLASSEXW windowClass{};
    windowClass.lpfnWndProc = procedure;
    windowClass.hInstance = instance;
    windowClass.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    windowClass.lpszClassName = L"ZentarForm";
    return RegisterWindowClass(windowClass);
}

}  // namespace

FormStyle FormStyle::Of(FormKind kind) {
    switch (kind) {
        case FormKind::Main:
        case FormKind::Companion:
            return {WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, WS_EX_CONTROLPARENT};
        case FormKind::Dialog:
            return {WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN,
                    WS_EX_DLGMODALFRAME | WS_EX_CONTROLPARENT};
        case FormKind::FullScreen:
            return {WS_POPUP | WS_CLIPCHILDREN, WS_EX_CONTROLPARENT};
        case FormKind::Splash:
            break;
    }
    return {WS_POPUP | WS_BORDER | WS_CLIPCHILDREN, WS_EX_TOOLWINDOW};
}

// Has its size and, unless it is a dialog that comes over some other window, its place from the
// start: each later change of a window costs time.
void Win32Form::CreateFormWindow() {
    UseDpi(static_cast<int>(GetDpiForSystem()));
    const RECT place = FirstPlace(nullptr);
    window_.Reset(CreateWindowExW(style_.exStyle, FormClass(session_.instance, Procedure),
                                  Widen(table_.caption).c_str(), style_.style, place.left,
                                  place.top, place.right - place.left, place.bottom - place.top,
                                  nullptr, menus_.TakeBar(), session_.instance, nullptr));
    SetWindowLongPtrW(window_.Get(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    // The monitor may have got another resolution since the user logged on.
    if (const auto dpi = static_cast<int>(GetDpiForWindow(window_.Get())); dpi != screenDpi_) {
        UseDpi(dpi);
        MoveWindowTo(FirstPlace(nullptr));
    }
}

void Win32Form::CreateControls() {
    places_ = ComputePlaces();
    for (const ControlRow& row : rows_) {
        if (row.kind == ControlKind::Timer) {
            timers_.push_back(
                std::make_unique<Win32Timer>(window_.Get(), row, session_.dispatcher));
        } else {
            CreateControl(row);
        }
    }
    ForEachMade([this](ControlWindow& control) { SetUp(control); });
}

// The windows of a tab page wait until it is in front.
void Win32Form::CreateControl(const ControlRow& row) {
    controls_.push_back(MakeControl(PlaceOf(row)));
    ControlWindow& control = *controls_.back();
    if (row.kind == ControlKind::TabPage) {
        dynamic_cast<Win32TabControl&>(FindControl(row.parent)->AsControl()).AddPage(control);
    }
    const ControlWindow* page = PageOf(row);
    if (page == nullptr || page->Visible()) {
        MakeWindow(control);
    }
}

// The tab page that the control stands on, or is; null where that is none.
const ControlWindow* Win32Form::PageOf(const ControlRow& row) const {
    const ControlWindow* control = FindControl(row.id);
    while (control != nullptr && control->Row().kind != ControlKind::TabPage) {
        control = FindControl(control->Row().parent);
    }
    return control;
}

void Win32Form::NeedWindow(const ControlRow& row) {
    const ControlWindow* page = PageOf(row);
    std::vector<ControlWindow*> made;
    for (const auto& control : controls_) {
        if (control->Handle() == nullptr && PageOf(control->Row()) == page) {
            MakeWindow(*control);
            if (control->Handle() != nullptr) {
                made.push_back(control.get());
            }
        }
    }
    for (ControlWindow* control : made) {
        SetUp(*control);
    }
}

void Win32Form::MakeWindow(ControlWindow& control) {
    const ControlRow& row = control.Row();
    const ControlWindow* parent = FindControl(row.parent);
    const std::size_t index = IndexOf(row);
    control.MakeWindow(parent == nullptr ? window_.Get() : parent->Handle(), places_[index],
                       FontOf(row));
    if (control.Handle() != nullptr) {
        focus_.AddControl(control.Handle(), index, row.kind != ControlKind::Tab);
    }
}

void Win32Form::SetUp(ControlWindow& control) const {
    control.OnDpi(dpi_);
    control.OnLayout();
}

ControlPlace Win32Form::PlaceOf(const ControlRow& row) {
    const ControlWindow* parent = FindControl(row.parent);
    return {*this, row, session_.instance,
            parent == nullptr ? Surface::WindowFace : parent->InnerSurface()};
}

void Win32Form::ForEachMade(const std::function<void(ControlWindow&)>& act) const {
    for (const auto& control : controls_) {
        if (control->Handle() != nullptr) {
            act(*control);
        }
    }
}

std::unique_ptr<ControlWindow> Win32Form::MakeControl(const ControlPlace& place) {
    switch (place.row.kind) {
        case ControlKind::Label:
            return std::make_unique<Win32Label>(place);
        case ControlKind::Button:
            return std::make_unique<Win32Button>(place);
        case ControlKind::ColourButton:
            return std::make_unique<Win32ColourButton>(place);
        case ControlKind::CheckBox:
            return std::make_unique<Win32CheckBox>(place);
        case ControlKind::OptionButton: {
            // The arrow keys move among option buttons that follow each other.
            const ControlRow* before = &place.row == rows_.data() ? nullptr : &place.row - 1;
            const bool startsRun = before == nullptr || before->parent != place.row.parent ||
                                   before->kind != ControlKind::OptionButton;
            return std::make_unique<Win32OptionButton>(place, startsRun,
                                                       optionGroups_[place.row.parent]);
        }
        case ControlKind::TextBox:
            return std::make_unique<Win32TextBox>(place);
        case ControlKind::RichTextBox:
            return std::make_unique<Win32RichTextBox>(place);
        case ControlKind::ListBox:
            return std::make_unique<Win32ListBox>(place);
        case ControlKind::Frame:
            return std::make_unique<Win32Frame>(place);
        case ControlKind::Picture:
            return std::make_unique<Win32Picture>(place);
        case ControlKind::ImageBox:
            return std::make_unique<Win32ImageBox>(place);
        case ControlKind::PictureBox:
            return std::make_unique<Win32PictureBox>(place);
        case ControlKind::Tab:
            return std::make_unique<Win32TabControl>(place);
        case ControlKind::TabPage:
            return std::make_unique<Win32TabPage>(place);
        case ControlKind::Timer:
            break;
    }
    // A kind that no table may have.
    std::abort();
}

void Win32Form::TakeIcons() {
    if (table_.kind == FormKind::Splash) {
        // Stands neither in the task bar nor has it a caption.
        return;
    }
    const auto load = [this](int metric) {
        const int size = GetSystemMetricsForDpi(metric, static_cast<UINT>(screenDpi_));
        return UniqueIcon(static_cast<HICON>(LoadImageW(session_.instance, MAKEINTRESOURCEW(1),
                                                        IMAGE_ICON, size, size, LR_DEFAULTCOLOR)));
    };
    UniqueIcon small = load(SM_CXSMICON);
    UniqueIcon large = load(SM_CXICON);
    SendMessageW(window_.Get(), WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(small.Get()));
    SendMessageW(window_.Get(), WM_SETICON, ICON_BIG, reinterpret_cast<LPARAM>(large.Get()));
    smallIcon_ = std::move(small);
    largeIcon_ = std::move(large);
}

}  // namespace zentar
