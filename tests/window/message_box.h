// A message box of the program, as the user sees it.
#pragma once

#include <windows.h>

#include <ostream>
#include <string>
#include <vector>

namespace zentar::window_tests {

class WindowProbe;

enum class BoxIcon { None, Information, Exclamation, Question, Critical };

struct BoxContents {
    std::string title;
    std::string text;  // lines end in CR LF
    BoxIcon icon = BoxIcon::None;
    std::vector<int> buttons;  // IDOK, IDYES, IDNO
    int defaultButton = 0;

    bool operator==(const BoxContents&) const = default;
};

// For the messages of failed tests.
void PrintTo(const BoxContents& box, std::ostream* out);

BoxContents ReadBox(HWND box, const WindowProbe& probe);
// Presses a button and waits until the box has gone.
void AnswerBox(HWND box, int button);

// The lines joined by CR LF.
std::string BoxLines(const std::vector<std::string>& lines);

}  // namespace zentar::window_tests
