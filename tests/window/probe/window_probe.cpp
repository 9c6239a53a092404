// The hook procedure that runs inside the program under test.
#include "tests/window/probe/probe_protocol.h"

#include <commctrl.h>
#include <shlobj.h>

#include <initializer_list>

namespace zentar::window_tests {
namespace {

void LookAtMenu(const CWPSTRUCT& message, ProbeAnswer& answer) {
    const HMENU menu =
        message.wParam != 0 ? reinterpret_cast<HMENU>(message.wParam) : GetMenu(message.hwnd);
    const auto id = static_cast<UINT>(message.lParam);
    answer.menuState = GetMenuState(menu, id, MF_BYCOMMAND);
    answer.text[0] = L'\0';
    GetMenuStringW(menu, id, answer.text, static_cast<int>(ARRAYSIZE(answer.text)), MF_BYCOMMAND);
}

void LookAtIcon(HWND control, ProbeAnswer& answer) {
    const auto shown = reinterpret_cast<HICON>(SendMessageW(control, STM_GETICON, 0, 0));
    answer.systemIcon = 0;
    for (const wchar_t* icon : {IDI_INFORMATION, IDI_WARNING, IDI_QUESTION, IDI_ERROR}) {
        if (LoadIconW(nullptr, icon) == shown) {
            answer.systemIcon = reinterpret_cast<ULONG_PTR>(icon);
        }
    }
}

// The room of a label's text in its font, wrapped at the label's width.
SIZE LabelSize(HWND label) {
    RECT area{};
    GetClientRect(label, &area);
    wchar_t text[512] = {};
    GetWindowTextW(label, text, static_cast<int>(ARRAYSIZE(text)));
    const HDC context = GetDC(label);
    const HGDIOBJ before =
        SelectObject(context, reinterpret_cast<HFONT>(SendMessageW(label, WM_GETFONT, 0, 0)));
    DrawTextW(context, text, -1, &area, DT_CALCRECT | DT_WORDBREAK | DT_EXPANDTABS);
    SelectObject(context, before);
    ReleaseDC(label, context);
    return {area.right, area.bottom};
}

void LookAtCaption(HWND control, ProbeAnswer& answer) {
    wchar_t kind[32] = {};
    GetClassNameW(control, kind, static_cast<int>(ARRAYSIZE(kind)));
    if (lstrcmpiW(kind, L"Static") == 0) {
        answer.needed = LabelSize(control);
    } else {
        // Of a width, it is asked how high a caption of several lines then is.
        RECT area{};
        GetClientRect(control, &area);
        const bool wraps = (GetWindowLongW(control, GWL_STYLE) & BS_MULTILINE) != 0;
        answer.needed.cx = wraps ? area.right : 0;
        SendMessageW(control, BCM_GETIDEALSIZE, 0, reinterpret_cast<LPARAM>(&answer.needed));
    }
}

void LookAtQueue(ProbeAnswer& answer) {
    answer.busy = HIWORD(GetQueueStatus(QS_INPUT | QS_POSTMESSAGE | QS_PAINT)) != 0;
}

void PickFolder(HWND picker, ProbeAnswer& answer) {
    SendMessageW(picker, BFFM_SETSELECTIONW, TRUE, reinterpret_cast<LPARAM>(answer.text));
}

// The size is a wish; the window makes of it what it needs.
void ChangeDpi(HWND window, WPARAM dpi) {
    RECT place{};
    GetWindowRect(window, &place);
    SendMessageW(window, WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&place));
}

enum class Question { None, Menu, Icon, Caption, Queue, Pick, Dpi };

Question QuestionOf(UINT message) {
    static const UINT menu = RegisterWindowMessageW(kProbeMenuMessage);
    static const UINT icon = RegisterWindowMessageW(kProbeIconMessage);
    static const UINT caption = RegisterWindowMessageW(kProbeCaptionMessage);
    static const UINT queue = RegisterWindowMessageW(kProbeQueueMessage);
    static const UINT pick = RegisterWindowMessageW(kProbePickMessage);
    static const UINT dpi = RegisterWindowMessageW(kProbeDpiMessage);
    if (message == menu) {
        return Question::Menu;
    }
    if (message == icon) {
        return Question::Icon;
    }
    if (message == caption) {
        return Question::Caption;
    }
    if (message == pick) {
        return Question::Pick;
    }
    if (message == dpi) {
        return Question::Dpi;
    }
    return message == queue ? Question::Queue : Question::None;
}

void Answer(Question question, const CWPSTRUCT& message, ProbeAnswer& answer) {
    switch (question) {
        case Question::Menu:
            return LookAtMenu(message, answer);
        case Question::Icon:
            return LookAtIcon(message.hwnd, answer);
        case Question::Caption:
            return LookAtCaption(message.hwnd, answer);
        case Question::Queue:
            return LookAtQueue(answer);
        case Question::Pick:
            return PickFolder(message.hwnd, answer);
        case Question::Dpi:
            return ChangeDpi(message.hwnd, message.wParam);
        case Question::None:
            return;
    }
}

void OnSentMessage(const CWPSTRUCT& message) {
    const Question question = QuestionOf(message.message);
    if (question == Question::None) {
        return;
    }
    const HANDLE memory = OpenFileMappingW(FILE_MAP_WRITE, FALSE, kProbeMemory);
    void* answer = MapViewOfFile(memory, FILE_MAP_WRITE, 0, 0, sizeof(ProbeAnswer));
    if (answer != nullptr) {
        Answer(question, message, *static_cast<ProbeAnswer*>(answer));
        UnmapViewOfFile(answer);
    }
    CloseHandle(memory);
}

}  // namespace
}  // namespace zentar::window_tests

extern "C" __declspec(dllexport) LRESULT CALLBACK
    ProbeHook(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HC_ACTION) {
        zentar::window_tests::OnSentMessage(*reinterpret_cast<const CWPSTRUCT*>(lParam));
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}
