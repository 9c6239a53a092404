// The images that the benchmarks decode, and the memory into which they do it.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "platform/nviewlib/raster.h"

namespace zentar::benchmarks {

using Decoder = bool (*)(std::span<const std::uint8_t>, const nviewlib::RasterMaker&);

struct SampleImage {
    std::string kind;       // "tga 24 packets"
    std::string extension;  // with the dot
    std::string file;
    Decoder decoder = nullptr;
};

// A game's view of that size in each way in which games write it. Always the same.
std::vector<SampleImage> SampleImages(int width, int height);

// As a bitmap of Windows has its pixels: lines bottom up, each a multiple of four bytes.
class BottomUpPicture {
  public:
    explicit BottomUpPicture(nviewlib::ImageSize size);

    nviewlib::ImageSize Size() const { return size_; }
    nviewlib::Raster Pixels() const;

  private:
    nviewlib::ImageSize size_;
    std::ptrdiff_t pitch_;
    std::unique_ptr<std::uint8_t[]> bytes_;
};

// Nothing when the bytes were not decoded.
std::optional<BottomUpPicture> Decode(Decoder decoder, std::span<const std::uint8_t> bytes);

}  // namespace zentar::benchmarks
