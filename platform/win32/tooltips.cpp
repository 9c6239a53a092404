#include "platform/win32/tooltips.h"

#include <commctrl.h>

#include <algorithm>

#include "platform/win32/units.h"
#include "platform/win32/win32_text.h"

namespace zentar {
namespace {

constexpr int kWidestTip = 320;      // units; a longer text wraps
constexpr int kReadingTime = 20000;  // milliseconds

}  // namespace

void Tooltips::CreateTipWindow() {
    window_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                              WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, CW_USEDEFAULT, CW_USEDEFAULT,
                              CW_USEDEFAULT, CW_USEDEFAULT, form_, nullptr, instance_, nullptr);
    SendMessageW(window_, TTM_SETDELAYTIME, TTDT_AUTOPOP, kReadingTime);
    SetWidth();
    for (const Tip& tip : tips_) {
        SendTool(TTM_ADDTOOLW, tip);
    }
}

void Tooltips::Set(HWND control, const std::string& text) {
    const auto tip = std::find_if(tips_.begin(), tips_.end(),
                                  [control](const Tip& each) { return each.control == control; });
    if (tip == tips_.end()) {
        if (!text.empty()) {
            tips_.push_back({control, text});
            SendTool(TTM_ADDTOOLW, tips_.back());
        }
        return;
    }
    tip->text = text;
    if (!text.empty()) {
        SendTool(TTM_UPDATETIPTEXTW, *tip);
        return;
    }
    SendTool(TTM_DELTOOLW, *tip);
    tips_.erase(tip);
}

// Nothing to tell anyone while there is no tip window: it takes all tips once it is made.
void Tooltips::SendTool(UINT message, const Tip& tip) const {
    if (window_ == nullptr) {
        return;
    }
    std::wstring wide = Widen(tip.text);
    TTTOOLINFOW tool{};
    // The size that both versions of the common controls know.
    tool.cbSize = TTTOOLINFOW_V1_SIZE;
    tool.uFlags = TTF_IDISHWND | TTF_TRANSPARENT;  // a tip is never in the mouse's way
    tool.hwnd = form_;
    tool.uId = reinterpret_cast<UINT_PTR>(tip.control);
    tool.lpszText = wide.data();
    SendMessageW(window_, message, 0, reinterpret_cast<LPARAM>(&tool));
}

void Tooltips::SetDpi(int dpi) {
    dpi_ = dpi;
    if (window_ != nullptr) {
        SetWidth();
    }
}

void Tooltips::SetWidth() const {
    SendMessageW(window_, TTM_SETMAXTIPWIDTH, 0, PixelsOfUnits(kWidestTip, dpi_));
}

void Tooltips::Relay(const MSG& message) {
    if (message.message < WM_MOUSEFIRST || message.message > WM_MOUSELAST) {
        return;
    }
    if (window_ == nullptr) {
        CreateTipWindow();
    }
    MSG copy = message;
    SendMessageW(window_, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&copy));
}

}  // namespace zentar
