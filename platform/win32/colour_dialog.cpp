#include "platform/win32/colour_dialog.h"

#include <commdlg.h>

namespace zentar {

ColourDialog::ColourDialog(Win32Session& session) : session_(session) {
    mixed_.fill(RGB(255, 255, 255));
}

// Opens whole: a colour that is not one of the basic ones would be seen nowhere in the smaller
// form.
std::optional<ColourRef> ColourDialog::Show(ColourRef shown) {
    CHOOSECOLORW choose{};
    choose.lStructSize = sizeof choose;
    choose.hwndOwner = session_.forms.DialogOwner();
    choose.rgbResult = shown;
    choose.lpCustColors = mixed_.data();
    choose.Flags = CC_RGBINIT | CC_FULLOPEN | CC_ANYCOLOR;
    const OtherFormsDisabled others(session_.forms, choose.hwndOwner);
    if (!ChooseColorW(&choose)) {
        return std::nullopt;
    }
    return choose.rgbResult;
}

}  // namespace zentar
