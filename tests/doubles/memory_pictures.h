// The picture services in memory. They know one kind of picture file, whatever its name says; what
// the picture shows is a word.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"
#include "platform/image_library.h"
#include "platform/pictures.h"
#include "tests/doubles/event_log.h"

namespace zentar {

class MemoryBitmap : public Bitmap {
  public:
    MemoryBitmap(Size size, std::string shows) : size_(size), shows_(std::move(shows)) {}
    Size Dimensions() const override { return size_; }
    const std::string& Shows() const { return shows_; }

  private:
    Size size_;
    std::string shows_;
};

// The bytes of a picture's file; `shows` is one word.
std::string PictureFile(Size size, const std::string& shows);
// What a picture shows; empty for none.
std::string ShownBy(const BitmapPtr& picture);

class MemoryPictures : public Pictures {
  public:
    BitmapPtr Decode(std::string_view file) override;
    BitmapPtr Stretch(const Bitmap& picture, Size size) override;
    Result<std::string> EncodeBmp(const Bitmap& picture) override;

    // Memory is short from now on.
    void SetMemoryShort(bool on = true) { memoryShort_ = on; }

  private:
    bool memoryShort_ = false;
};

// Is present while nviewlib.dll stands in the Windows folder.
class MemoryImageLibrary : public ImageLibrary {
  public:
    MemoryImageLibrary(FileSystem& files, EventLog* log) : files_(&files), log_(log) {}

    bool Present() override;
    BitmapPtr Load(const std::string& path) override;
    // A JPG of the current image, marked as such.
    bool SaveAsJpg(int quality, const std::string& path) override;

    void UseFiles(FileSystem& files) { files_ = &files; }
    // The file is there, but is no library.
    void SetBroken(bool on = true) { broken_ = on; }
    // From now on a JPG is cut off in the middle, and the library says that it is whole.
    void SetSavesHalf(bool on = true) { savesHalf_ = on; }
    // Every file that was to be loaded.
    const std::vector<std::string>& Loaded() const { return loaded_; }

  private:
    FileSystem* files_;
    EventLog* log_;
    bool broken_ = false;
    bool savesHalf_ = false;
    BitmapPtr current_;
    std::vector<std::string> loaded_;
};

}  // namespace zentar
