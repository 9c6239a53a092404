// The services of the windowing system that belong to no single control.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/colour.h"
#include "platform/result.h"

namespace zentar {

enum class MessageIcon : std::uint8_t { Information, Exclamation, Question, Critical };
enum class MessageButtons : std::uint8_t { Ok, YesNo };
enum class DefaultButton : std::uint8_t { First, Second };
enum class Answer : std::uint8_t { Ok, Yes, No };

// A modal message box, whole. Text lines are separated by CR LF.
struct Message {
    std::string title;
    std::string text;
    MessageIcon icon = MessageIcon::Information;
    MessageButtons buttons = MessageButtons::Ok;
    DefaultButton defaultButton = DefaultButton::First;

    bool operator==(const Message&) const = default;
};

// A question that the user answers with a line of text. Prompt lines are separated by CR LF.
struct TextQuestion {
    std::string title;
    std::string prompt;
    std::string answer;  // offered at first, all of it selected

    bool operator==(const TextQuestion&) const = default;
};

// A kind of file that a file dialog shows: "Text files (*.txt, *.log)", "*.txt;*.log".
struct FileKind {
    std::string label;
    std::string patterns;

    bool operator==(const FileKind&) const = default;
};

// What a file dialog is opened with.
struct FileQuestion {
    std::string title;
    std::string folder;  // shown at first
    std::string name;    // offered at first; without a folder
    std::vector<FileKind> kinds;

    bool operator==(const FileQuestion&) const = default;
};

enum class Beep : std::uint8_t { Information, Exclamation };
enum class PollKey : std::uint8_t { Shift, Control };
enum class Pointer : std::uint8_t { Default, Hourglass };

class WindowServices {
  public:
    virtual ~WindowServices() = default;

    // Shows the box over whichever window of the program is in front. Closing a Yes/No box is not
    // possible without an answer. Other event procedures may run meanwhile.
    virtual Answer Ask(const Message& message) = 0;
    // Shows an input box over that window; gives the answer as it was typed, or nothing when the
    // user cancels. Other event procedures may run meanwhile.
    virtual std::optional<std::string> AskText(const TextQuestion& question) = 0;
    // Lets the user pick a file that exists; gives its whole path, or nothing when the user
    // cancels. Other event procedures may run meanwhile.
    virtual std::optional<std::string> ChooseFileToOpen(const FileQuestion& question) = 0;
    // Lets the user name a file, which may exist: nothing is asked about that. A name without an
    // extension gets that of the first kind.
    virtual std::optional<std::string> ChooseFileToSave(const FileQuestion& question) = 0;
    // Lets the user pick a colour, `shown` at first; nothing when the user cancels.
    virtual std::optional<ColourRef> ChooseColour(ColourRef shown) = 0;
    // Gives a text to every program that pastes one.
    virtual Status PutOnClipboard(const std::string& text) = 0;
    // Whether a top-level window of any program has exactly this title.
    virtual bool HasWindowTitled(const std::string& title) = 0;
    virtual void Sound(Beep beep) = 0;
    // The asynchronous state of a key: the high bit says "down now", the low bit "pressed since
    // the last query".
    virtual std::uint16_t KeyState(PollKey key) = 0;
    // Whether a key was down when the input that is being handled came. Does not count as a query
    // of KeyState.
    virtual bool IsDown(PollKey key) = 0;
    // Gives the pointer that was shown before.
    virtual Pointer SetPointer(Pointer pointer) = 0;
    // Handles the window messages that are waiting, so that windows repaint. Event procedures may
    // run inside this call. A request to close the program is put off until the outermost event
    // procedure has returned.
    virtual void PumpPending() = 0;
    // Waits without handling messages.
    virtual void Sleep(int milliseconds) = 0;
};

}  // namespace zentar
