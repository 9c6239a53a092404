// The Misc tab's part of the main window's table.
#pragma once

#include <span>

#include "platform/form_table.h"

namespace zentar {

std::span<const ControlRow> MiscTabControlRows();

}  // namespace zentar
