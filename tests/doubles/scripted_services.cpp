#include "tests/doubles/scripted_services.h"

#include <array>
#include <chrono>
#include <cstdio>
#include <utility>

namespace zentar {
namespace {

std::string Describe(const ProgramStart& start) {
    return "[" + start.folder + "] [" + start.executable + "] [" + start.arguments + "] " +
           (start.window == StartWindow::Minimised ? "minimised" : "maximised");
}

std::string DescribeFile(const std::string& path, const std::string& folder) {
    return "[" + path + "] in [" + folder + "]";
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

Status ScriptedShell::OpenFile(const std::string& path, const std::string& folder) {
    Log("OpenFile " + path);
    if (files_.empty()) {
        ADD_FAILURE() << "A file opened that nobody expected: " << DescribeFile(path, folder);
        return FileError::NotFound;
    }
    const ExpectedFile expected = files_.front();
    files_.pop_front();
    EXPECT_EQ(DescribeFile(path, folder), DescribeFile(expected.path, expected.folder))
        << "the file to be opened";
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

Status ScriptedShell::RestartWindows() {
    Log("RestartWindows");
    ++restarts;
    return restartAnswer;
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

void ScriptedShell::ExpectOpenFile(const std::string& path, const std::string& folder,
                                   Status result) {
    files_.push_back({path, folder, result});
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
    for (const ExpectedFile& file : files_) {
        ADD_FAILURE() << "A file that was never opened: " << DescribeFile(file.path, file.folder);
    }
    picks_.clear();
    starts_.clear();
    opens_.clear();
    files_.clear();
}

void ScriptedShell::Log(const std::string& entry) {
    if (log_ != nullptr)
        log_->Add(entry);
}

Status ScriptedWindows::PutOnClipboard(const std::string& text) {
    Log("PutOnClipboard " + text);
    if (clipboardAnswer.Ok())
        clipboard = text;
    return clipboardAnswer;
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

Pointer ScriptedWindows::SetPointer(Pointer pointer) {
    pointers_.push_back(pointer);
    Log(pointer == Pointer::Default ? "Pointer Default" : "Pointer Hourglass");
    return std::exchange(pointer_, pointer);
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
