// What becomes of a file in a decoder.
#pragma once

#include <optional>
#include <string>

#include "tests/unit/nviewlib/canvas.h"

namespace nviewlib::testing {

// What a decoder did with a file. It drew the same into both directions.
struct Outcome {
    std::optional<Picture> picture = {};  // none when the file was refused
    int asked = 0;
};

Outcome Decode(Decoder decoder, const std::string& file);

}  // namespace nviewlib::testing
