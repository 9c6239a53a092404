// The First Aid tab.
#pragma once

#include <span>

#include "platform/form_table.h"

namespace zentar {

std::span<const ControlRow> FirstAidTabControlRows();

}  // namespace zentar
