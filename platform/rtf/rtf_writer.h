// Writing characters and colours as rich text in the Rich Text Format (RTF 1.9.1), plain ASCII that
// every rich text editor reads.
#pragma once

#include <span>
#include <string>

#include "platform/rich_text.h"

namespace zentar {

// `runs` hold UTF-8; line ends in them become blanks.
std::string WriteRtf(std::span<const ColouredRun> runs);

}  // namespace zentar
