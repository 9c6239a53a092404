// The stand-in for a game, whose log says to other tests how it was started.

#include <windows.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>
#include <string>

#include "platform/shell.h"
#include "platform/win32/win32_text.h"
#include "tests/contract/win32/the_platform.h"

namespace zentar {
namespace {

namespace fs = std::filesystem;

class StandinGame : public testing::Test {
  protected:
    StandinGame() {
        fs::create_directories(folder_);
        const std::string built = ThePlatform().Services().shell.ProgramFolder();
        fs::copy_file(fs::path(Widen(built)) / "standin_game.exe", folder_ / "quake2.exe");
        std::ofstream(folder_ / "standin.seconds") << 0;
    }
    ~StandinGame() override {
        std::error_code ignored;
        fs::remove_all(folder_, ignored);
    }
    StandinGame(const StandinGame&) = delete;
    StandinGame& operator=(const StandinGame&) = delete;

    // Starts it with these arguments and waits for its end.
    std::optional<DWORD> ExitCodeOf(const std::wstring& arguments) {
        std::wstring commandLine = L"quake2.exe " + arguments;
        STARTUPINFOW start{};
        start.cb = sizeof(start);
        PROCESS_INFORMATION game{};
        if (!CreateProcessW((folder_ / "quake2.exe").c_str(), commandLine.data(), nullptr, nullptr,
                            FALSE, 0, nullptr, nullptr, &start, &game)) {
            return std::nullopt;
        }
        DWORD code = 0;
        const bool ended = WaitForSingleObject(game.hProcess, 20'000) == WAIT_OBJECT_0 &&
                           GetExitCodeProcess(game.hProcess, &code);
        CloseHandle(game.hThread);
        CloseHandle(game.hProcess);
        return ended ? std::optional(code) : std::nullopt;
    }
    // As another game that writes into the log.
    HANDLE HoldLog(DWORD sharing) {
        return CreateFileW(Log().c_str(), FILE_APPEND_DATA, sharing, nullptr, OPEN_ALWAYS,
                           FILE_ATTRIBUTE_NORMAL, nullptr);
    }
    std::string Logged() {
        std::stringstream text;
        text << std::ifstream(Log(), std::ios::binary).rdbuf();
        return text.str();
    }

  private:
    fs::path Log() const { return folder_ / "standin.log"; }

    fs::path folder_ =
        fs::temp_directory_path() / ("zentar-standin-" + std::to_string(GetCurrentProcessId()));
};

TEST_F(StandinGame, NotesItsStartWhileAnotherGameHasTheLogOpen) {
    const HANDLE other = HoldLog(FILE_SHARE_READ | FILE_SHARE_WRITE);
    ASSERT_NE(other, INVALID_HANDLE_VALUE);
    EXPECT_EQ(ExitCodeOf(L"+map q2dm1"), 0U);
    EXPECT_TRUE(Logged().starts_with("quake2.exe +map q2dm1\r\n")) << Logged();
    CloseHandle(other);
}

TEST_F(StandinGame, SaysThatItCouldNotNoteItsStart) {
    const HANDLE other = HoldLog(0);
    ASSERT_NE(other, INVALID_HANDLE_VALUE);
    EXPECT_EQ(ExitCodeOf(L"+map q2dm1"), 1U);
    CloseHandle(other);
    EXPECT_EQ(Logged(), "");
}

}  // namespace
}  // namespace zentar
