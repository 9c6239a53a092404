// The image library that comes with the program and lives in the Windows folder as nviewlib.dll.
//
// It decodes TGA, PCX, JPG, BMP and GIF files and keeps the one loaded last as its current image.
#pragma once

#include <string>

#include "platform/bitmap.h"

namespace zentar {

class ImageLibrary {
  public:
    virtual ~ImageLibrary() = default;
    // Whether the library is there and can be used.
    virtual bool Present() = 0;
    // Makes a file the current image. Null when it cannot be read or is no image; there is then no
    // current image.
    virtual BitmapPtr Load(const std::string& path) = 0;
    // Writes the current image as a JPEG file, over one that is there; quality 0 to 100. On failure
    // one that was there is as it was.
    virtual bool SaveAsJpg(int quality, const std::string& path) = 0;
};

}  // namespace zentar
