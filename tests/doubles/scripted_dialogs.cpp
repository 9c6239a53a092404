#include "tests/doubles/scripted_dialogs.h"

#include <array>
#include <cstddef>
#include <cstdio>

namespace zentar {

std::string Describe(const Message& message) {
    constexpr std::array<const char*, 4> kIcons = {"information", "exclamation", "question",
                                                   "critical"};
    std::string text = "[" + message.title + "] (";
    text += kIcons[static_cast<std::size_t>(message.icon)];
    text += message.buttons == MessageButtons::Ok ? " icon, OK" : " icon, Yes/No";
    text += message.defaultButton == DefaultButton::First ? ", first" : ", second";
    return text + " button is the default)\n" + message.text;
}

std::string Describe(const TextQuestion& question) {
    return "[" + question.title + "] (offers \"" + question.answer + "\")\n" + question.prompt;
}

std::string Describe(const FileQuestion& question) {
    std::string text = "[" + question.title + "] (shows the folder \"" + question.folder +
                       "\", offers \"" + question.name + "\")";
    for (const FileKind& kind : question.kinds) {
        text += "\n[" + kind.label + "] [" + kind.patterns + "]";
    }
    return text;
}

std::string Describe(ColourRef shown) {
    std::array<char, 16> text{};
    const int length = std::snprintf(text.data(), text.size(), "0x%08X", shown);
    return {text.data(), static_cast<std::size_t>(length)};
}

Answer ScriptedDialogs::Ask(const Message& message) {
    Log("Ask " + message.title);
    shown_.push_back(message);
    const std::optional<Answer> answer = boxes_.Show(message);
    if (!answer)
        return message.buttons == MessageButtons::Ok ? Answer::Ok : Answer::No;
    const bool possible = (message.buttons == MessageButtons::Ok) == (*answer == Answer::Ok);
    EXPECT_TRUE(possible) << "The box has no such button: " << Describe(message);
    return *answer;
}

std::optional<std::string> ScriptedDialogs::AskText(const TextQuestion& question) {
    Log("AskText " + question.title);
    return textBoxes_.Show(question).value_or(std::nullopt);
}

std::optional<std::string> ScriptedDialogs::ChooseFileToOpen(const FileQuestion& question) {
    Log("ChooseFileToOpen " + question.title);
    return opens_.Show(question).value_or(std::nullopt);
}

std::optional<std::string> ScriptedDialogs::ChooseFileToSave(const FileQuestion& question) {
    Log("ChooseFileToSave " + question.title);
    return saves_.Show(question).value_or(std::nullopt);
}

std::optional<ColourRef> ScriptedDialogs::ChooseColour(ColourRef shown) {
    Log("ChooseColour " + Describe(shown));
    return colours_.Show(shown).value_or(std::nullopt);
}

void ScriptedDialogs::Expect(const Message& message, Answer answer,
                             std::function<void()> meanwhile) {
    boxes_.Expect(message, answer, std::move(meanwhile));
}

void ScriptedDialogs::ExpectText(const TextQuestion& question, std::optional<std::string> answer,
                                 std::function<void()> meanwhile) {
    textBoxes_.Expect(question, std::move(answer), std::move(meanwhile));
}

void ScriptedDialogs::ExpectFileToOpen(const FileQuestion& question,
                                       std::optional<std::string> answer,
                                       std::function<void()> meanwhile) {
    opens_.Expect(question, std::move(answer), std::move(meanwhile));
}

void ScriptedDialogs::ExpectFileToSave(const FileQuestion& question,
                                       std::optional<std::string> answer,
                                       std::function<void()> meanwhile) {
    saves_.Expect(question, std::move(answer), std::move(meanwhile));
}

void ScriptedDialogs::ExpectColour(ColourRef shown, std::optional<ColourRef> answer,
                                   std::function<void()> meanwhile) {
    colours_.Expect(shown, answer, std::move(meanwhile));
}

void ScriptedDialogs::Verify() {
    boxes_.Verify();
    textBoxes_.Verify();
    opens_.Verify();
    saves_.Verify();
    colours_.Verify();
}

void ScriptedDialogs::Log(const std::string& entry) {
    if (log_ != nullptr)
        log_->Add(entry);
}

}  // namespace zentar
