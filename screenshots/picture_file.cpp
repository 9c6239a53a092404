#include "screenshots/picture_file.h"

#include "core/file_reading.h"
#include "platform/pictures.h"

namespace zentar {

BitmapPtr ReadPicture(const Platform& platform, const std::string& path) {
    const Result<std::string> bytes = ReadWholeFile(platform.files, path, kLongestPictureFile);
    return bytes.Ok() ? platform.pictures.Decode(bytes.Value()) : nullptr;
}

}  // namespace zentar
