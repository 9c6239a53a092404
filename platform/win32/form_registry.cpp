#include "platform/win32/form_registry.h"

#include <algorithm>

namespace zentar {

void FormRegistry::Add(FormWindow& form) { forms_.push_back(&form); }

void FormRegistry::Remove(FormWindow& form) { std::erase(forms_, &form); }

void FormRegistry::MoveToFront(FormWindow& form) {
    const auto at = std::find(forms_.begin(), forms_.end(), &form);
    if (at != forms_.end()) {
        std::rotate(forms_.begin(), at, at + 1);
    }
}

FormWindow* FormRegistry::FormOf(HWND window) const {
    const HWND root = GetAncestor(window, GA_ROOT);
    const auto at = std::find_if(forms_.begin(), forms_.end(), [root](const FormWindow* form) {
        return root != nullptr && form->Window() == root;
    });
    return at == forms_.end() ? nullptr : *at;
}

HWND FormRegistry::DialogOwner() const {
    const HWND active = GetActiveWindow();
    if (active != nullptr && IsWindowVisible(active)) {
        return GetLastActivePopup(active);
    }
    for (const FormWindow* form : forms_) {
        if (IsWindowVisible(form->Window())) {
            return GetLastActivePopup(form->Window());
        }
    }
    return nullptr;
}

void FormRegistry::ResumeAll() const {
    const std::vector<FormWindow*> forms = forms_;
    for (FormWindow* form : forms) {
        form->Resume();
    }
}

OtherFormsDisabled::OtherFormsDisabled(const FormRegistry& forms, HWND except) {
    for (const FormWindow* form : forms.Forms()) {
        const HWND window = form->Window();
        if (window != except && IsWindowEnabled(window)) {
            EnableWindow(window, FALSE);
            disabled_.push_back(window);
        }
    }
}

void OtherFormsDisabled::Restore() {
    for (const HWND window : disabled_) {
        EnableWindow(window, TRUE);
    }
    disabled_.clear();
}

}  // namespace zentar
