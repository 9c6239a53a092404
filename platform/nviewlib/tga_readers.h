// Read the pixels of a TGA file one after the other, as they are written, into lines of a raster.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>

#include "platform/nviewlib/tga_pixels.h"

namespace nviewlib {

// A packet is a byte that tells its kind and its number of pixels, and then that many pixels, or
// one that is repeated.
inline constexpr std::size_t kMostInPacket = 128;

template <class Pixel>
class TgaRawReader {
  public:
    TgaRawReader(std::span<const std::uint8_t> bytes, Pixel pixel)
        : at_(bytes.data()), left_(bytes.size()), pixel_(pixel) {}

    // Whether there were `count` more pixels.
    bool Read(std::uint8_t* to, std::size_t count) {
        const std::size_t bytes = count * Pixel::kBytes;
        if (left_ < bytes) {
            return false;
        }
        Convert(pixel_, at_, count, to);
        at_ += bytes;
        left_ -= bytes;
        return true;
    }

  private:
    const std::uint8_t* at_;
    std::size_t left_;
    Pixel pixel_;
};

// Packets may go on in the next line, as many programs write them, and the last one may tell more
// pixels than the image has.
template <class Pixel>
class TgaPacketReader {
  public:
    TgaPacketReader(std::span<const std::uint8_t> bytes, Pixel pixel)
        : at_(bytes.data()), end_(bytes.data() + bytes.size()), pixel_(pixel) {}

    bool Read(std::uint8_t* to, std::size_t count) {
        while (count > 0) {
            if (inPacket_ == 0 && !BeginPacket()) {
                return false;
            }
            const std::size_t now = std::min(count, inPacket_);
            if (repeated_) {
                PutPixels(to, now, [colour = colour_](std::size_t) { return colour; });
            } else {
                const std::size_t bytes = now * Pixel::kBytes;
                if (Left() < bytes) {
                    return false;
                }
                Convert(pixel_, at_, now, to);
                at_ += bytes;
            }
            inPacket_ -= now;
            to += now * kPixelBytes;
            count -= now;
        }
        return true;
    }

  private:
    std::size_t Left() const { return static_cast<std::size_t>(end_ - at_); }

    bool BeginPacket() {
        if (Left() < 1 + Pixel::kBytes) {
            return false;
        }
        repeated_ = (*at_ & 0x80U) != 0;
        inPacket_ = (*at_ & 0x7FU) + std::size_t{1};
        ++at_;
        if (repeated_) {
            colour_ = pixel_(at_);
            at_ += Pixel::kBytes;
        }
        return true;
    }

    const std::uint8_t* at_;
    const std::uint8_t* end_;
    Pixel pixel_;
    std::size_t inPacket_ = 0;  // pixels of the packet that are not read yet
    bool repeated_ = false;
    Colour colour_;
};

}  // namespace nviewlib
