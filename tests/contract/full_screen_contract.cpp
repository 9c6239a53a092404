#include "tests/contract/full_screen_contract.h"

namespace zentar {

TEST_P(FullScreenContract, ThePictureCanBePlacedWhenTheWindowIsLoaded) {
    const BitmapPtr picture = World().MakeBitmap({3000, 2000});
    Size view;
    FormEvents events;
    events.load = [&] {
        view = Full().View();
        Full().MoveImage({-1000, -500});
    };
    FullForm().SetEvents(events);
    Full().SetImage(picture);
    ShowWith([&] {
        EXPECT_GT(view.width, 320);
        EXPECT_GT(view.height, 200);
        EXPECT_EQ(Full().View(), view);
        EXPECT_EQ(Full().ImagePlace(), (Point{-1000, -500}));
        EXPECT_EQ(Full().Image(), picture);
        EXPECT_FALSE(World().TakesInput(Main(), kButton));
    });
    EXPECT_TRUE(World().TakesInput(Main(), kButton));
    Full().SetImage(nullptr);
    EXPECT_EQ(picture.use_count(), 1);
}

TEST_P(FullScreenContract, TheMouseTellsWhatItDoes) {
    ShowWith([&] {
        World().DragMouse(FullForm(), kFullPicture, {5, 5});
        EXPECT_EQ(Events(), Noted{});
        World().PressMouse(FullForm(), kFullPicture, MouseButton::Left, {10, 20});
        World().DragMouse(FullForm(), kFullPicture, {11, 22});
        World().DragMouse(FullForm(), kFullPicture, {-3, -4});
        World().ReleaseMouse(FullForm(), kFullPicture);
        EXPECT_EQ(Events(), (Noted{"left 10,20", "drag 11,22", "drag -3,-4", "up"}));
        World().DragMouse(FullForm(), kFullPicture, {12, 23});
        EXPECT_EQ(Events(), Noted{});
        World().PressMouse(FullForm(), kFullPicture, MouseButton::Right, {7, 8});
        EXPECT_EQ(Events(), Noted{"right 7,8"});
    });
}

TEST_P(FullScreenContract, ADoubleClickAndTheKeysReachThePicture) {
    ShowWith([&] {
        World().DoubleClick(FullForm(), kFullPicture);
        const Noted clicks = Events();
        ASSERT_FALSE(clicks.empty());
        EXPECT_EQ(clicks.back(), "double click");
        for (const Key key :
             {Key::Space, Key::Escape, Key::Enter, Key::Left, Key::Right, Key::Up, Key::Down}) {
            World().Press(FullForm(), key);
            EXPECT_EQ(Events(), Noted{NoteOf(key)});
            EXPECT_TRUE(World().Shown(FullForm()));
        }
        EXPECT_TRUE(Full().HasFocus());
    });
}

TEST_P(FullScreenContract, ARightClickInTheMiddleOfADragMayCloseTheWindow) {
    MouseEvents mouse;
    mouse.down = [this](MouseButton button, Point /*at*/) {
        if (button == MouseButton::Right)
            FullForm().Close();
    };
    mouse.drag = [this](Point to) { Note("drag " + At(to)); };
    Full().SetMouseEvents(mouse);
    bool came = false;
    for (int i = 0; i < 2; ++i) {
        World().InModal(FullForm(), [&] {
            came = true;
            World().DragMouse(FullForm(), kFullPicture, {3, 3});
            World().PressMouse(FullForm(), kFullPicture, MouseButton::Left, {1, 1});
            World().DragMouse(FullForm(), kFullPicture, {2, 2});
            World().PressMouse(FullForm(), kFullPicture, MouseButton::Right, {2, 2});
        });
        FullForm().ShowModal();
        EXPECT_TRUE(came);
        EXPECT_EQ(Events(), Noted{"drag 2,2"});
        World().Settle();
    }
}

TEST_P(FullScreenContract, AProcedureOfTheMouseMayReplaceThem) {
    MouseEvents mouse;
    mouse.down = [this](MouseButton /*button*/, Point at) {
        Full().SetMouseEvents({});
        Note("down " + At(at));
    };
    Full().SetMouseEvents(mouse);
    ShowWith([&] {
        World().PressMouse(FullForm(), kFullPicture, MouseButton::Left, {1, 2});
        World().DragMouse(FullForm(), kFullPicture, {3, 4});
        World().ReleaseMouse(FullForm(), kFullPicture);
        EXPECT_EQ(Events(), Noted{"down 1,2"});
    });
}

}  // namespace zentar
