// The selected screenshot.
#pragma once

#include <string>

#include "platform/bitmap.h"
#include "platform/file_system.h"

namespace zentar {

inline constexpr const char* kUnknownSize = "File size:\t(Unknown)";
inline constexpr const char* kUnknownDate = "Taken:\t(Unknown)";
inline constexpr const char* kUnknownDims = "Dims:\t(Unknown)";

struct Shot {
    std::string Name;  // of its file; empty when none is selected
    std::string Path;
    std::string ShotExtension;  // ".tga", ".jpg" or ".pcx"
    bool HasPreview = false;    // as the list marks it

    // The property lines: a word, a tab and a value.
    std::string ShotSizeText = kUnknownSize;
    std::string ShotDateText = kUnknownDate;
    std::string ShotDimsText = kUnknownDims;
};

// The picture of the selected shot in its full size, and the file that it was read from as it then
// was. There is none in Preview mode.
struct ActualShot {
    BitmapPtr picture;
    FileInfo file;
};

}  // namespace zentar
