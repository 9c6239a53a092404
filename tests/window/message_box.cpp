#include "tests/window/message_box.h"

#include <algorithm>
#include <stdexcept>

#include "tests/window/user_input.h"
#include "tests/window/waiting.h"
#include "tests/window/window_probe_client.h"
#include "tests/window/windows_of.h"

namespace zentar::window_tests {

namespace {

bool HasStyle(HWND window, LONG mask, LONG style) {
    return (GetWindowLongW(window, GWL_STYLE) & mask) == style;
}

bool ShowsIcon(HWND label) {
    return HasStyle(label, SS_TYPEMASK, SS_ICON) || Send(label, STM_GETICON) != 0;
}

BoxIcon IconOf(ULONG_PTR systemIcon) {
    if (systemIcon == reinterpret_cast<ULONG_PTR>(IDI_INFORMATION)) {
        return BoxIcon::Information;
    }
    if (systemIcon == reinterpret_cast<ULONG_PTR>(IDI_WARNING)) {
        return BoxIcon::Exclamation;
    }
    if (systemIcon == reinterpret_cast<ULONG_PTR>(IDI_QUESTION)) {
        return BoxIcon::Question;
    }
    return systemIcon == reinterpret_cast<ULONG_PTR>(IDI_ERROR) ? BoxIcon::Critical : BoxIcon::None;
}

void ReadButton(HWND button, BoxContents& contents) {
    contents.buttons.push_back(GetDlgCtrlID(button));
    if (HasStyle(button, BS_TYPEMASK, BS_DEFPUSHBUTTON)) {
        contents.defaultButton = GetDlgCtrlID(button);
    }
}

}  // namespace

BoxContents ReadBox(HWND box, const WindowProbe& probe) {
    BoxContents contents;
    contents.title = TextOf(box);
    for (const HWND child : Descendants(box)) {
        const std::string kind = ClassOf(child);
        if (!IsWindowVisible(child)) {
            continue;
        }
        if (kind == "Button") {
            ReadButton(child, contents);
        } else if (kind == "Static" && ShowsIcon(child)) {
            contents.icon = IconOf(probe.SystemIconOf(child));
        } else if (contents.text.empty()) {
            contents.text = TextOf(child);
        }
    }
    std::sort(contents.buttons.begin(), contents.buttons.end());
    return contents;
}

void AnswerBox(HWND box, int button) {
    const HWND control = Found(FindControl(box, button), "button " + std::to_string(button));
    Ready(box);
    Click(CentreOf(control));
    if (!Eventually([box] { return IsGone(box); }, kBeforeTryingAgain)) {
        // The click may have gone beside it. Another one might come too late and go behind it.
        PostMessageW(control, BM_CLICK, 0, 0);
    }
    WaitUntilGone(box);
}

std::string BoxLines(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += (text.empty() ? "" : "\r\n") + line;
    }
    return text;
}

void PrintTo(const BoxContents& box, std::ostream* out) {
    *out << "box \"" << box.title << "\", icon " << static_cast<int>(box.icon) << ", buttons";
    for (const int button : box.buttons) {
        *out << ' ' << button;
    }
    *out << ", default " << box.defaultButton << ", text:\n" << box.text;
}

}  // namespace zentar::window_tests
