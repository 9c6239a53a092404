// Two Zentars that convert at the same time.

#include "platform/image_library.h"
#include "screenshots/shot_conversion.h"
#include "tests/unit/screenshots/shots_tab_fixture.h"

namespace zentar {
namespace {

using ::testing::ElementsAre;

class TwoConversionsTest : public ShotsTabTest {
  protected:
    TwoConversionsTest() {
        AddShot("a.tga");
        Refresh();
        Select("a.tga");
        state.settings.Expert = 1;
    }

    void ExpectReport() {
        os.windows.Expect({"Done",
                           "Original image size:\t18 bytes.\r\nJPG version size:\t25 bytes.\r\n"
                           "Total bytes saved:\t-7.",
                           MessageIcon::Information});
    }

    const std::string jpg_ = PictureFile({640, 480}, "jpg-of-a");
};

// Asks, whenever the library is used, whether another Zentar could put its own picture there.
class GuardedLibrary : public ImageLibrary {
  public:
    GuardedLibrary(ImageLibrary& library, FileSystem& files, std::string lock)
        : library_(library), files_(files), lock_(std::move(lock)) {}

    bool Present() override { return library_.Present(); }
    BitmapPtr Load(const std::string& path) override {
        ExpectHeld(path);
        ExpectHeld(lock_);
        return library_.Load(path);
    }
    bool SaveAsJpg(int quality, const std::string& path) override {
        ExpectHeld(lock_);
        return library_.SaveAsJpg(quality, path);
    }

  private:
    void ExpectHeld(const std::string& path) {
        const auto other = files_.OpenForWriting(path, WriteMode::Truncate);
        ASSERT_FALSE(other.Ok()) << path;
        EXPECT_EQ(other.Error(), FileError::InUse) << path;
    }

    ImageLibrary& library_;
    FileSystem& files_;
    std::string lock_;
};

TEST_F(TwoConversionsTest, NeitherCanPutItsPictureInTheWayOfTheOther) {
    GuardedLibrary guarded(os.images, os.files, PathOf("zentar-jpg.tmp.lock"));
    const Platform services{os.files, os.shell,    os.windows,  os.locale,
                            guarded,  os.pictures, os.registry, os.forms};
    ShotConversion conversion(state, services, *tab);
    ExpectReport();
    conversion.mnuScreenshotMakeJPEGOnly_Click();
    EXPECT_EQ(Contents("a.jpg"), jpg_);
    EXPECT_THAT(Names(), ElementsAre("a.jpg", "a.tga", "a.zentar"));
    EXPECT_THAT(Names("C:\\Zentar\\"), ElementsAre());
}

TEST_F(TwoConversionsTest, WhileTheOtherConvertsInTheFolderNothingIsMade) {
    const auto other = os.files.OpenForWriting(PathOf("zentar-jpg.tmp.lock"), WriteMode::Truncate);
    AddFile("zentar-jpg.tmp", "of the other Zentar");
    os.windows.Expect(
        Critical("JPG version could not be made for some reason.\r\n"
                 "This is most probably due to a lack of available disk space,\r\n"
                 "and the original image still remains in its Quake2 sub-folder."));
    Pick("a.tga *", IDM_mnuScreenshotMakeJPEGAndKill);
    EXPECT_THAT(Names(), ElementsAre("a.tga", "a.zentar", "zentar-jpg.tmp", "zentar-jpg.tmp.lock"));
    EXPECT_EQ(Contents("zentar-jpg.tmp"), "of the other Zentar");
}

TEST_F(TwoConversionsTest, WhatACrashHasLeftDoesNotMatter) {
    AddFile("zentar-jpg.tmp", "half a j");
    AddFile("zentar-jpg.tmp.lock", "");
    ExpectReport();
    Pick("a.tga *", IDM_mnuScreenshotMakeJPEGOnly);
    EXPECT_EQ(Contents("a.jpg"), jpg_);
    EXPECT_THAT(Names(), ElementsAre("a.jpg", "a.tga", "a.zentar"));
}

TEST_F(TwoConversionsTest, AScratchFileOfTheOtherIsLeftToIt) {
    {
        const auto other = os.files.OpenForWriting("c:\\zentar\\tmp.bmp", WriteMode::Truncate);
        ASSERT_TRUE(other.Ok() && other.Value()->Write(PictureFile({9, 9}, "theirs")).Ok());
        ExpectReport();
        Pick("a.tga *", IDM_mnuScreenshotMakeJPEGOnly);
    }
    EXPECT_EQ(Contents("a.jpg"), jpg_);
    EXPECT_EQ(os.files.Contents("C:\\Zentar\\tmp.bmp"), PictureFile({9, 9}, "theirs"));
}

}  // namespace
}  // namespace zentar
