#include "tests/unit/nviewlib/image_maker.h"

#include <algorithm>
#include <cstdlib>

namespace nviewlib::testing {

namespace {

std::string Byte(unsigned value) { return std::string(1, static_cast<char>(value)); }

std::string Word(unsigned value) { return Byte(value & 0xFFU) + Byte(value >> 8U); }

const Rgb& PixelAt(const Picture& picture, int x, int y) {
    const auto width = static_cast<std::size_t>(picture.width);
    return picture.pixels[static_cast<std::size_t>(y) * width + static_cast<std::size_t>(x)];
}

// The colours of a picture in the order in which they are first seen.
std::vector<Rgb> ColoursOf(const Picture& picture) {
    std::vector<Rgb> colours;
    for (const Rgb& pixel : picture.pixels) {
        if (std::find(colours.begin(), colours.end(), pixel) == colours.end()) {
            colours.push_back(pixel);
        }
    }
    return colours;
}

unsigned IndexOf(const std::vector<Rgb>& colours, const Rgb& colour) {
    return static_cast<unsigned>(std::find(colours.begin(), colours.end(), colour) -
                                 colours.begin());
}

std::string TgaColour(const Rgb& colour, int bits, std::uint8_t alpha) {
    if (bits <= 16) {
        return Word((colour.blue >> 3U) | ((colour.green >> 3U) << 5U) |
                    ((colour.red >> 3U) << 10U) | ((alpha & 1U) << 15U));
    }
    const std::string bytes = Byte(colour.blue) + Byte(colour.green) + Byte(colour.red);
    return bits == 24 ? bytes : bytes + Byte(alpha);
}

// The pixels of a file, each as it is written, in the file's order.
std::vector<std::string> TgaPixels(const Picture& picture, const TgaKind& kind) {
    const std::vector<Rgb> colours = kind.type % 8 == 1 ? ColoursOf(picture) : std::vector<Rgb>();
    std::vector<std::string> pixels;
    for (int line = 0; line < picture.height; ++line) {
        const int y = kind.fromTop ? line : picture.height - 1 - line;
        for (int column = 0; column < picture.width; ++column) {
            const int x = kind.fromRight ? picture.width - 1 - column : column;
            const Rgb& pixel = PixelAt(picture, x, y);
            if (kind.type % 8 == 1) {
                const unsigned index =
                    IndexOf(colours, pixel) + static_cast<unsigned>(kind.mapFirst);
                pixels.push_back(kind.bits == 8 ? Byte(index) : Word(index));
            } else if (kind.type % 8 == 3 || kind.bits == 8) {
                pixels.push_back(Byte(pixel.red) + (kind.bits == 16 ? Byte(kind.alpha) : ""));
            } else {
                pixels.push_back(TgaColour(pixel, kind.bits, kind.alpha));
            }
        }
    }
    return pixels;
}

// Where the packets that begin at `at` must end.
std::size_t PacketLimit(std::size_t at, std::size_t lineLength, std::size_t all, bool cross) {
    const std::size_t lineEnd = (at / lineLength + 1) * lineLength;
    return std::min(at + 128, cross ? all : lineEnd);
}

std::string Packets(const std::vector<std::string>& pixels, std::size_t lineLength, bool cross) {
    std::string bytes;
    for (std::size_t at = 0; at < pixels.size();) {
        const std::size_t limit = PacketLimit(at, lineLength, pixels.size(), cross);
        std::size_t end = at + 1;
        while (end < limit && pixels[end] == pixels[at]) {
            ++end;
        }
        if (end - at > 1) {
            bytes += Byte(0x80U + static_cast<unsigned>(end - at - 1)) + pixels[at];
            at = end;
            continue;
        }
        while (end < limit && (end + 1 == limit || pixels[end] != pixels[end + 1])) {
            ++end;
        }
        bytes += Byte(static_cast<unsigned>(end - at - 1));
        for (; at < end; ++at) {
            bytes += pixels[at];
        }
    }
    return bytes;
}

std::string TgaMap(const Picture& picture, const TgaKind& kind) {
    std::string bytes;
    for (const Rgb& colour : ColoursOf(picture)) {
        bytes += TgaColour(colour, kind.mapBits, kind.alpha);
    }
    return bytes;
}

std::string TgaHeader(const Picture& picture, const TgaKind& kind, std::size_t mapLength) {
    const bool map = mapLength > 0;
    return Byte(static_cast<unsigned>(kind.id.size())) + Byte(map ? 1 : 0) +
           Byte(static_cast<unsigned>(kind.type)) +
           Word(map ? static_cast<unsigned>(kind.mapFirst) : 0) +
           Word(static_cast<unsigned>(mapLength)) +
           Byte(map ? static_cast<unsigned>(kind.mapBits) : 0) + Word(0) + Word(0) +
           Word(static_cast<unsigned>(picture.width)) +
           Word(static_cast<unsigned>(picture.height)) + Byte(static_cast<unsigned>(kind.bits)) +
           Byte((kind.fromTop ? 0x20U : 0U) | (kind.fromRight ? 0x10U : 0U));
}

// Of one line.
int PlaneBytes(const Picture& picture, const PcxKind& kind) {
    return (picture.width * kind.bits + 7) / 8 + kind.padding;
}

// One line of the file: its planes one behind the other.
std::string PcxLine(const Picture& picture, const std::vector<Rgb>& colours, int y,
                    const PcxKind& kind) {
    const auto planeBytes = static_cast<std::size_t>(PlaneBytes(picture, kind));
    std::string line(planeBytes * static_cast<std::size_t>(kind.planes), '\0');
    for (int x = 0; x < picture.width; ++x) {
        const Rgb& pixel = PixelAt(picture, x, y);
        const unsigned index = colours.empty() ? 0 : IndexOf(colours, pixel);
        const unsigned truly[] = {pixel.red, pixel.green, pixel.blue, 0x80};
        const int bit = x * kind.bits;
        auto at = static_cast<std::size_t>(bit / 8);
        for (int plane = 0; plane < kind.planes; ++plane, at += planeBytes) {
            const unsigned mask = (1U << static_cast<unsigned>(kind.bits)) - 1;
            const unsigned value =
                colours.empty() ? truly[plane] : (index >> static_cast<unsigned>(plane)) & mask;
            char& byte = line[at];
            byte = static_cast<char>(static_cast<unsigned char>(byte) |
                                     (value << static_cast<unsigned>(8 - kind.bits - bit % 8)));
        }
    }
    return line;
}

std::string Runs(const std::string& bytes, bool real) {
    std::string runs;
    for (std::size_t at = 0; at < bytes.size();) {
        std::size_t end = at + 1;
        while (real && end < bytes.size() && end - at < 63 && bytes[end] == bytes[at]) {
            ++end;
        }
        const auto value = static_cast<unsigned char>(bytes[at]);
        if (end - at > 1 || value >= 0xC0) {
            runs += Byte(0xC0U + static_cast<unsigned>(end - at));
        }
        runs += Byte(value);
        at = end;
    }
    return runs;
}

std::string Palette(const std::vector<Rgb>& colours, std::size_t entries) {
    std::string bytes;
    for (std::size_t i = 0; i < entries; ++i) {
        const Rgb colour = i < colours.size() ? colours[i] : Rgb();
        bytes += Byte(colour.red) + Byte(colour.green) + Byte(colour.blue);
    }
    return bytes;
}

std::string PcxHeader(const Picture& picture, const std::vector<Rgb>& colours,
                      const PcxKind& kind) {
    const auto number = [](int value) { return static_cast<unsigned>(value); };
    std::string header = Byte(10) + Byte(number(kind.version)) + Byte(number(kind.encoding)) +
                         Byte(number(kind.bits)) + Word(number(kind.left)) +
                         Word(number(kind.top)) + Word(number(kind.left + picture.width - 1)) +
                         Word(number(kind.top + picture.height - 1)) + Word(72) + Word(72);
    header += Palette(kind.bits < 8 ? colours : std::vector<Rgb>(), 16);
    header += Byte(0) + Byte(number(kind.planes)) + Word(number(PlaneBytes(picture, kind))) +
              Word(number(kind.paletteType));
    header.resize(kPcxLinesAt, '\0');
    return header;
}

// The view's colour at a place, of 0 to 255 each.
Rgb ViewAt(int x, int y, int width, int height) {
    // The sky is a gradient, the wall has noise, the status bar is flat with hard edges.
    const unsigned noise =
        (static_cast<unsigned>(x) * 2654435761U ^ static_cast<unsigned>(y) * 2246822519U) >> 7U;
    const auto ramp = [](int at, int all) { return all < 2 ? 0 : at * 255 / (all - 1); };
    if (y * 3 < height) {
        return {static_cast<std::uint8_t>(ramp(y, height)), static_cast<std::uint8_t>(40),
                static_cast<std::uint8_t>(ramp(x, width))};
    }
    if (y * 5 < height * 4) {
        const auto grain = static_cast<int>(noise % 24);
        return {static_cast<std::uint8_t>(std::min(255, 100 + grain)),
                static_cast<std::uint8_t>(std::min(255, ramp(y, height) / 2 + grain)),
                static_cast<std::uint8_t>(60 + grain)};
    }
    const bool letter = (x / 5 + y / 7) % 3 == 0;
    return letter ? Rgb{255, 200, 0} : Rgb{64, 48, 32};
}

}  // namespace

Picture GameView(int width, int height) {
    Picture picture{width, height, {}};
    picture.pixels.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            picture.pixels.push_back(ViewAt(x, y, width, height));
        }
    }
    return picture;
}

