// Makes screenshots as the games write them, of a hall that nobody has built.
#pragma once

#include <string>

namespace zentar::samples {

struct ShotView {
    int width = 640;
    int height = 480;
    int number = 0;  // each looks at another hall
};

// Quake 3 and the OpenGL Quake 2: 24 bits a pixel, not compressed, the lowest line first.
std::string MakeTgaShot(const ShotView& view);

// The software renderers: 256 colours, run-length coded.
std::string MakePcxShot(const ShotView& view);

// One of 320 x 240 pixels, always the same.
std::string MakeJpgShot();

}  // namespace zentar::samples
