#include "tests/window/colour_dialog.h"

#include <colordlg.h>

#include <array>
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

}  // namespace

HWND WaitForColourDialog(DWORD process) {
    return Ready(Found(Eventually([process]() -> HWND {
                           const HWND top = FindTop(process, kDialogClass, "Color");
                           return IsUsable(GetDlgItem(top, COLOR_RED)) ? top : nullptr;
                       }),
                       "the dialog for a colour"));
}

void ChooseColour(HWND colourDialog, COLORREF colour) {
    for (const Part& part : kParts) {
        TypeOver(GetDlgItem(colourDialog, part.box), std::to_string(colour >> part.shift & 0xFF));
    }
    AnswerBox(colourDialog, IDOK);
}

void CancelColourDialog(HWND colourDialog) { AnswerBox(colourDialog, IDCANCEL); }

}  // namespace zentar::window_tests
