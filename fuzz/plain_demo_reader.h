// The demo formats' rules once more, one byte after the other and without regard to speed: what
// the fuzz targets hold the real readers against.
#pragma once

#include <string_view>

#include "demos/demo_header.h"
#include "fuzz/fuzz_file.h"

namespace zentar::fuzz {

struct PlainHeader {
    bool isDemo = false;
    std::string map;
    std::string name;
    Q3Generation generation = Q3Generation::None;
};

PlainHeader PlainQuake1(std::string_view file);
PlainHeader PlainQuake2(std::string_view file);
PlainHeader PlainQuake3(std::string_view file, bool neverRejected);

// Ends the run when the reader's result differs, or when it read more than it promises.
void Compare(const PlainHeader& plain, const HeaderResult& result, const FuzzFile& file);

}  // namespace zentar::fuzz
