// Preview mode, and Shift, which stands for it at one selection.

#include "tests/unit/screenshots/shots_tab_fixture.h"

namespace zentar {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ShotPreviewTest : public ShotsTabTest {
  protected:
    const Shot& Current() { return tab->CurrentShot(); }
    BoxPointer ViewPointer() { return View().ShownPointer(); }
};

TEST_F(ShotPreviewTest, InPreviewModeOnlyThePreviewIsRead) {
    AddShot("a.tga");
    AddPreviewOf("a.tga", "small");
    UsePreviewMode();
    Select("a.tga *");
    EXPECT_EQ(Shown(), "small");
    EXPECT_THAT(os.images.Loaded(), IsEmpty());
    EXPECT_EQ(os.files.Reads(PathOf("a.tga")).opens, 0);
    EXPECT_EQ(tab->picShotActual().picture, nullptr);
    EXPECT_EQ(Current().ShotDimsText, "Dims:\t(Unknown)");
    EXPECT_EQ(Current().ShotSizeText, "File size:\t18 bytes");
    EXPECT_NE(Current().ShotDateText, "Taken:\t(Unknown)");
    EXPECT_EQ(Contents("a.zentar"), PictureFile({320, 240}, "small"));
    EXPECT_TRUE(Enabled(IDC_imgShotView));
    EXPECT_EQ(ViewPointer(), BoxPointer::Default);
    EXPECT_EQ(PreviewCaption(), CaptionColour::Red);
    EXPECT_EQ(Selected(), "a.tga *");
    for (const int entry : {IDM_mnuScreenshotShowFull, IDM_mnuScreenshotMakeJPEGOnly,
                            IDM_mnuScreenshotMakeJPEGAndKill, IDM_mnuScreenshotSetWallpaper}) {
        EXPECT_FALSE(MenuEnabled(entry));
    }
}

TEST_F(ShotPreviewTest, WithoutAPreviewTheBusyImageStays) {
    AddShot("a.tga");
    UsePreviewMode();
    Select("a.tga");
    EXPECT_EQ(Shown(), "busy");
    EXPECT_EQ(Current().ShotDimsText, "Dims:\t(Unknown)");
    EXPECT_THAT(Names(), ElementsAre("a.tga"));
}

TEST_F(ShotPreviewTest, APreviewThatIsNoPictureIsAsNone) {
    AddShot("a.tga");
    AddFile("a.zentar", "no picture");
    UsePreviewMode();
    Select("a.tga *");
    EXPECT_EQ(Shown(), "busy");
}

TEST_F(ShotPreviewTest, ShiftShowsThePreviewForThatOneSelection) {
    AddShot("a.tga");
    AddPreviewOf("a.tga", "small");
    AddShot("b.tga");
    Refresh();
    SelectWithShift("a.tga *");
    EXPECT_EQ(Shown(), "small");
    EXPECT_EQ(PreviewCaption(), CaptionColour::Red);
    EXPECT_TRUE(state.ShiftHeld);
    EXPECT_EQ(ViewPointer(), BoxPointer::Default);
    EXPECT_THAT(os.images.Loaded(), IsEmpty());
    Select("b.tga");
    EXPECT_EQ(Shown(), "b");
    EXPECT_EQ(PreviewCaption(), CaptionColour::Normal);
    EXPECT_FALSE(state.ShiftHeld);
    EXPECT_EQ(ViewPointer(), BoxPointer::Custom);
}

TEST_F(ShotPreviewTest, ShiftCountsOnlyWhenItIsDownAndWasPressedSince) {
    AddShot("a.tga");
    AddShot("b.tga");
    Refresh();
    for (const std::uint16_t keyState :
         std::vector<std::uint16_t>{0x0000, 0x0001, 0x8000, 0xFFFF, 0x8003}) {
        Refresh();
        state.ShiftHeld = true;
        os.windows.SetKeyState(PollKey::Shift, keyState);
        Select(Listed()[0]);
        EXPECT_EQ(Shown(), "a") << keyState;
        EXPECT_FALSE(state.ShiftHeld) << keyState;
    }
    os.windows.SetKeyState(PollKey::Shift, 0x8001);
    Select(Listed()[1]);
    EXPECT_EQ(Shown(), "busy");
}

TEST_F(ShotPreviewTest, TheCaptionIsRedAsLongAsTheModeIsPreview) {
    UsePreviewMode();
    EXPECT_EQ(PreviewCaption(), CaptionColour::Red);
    tab->ResetPreviewCaption();
    EXPECT_EQ(PreviewCaption(), CaptionColour::Red);
    UseRealMode();
    EXPECT_EQ(PreviewCaption(), CaptionColour::Normal);
    AddShot("a.tga");
    Refresh();
    SelectWithShift("a.tga");
    EXPECT_EQ(PreviewCaption(), CaptionColour::Red);
    tab->ResetPreviewCaption();
    EXPECT_EQ(PreviewCaption(), CaptionColour::Normal);
}

}  // namespace
}  // namespace zentar
