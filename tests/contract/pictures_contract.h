// What the picture services and the image library promise, as assertions on any implementation.
#pragma once

#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "platform/file_system.h"
#include "platform/image_library.h"
#include "platform/pictures.h"

namespace zentar {

class PicturesWorld {
  public:
    virtual ~PicturesWorld() = default;
    virtual Pictures& TheSystem() = 0;
    virtual ImageLibrary& Images() = 0;
    // Puts the library's file where it is looked for, or takes it away.
    virtual void PlaceLibrary(bool there) = 0;
    // Puts a file there that is no library.
    virtual void PlaceBrokenLibrary() = 0;
    virtual FileSystem& Files() = 0;
    // A folder of the test's own, with a backslash.
    virtual std::string Folder() const = 0;
    // A picture file of any kind that both services know.
    virtual std::string PictureBytes(Size size) = 0;
};

using PicturesWorldMaker = std::unique_ptr<PicturesWorld> (*)();

class PicturesContract : public testing::TestWithParam<PicturesWorldMaker> {
  protected:
    PicturesWorld& World() { return *world_; }
    // Writes a file into the test's folder; gives its path.
    std::string Write(const std::string& name, const std::string& bytes);
    std::string WritePicture(const std::string& name, Size size) {
        return Write(name, World().PictureBytes(size));
    }
    std::uint64_t LengthOf(const std::string& path);

  private:
    std::unique_ptr<PicturesWorld> world_ = GetParam()();
};

}  // namespace zentar
