// The full-size viewer: where the shot stands, dragging it, and leaving.

#include "screenshots/full_view.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/doubles/memory_platform.h"
#include "ui/form_tables.h"
#include "ui/resource.h"

namespace zentar {
namespace {

using ::testing::ElementsAre;

class FullViewTest : public ::testing::Test {
  protected:
    FullViewTest() {
        window_ = os_.forms.Create(FullViewTable());
        form_ = static_cast<MemoryForm*>(window_.get());
        view_ = std::make_unique<FullView>(*window_, window_->GetPictureBox(IDC_picFull));
    }

    // Shows a shot on a screen; the user does something, and leaves.
    void Show(Size shot, std::function<void()> user, Size screen = {1024, 768}) {
        dynamic_cast<MemoryPictureBox&>(window_->GetPictureBox(IDC_picFull)).SetView(screen);
        os_.forms.SetUser(IDW_Form3, [&](MemoryForm&) {
            seen_ = true;
            user();
        });
        view_->Show(std::make_shared<MemoryBitmap>(shot, "duel"));
        EXPECT_TRUE(seen_);
        EXPECT_TRUE(form_->Closed());
    }

    MemoryPictureBox& Box() { return form_->UserMouseOn(IDC_picFull); }
    void Press(Point at) { Box().Press(MouseButton::Left, at); }
    void DragTo(Point to) { Box().Drag(to); }

