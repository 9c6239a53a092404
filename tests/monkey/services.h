// The system's dialogs and programs, with a user who answers them as it comes.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/shell.h"
#include "platform/window_services.h"
#include "tests/monkey/dice.h"
#include "tests/monkey/ledger.h"
#include "tests/monkey/world.h"

namespace zentar::monkey {

// What the user pointed the program at, in dialogs. Folded.
struct Chosen {
    std::vector<std::string> folders;
    std::vector<std::string> toRead;
    std::vector<std::string> toWrite;

    void Read(const std::string& path);
    void Write(const std::string& path);
};

class MonkeyWindows : public WindowServices {
  public:
    MonkeyWindows(Dice& dice, World& world, Ledger& ledger, Chosen& chosen)
        : dice_(dice), world_(world), ledger_(ledger), chosen_(chosen) {}

    Answer Ask(const Message& message) override;
    std::optional<std::string> AskText(const TextQuestion& question) override;
    std::optional<std::string> ChooseFileToOpen(const FileQuestion& question) override;
    std::optional<std::string> ChooseFileToSave(const FileQuestion& question) override;
    std::optional<ColourRef> ChooseColour(ColourRef shown) override;
    Status PutOnClipboard(const std::string& text) override;
    bool HasWindowTitled(const std::string& title) override;
    void Sound(Beep beep) override;
    std::uint16_t KeyState(PollKey key) override;
    bool IsDown(PollKey key) override;
    Pointer SetPointer(Pointer pointer) override { return std::exchange(pointer_, pointer); }
    void PumpPending() override;
    void Sleep(int /*milliseconds*/) override {}

    // What the user does while the program lets messages through.
    void SetDuringPump(std::function<void()> user) { duringPump_ = std::move(user); }
    Pointer CurrentPointer() const { return pointer_; }

  private:
    void TimePasses();

    Dice& dice_;
    World& world_;
    Ledger& ledger_;
    Chosen& chosen_;
    std::function<void()> duringPump_;
    Pointer pointer_ = Pointer::Default;
};

class MonkeyShell : public Shell {
  public:
    MonkeyShell(Dice& dice, World& world, Chosen& chosen, FileSystem& files)
        : dice_(dice), world_(world), chosen_(chosen), files_(files) {}

    std::string ProgramFolder() override { return "C:\\Program Files\\Zentar"; }
    std::string WindowsFolder() override { return "C:\\Windows"; }
    std::string TemporaryFolder() override { return "C:\\Temp"; }
    std::optional<std::string> PickFolder(const std::string& title) override;
    Status StartProgram(const ProgramStart& start) override;
    Status OpenAddress(const std::string& address) override;
    Status OpenFile(const std::string& path, const std::string& folder) override;
    Status SetWallpaper(const std::string& path) override;
    Status CopyElevated(const std::string& from, const std::string& to) override;
    Status DeleteElevated(const std::vector<std::string>& paths) override;
    Status RestartWindows() override { return Either(); }

  private:
    Status Either() { return dice_.OneIn(5) ? Status(FileError::Other) : Status(); }

    Dice& dice_;
    World& world_;
    Chosen& chosen_;
    FileSystem& files_;
};

}  // namespace zentar::monkey
