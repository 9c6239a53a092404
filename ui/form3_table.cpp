// Form3, the full-size viewer: a screen of its own for one screenshot.

#include "ui/form_tables.h"
#include "ui/resource.h"

namespace zentar {
namespace {

const ControlRow kRows[] = {
    {.id = IDC_picFull,
     .kind = ControlKind::PictureBox,
     .rect = {0, 0, 640, 480},
     .anchors = AnchorAll,
     .name = "Screenshot in full size",
     .cursor = IDC_CURSOR_DRAG},
};

}  // namespace

const FormTable& FullViewTable() {
    static const FormTable table = {.id = IDW_Form3,
                                    .kind = FormKind::FullScreen,
                                    .caption = "Zentar - Screenshot",
                                    .clientSize = {640, 480},
                                    .controls = kRows};
    return table;
}

}  // namespace zentar
