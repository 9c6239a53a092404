// The Q3 Text tab.
#pragma once

#include <span>

#include "platform/form_table.h"

namespace zentar {

std::span<const ControlRow> Q3TextTabControlRows();

}  // namespace zentar
