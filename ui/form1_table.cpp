// Form1, the splash window.

#include "core/program_info.h"
#include "ui/form_tables.h"
#include "ui/resource.h"

namespace zentar {

const FormTable& SplashTable() {
    static const ControlRow controls[] = {
        {.id = IDC_labLoading,
         .kind = ControlKind::Label,
         .rect = {16, 22, 268, 34},
         .caption = "Zentar",
         .flags = Heading | Centred},
        {.id = IDC_labVersion,
         .kind = ControlKind::Label,
         .rect = {16, 64, 268, 18},
         .caption = kVersion,
         .flags = Centred},
    };
    static const FormTable table = {.id = IDW_Form1,
                                    .kind = FormKind::Splash,
                                    .caption = "Loading Zentar",
                                    .clientSize = {300, 104},
                                    .controls = controls,
                                    .menus = {}};
    return table;
}

}  // namespace zentar
