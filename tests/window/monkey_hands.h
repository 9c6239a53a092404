// Hands that click and press whatever comes, in the windows of the program alone.
#pragma once

#include <windows.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "tests/monkey/dice.h"
#include "tests/window/zentar_driver.h"
#include "tests/window/zentar_home.h"

namespace zentar::window_tests {

class MonkeyHands {
  public:
    MonkeyHands(const ZentarDriver& zentar, const ZentarHome& home, std::uint64_t seed);
    ~MonkeyHands();
    MonkeyHands(const MonkeyHands&) = delete;
    MonkeyHands& operator=(const MonkeyHands&) = delete;

    // Does one thing; says what, for the message of a test that fails.
    std::string Act();
    // Closes every dialog and menu, has all files of the first day again, and shows a folder
    // without anything in it: what the program holds then can be compared.
    void CalmDown();

  private:
    HWND Front();
    std::string ActIn(HWND form);
    std::string ClickIn(HWND form);
    std::string PressSomething(HWND form);
    std::string PressInMenu();
    std::string AnswerDialog(HWND dialog);
    std::string AnswerFileDialog(HWND dialog);
    std::string ResizeWindow(HWND form);
    std::string ChangeFiles();
    bool MayPress(HWND control) const;
    bool BelongsToProgram(POINT place) const;
    void Dismiss(HWND window);

    void Appears(const std::filesystem::path& file);
    void Vanishes(const std::filesystem::path& file);
    void LetGo();

    const ZentarDriver& zentar_;
    const ZentarHome& home_;
    ZentarHome firstDay_;
    std::vector<std::filesystem::path> files_;  // of the games, from their folder
    monkey::Dice dice_;
    HANDLE held_ = INVALID_HANDLE_VALUE;  // a file that another program uses
};

}  // namespace zentar::window_tests
