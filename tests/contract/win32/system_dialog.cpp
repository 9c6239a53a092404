#include "tests/contract/win32/system_dialog.h"

#include <cstddef>
#include <utility>

#include "tests/contract/win32/win32_user.h"

namespace zentar {
namespace {

// The control, if a user can reach it by now.
HWND ControlIn(const std::string& title, int id) {
    const HWND dialog = FindDialog(title);
    const HWND control = dialog == nullptr ? nullptr : GetDlgItem(dialog, id);
    return control != nullptr && MouseReaches(control) ? control : nullptr;
}

// Tries the steps from that one on, for as long as somebody has them.
void TryFrom(std::size_t at, const std::weak_ptr<const DialogSteps>& weak) {
    TryMeanwhile("step " + std::to_string(at) + " of the user", [at, weak] {
        const std::shared_ptr<const DialogSteps> steps = weak.lock();
        if (steps == nullptr)
            return true;
        if (at == steps->size() || !(*steps)[at]())
            return false;
        TryFrom(at + 1, weak);
        return true;
    });
}

}  // namespace

DialogUser::DialogUser(DialogSteps steps)
    : steps_(std::make_shared<const DialogSteps>(std::move(steps))) {
    TryFrom(0, steps_);
}

HWND FindDialog(const std::string& title) {
    const HWND dialog = FindTopWindow(title);
    return dialog != nullptr && IsWindowVisible(dialog) ? dialog : nullptr;
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
