#include "platform/win32/input_box.h"

#include <array>
#include <functional>
#include <utility>

#include "platform/win32/win32_form.h"

namespace zentar {
namespace {

constexpr int kPrompt = 1001;
constexpr int kAnswer = 1002;

constexpr Size kSize{448, 148};

std::array<ControlRow, 4> RowsOf(const TextQuestion& question) {
    return {{{.id = kPrompt,
              .kind = ControlKind::Label,
              .rect = {14, 14, 420, 64},
              .caption = question.prompt.c_str(),
              .flags = BreaksWords},
             {.id = kAnswer,
              .kind = ControlKind::TextBox,
              .rect = {14, 82, 420, 23},
              .caption = question.answer.c_str(),
              .name = question.prompt.c_str()},
             {.id = IDOK,
              .kind = ControlKind::Button,
              .rect = {252, 113, 88, 25},
              .caption = "OK",
              .flags = PressedByEnter},
             {.id = IDCANCEL,
              .kind = ControlKind::Button,
              .rect = {346, 113, 88, 25},
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
                             .clientSize = kSize,
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
