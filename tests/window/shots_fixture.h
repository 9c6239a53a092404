// The Shots tab of a started program, with the sample games' screenshots.
#pragma once

#include "tests/window/commands_fixture.h"

namespace zentar::window_tests {

class ShotsWindowTest : public CommandsTest {
  protected:
    ZentarDriver& Open(const IniLines& settings = {}) { return CommandsTest::Open(0, settings); }

    std::filesystem::path Shots() const;
    bool IsHere(const std::string& file) const;
    // Clicks on the entry of a shot.
    void ClickShot(const std::string& shot) const;
    // Picks a command on a shot from the popup menu.
    void Choose(const std::string& shot, int command) const;
    // Shows a shot and waits until it is seen.
    void View(const std::string& shot, int hall) const;
    // Whether the gate of a sample hall stands in the middle of the view.
    bool ViewShowsHall(int hall) const;
    bool ViewIsEmpty() const;
    // The "Preview." caption.
    bool CaptionIsRed() const;
};

// Whether the colour, in the picture of a hall, is that of its gate.
bool IsGateOf(int hall, COLORREF colour);

}  // namespace zentar::window_tests
