#include "platform/nviewlib/tga_decoder.h"

#include <algorithm>
#include <vector>

#include "platform/nviewlib/tga_header.h"
#include "platform/nviewlib/tga_readers.h"

namespace nviewlib {

namespace {

using Bytes = std::span<const std::uint8_t>;

// Whether so many bytes can be the pixels of the image, so that no one makes room for an image that
// a few bytes only claim to be.
bool CanHold(std::size_t bytes, const TgaHeader& header) {
    const std::int64_t pixels = std::int64_t{header.size.width} * header.size.height;
    if (pixels < 1 || pixels > kMostPixels) {
        return false;
    }
    const std::size_t each = BytesOf(header.pixel);
    const std::size_t most = header.runLength ? bytes / (each + 1) * kMostInPacket : bytes / each;
    return static_cast<std::size_t>(pixels) <= most;
}

void Mirror(std::uint8_t* line, std::size_t width) {
    std::uint8_t* left = line;
    std::uint8_t* right = line + ((width - 1) * kPixelBytes);
    for (; left < right; left += kPixelBytes, right -= kPixelBytes) {
        std::swap_ranges(left, left + kPixelBytes, right);
    }
}

template <class Reader>
bool ReadLines(Reader reader, const TgaHeader& header, const Raster& raster) {
    const auto width = static_cast<std::size_t>(header.size.width);
    for (int line = 0; line < header.size.height; ++line) {
        const int fromTop = header.fromTop ? line : header.size.height - 1 - line;
        std::uint8_t* to = raster.top + (fromTop * raster.pitch);
        if (!reader.Read(to, width)) {
            return false;
        }
        if (header.fromRight) {
            Mirror(to, width);
        }
    }
    return true;
}

template <class Pixel>
bool ReadPixels(Pixel pixel, const TgaHeader& header, Bytes bytes, const Raster& raster) {
    return header.runLength ? ReadLines(TgaPacketReader<Pixel>(bytes, pixel), header, raster)
                            : ReadLines(TgaRawReader<Pixel>(bytes, pixel), header, raster);
}

template <class Entry>
void ReadEntries(Entry entry, const std::uint8_t* from, std::span<Colour> table) {
    for (Colour& colour : table) {
        colour = entry(from);
        from += Entry::kBytes;
    }
}

// The colours of all indexes that a pixel can hold. Those that the map does not tell are black.
std::vector<Colour> ReadColourMap(const TgaHeader& header, Bytes file) {
    const TgaColourMap& map = header.map;
    std::vector<Colour> table(header.pixel == TgaPixel::Index8 ? 0x100 : 0x10000);
    const std::size_t begin = std::min(map.first, table.size());
    const std::size_t length = std::min(map.length, table.size() - begin);
    const std::span<Colour> told = std::span(table).subspan(begin, length);
    const std::uint8_t* const from = file.data() + map.at;
    if (map.entry == TgaPixel::Colour16) {
        ReadEntries(TgaColour16(), from, told);
    } else if (map.entry == TgaPixel::Colour24) {
        ReadEntries(TgaColour24(), from, told);
    } else {
        ReadEntries(TgaColour32(), from, told);
    }
    return table;
}

bool ReadImage(const TgaHeader& header, Bytes file, const Raster& raster) {
    const Bytes pixels = file.subspan(header.pixelsAt);
    switch (header.pixel) {
        case TgaPixel::Grey8:
            return ReadPixels(TgaGrey8(), header, pixels, raster);
        case TgaPixel::Grey16:
            return ReadPixels(TgaGrey16(), header, pixels, raster);
        case TgaPixel::Colour16:
            return ReadPixels(TgaColour16(), header, pixels, raster);
        case TgaPixel::Colour24:
            return ReadPixels(TgaColour24(), header, pixels, raster);
        case TgaPixel::Colour32:
            return ReadPixels(TgaColour32(), header, pixels, raster);
        case TgaPixel::Index8:
            return ReadPixels(TgaIndex8{ReadColourMap(header, file).data()}, header, pixels,
                              raster);
        case TgaPixel::Index16:
            return ReadPixels(TgaIndex16{ReadColourMap(header, file).data()}, header, pixels,
                              raster);
    }
    return false;
}

}  // namespace

bool DecodeTga(Bytes file, const RasterMaker& make) {
    const std::optional<TgaHeader> header = ReadTgaHeader(file);
    if (!header || !CanHold(file.size() - header->pixelsAt, *header)) {
        return false;
    }
    const Raster raster = make(header->size);
    return raster.top != nullptr && ReadImage(*header, file, raster);
}

}  // namespace nviewlib
