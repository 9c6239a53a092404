// What the program asks of the Windows shell and of the system's own folders.
#pragma once

#include <optional>
#include <string>

namespace zentar {

class Shell {
  public:
    virtual ~Shell() = default;

    // The folder of the program's executable, as the system spells it; a trailing backslash is
    // there only for a drive's root.
    virtual std::string ProgramFolder() = 0;
    // The Windows folder, likewise.
    virtual std::string WindowsFolder() = 0;

    // Lets the user pick a folder of the file system; nothing when the user cancels. The dialog is
    // owned by whichever window of the program is in front and shows `title` above the folders.
    virtual std::optional<std::string> PickFolder(const std::string& title) = 0;
};

}  // namespace zentar
