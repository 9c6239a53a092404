#include "tests/window/colour_dialog.h"

#include <colordlg.h>

#include <array>
#include <stdexcept>
#include <string>

#include "tests/window/message_box.h"
#include "tests/window/user_input.h"
#include "tests/window/waiting.h"
#include "tests/window/windows_of.h"

namespace zentar::window_tests {

namespace {

struct Part {
    int box;
    int shift;  // of its byte in the colour
};
constexpr std::array<Part, 3> kParts = {{{COLOR_RED, 0}, {COLOR_GREEN, 8}, {COLOR_BLUE, 16}}};

void TypePart(HWND box, const std::string& number) {
    const bool typed = Eventually([&] {
        Click(CentreOf(box));
        Send(box, EM_SETSEL, 0, -1);
        Type(number);
        return Eventually([&] { return TextOf(box) == number; }, std::chrono::seconds(2));
    });
    if (!typed) {
        throw std::runtime_error("the dialog for a colour does not take the number " + number);
    }
}

}  // namespace

HWND WaitForColourDialog(DWORD process) {
    const HWND dialog = Eventually([process]() -> HWND {
        const HWND top = FindTop(process, "#32770", "Color");
        return top != nullptr && IsUsable(GetDlgItem(top, COLOR_RED)) ? top : nullptr;
    });
    if (dialog == nullptr) {
        throw std::runtime_error("never saw the dialog for a colour");
    }
    return dialog;
}

void ChooseColour(HWND colourDialog, COLORREF colour) {
    for (const Part& part : kParts) {
        TypePart(GetDlgItem(colourDialog, part.box), std::to_string(colour >> part.shift & 0xFF));
    }
    AnswerBox(colourDialog, IDOK);
}

void CancelColourDialog(HWND colourDialog) { AnswerBox(colourDialog, IDCANCEL); }

}  // namespace zentar::window_tests