Picture FewColours(int width, int height, int colours) {
    Picture picture = GameView(width, height);
    int next = 0;
    for (Rgb& pixel : picture.pixels) {
        // Each colour once, and then as the view has it.
        const int all = (pixel.red * 3 + pixel.green * 5 + pixel.blue * 7) / 16;
        const int one = next < colours ? next : all % colours;
        ++next;
        pixel = {static_cast<std::uint8_t>(one), static_cast<std::uint8_t>(255 - one % 256),
                 static_cast<std::uint8_t>(one * 37 + one / 256)};
    }
    return picture;
}

Picture GreyView(int width, int height) {
    Picture picture = GameView(width, height);
    for (Rgb& pixel : picture.pixels) {
        const auto grey = static_cast<std::uint8_t>((pixel.red + pixel.green + pixel.blue) / 3);
        pixel = {grey, grey, grey};
    }
    return picture;
}

std::string MakeTga(const Picture& picture, const TgaKind& kind) {
    const bool mapped = kind.type % 8 == 1 || kind.needlessMap;
    const std::size_t mapLength = mapped ? ColoursOf(picture).size() : 0;
    std::string bytes = TgaHeader(picture, kind, mapLength) + kind.id;
    bytes += mapped ? TgaMap(picture, kind) : "";
    const std::vector<std::string> pixels = TgaPixels(picture, kind);
    if (kind.type >= 8) {
        bytes += Packets(pixels, static_cast<std::size_t>(picture.width), kind.cross);
    } else {
        for (const std::string& pixel : pixels) {
            bytes += pixel;
        }
    }
    return bytes + (kind.footer ? std::string(8, '\0') + "TRUEVISION-XFILE." + '\0' : "");
}

