// The contract of the picture services, kept by Windows.
#include <windows.h>

#include "platform/win32/win32_file_system.h"
#include "platform/win32/win32_image_library.h"
#include "tests/contract/pictures_contract.h"
#include "tests/contract/win32/picture_files.h"
#include "tests/contract/win32/the_platform.h"

namespace zentar {
namespace {

namespace fs = std::filesystem;

class Win32PicturesWorld : public PicturesWorld {
  public:
    ~Win32PicturesWorld() override { library_.reset(); }

    Pictures& TheSystem() override { return ThePlatform().Services().pictures; }
    ImageLibrary& Images() override { return *library_; }
    // A library that is in use can be renamed, but not deleted.
    void PlaceLibrary(bool there) override {
        const fs::path file = folder_.Path() / "nviewlib.dll";
        const fs::path away = folder_.Path() / "nviewlib.away";
        if (!there) {
            fs::rename(file, away);
        } else if (fs::exists(away)) {
            fs::rename(away, file);
        } else {
            fs::copy_file(BuiltLibrary(), file);
        }
    }
    void PlaceBrokenLibrary() override { folder_.Write("nviewlib.dll", "This is no library."); }
    FileSystem& Files() override { return files_; }
    std::string Folder() const override { return folder_.Name() + "\\"; }
    std::string PictureBytes(Size size) override { return BmpOf(size); }

  private:
    TestFolder folder_;
    Win32FileSystem files_;
    std::unique_ptr<Win32ImageLibrary> library_ =
        std::make_unique<Win32ImageLibrary>(folder_.Name());
};

std::unique_ptr<PicturesWorld> MakeWin32PicturesWorld() {
    return std::make_unique<Win32PicturesWorld>();
}

}  // namespace

INSTANTIATE_TEST_SUITE_P(Win32, PicturesContract, testing::Values(&MakeWin32PicturesWorld));

}  // namespace zentar
