// The Shots tab's part of the main window's table.
#pragma once

#include <span>

#include "platform/form_table.h"

namespace zentar {

std::span<const ControlRow> ShotsTabControlRows();
std::span<const MenuRow> ShotsMenuRows();

}  // namespace zentar
