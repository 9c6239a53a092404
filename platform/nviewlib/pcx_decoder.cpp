#include "platform/nviewlib/pcx_decoder.h"

#include <array>

#include "platform/nviewlib/pcx_header.h"
#include "platform/nviewlib/pcx_lines.h"

namespace nviewlib {

namespace {

using Bytes = std::span<const std::uint8_t>;

// A palette of 256 colours is a mark and then red, green and blue of each.
constexpr std::size_t kColours = 256;
constexpr std::uint8_t kPaletteMark = 12;
constexpr std::size_t kPaletteBytes = 1 + (kColours * 3);

using Palette = std::array<Colour, kColours>;

// Whether so many bytes can be the lines of the image, so that no one makes room for an image that
// a few bytes only claim to be.
bool CanHold(std::size_t bytes, const PcxHeader& header) {
    return std::int64_t{header.size.width} * header.size.height <= kMostPixels &&
           header.LineBytes() * static_cast<std::size_t>(header.size.height) <=
               PcxLines::MostBytes(header, bytes);
}

bool IsPalette(Bytes bytes) {
    return bytes.size() >= kPaletteBytes && bytes.front() == kPaletteMark;
}

// The part of `bytes` from the palette on; empty when there is none. It is the end of the file. If
// it is not, something was put behind it, and the palette begins where the lines end.
Bytes FindPalette(const PcxHeader& header, Bytes bytes) {
    if (bytes.size() >= kPaletteBytes && IsPalette(bytes.last(kPaletteBytes))) {
        return bytes.last(kPaletteBytes);
    }
    PcxLines lines(header, bytes);
    for (int line = 0; line < header.size.height; ++line) {
        if (lines.Next() == nullptr) {
            return {};
        }
    }
    const Bytes rest = bytes.subspan(lines.Position());
    return IsPalette(rest) ? rest : Bytes();
}

Palette ReadPalette(Bytes bytes) {
    Palette palette{};
    const std::uint8_t* at = bytes.data() + 1;
    for (Colour& colour : palette) {
        colour = {at[2], at[1], at[0]};
        at += 3;
    }
    return palette;
}

// Asks for the raster, and fills it: `put(line, to)` makes pixels of a line of the file.
template <class PutLine>
bool ReadLines(const PcxHeader& header, Bytes bytes, const RasterMaker& make, PutLine put) {
    const Raster raster = make(header.size);
    if (raster.top == nullptr) {
        return false;
    }
    PcxLines lines(header, bytes);
    for (int y = 0; y < header.size.height; ++y) {
        const std::uint8_t* const line = lines.Next();
        if (line == nullptr) {
            return false;
        }
        put(line, raster.top + (y * raster.pitch));
    }
    return true;
}

// An image whose palette is not there was cut off, and what its colours were no one can tell.
bool ReadIndexed(const PcxHeader& header, Bytes bytes, const RasterMaker& make) {
    const Bytes found = FindPalette(header, bytes);
    const Bytes lines = bytes.first(bytes.size() - found.size());
    if (found.empty() || !CanHold(lines.size(), header)) {
        return false;
    }
    const Palette palette = ReadPalette(found);
    const auto width = static_cast<std::size_t>(header.size.width);
    return ReadLines(header, lines, make, [&](const std::uint8_t* line, std::uint8_t* to) {
        PutPixels(to, width,
                  [=, colours = palette.data()](std::size_t x) { return colours[line[x]]; });
    });
}

bool ReadTrueColour(const PcxHeader& header, Bytes bytes, const RasterMaker& make) {
    const auto width = static_cast<std::size_t>(header.size.width);
    return ReadLines(header, bytes, make, [&](const std::uint8_t* red, std::uint8_t* to) {
        const std::uint8_t* const green = red + header.planeBytes;
        const std::uint8_t* const blue = green + header.planeBytes;
        PutPixels(to, width, [=](std::size_t x) { return Colour{blue[x], green[x], red[x]}; });
    });
}

// Up to 16 colours: several pixels in a byte, the left one in its upper bits, or bit by bit in
// several planes, of which the first has the lowest bit.
bool ReadPacked(const PcxHeader& header, Bytes bytes, const RasterMaker& make) {
    const auto width = static_cast<std::size_t>(header.size.width);
    return ReadLines(header, bytes, make, [&](const std::uint8_t* line, std::uint8_t* to) {
        const unsigned mask = (1U << header.bits) - 1;
        PutPixels(to, width, [&](std::size_t x) {
            const std::size_t bit = x * header.bits;
            const std::size_t shift = 8 - header.bits - (bit % 8);
            unsigned index = 0;
            for (unsigned plane = 0; plane < header.planes; ++plane) {
                const unsigned byte = line[(plane * header.planeBytes) + (bit / 8)];
                index |= ((byte >> shift) & mask) << plane;
            }
            return header.palette[index];
        });
    });
}

}  // namespace

bool DecodePcx(Bytes file, const RasterMaker& make) {
    const std::optional<PcxHeader> header = ReadPcxHeader(file);
    if (!header) {
        return false;
    }
    const Bytes bytes = file.subspan(kPcxHeaderBytes);
    if (!CanHold(bytes.size(), *header)) {
        return false;
    }
    if (header->bits < 8) {
        return ReadPacked(*header, bytes, make);
    }
    return header->planes == 1 ? ReadIndexed(*header, bytes, make)
                               : ReadTrueColour(*header, bytes, make);
}

}  // namespace nviewlib
