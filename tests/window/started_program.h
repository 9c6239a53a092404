// A program that a test started. It ends with this, without a chance to save.
#pragma once

#include <windows.h>

#include <filesystem>

namespace zentar::window_tests {

class StartedProgram {
  public:
    // Throws std::runtime_error when it cannot be started.
    explicit StartedProgram(const std::filesystem::path& program);
    ~StartedProgram();
    StartedProgram(const StartedProgram&) = delete;
    StartedProgram& operator=(const StartedProgram&) = delete;

    DWORD Id() const { return process_.dwProcessId; }
    DWORD Thread() const { return process_.dwThreadId; }
    bool Running() const;
    // The exit code, or -1 if it does not end.
    int WaitForExit() const;
    void Kill() const;

  private:
    PROCESS_INFORMATION process_{};
};

}  // namespace zentar::window_tests
