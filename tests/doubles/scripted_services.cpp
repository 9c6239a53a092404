#include "tests/doubles/scripted_services.h"

#include <array>
#include <chrono>
#include <cstdio>

namespace zentar {
namespace {

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

std::string Describe(const ProgramStart& start) {
    return "[" + start.folder + "] [" + start.executable + "] [" + start.arguments + "]";
}

using Ticks = std::chrono::duration<std::int64_t, std::ratio<1, 10'000'000>>;

// What a FileTime counts from, as a Unix time.
constexpr std::chrono::sys_days kEpoch{std::chrono::year{1601} / 1 / 1};

}  // namespace

std::optional<std::string> ScriptedShell::PickFolder(const std::string& title) {
    Log("PickFolder " + title);
    if (picks_.empty()) {
        ADD_FAILURE() << "A folder dialog that nobody expected: " << title;
        return std::nullopt;
    }
    const ExpectedPick expected = picks_.front();
    picks_.pop_front();
    EXPECT_EQ(title, expected.title) << "the folder dialog's title";
    return expected.picked;
}

void ScriptedShell::ExpectPick(const std::string& title, std::optional<std::string> picked) {
    picks_.push_back({title, std::move(picked)});
}

Status ScriptedShell::StartProgram(const ProgramStart& start) {
    Log("StartProgram " + start.folder + start.executable + start.arguments);
    started_.push_back(start);
    if (starts_.empty()) {
        ADD_FAILURE() << "The start of a program that nobody expected: " << Describe(start);
        return FileError::NotFound;
    }
    const ExpectedStart expected = starts_.front();
    starts_.pop_front();
    EXPECT_EQ(Describe(start), Describe(expected.start)) << "the program to be started";
    return expected.result;
}

Status ScriptedShell::OpenAddress(const std::string& address) {
    Log("OpenAddress " + address);
    if (opens_.empty()) {
        ADD_FAILURE() << "An address opened that nobody expected: " << address;
        return FileError::NotFound;
    }
    const ExpectedOpen expected = opens_.front();
    opens_.pop_front();
    EXPECT_EQ(address, expected.address) << "the address to be opened";
    return expected.result;
}

Status ScriptedShell::SetWallpaper(const std::string& path) {
    Log("SetWallpaper " + path);
    if (wallpaperAnswer.Ok())
        wallpaper = path;
    return wallpaperAnswer;
}

Status ScriptedShell::CopyElevated(const std::string& from, const std::string& to) {
    Log("CopyElevated " + from + " " + to);
    return copyElevated ? copyElevated(from, to) : FileError::AccessDenied;
}

Status ScriptedShell::DeleteElevated(const std::vector<std::string>& paths) {
    Log("DeleteElevated " + std::to_string(paths.size()));
    return deleteElevated ? deleteElevated(paths) : FileError::AccessDenied;
}

void ScriptedShell::ExpectStart(const ProgramStart& start, Status result) {
    starts_.push_back({start, result});
}

void ScriptedShell::ExpectOpen(const std::string& address, Status result) {
    opens_.push_back({address, result});
}

void ScriptedShell::Verify() {
    for (const ExpectedPick& pick : picks_) {
        ADD_FAILURE() << "A folder dialog that never came: " << pick.title;
    }
    for (const ExpectedStart& start : starts_) {
        ADD_FAILURE() << "The start of a program that never came: " << Describe(start.start);
    }
    for (const ExpectedOpen& open : opens_) {
        ADD_FAILURE() << "An address that was never opened: " << open.address;
    }
    picks_.clear();
    starts_.clear();
    opens_.clear();
}

void ScriptedShell::Log(const std::string& entry) {
    if (log_ != nullptr)
        log_->Add(entry);
}

Answer ScriptedWindows::Ask(const Message& message) {
    Log("Ask " + message.title);
    shown_.push_back(message);
    if (boxes_.empty()) {
        ADD_FAILURE() << "A message box that nobody expected: " << Describe(message);
        return message.buttons == MessageButtons::Ok ? Answer::Ok : Answer::No;
    }
    const ExpectedBox expected = boxes_.front();
    boxes_.pop_front();
    EXPECT_EQ(Describe(message), Describe(expected.message)) << "the message box";
    const bool possible =
        (message.buttons == MessageButtons::Ok) == (expected.answer == Answer::Ok);
    EXPECT_TRUE(possible) << "The box has no such button: " << Describe(message);
    if (expected.meanwhile)
        expected.meanwhile();
    return expected.answer;
}

std::optional<std::string> ScriptedWindows::AskText(const TextQuestion& question) {
    Log("AskText " + question.title);
    if (textBoxes_.empty()) {
        ADD_FAILURE() << "An input box that nobody expected: " << Describe(question);
        return std::nullopt;
    }
    const ExpectedTextBox expected = textBoxes_.front();
    textBoxes_.pop_front();
    EXPECT_EQ(Describe(question), Describe(expected.question)) << "the input box";
    if (expected.meanwhile)
        expected.meanwhile();
    return expected.answer;
}

bool ScriptedWindows::HasWindowTitled(const std::string& title) { return titles_.contains(title); }

void ScriptedWindows::Sound(Beep beep) {
    sounds_.push_back(beep);
    Log(beep == Beep::Information ? "Sound Information" : "Sound Exclamation");
}

std::uint16_t ScriptedWindows::KeyState(PollKey key) {
    std::uint16_t& state = keys_[key];
    const std::uint16_t now = state;
    state &= 0x8000;  // the low bit tells of a press only once
    return now;
}

void ScriptedWindows::SetPointer(Pointer pointer) {
    pointer_ = pointer;
    pointers_.push_back(pointer);
    Log(pointer == Pointer::Default ? "Pointer Default" : "Pointer Hourglass");
}

void ScriptedWindows::PumpPending() {
    ++pumps_;
    Log("Pump");
    if (duringPump_)
        duringPump_();
}

void ScriptedWindows::Sleep(int milliseconds) { Log("Sleep " + std::to_string(milliseconds)); }

void ScriptedWindows::SetDown(PollKey key, bool down) {
    if (down)
        down_.insert(key);
    else
        down_.erase(key);
}

void ScriptedWindows::Expect(const Message& message, Answer answer,
                             std::function<void()> meanwhile) {
    boxes_.push_back({message, answer, std::move(meanwhile)});
}

void ScriptedWindows::ExpectText(const TextQuestion& question, std::optional<std::string> answer,
                                 std::function<void()> meanwhile) {
    textBoxes_.push_back({question, std::move(answer), std::move(meanwhile)});
}

void ScriptedWindows::Verify() {
    for (const ExpectedBox& box : boxes_) {
        ADD_FAILURE() << "A message box that never came: " << Describe(box.message);
    }
    for (const ExpectedTextBox& box : textBoxes_) {
        ADD_FAILURE() << "An input box that never came: " << Describe(box.question);
    }
    boxes_.clear();
    textBoxes_.clear();
}

void ScriptedWindows::Log(const std::string& entry) {
    if (log_ != nullptr)
        log_->Add(entry);
}

FileTime MakeFileTime(int year, int month, int day, int hour, int minute, int second) {
    const std::chrono::sys_days date{std::chrono::year{year} / month / day};
    const Ticks ticks = (date - kEpoch) + std::chrono::hours{hour} + std::chrono::minutes{minute} +
                        std::chrono::seconds{second};
    return static_cast<FileTime>(ticks.count());
}

std::string FixedLocale::GeneralDate(FileTime moment) {
    const Ticks ticks{static_cast<std::int64_t>(moment)};
    const auto days = std::chrono::floor<std::chrono::days>(ticks);
    const std::chrono::year_month_day date{kEpoch + days};
    const std::chrono::hh_mm_ss time{std::chrono::floor<std::chrono::seconds>(ticks - days)};
    std::array<char, 64> text{};
    const int length = std::snprintf(
        text.data(), text.size(), "%04d-%02u-%02u %02d:%02d:%02d", static_cast<int>(date.year()),
        static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
        static_cast<int>(time.hours().count()), static_cast<int>(time.minutes().count()),
        static_cast<int>(time.seconds().count()));
    return {text.data(), static_cast<std::size_t>(length)};
}

}  // namespace zentar
