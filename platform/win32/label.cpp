#include "platform/win32/label.h"

#include "platform/win32/units.h"

namespace zentar {
ControlStyle Win32Label::Style() const {
    const ControlRow& row = Row();
    // SS_NOTIFY makes the mouse see the label at all, for its tooltip.
    const DWORD alignment = (row.flags & Centred) != 0 ? SS_CENTER : SS_LEFT;
    const DWORD prefix = (row.flags & PairsOfAmpersands) != 0 ? 0 : SS_NOPREFIX;
    return {L"STATIC", prefix | SS_NOTIFY | WS_GROUP | alignment |
                           ((row.flags & BreaksWords) != 0 ? SS_EDITCONTROL : 0) |
                           (row.rect.height < kTwoLines ? SS_ENDELLIPSIS : 0)};
}

}  // namespace zentar
