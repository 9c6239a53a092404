// Encodes JPEG files: baseline, colour differences in half the resolution, with the tables of
// ITU-T Recommendation T.81, appendix K, in a JFIF 1.02 file.
//
// Windows has an encoder as well, but Wine's does not look at the quality.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "platform/nviewlib/raster.h"

namespace nviewlib {

// The file's bytes; nothing for an image that is longer or wider than such a file can say. Quality
// 0 to 100 scales the tables for quantisation: 50 leaves them, 100 loses least.
[[nodiscard]] std::optional<std::vector<std::uint8_t>> EncodeJpg(const Raster& raster,
                                                                 ImageSize size, int quality);

}  // namespace nviewlib
