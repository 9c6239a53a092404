// What the program asks of the shell of Windows.
#pragma once

#include "platform/shell.h"
#include "platform/win32/win32_session.h"

namespace zentar {

class Win32Shell : public Shell {
  public:
    explicit Win32Shell(Win32Session& session) : session_(session) {}

    std::string ProgramFolder() override;
    std::string WindowsFolder() override;
    std::string TemporaryFolder() override;
    std::optional<std::string> PickFolder(const std::string& title) override;
    Status StartProgram(const ProgramStart& start) override;
    Status OpenAddress(const std::string& address) override;
    Status OpenFile(const std::string& path, const std::string& folder) override;
    Status SetWallpaper(const std::string& path) override;
    Status CopyElevated(const std::string& from, const std::string& to) override;
    Status DeleteElevated(const std::vector<std::string>& paths) override;
    Status RestartWindows() override;

  private:
    Win32Session& session_;
};

}  // namespace zentar