Picture AsTgaHolds(const Picture& picture, const TgaKind& kind) {
    Picture held = picture;
    const bool mapped = kind.type % 8 == 1;
    for (Rgb& pixel : held.pixels) {
        if (!mapped && (kind.type % 8 == 3 || kind.bits == 8)) {
            pixel = {pixel.red, pixel.red, pixel.red};
        } else if ((mapped ? kind.mapBits : kind.bits) <= 16) {
            for (std::uint8_t* value : {&pixel.red, &pixel.green, &pixel.blue}) {
                *value = static_cast<std::uint8_t>((*value >> 3U) * 255 / 31);
            }
        }
    }
    return held;
}

std::string MakePcx(const Picture& picture, const PcxKind& kind) {
    const bool truly = kind.bits == 8 && kind.planes >= 3;
    const std::vector<Rgb> colours = truly ? std::vector<Rgb>() : ColoursOf(picture);
    std::string bytes = PcxHeader(picture, colours, kind);
    std::string lines;
    for (int y = 0; y < picture.height; ++y) {
        const std::string line = PcxLine(picture, colours, y, kind);
        if (kind.encoding == 0 || kind.cross) {
            lines += line;
            continue;
        }
        const std::size_t planeBytes = line.size() / static_cast<std::size_t>(kind.planes);
        for (std::size_t at = 0; at < line.size(); at += planeBytes) {
            lines += Runs(line.substr(at, planeBytes), kind.realRuns);
        }
    }
    bytes += kind.encoding != 0 && kind.cross ? Runs(lines, kind.realRuns) : lines;
    if (kind.bits == 8 && !truly) {
        bytes += Byte(12) + Palette(colours, 256);
    }
    return bytes + kind.behind;
}

}  // namespace nviewlib::testing
