#include "tests/window/standin_browser.h"

#include <windows.h>

#include "tests/window/game_log.h"
#include "tests/window/zentar_home.h"

namespace zentar::window_tests {

namespace fs = std::filesystem;

namespace {

constexpr const wchar_t* kCommand = LR"(https\shell\open\command)";

std::wstring ReadCommand() {
    wchar_t command[1024] = {};
    DWORD bytes = sizeof command;
    RegGetValueW(HKEY_CLASSES_ROOT, kCommand, nullptr, RRF_RT_REG_SZ, nullptr, command, &bytes);
    return command;
}

void WriteCommand(const std::wstring& command) {
    RegSetKeyValueW(HKEY_CLASSES_ROOT, kCommand, nullptr, REG_SZ, command.c_str(),
                    static_cast<DWORD>((command.size() + 1) * sizeof(wchar_t)));
}

}  // namespace

StandinBrowser::StandinBrowser()
    : folder_(fs::temp_directory_path() /
              ("zentar browser " + std::to_string(GetCurrentProcessId()))),
      before_(ReadCommand()) {
    fs::create_directories(folder_);
    const fs::path program = folder_ / "browser.exe";
    fs::copy_file(BuildFolder() / "standin_game.exe", program,
                  fs::copy_options::overwrite_existing);
    SetGameSeconds(folder_, 0);
    WriteCommand(L"\"" + program.wstring() + L"\" \"%1\"");
}

StandinBrowser::~StandinBrowser() {
    WriteCommand(before_);
    std::error_code leftBehind;  // the system empties its temporary folder in time
    fs::remove_all(folder_, leftBehind);
}

std::vector<std::string> StandinBrowser::Opened() const {
    std::vector<std::string> addresses;
    for (const GameStart& start : StartsIn(folder_)) {
        const std::size_t begin = start.commandLine.find("\"https:");
        const std::size_t end = start.commandLine.rfind('"');
        addresses.push_back(begin < end ? start.commandLine.substr(begin + 1, end - begin - 1)
                                        : start.commandLine);
    }
    return addresses;
}

}  // namespace zentar::window_tests
