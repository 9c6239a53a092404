#include "benchmarks/sample_images.h"

#include "platform/nviewlib/pcx_decoder.h"
#include "platform/nviewlib/tga_decoder.h"
#include "tests/unit/nviewlib/image_maker.h"

namespace zentar::benchmarks {

std::vector<SampleImage> SampleImages(int width, int height) {
    using namespace nviewlib::testing;
    using nviewlib::DecodePcx;
    using nviewlib::DecodeTga;
    const Picture view = GameView(width, height);
    const Picture few = FewColours(width, height, 256);
    return {{"tga 24", ".tga", MakeTga(view, {}), DecodeTga},
            {"tga 32", ".tga", MakeTga(view, {.bits = 32}), DecodeTga},
            {"tga 24 packets", ".tga", MakeTga(view, {.type = 10}), DecodeTga},
            {"pcx 8", ".pcx", MakePcx(few, {.paletteType = 2, .realRuns = false}), DecodePcx},
            {"pcx 8 runs", ".pcx", MakePcx(few, {}), DecodePcx}};
}

BottomUpPicture::BottomUpPicture(nviewlib::ImageSize size)
    : size_(size),
      pitch_((std::ptrdiff_t{size.width} * 3 + 3) / 4 * 4),
      bytes_(std::make_unique_for_overwrite<std::uint8_t[]>(
          static_cast<std::size_t>(pitch_ * size.height))) {}

nviewlib::Raster BottomUpPicture::Pixels() const {
    return {bytes_.get() + (pitch_ * (size_.height - 1)), -pitch_};
}

std::optional<BottomUpPicture> Decode(Decoder decoder, std::span<const std::uint8_t> bytes) {
    std::optional<BottomUpPicture> picture;
    const bool done = decoder(bytes, [&picture](nviewlib::ImageSize size) {
        picture.emplace(size);
        return picture->Pixels();
    });
    if (!done) {
        picture.reset();
    }
    return picture;
}

}  // namespace zentar::benchmarks
