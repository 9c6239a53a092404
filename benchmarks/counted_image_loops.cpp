#include <optional>
#include <span>
#include <vector>

#include "benchmarks/counted_loops.h"
#include "benchmarks/sample_images.h"
#include "platform/nviewlib/jpg_encoder.h"
#include "platform/nviewlib/scaler.h"

namespace zentar::benchmarks {

namespace {

constexpr int kWidth = 640;
constexpr int kHeight = 480;
constexpr nviewlib::ImageSize kPreview = {320, 240};
constexpr nviewlib::ImageSize kScreen = {1024, 768};
constexpr int kQuality = 80;

std::uint64_t PixelsOf(nviewlib::ImageSize size) {
    return static_cast<std::uint64_t>(size.width) * static_cast<std::uint64_t>(size.height);
}

std::span<const std::uint8_t> BytesOf(const std::string& file) {
    return {reinterpret_cast<const std::uint8_t*>(file.data()), file.size()};
}

void CountScaling(LoopCounter& counter, const CountedLoop& loop, const BottomUpPicture& picture,
                  nviewlib::ImageSize size) {
    const BottomUpPicture scaled(size);
    std::uint8_t* const corner = scaled.Pixels().top;
    // No view of a game is so blue.
    constexpr std::uint8_t kUntouched = 255;
    *corner = kUntouched;
    counter.Count(
        loop, [&] { nviewlib::Scale(picture.Pixels(), picture.Size(), scaled.Pixels(), size); },
        [&] { return *corner != kUntouched; });
}

void CountConversions(LoopCounter& counter, const BottomUpPicture& picture) {
    const std::uint64_t pixels = PixelsOf(picture.Size());
    std::optional<std::vector<std::uint8_t>> jpg;
    counter.Count(
        {"JPG written", "640 x 480, quality 80", "pixel", pixels},
        [&] { jpg = nviewlib::EncodeJpg(picture.Pixels(), picture.Size(), kQuality); },
        [&] { return jpg.has_value(); });
    CountScaling(counter, {"picture made smaller", "640 x 480 to 320 x 240", "pixel read", pixels},
                 picture, kPreview);
    CountScaling(
        counter,
        {"picture made larger", "640 x 480 to 1024 x 768", "pixel written", PixelsOf(kScreen)},
        picture, kScreen);
}

}  // namespace

void CountImageLoops(LoopCounter& counter) {
    const std::vector<SampleImage> images = SampleImages(kWidth, kHeight);
    std::optional<BottomUpPicture> picture;
    for (const SampleImage& image : images) {
        counter.Count(
            {"decoder, " + image.kind, "640 x 480", "pixel", kWidth * kHeight},
            [&] { picture = Decode(image.decoder, BytesOf(image.file)); },
            [&] { return picture.has_value(); });
    }
    CountConversions(counter, Decode(images.front().decoder, BytesOf(images.front().file)).value());
}

}  // namespace zentar::benchmarks
