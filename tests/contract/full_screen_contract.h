// What a window over the whole screen promises, and the picture box that fills it.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "tests/contract/controls_contract.h"

namespace zentar {

// The window over the whole screen, with what it tells.
class FullScreenContract : public ControlsContract {
  protected:
    FullScreenContract() {
        ShowMain();
        Full().SetEvents(KeysAndDoubleClicks());
        Full().SetMouseEvents(NotedMouse());
    }

    PictureBox& Full() { return form_->GetPictureBox(kFullPicture); }
    Form& FullForm() { return *form_; }

    // Shows it for as long as the user is at it.
    void ShowWith(const std::function<void()>& user) {
        bool came = false;
        World().InModal(*form_, [&] {
            came = true;
            user();
            World().CloseWindow(*form_);
        });
        form_->ShowModal();
        EXPECT_TRUE(came);
        EXPECT_FALSE(World().Shown(*form_));
    }

    static std::string At(Point point) {
        return std::to_string(point.x) + "," + std::to_string(point.y);
    }

  private:
    MouseEvents NotedMouse() {
        MouseEvents mouse;
        mouse.down = [this](MouseButton button, Point at) {
            Note((button == MouseButton::Left ? "left " : "right ") + At(at));
        };
        mouse.drag = [this](Point to) { Note("drag " + At(to)); };
        mouse.up = [this] { Note("up"); };
        return mouse;
    }

    ControlEvents KeysAndDoubleClicks() {
        ControlEvents events;
        events.doubleClick = [this] { Note("double click"); };
        events.keyDown = [this](Key key) {
            Note(NoteOf(key));
            return true;
        };
        return events;
    }

    std::unique_ptr<Form> form_ = World().Create(ContractFullScreenTable());
};

}  // namespace zentar
