#include "platform/win32/input_box.h"

#include <algorithm>
#include <array>
#include <functional>
#include <string_view>
#include <utility>

#include "platform/win32/win32_form.h"

namespace zentar {
namespace {

constexpr int kPrompt = 1001;
constexpr int kAnswer = 1002;

constexpr int kWidth = 448;
constexpr int kMargin = 14;
constexpr int kInside = kWidth - 2 * kMargin;
constexpr int kLineHeight = 16;
constexpr int kLettersALine = 40;  // wide ones

// Room for the prompt, whose lines go on in the next one where they are too long.
int PromptHeight(std::string_view prompt) {
    int lines = 0;
    while (!prompt.empty()) {
        const std::size_t end = std::min(prompt.find("\r\n"), prompt.size());
        lines += 1 + static_cast<int>(end) / kLettersALine;
        prompt.remove_prefix(std::min(end + 2, prompt.size()));
    }
    return lines * kLineHeight;
}

std::array<ControlRow, 4> RowsOf(const TextQuestion& question) {
    const int prompt = PromptHeight(question.prompt);
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

ControlEvents OnClick(std::function<void()> click) {
    ControlEvents events;
    events.click = std::move(click);
    return events;
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
