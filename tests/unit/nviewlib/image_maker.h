// Makes image files of every kind that the decoders read, from pixels that are known.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace nviewlib::testing {

struct Rgb {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    bool operator==(const Rgb&) const = default;
};

// The top line first, each from the left.
struct Picture {
    int width = 0;
    int height = 0;
    std::vector<Rgb> pixels;
    bool operator==(const Picture&) const = default;
};

// Gradients, noise, flat areas and a line of text's hard edges, as in a game's view.
Picture GameView(int width, int height);

// The same with at most so many colours, all of which occur where there are pixels enough.
Picture FewColours(int width, int height, int colours);

// The same as grey.
Picture GreyView(int width, int height);

struct TgaKind {
    int type = 2;  // 1 mapped, 2 true colour, 3 grey; 9, 10, 11 the same in packets
    int bits = 24;
    bool fromTop = false;
    bool fromRight = false;
    std::string id = {};
    int mapBits = 24;  // of an entry
    int mapFirst = 0;
    bool needlessMap = false;  // a map in an image that is not mapped
    bool footer = false;
    bool cross = true;  // packets go on in the next line
    std::uint8_t alpha = 0;
};

// A mapped image must not have more colours than its indexes can tell.
std::string MakeTga(const Picture& picture, const TgaKind& kind);

// The picture as such a file can hold it: with five bits of a colour, or as grey.
Picture AsTgaHolds(const Picture& picture, const TgaKind& kind);

struct PcxKind {
    int bits = 8;
    int planes = 1;
    int encoding = 1;
    int version = 5;
    int paletteType = 1;
    int left = 0;
    int top = 0;
    int padding = 0;       // bytes more in a line of a plane than the pixels need
    bool cross = false;    // runs go on in the next line or plane
    bool realRuns = true;  // as most programs write them; games mark single bytes only
    std::string behind = {};
};

// An image with a palette must not have more colours than its indexes can tell.
std::string MakePcx(const Picture& picture, const PcxKind& kind);

// Where the lines begin and the palette of 256 colours begins, if there is one.
inline constexpr std::size_t kPcxLinesAt = 128;
inline constexpr std::size_t kPcxPaletteBytes = 769;

}  // namespace nviewlib::testing
