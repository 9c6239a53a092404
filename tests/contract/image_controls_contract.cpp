// Image boxes, captions in other colours, and what happens before a window is seen.
#include "tests/contract/controls_contract.h"

namespace zentar {
TEST_P(ImageControlsContract, AnImageBoxHoldsWhatItIsGiven) {
    ImageBox& box = Main().GetImageBox(kImage);
    EXPECT_EQ(box.Image(), nullptr);
    const BitmapPtr picture = World().MakeBitmap({640, 480});
    box.SetImage(picture);
    EXPECT_EQ(box.Image(), picture);
    ShowMain();
    EXPECT_EQ(box.Image(), picture);
    box.SetImage(nullptr);
    EXPECT_EQ(box.Image(), nullptr);
    EXPECT_EQ(picture.use_count(), 1);
}

TEST_P(ImageControlsContract, AnImageBoxIsClickedAndAskedForItsMenu) {
    NoteClicks(kImage, "image");
    ShowMain();
    World().Click(Main(), kImage);
    EXPECT_EQ(Events(), Noted{"image click"});
    World().RightClick(Main(), kImage);
    EXPECT_EQ(Events(), Noted{"image menuRequested"});
}

TEST_P(ImageControlsContract, ADisabledImageBoxTakesNoClick) {
    NoteClicks(kImage, "image");
    ShowMain();
    Main().GetImageBox(kImage).SetEnabled(false);
    EXPECT_FALSE(World().TakesInput(Main(), kImage));
    Main().GetImageBox(kImage).SetEnabled(true);
    EXPECT_TRUE(World().TakesInput(Main(), kImage));
    World().Click(Main(), kImage);
    EXPECT_EQ(Events(), Noted{"image click"});
}

TEST_P(ImageControlsContract, AnImageBoxTakesNoFocus) {
    ShowMain();
    Main().GetCheckBox(kCheck).SetFocus();
    Main().GetImageBox(kImage).SetFocus();
    EXPECT_FALSE(Main().GetImageBox(kImage).HasFocus());
    EXPECT_TRUE(Main().GetCheckBox(kCheck).HasFocus());
}

TEST_P(ImageControlsContract, ThePointerOverAnImageBoxIsRemembered) {
    ImageBox& box = Main().GetImageBox(kImage);
    EXPECT_EQ(box.ShownPointer(), BoxPointer::Default);
    box.SetPointer(BoxPointer::Custom);
    EXPECT_EQ(box.ShownPointer(), BoxPointer::Custom);
    box.SetPointer(BoxPointer::Default);
    EXPECT_EQ(box.ShownPointer(), BoxPointer::Default);
}

TEST_P(ImageControlsContract, ACaptionsColourIsRememberedAndRaisesNothing) {
    NoteClicks(kOptionA, "A");
    OptionButton& option = Main().GetOptionButton(kOptionA);
    EXPECT_EQ(option.ShownCaptionColour(), CaptionColour::Normal);
    for (const auto colour :
         {CaptionColour::Red, CaptionColour::Vanished, CaptionColour::Red, CaptionColour::Normal}) {
        option.SetCaptionColour(colour);
        EXPECT_EQ(option.ShownCaptionColour(), colour);
        EXPECT_EQ(option.Text(), "A");
    }
    EXPECT_EQ(Events(), Noted{});
    EXPECT_TRUE(option.Selected());
}

TEST_P(ImageControlsContract, AModalWindowIsLoadedEachTimeBeforeItIsSeen) {
    ShowMain();
    const std::unique_ptr<Form> dialog = World().Create(ContractDialogTable());
    FormEvents events;
    events.load = [&] { Note(World().Shown(*dialog) ? "load, seen" : "load"); };
    dialog->SetEvents(events);
    for (int i = 0; i < 2; ++i) {
        World().InModal(*dialog, [&] {
            Note("shown");
            World().CloseWindow(*dialog);
        });
        dialog->ShowModal();
        EXPECT_EQ(Events(), (Noted{"load", "shown"}));
    }
}

TEST_P(ImageControlsContract, AWindowThatIsNotModalIsNotLoaded) {
    FormEvents events;
    events.load = [&] { Note("load"); };
    Main().SetEvents(events);
    ShowMain();
    EXPECT_EQ(Events(), Noted{});
}

}  // namespace zentar
