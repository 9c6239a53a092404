// The dialogs of the program, as a test wrote its user's part.
//
// A dialog that the test does not expect fails it, and so does one that it expected and that never
// came, or that asked something else.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "platform/window_services.h"
#include "tests/doubles/event_log.h"

namespace zentar {

// For the messages of a test that fails: a question whole.
std::string Describe(const Message& message);
std::string Describe(const TextQuestion& question);
std::string Describe(const FileQuestion& question);
std::string Describe(ColourRef shown);

// The dialogs of one kind that are to come, in this order.
template <typename Question, typename Reply>
class DialogScript {
  public:
    // `name` is how a failing test calls such a dialog: "message box".
    explicit DialogScript(std::string name) : name_(std::move(name)) {}

    // `meanwhile` runs while the dialog is open.
    void Expect(Question question, Reply reply, std::function<void()> meanwhile) {
        expected_.push_back({std::move(question), std::move(reply), std::move(meanwhile)});
    }

    // The user's reply; nothing to a dialog that nobody expected.
    std::optional<Reply> Show(const Question& question) {
        if (expected_.empty()) {
            ADD_FAILURE() << "A " << name_ << " that nobody expected: " << Describe(question);
            return std::nullopt;
        }
        const Expected next = expected_.front();
        expected_.pop_front();
        EXPECT_EQ(Describe(question), Describe(next.question)) << "the " << name_;
        if (next.meanwhile)
            next.meanwhile();
        return next.reply;
    }

    // Fails the test when an expected dialog has not come; then expects none.
    void Verify() {
        for (const Expected& next : expected_) {
            ADD_FAILURE() << "A " << name_ << " that never came: " << Describe(next.question);
        }
        expected_.clear();
    }

  private:
    struct Expected {
        Question question;
        Reply reply;
        std::function<void()> meanwhile;
    };

    std::string name_;
    std::deque<Expected> expected_;
};

class ScriptedDialogs : public WindowServices {
  public:
    explicit ScriptedDialogs(EventLog* log = nullptr) : log_(log) {}
    ~ScriptedDialogs() override { Verify(); }
    ScriptedDialogs(const ScriptedDialogs&) = delete;
    ScriptedDialogs& operator=(const ScriptedDialogs&) = delete;

    Answer Ask(const Message& message) override;
    std::optional<std::string> AskText(const TextQuestion& question) override;
    std::optional<std::string> ChooseFileToOpen(const FileQuestion& question) override;
    std::optional<std::string> ChooseFileToSave(const FileQuestion& question) override;
    std::optional<ColourRef> ChooseColour(ColourRef shown) override;

    // The next box is this one, whole, and the user answers so. `meanwhile` runs while it is open.
    void Expect(const Message& message, Answer answer, std::function<void()> meanwhile = {});
    void Expect(const Message& message) { Expect(message, Answer::Ok); }
    // The next input box is this one, whole; the user answers so, or cancels.
    void ExpectText(const TextQuestion& question, std::optional<std::string> answer,
                    std::function<void()> meanwhile = {});
    // The next dialog for a file that is to be opened is this one, whole; the user picks the file
    // of this path, or cancels.
    void ExpectFileToOpen(const FileQuestion& question, std::optional<std::string> answer,
                          std::function<void()> meanwhile = {});
    // The same of a file that is to be saved.
    void ExpectFileToSave(const FileQuestion& question, std::optional<std::string> answer,
                          std::function<void()> meanwhile = {});
    // The next colour dialog shows this colour at first; the user picks one, or cancels.
    void ExpectColour(ColourRef shown, std::optional<ColourRef> answer,
                      std::function<void()> meanwhile = {});
    // Fails the test when an expected dialog has not come; then expects none.
    void Verify();

    // Every message box, in this order, expected or not.
    const std::vector<Message>& Shown() const { return shown_; }

  protected:
    void Log(const std::string& entry);

  private:
    EventLog* log_;
    DialogScript<Message, Answer> boxes_{"message box"};
    DialogScript<TextQuestion, std::optional<std::string>> textBoxes_{"text question"};
    DialogScript<FileQuestion, std::optional<std::string>> opens_{"dialog for a file to open"};
    DialogScript<FileQuestion, std::optional<std::string>> saves_{"dialog for a file to save"};
    DialogScript<ColourRef, std::optional<ColourRef>> colours_{"colour dialog"};
    std::vector<Message> shown_;
};

}  // namespace zentar
