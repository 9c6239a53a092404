// The frame "Chat Transcript" of the Misc tab.
#pragma once

#include <vector>

#include "platform/form_table.h"

namespace zentar {

const std::vector<ControlRow>& ChatFrameControlRows();

}  // namespace zentar
