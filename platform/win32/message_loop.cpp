#include "platform/win32/message_loop.h"

namespace zentar {

void MessageLoop::Handle(MSG& message) const {
    FormWindow* form = forms_.FormOf(message.hwnd);
    if (form != nullptr && form->PreTranslate(message)) {
        return;
    }
    TranslateMessage(&message);
    DispatchMessageW(&message);
}

int MessageLoop::Run() const {
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        Handle(message);
    }
    return static_cast<int>(message.wParam);
}

void MessageLoop::RunWhile(const bool& goOn) const {
    MSG message{};
    while (goOn) {
        if (GetMessageW(&message, nullptr, 0, 0) <= 0) {
            // The outer loops must see it too.
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        Handle(message);
    }
}

void MessageLoop::RunPending() const {
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        Handle(message);
    }
}

}  // namespace zentar
