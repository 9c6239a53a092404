#include "platform/win32/input_box.h"

#include <algorithm>
#include <array>
#include <functional>
#include <string>
#include <utility>

#include "platform/win32/fonts.h"
#include "platform/win32/units.h"
#include "platform/win32/win32_form.h"
#include "platform/win32/win32_text.h"

namespace zentar {
namespace {

constexpr int kPrompt = 1001;
constexpr int kAnswer = 1002;

constexpr int kWidth = 448;
constexpr int kMargin = 14;
constexpr int kInside = kWidth - 2 * kMargin;
constexpr int kLineHeight = 16;
// The font's widths do not grow in step with the resolution, and lines break elsewhere.
constexpr int kSpareWidth = 20;

// How many lines the label makes of the prompt.
int LinesOf(const std::string& prompt) {
    const auto dpi = static_cast<int>(GetDpiForSystem());
    const Fonts fonts(dpi);
    const WindowContext screen(nullptr);
    const HGDIOBJ before = SelectObject(screen.Get(), fonts.Text());
    TEXTMETRICW metrics{};
    GetTextMetricsW(screen.Get(), &metrics);
    RECT room{0, 0, PixelsOfUnits(kInside - kSpareWidth, dpi), 0};
    DrawTextW(screen.Get(), Widen(prompt).c_str(), -1, &room,
              DT_CALCRECT | DT_WORDBREAK | DT_EDITCONTROL | DT_NOPREFIX | DT_EXPANDTABS);
    SelectObject(screen.Get(), before);
    return static_cast<int>(room.bottom / std::max(metrics.tmHeight, LONG{1}));
}

std::array<ControlRow, 4> RowsOf(const TextQuestion& question) {
    const int prompt = LinesOf(question.prompt) * kLineHeight;
    const int answer = kMargin + prompt + 6;
    const int buttons = answer + 31;
    return {{{.id = kPrompt,
              .kind = ControlKind::Label,
              .rect = {kMargin, kMargin, kInside, prompt},
              .caption = question.prompt.c_str(),
              .flags = BreaksWords},
             {.id = kAnswer,
              .kind = ControlKind::TextBox,
              .rect = {kMargin, answer, kInside, 23},
              .caption = question.answer.c_str(),
              .name = question.prompt.c_str()},
             {.id = IDOK,
              .kind = ControlKind::Button,
              .rect = {252, buttons, 88, 25},
              .caption = "OK",
              .flags = PressedByEnter},
             {.id = IDCANCEL,
              .kind = ControlKind::Button,
              .rect = {346, buttons, 88, 25},
              .caption = "Cancel"}}};
}

}  // namespace

// The text box is the first that takes the focus, which selects its text.
std::optional<std::string> ShowInputBox(const TextQuestion& question, Win32Session& session) {
    const std::array<ControlRow, 4> rows = RowsOf(question);
    const FormTable table = {.kind = FormKind::Dialog,
                             .caption = question.title.c_str(),
                             .clientSize = {kWidth, rows.back().rect.top + 35},
                             .controls = rows};
    std::optional<std::string> answer;
    Win32Form form(table, session);
    form.GetButton(IDOK).SetEvents(OnClick([&] {
        answer = form.GetTextBox(kAnswer).Text();
        form.Close();
    }));
    form.GetButton(IDCANCEL).SetEvents(OnClick([&] { form.Close(); }));
    form.ShowModal();
    return answer;
}

}  // namespace zentar