    MemoryPlatform os_;
    std::unique_ptr<Form> window_;
    MemoryForm* form_ = nullptr;
    std::unique_ptr<FullView> view_;
    bool seen_ = false;
};

// ---- Opening ----

TEST_F(FullViewTest, ASmallShotStandsInTheMiddleOfTheScreen) {
    Show({640, 480}, [this] {
        EXPECT_EQ(Box().ImagePlace(), (Point{192, 144}));
        EXPECT_EQ(ShownBy(Box().Image()), "duel");
        EXPECT_EQ(Box().ShownPointer(), BoxPointer::Default);
        EXPECT_EQ(form_->FocusedId(), IDC_picFull);
        EXPECT_TRUE(os_.log.Ordered({"picFull.SetFocus()", "Form3.Show()"}));
    });
}

TEST_F(FullViewTest, ALargeShotIsCentredToo) {
    Show({2048, 1536}, [this] { EXPECT_EQ(Box().ImagePlace(), (Point{-512, -384})); });
    Show({1025, 10}, [this] { EXPECT_EQ(Box().ImagePlace().y, 379); });
}

TEST_F(FullViewTest, TheScreenIsCoveredByAWindowOfItsOwn) {
    EXPECT_EQ(FullViewTable().kind, FormKind::FullScreen);
    EXPECT_EQ(FullViewTable().controls.size(), 1U);
    EXPECT_EQ(FullViewTable().controls[0].cursor, IDC_CURSOR_DRAG);
}

TEST_F(FullViewTest, ArrowKeysShowWhatLiesInTheirDirection) {
    Show({2048, 1536}, [this] {
        form_->UserKey(Key::Right);
        EXPECT_EQ(Box().ImagePlace(), (Point{-512 - 64, -384}));
        form_->UserKey(Key::Down);
        EXPECT_EQ(Box().ImagePlace(), (Point{-512 - 64, -384 - 64}));
        form_->UserKey(Key::Left);
        form_->UserKey(Key::Up);
        EXPECT_EQ(Box().ImagePlace(), (Point{-512, -384}));
        for (int press = 0; press < 9; ++press) {
            form_->UserKey(Key::Left);
            form_->UserKey(Key::Down);
        }
        EXPECT_EQ(Box().ImagePlace(), (Point{0, 768 - 1536}));
    });
}

TEST_F(FullViewTest, ArrowKeysDoNotTakeADragFromTheMouse) {
    Show({2048, 1536}, [this] {
        Press({500, 500});
        DragTo({490, 500});
        form_->UserKey(Key::Right);
        DragTo({480, 500});
        EXPECT_EQ(Box().ImagePlace(), (Point{-512 - 10 - 64 - 10, -384}));
    });
}

TEST_F(FullViewTest, ArrowKeysLeaveASmallShotInTheMiddle) {
    Show({640, 480}, [this] {
        form_->UserKey(Key::Right);
        form_->UserKey(Key::Up);
        EXPECT_EQ(Box().ImagePlace(), (Point{192, 144}));
    });
}

TEST_F(FullViewTest, ThePictureIsNotKeptAfterwardsAndTheNextOneStartsAnew) {
    Show({2048, 1536}, [this] {
        Press({500, 500});
        DragTo({400, 400});
    });
    EXPECT_EQ(window_->GetPictureBox(IDC_picFull).Image(), nullptr);
    Show({640, 480}, [this] {
        EXPECT_EQ(Box().ImagePlace(), (Point{192, 144}));
        EXPECT_EQ(Box().ShownPointer(), BoxPointer::Default);
    });
}

// ---- Closing ----

TEST_F(FullViewTest, SpaceEscapeAndEnterClose) {
    for (const Key key : {Key::Space, Key::Escape, Key::Enter}) {
        Show({640, 480}, [this, key] {
            form_->UserKey(key);
            EXPECT_TRUE(form_->Closed());
        });
    }
}

TEST_F(FullViewTest, OtherKeysDoNothing) {
    Show({640, 480}, [this] {
        for (const Key key : {Key::F1, Key::F2, Key::F5, Key::Delete, Key::Backspace}) {
            form_->UserKey(key);
            EXPECT_FALSE(form_->Closed());
            EXPECT_FALSE(view_->picFull_KeyPress(key));
        }
    });
}

TEST_F(FullViewTest, ADoubleClickCloses) {
    Show({640, 480}, [this] {
        form_->UserDoubleClick(IDC_picFull);
        EXPECT_TRUE(form_->Closed());
    });
}

TEST_F(FullViewTest, ARightClickClosesAlsoDuringADrag) {
    Show({640, 480}, [this] {
        Box().Press(MouseButton::Right, {5, 5});
        EXPECT_TRUE(form_->Closed());
    });
    Show({2048, 1536}, [this] {
        Press({500, 500});
        DragTo({400, 400});
        Box().Press(MouseButton::Right, {400, 400});
        EXPECT_TRUE(form_->Closed());
    });
}

TEST_F(FullViewTest, ALeftClickAloneDoesNotClose) {
    Show({640, 480}, [this] {
        Press({5, 5});
        Box().Release();
        EXPECT_FALSE(form_->Closed());
    });
}

// ---- Dragging ----

TEST_F(FullViewTest, AShotNoLargerThanTheScreenStaysWhereItIs) {
    for (const Size shot : {Size{640, 480}, Size{1024, 768}, Size{1, 1}}) {
        Show(shot, [this] {
            const Point place = Box().ImagePlace();
            const int moves = Box().Moves();
            Press({500, 500});
            EXPECT_EQ(Box().ShownPointer(), BoxPointer::Default);
            for (const Point to : {Point{400, 400}, Point{600, 600}, Point{0, 767}}) {
                DragTo(to);
            }
            EXPECT_EQ(Box().ImagePlace(), place);
            EXPECT_EQ(Box().Moves(), moves);
        });
    }
}

TEST_F(FullViewTest, ALargerOneFollowsTheMouseInOneMoveEach) {
    Show({2048, 1536}, [this] {
        const int moves = Box().Moves();
        Press({500, 500});
        DragTo({480, 530});
        EXPECT_EQ(Box().ImagePlace(), (Point{-532, -354}));
        DragTo({490, 500});
        EXPECT_EQ(Box().ImagePlace(), (Point{-522, -384}));
        EXPECT_EQ(Box().Moves(), moves + 2);
        DragTo({490, 500});
        EXPECT_EQ(Box().Moves(), moves + 2);
    });
}

TEST_F(FullViewTest, ThePointerIsTheHandWhileTheButtonIsDown) {
    Show({2048, 10}, [this] {
        Press({500, 500});
        EXPECT_EQ(Box().ShownPointer(), BoxPointer::Custom);
        DragTo({400, 400});
        EXPECT_EQ(Box().ShownPointer(), BoxPointer::Custom);
        Box().Release();
        EXPECT_EQ(Box().ShownPointer(), BoxPointer::Default);
    });
    Show({10, 769}, [this] {
        Press({500, 500});
        EXPECT_EQ(Box().ShownPointer(), BoxPointer::Custom);
    });
}

TEST_F(FullViewTest, EveryPressStartsFromWhereTheMouseIs) {
    Show({2048, 1536}, [this] {
        Press({500, 500});
        DragTo({400, 400});
        Box().Release();
        Press({10, 10});
        DragTo({15, 20});
        EXPECT_EQ(Box().ImagePlace(), (Point{-607, -474}));
    });
}

TEST_F(FullViewTest, TheMouseAloneMovesNothing) {
    Show({2048, 1536}, [this] {
        const int moves = Box().Moves();
        DragTo({400, 400});
        Press({500, 500});
        Box().Release();
        DragTo({400, 400});
        EXPECT_EQ(Box().Moves(), moves);
    });
}

TEST_F(FullViewTest, ADragEndsAtTheShotsEdgesAndTurnsBackAtOnce) {
    Show({2048, 1536}, [this] {
        Press({1000, 700});
        DragTo({0, 0});
        EXPECT_EQ(Box().ImagePlace(), (Point{-1024, -768}));
        DragTo({1, 1});
        EXPECT_EQ(Box().ImagePlace(), (Point{-1020, -764}));
        DragTo({1023, 767});
        EXPECT_EQ(Box().ImagePlace(), (Point{0, 0}));
        DragTo({1022, 766});
        EXPECT_EQ(Box().ImagePlace(), (Point{-4, -4}));
    });
}

}  // namespace
}  // namespace zentar
