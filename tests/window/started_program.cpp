#include "tests/window/started_program.h"

#include <stdexcept>
#include <string>

#include "tests/window/waiting.h"

namespace zentar::window_tests {
namespace {

constexpr DWORD kExitPatienceMs = 15'000;

}  // namespace

StartedProgram::StartedProgram(const std::filesystem::path& program) {
    STARTUPINFOW startup{};
    startup.cb = sizeof(startup);
    // A file that was written a moment ago may still be held, by a virus scanner for instance.
    const bool started = Eventually([&] {
        return CreateProcessW(program.c_str(), nullptr, nullptr, nullptr, FALSE, 0, nullptr,
                              program.parent_path().c_str(), &startup, &process_) != FALSE;
    });
    if (!started) {
        throw std::runtime_error("cannot start the program, error " +
                                 std::to_string(GetLastError()));
    }
}

StartedProgram::~StartedProgram() {
    if (Running()) {
        Kill();
    }
    CloseHandle(process_.hThread);
    CloseHandle(process_.hProcess);
}

bool StartedProgram::Running() const {
    return WaitForSingleObject(process_.hProcess, 0) == WAIT_TIMEOUT;
}

int StartedProgram::WaitForExit() const {
    if (WaitForSingleObject(process_.hProcess, kExitPatienceMs) != WAIT_OBJECT_0) {
        return -1;
    }
    DWORD code = 0;
    GetExitCodeProcess(process_.hProcess, &code);
    return static_cast<int>(code);
}

void StartedProgram::Kill() const {
    TerminateProcess(process_.hProcess, 1);
    WaitForSingleObject(process_.hProcess, kExitPatienceMs);
}

}  // namespace zentar::window_tests
