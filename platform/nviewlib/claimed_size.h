// What a JPG, BMP or GIF file says of itself, looked at before a decoder takes memory for it: the
// system's decoders ask for memory first and look for the pixels afterwards.
#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "platform/nviewlib/raster.h"

namespace nviewlib {

enum class FileKind : std::uint8_t { Jpg, Bmp, Gif };

struct Claim {
    FileKind kind = FileKind::Jpg;
    ImageSize size;
    // What a decoder may take besides the file and the pixels that it gives.
    std::int64_t decoderBytes = 0;
};

// Nothing when the bytes are no file of these kinds, say nothing clear, or are too few for an image
// of the size that they claim. Later parts of the file may still be broken.
[[nodiscard]] std::optional<Claim> ReadClaim(std::span<const std::uint8_t> file);
[[nodiscard]] std::optional<Claim> ReadJpgClaim(std::span<const std::uint8_t> file);
[[nodiscard]] std::optional<Claim> ReadBmpClaim(std::span<const std::uint8_t> file);
[[nodiscard]] std::optional<Claim> ReadGifClaim(std::span<const std::uint8_t> file);

// Whether decoding takes no more pixels and no more memory than one file may.
[[nodiscard]] bool Affordable(const Claim& claim, std::size_t fileBytes);

}  // namespace nviewlib
