#include "samples/shot_maker.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace zentar::samples {
namespace {

struct Colour {
    int red = 0;
    int green = 0;
    int blue = 0;
};

int Bounded(int value) { return std::clamp(value, 0, 255); }

// A little of everything that is uneven in a game's textures.
int Grain(int x, int y) {
    auto mixed =
        static_cast<std::uint32_t>(x) * 374761393U + static_cast<std::uint32_t>(y) * 668265263U;
    mixed = (mixed ^ (mixed >> 13U)) * 1274126177U;
    return static_cast<int>(mixed >> 28U) - 8;
}

// Floor and ceiling of a long hall: squares that get smaller with the distance.
Colour Plane(const ShotView& view, int x, int fromHorizon, bool floor) {
    const int distance = 40 * view.height / std::max(fromHorizon, 1);
    const int across = (x - view.width / 2) * distance / std::max(view.width, 1);
    const bool light = ((across / 8 + distance / 8 + view.number) & 1) != 0;
    const int shade = std::max((light ? 180 : 115) - distance / 5, 45);
    constexpr std::array<Colour, 4> kTints{
        {{100, 75, 50}, {60, 85, 100}, {90, 50, 45}, {60, 90, 55}}};
    const Colour& tint = kTints[static_cast<std::size_t>(view.number) % kTints.size()];
    const int strength = floor ? shade : shade / 2;
    return {strength * tint.red / 100, strength * tint.green / 100, strength * tint.blue / 100};
}

// The wall at its end, with a gate.
Colour Wall(const ShotView& view, int x, int y) {
    const int fromMiddle = std::abs(x - view.width / 2) * 16 / view.width;
    const bool gate = fromMiddle < 2 + view.number % 3;
    const int brick = ((x / 12 + (y / 6 % 2) * 6) % 12 == 0 || y % 6 == 0) ? 40 : 90;
    return gate ? Colour{200, 90 + 20 * (view.number % 4), 20} : Colour{brick, brick, brick + 10};
}

Colour PixelAt(const ShotView& view, int x, int y) {
    const int horizon = view.height / 2;
    const int wall = view.height / 10;
    const int fromHorizon = y - horizon;
    const bool crosshair = (std::abs(x - view.width / 2) < 6 && y == horizon) ||
                           (std::abs(fromHorizon) < 6 && x == view.width / 2);
    if (crosshair) {
        return {255, 255, 255};
    }
    Colour colour;
    if (std::abs(fromHorizon) <= wall) {
        colour = Wall(view, x, y);
    } else {
        colour = Plane(view, x, std::abs(fromHorizon) - wall, fromHorizon > 0);
    }
    const int grain = Grain(x, y);
    return {Bounded(colour.red + grain), Bounded(colour.green + grain),
            Bounded(colour.blue + grain)};
}

void AppendWord(std::string& bytes, int value) {
    bytes += static_cast<char>(value & 0xFF);
    bytes += static_cast<char>(value >> 8);
}

constexpr int kLevels = 6;  // of each of the three colours in the palette
constexpr int kLevelStep = 51;

char PaletteIndex(const Colour& colour) {
    const auto level = [](int value) { return (value + kLevelStep / 2) / kLevelStep; };
    return static_cast<char>((level(colour.red) * kLevels + level(colour.green)) * kLevels +
                             level(colour.blue));
}

std::string Palette() {
    std::string bytes(1, '\x0C');
    for (int index = 0; index < 256; ++index) {
        const int levels = std::min(index, kLevels * kLevels * kLevels - 1);
        bytes += static_cast<char>(levels / (kLevels * kLevels) * kLevelStep);
        bytes += static_cast<char>(levels / kLevels % kLevels * kLevelStep);
        bytes += static_cast<char>(levels % kLevels * kLevelStep);
    }
    return bytes;
}

// Runs of up to 63 bytes; a byte that looks like a run's head needs one.
void AppendLine(std::string& bytes, const std::string& line) {
    constexpr std::size_t kLongestRun = 63;
    for (std::size_t at = 0; at < line.size();) {
        std::size_t run = 1;
        while (run < kLongestRun && at + run < line.size() && line[at + run] == line[at]) {
            ++run;
        }
        if (run > 1 || (static_cast<unsigned char>(line[at]) & 0xC0U) == 0xC0U) {
            bytes += static_cast<char>(0xC0U | run);
        }
        bytes += line[at];
        at += run;
    }
}

std::string PcxHeader(const ShotView& view) {
    constexpr std::size_t kHeaderLength = 128;
    std::string bytes{'\x0A', '\x05', '\x01', '\x08'};
    AppendWord(bytes, 0);
    AppendWord(bytes, 0);
    AppendWord(bytes, view.width - 1);
    AppendWord(bytes, view.height - 1);
    AppendWord(bytes, view.width);
    AppendWord(bytes, view.height);
    bytes.resize(65, '\0');
    bytes += '\x01';
    AppendWord(bytes, view.width + view.width % 2);
    AppendWord(bytes, 2);
    bytes.resize(kHeaderLength, '\0');
    return bytes;
}

}  // namespace

std::string MakeTgaShot(const ShotView& view) {
    std::string bytes(12, '\0');
    bytes[2] = '\x02';
    AppendWord(bytes, view.width);
    AppendWord(bytes, view.height);
    bytes += '\x18';
    bytes += '\0';
    for (int y = view.height - 1; y >= 0; --y) {
        for (int x = 0; x < view.width; ++x) {
            const Colour colour = PixelAt(view, x, y);
            bytes += static_cast<char>(colour.blue);
            bytes += static_cast<char>(colour.green);
            bytes += static_cast<char>(colour.red);
        }
    }
    return bytes;
}

std::string MakePcxShot(const ShotView& view) {
    std::string bytes = PcxHeader(view);
    for (int y = 0; y < view.height; ++y) {
        std::string line(static_cast<std::size_t>(view.width + view.width % 2), '\0');
        for (int x = 0; x < view.width; ++x) {
            line[static_cast<std::size_t>(x)] = PaletteIndex(PixelAt(view, x, y));
        }
        AppendLine(bytes, line);
    }
    return bytes + Palette();
}

}  // namespace zentar::samples
