#include "tests/contract/win32/system_dialog.h"

#include <chrono>
#include <cstddef>
#include <utility>

#include <gtest/gtest.h>

#include "platform/win32/win32_text.h"
#include "tests/contract/win32/win32_user.h"

namespace zentar {
namespace {

using Clock = std::chrono::steady_clock;

constexpr auto kPatience = std::chrono::seconds(20);

BOOL CALLBACK CancelDialog(HWND window, LPARAM /*unused*/) {
    wchar_t windowClass[16] = L"";
    GetClassNameW(window, windowClass, 16);
    if (windowClass == std::wstring(L"#32770"))
        PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
    return TRUE;
}

// The control, if a user can reach it by now.
HWND ControlIn(const std::string& title, int id) {
    const HWND dialog = FindDialog(title);
    const HWND control = dialog == nullptr ? nullptr : GetDlgItem(dialog, id);
    return control != nullptr && MouseReaches(control) ? control : nullptr;
}

}  // namespace

class DialogUser::Work {
  public:
    explicit Work(DialogSteps steps) : steps_(std::move(steps)) {}

    void Go() {
        if (late_) {
            // Again and again, as one dialog may lie over another.
            EnumThreadWindows(GetCurrentThreadId(), CancelDialog, 0);
        } else if (at_ < steps_.size() && steps_[at_]()) {
            ++at_;
            end_ = Clock::now() + kPatience;
        } else if (Clock::now() > end_) {
            late_ = true;
            ADD_FAILURE() << (at_ < steps_.size() ? "a step never works: number " : "stays after ")
                          << at_;
        }
    }

  private:
    DialogSteps steps_;
    std::size_t at_ = 0;
    Clock::time_point end_ = Clock::now() + kPatience;
    bool late_ = false;
};

DialogUser::DialogUser(DialogSteps steps) : work_(std::make_shared<Work>(std::move(steps))) {
    TryMeanwhile([weak = std::weak_ptr<Work>(work_)] {
        const std::shared_ptr<Work> work = weak.lock();
        if (work)
            work->Go();
        return work == nullptr;
    });
}

DialogUser::~DialogUser() = default;

HWND FindDialog(const std::string& title) {
    const HWND dialog = FindTopWindow(title);
    return dialog != nullptr && IsWindowVisible(dialog) ? dialog : nullptr;
}

std::string TextOf(HWND window) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(
        GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return Narrow(text);
}

std::function<bool()> ClickButton(const std::string& title, int button) {
    return [title, button] {
        const HWND window = ControlIn(title, button);
        if (window == nullptr)
            return false;
        PostClick(window, MiddleOf(window));
        return true;
    };
}

std::function<bool()> TypeInto(const std::string& title, int textBox, const std::string& text) {
    return [title, textBox, text, typed = false]() mutable {
        const HWND window = ControlIn(title, textBox);
        if (window == nullptr)
            return false;
        if (!std::exchange(typed, true)) {
            SetFocus(window);
            SendMessageW(window, EM_SETSEL, 0, -1);
            PostText(window, text);
        }
        return TextOf(window) == text;
    };
}

std::function<bool()> PressKeyIn(const std::string& title, int control, WPARAM virtualKey) {
    return [title, control, virtualKey] {
        const HWND window = ControlIn(title, control);
        if (window == nullptr)
            return false;
        PostKey(window, virtualKey);
        return true;
    };
}

}  // namespace zentar
