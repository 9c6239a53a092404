// Rich text read in as plain a way as can be, for comparison: what holds for a piece is looked for
// backwards, each time anew.
#pragma once

#include <string_view>
#include <vector>

#include "platform/rich_text.h"

namespace zentar::testing {

// Groups may be as deep as they like, and the text as long; it takes its time.
std::vector<ColouredRun> PlainReadRtf(std::string_view bytes);

}  // namespace zentar::testing
