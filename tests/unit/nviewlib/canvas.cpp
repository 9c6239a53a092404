#include "tests/unit/nviewlib/canvas.h"

#include <algorithm>

namespace nviewlib::testing {

RasterMaker Canvas::Maker() {
    return [this](ImageSize size) {
        ++asked_;
        size_ = size;
        const auto height = static_cast<std::size_t>(size.height);
        const std::size_t pitch = LineBytes() + padding_;
        bytes_.assign(padding_ + height * pitch, blank_);
        const auto step = static_cast<std::ptrdiff_t>(pitch);
        return Raster{bytes_.data() + OffsetOf(0), direction_ == Direction::TopDown ? step : -step};
    };
}

std::size_t Canvas::OffsetOf(int y) const {
    const int line = direction_ == Direction::TopDown ? y : size_.height - 1 - y;
    return padding_ + static_cast<std::size_t>(line) * (LineBytes() + padding_);
}

std::span<const std::uint8_t> Canvas::Line(int y) const {
    return std::span(bytes_).subspan(OffsetOf(y), LineBytes());
}

bool Canvas::SameLines(const Canvas& other) const {
    for (int y = 0; y < size_.height; ++y) {
        if (!std::ranges::equal(Line(y), other.Line(y))) {
            return false;
        }
    }
    return size_ == other.size_;
}

bool Canvas::OutsideUntouched() const {
    const std::size_t pitch = LineBytes() + padding_;
    for (std::size_t gap = 0; gap < bytes_.size(); gap += pitch) {
        for (const std::uint8_t byte : std::span(bytes_).subspan(gap, padding_)) {
            if (byte != blank_) {
                return false;
            }
        }
    }
    return true;
}

Picture Canvas::Drawn() const {
    Picture picture{size_.width, size_.height, {}};
    for (int y = 0; y < size_.height; ++y) {
        const std::span<const std::uint8_t> line = Line(y);
        for (std::size_t at = 0; at < line.size(); at += 3) {
            picture.pixels.push_back({line[at + 2], line[at + 1], line[at]});
        }
    }
    return picture;
}

}  // namespace nviewlib::testing
