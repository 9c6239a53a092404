// What the program asks of the Windows shell and of the system's own folders.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/result.h"

namespace zentar {

// How the window of a program that is started opens; it is active in any case.
enum class StartWindow : std::uint8_t { Minimised, Maximised };

// A program to be started, and the command line that it gets.
struct ProgramStart {
    std::string folder;      // where the executable is, with a backslash; the program's current one
    std::string executable;  // its file name, which is the command line's first word
    std::string arguments;   // the rest of the command line, as it stands; begins with a blank
    StartWindow window = StartWindow::Minimised;

    bool operator==(const ProgramStart&) const = default;
};

class Shell {
  public:
    virtual ~Shell() = default;

    // The folder of the program's executable, as the system spells it; a trailing backslash is
    // there only for a drive's root.
    virtual std::string ProgramFolder() = 0;
    // The Windows folder, likewise.
    virtual std::string WindowsFolder() = 0;
    // The user's folder for files that are not to be kept, likewise.
    virtual std::string TemporaryFolder() = 0;

    // Lets the user pick a folder of the file system; nothing when the user cancels. The dialog is
    // owned by whichever window of the program is in front and shows `title` above the folders.
    virtual std::optional<std::string> PickFolder(const std::string& title) = 0;

    // Starts the executable of exactly that folder. Does not wait for it.
    virtual Status StartProgram(const ProgramStart& start) = 0;
    // Has a web address opened by the program that the user's system has for it.
    virtual Status OpenAddress(const std::string& address) = 0;

    // Has a file opened by the program that the user's system has for its kind; `folder` is that
    // program's current one.
    virtual Status OpenFile(const std::string& path, const std::string& folder) = 0;

    // Makes a bitmap file the user's desktop wallpaper, from now on and after the next logon.
    virtual Status SetWallpaper(const std::string& path) = 0;
    // Does one thing with the rights of an administrator, for which the system asks the user. A
    // user who declines is an ordinary failure. An existing `to` is replaced.
    virtual Status CopyElevated(const std::string& from, const std::string& to) = 0;
    virtual Status DeleteElevated(const std::vector<std::string>& paths) = 0;

    // Restarts the system. Asks every program to end, this one too, and does not wait for that.
    virtual Status RestartWindows() = 0;
};

}  // namespace zentar
