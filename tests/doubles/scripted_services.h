// The shell, the windowing system and the locale, as a test wrote their part.
//
// A folder dialog, the start of a program or the opening of something, that the test does not
// expect fails it, and so does one that it expected and that never came.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/locale.h"
#include "platform/shell.h"
#include "platform/window_services.h"
#include "tests/doubles/event_log.h"
#include "tests/doubles/scripted_dialogs.h"

namespace zentar {

class ScriptedShell : public Shell {
  public:
    explicit ScriptedShell(EventLog* log = nullptr) : log_(log) {}
    ~ScriptedShell() override { Verify(); }
    ScriptedShell(const ScriptedShell&) = delete;
    ScriptedShell& operator=(const ScriptedShell&) = delete;

    std::string ProgramFolder() override { return programFolder; }
    std::string WindowsFolder() override { return windowsFolder; }
    std::optional<std::string> PickFolder(const std::string& title) override;
    Status StartProgram(const ProgramStart& start) override;
    Status OpenAddress(const std::string& address) override;
    Status OpenFile(const std::string& path, const std::string& folder) override;
    std::string TemporaryFolder() override { return temporaryFolder; }
    Status SetWallpaper(const std::string& path) override;
    Status CopyElevated(const std::string& from, const std::string& to) override;
    Status DeleteElevated(const std::vector<std::string>& paths) override;
    Status RestartWindows() override;

    // The next folder dialog has this title; the user picks the folder, or cancels.
    void ExpectPick(const std::string& title, std::optional<std::string> picked);
    // The next program to be started is this one, and so it ends.
    void ExpectStart(const ProgramStart& start, Status result = {});
    // The next address to be opened is this one, and so it ends.
    void ExpectOpen(const std::string& address, Status result = {});
    // The next file to be opened is this one, with that folder as the current one; and so it ends.
    void ExpectOpenFile(const std::string& path, const std::string& folder, Status result = {});
    // Fails the test when something expected has not come; then expects nothing.
    void Verify();

    // Every program that was to be started, in this order, expected or not.
    const std::vector<ProgramStart>& Started() const { return started_; }

    std::string programFolder = "C:\\Program Files\\Zentar";
    std::string windowsFolder = "C:\\Windows";
    std::string temporaryFolder = "C:\\Temp";
    std::string wallpaper;     // the one that the user has
    Status wallpaperAnswer{};  // so the next ones end
    int restarts = 0;          // of the system
    Status restartAnswer{};
    // What an administrator does; without one, the user declines.
    std::function<Status(const std::string& from, const std::string& to)> copyElevated;
    std::function<Status(const std::vector<std::string>& paths)> deleteElevated;

  private:
    struct ExpectedPick {
        std::string title;
        std::optional<std::string> picked;
    };
    struct ExpectedStart {
        ProgramStart start;
        Status result;
    };
    struct ExpectedOpen {
        std::string address;
        Status result;
    };
    struct ExpectedFile {
        std::string path;
        std::string folder;
        Status result;
    };
    void Log(const std::string& entry);

    EventLog* log_;
    std::deque<ExpectedPick> picks_;
    std::deque<ExpectedStart> starts_;
    std::deque<ExpectedOpen> opens_;
    std::deque<ExpectedFile> files_;
    std::vector<ProgramStart> started_;
};

class ScriptedWindows : public ScriptedDialogs {
  public:
    explicit ScriptedWindows(EventLog* log = nullptr) : ScriptedDialogs(log) {}

    Status PutOnClipboard(const std::string& text) override;
    bool HasWindowTitled(const std::string& title) override;
    void Sound(Beep beep) override;
    std::uint16_t KeyState(PollKey key) override;
    Pointer SetPointer(Pointer pointer) override;
    bool IsDown(PollKey key) override { return down_.contains(key); }
    void PumpPending() override;
    void Sleep(int milliseconds) override;

    // 0x8000: the key is down; 0x0001: it was pressed since the last query.
    void SetKeyState(PollKey key, std::uint16_t state) { keys_[key] = state; }

    // As the input that is being handled came.
    void SetDown(PollKey key, bool down = true);

    // The titles of the windows that other programs show.
    void SetWindowTitles(std::set<std::string> titles) { titles_ = std::move(titles); }

    // What happens inside each PumpPending, for instance an event that the user caused meanwhile.
    void SetDuringPump(std::function<void()> duringPump) { duringPump_ = std::move(duringPump); }

    Pointer CurrentPointer() const { return pointer_; }
    const std::vector<Pointer>& Pointers() const { return pointers_; }
    const std::vector<Beep>& Sounds() const { return sounds_; }
    int Pumps() const { return pumps_; }

    std::string clipboard;     // what the user would paste
    Status clipboardAnswer{};  // so the next calls end

  private:
    std::set<std::string> titles_;
    std::vector<Beep> sounds_;
    std::vector<Pointer> pointers_;
    Pointer pointer_ = Pointer::Default;
    std::map<PollKey, std::uint16_t> keys_;
    std::set<PollKey> down_;
    std::function<void()> duringPump_;
    int pumps_ = 0;
};

// A moment in UTC.
FileTime MakeFileTime(int year, int month, int day, int hour = 0, int minute = 0, int second = 0);

// "," between groups of digits, and dates such as "2026-11-21 13:05:09", in UTC.
class FixedLocale : public Locale {
  public:
    std::string ThousandsSeparator() override { return ","; }
    std::string GeneralDate(FileTime moment) override;
};

}  // namespace zentar
