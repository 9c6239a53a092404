#include "tests/doubles/memory_pictures.h"

#include <array>
#include <cstdio>
#include <span>
#include <utility>

namespace zentar {
namespace {

constexpr std::size_t kLongest = 4096;

BitmapPtr PictureIn(std::string_view file) {
    const std::string text(file.substr(0, kLongest));
    std::array<char, 64> word{};
    Size size;
    int end = 0;
    const int read = std::sscanf(text.c_str(), "picture %dx%d %63s.%n", &size.width, &size.height,
                                 word.data(), &end);
    const std::string shows(word.data());
    const bool whole = read == 3 && !shows.empty() && shows.back() == '.';
    return whole ? std::make_shared<MemoryBitmap>(size, shows.substr(0, shows.size() - 1))
                 : nullptr;
}

}  // namespace

std::string PictureFile(Size size, const std::string& shows) {
    return "picture " + std::to_string(size.width) + "x" + std::to_string(size.height) + " " +
           shows + ".";
}

std::string ShownBy(const BitmapPtr& picture) {
    const auto* bitmap = dynamic_cast<const MemoryBitmap*>(picture.get());
    return bitmap == nullptr ? std::string() : bitmap->Shows();
}

BitmapPtr MemoryPictures::Decode(std::string_view file) {
    if (file.starts_with("GIF8"))
        return std::make_shared<MemoryBitmap>(Size{320, 240}, "busy");
    return PictureIn(file);
}

BitmapPtr MemoryPictures::Stretch(const Bitmap& picture, Size size) {
    if (memoryShort_)
        return nullptr;
    return std::make_shared<MemoryBitmap>(size, dynamic_cast<const MemoryBitmap&>(picture).Shows());
}

Result<std::string> MemoryPictures::EncodeBmp(const Bitmap& picture) {
    if (memoryShort_)
        return FileError::Other;
    return PictureFile(picture.Dimensions(), dynamic_cast<const MemoryBitmap&>(picture).Shows());
}

bool MemoryImageLibrary::Present() {
    return !broken_ && files_->Info("C:\\Windows\\nviewlib.dll").Ok();
}

BitmapPtr MemoryImageLibrary::Load(const std::string& path) {
    if (log_ != nullptr)
        log_->Add("NViewLibLoad " + path);
    loaded_.push_back(path);
    current_.reset();
    const auto file = files_->OpenForReading(path);
    if (!file.Ok())
        return nullptr;
    std::array<std::byte, kLongest> bytes{};
    const Result<std::size_t> got = file.Value()->ReadAt(0, bytes);
    if (!got.Ok())
        return nullptr;
    current_ = PictureIn({reinterpret_cast<const char*>(bytes.data()), got.Value()});
    return current_;
}

bool MemoryImageLibrary::SaveAsJpg(int quality, const std::string& path) {
    if (log_ != nullptr)
        log_->Add("NViewLibSaveAsJPG " + std::to_string(quality) + " " + path);
    if (!current_)
        return false;
    std::string bytes = PictureFile(current_->Dimensions(), "jpg-of-" + ShownBy(current_));
    if (savesHalf_)
        bytes.resize(bytes.size() / 2);
    const auto file = files_->OpenForWriting(path, WriteMode::Truncate);
    return file.Ok() && file.Value()->Write(bytes).Ok() && file.Value()->Close().Ok();
}

}  // namespace zentar
