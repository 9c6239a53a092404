// The contract of the picture services, kept by the doubles.
#include "tests/contract/pictures_contract.h"
#include "tests/doubles/memory_platform.h"

namespace zentar {
namespace {

constexpr const char* kLibrary = "C:\\Windows\\nviewlib.dll";

class MemoryPicturesWorld : public PicturesWorld {
  public:
    MemoryPicturesWorld() {
        platform_.files.AddFolder("C:\\Windows");
        platform_.files.AddFolder("C:\\Shots");
    }

    Pictures& TheSystem() override { return platform_.pictures; }
    ImageLibrary& Images() override { return platform_.images; }
    void PlaceLibrary(bool there) override {
        if (there) {
            platform_.files.AddFile(kLibrary, "library");
        } else {
            EXPECT_TRUE(platform_.files.Delete(kLibrary).Ok());
        }
    }
    void PlaceBrokenLibrary() override {
        PlaceLibrary(true);
        platform_.images.SetBroken();
    }
    FileSystem& Files() override { return platform_.files; }
    std::string Folder() const override { return "C:\\Shots\\"; }
    std::string PictureBytes(Size size) override { return PictureFile(size, "shot"); }

  private:
    MemoryPlatform platform_;
};

std::unique_ptr<PicturesWorld> MakeMemoryPicturesWorld() {
    return std::make_unique<MemoryPicturesWorld>();
}

}  // namespace

INSTANTIATE_TEST_SUITE_P(Memory, PicturesContract, testing::Values(&MakeMemoryPicturesWorld));

}  // namespace zentar
