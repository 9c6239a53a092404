#include "screenshots/picture_file.h"

#include "core/file_reading.h"
#include "platform/pictures.h"

namespace zentar {
namespace {

// Longer files hold nothing that would be decoded.
constexpr std::uint64_t kLongestFile = std::uint64_t{208} << 20U;

}  // namespace

BitmapPtr ReadPicture(const Platform& platform, const std::string& path) {
    const Result<std::string> bytes = ReadWholeFile(platform.files, path, kLongestFile);
    return bytes.Ok() ? platform.pictures.Decode(bytes.Value()) : nullptr;
}

}  // namespace zentar
