#include "tests/window/standin_browser.h"

#include <windows.h>

#include "tests/window/game_log.h"
#include "tests/window/zentar_home.h"

namespace zentar::window_tests {

namespace fs = std::filesystem;

namespace {

using Opens = StandinBrowser::Opens;

constexpr const wchar_t* kAddressCommand = LR"(https\shell\open\command)";
constexpr const wchar_t* kHtmlExtension = L".htm";
constexpr const wchar_t* kHtmlClass = L"zentar.standin";
constexpr const wchar_t* kHtmlCommand = LR"(zentar.standin\shell\open\command)";

std::wstring ReadDefault(const wchar_t* key) {
    wchar_t text[1024] = {};
    DWORD bytes = sizeof text;
    RegGetValueW(HKEY_CLASSES_ROOT, key, nullptr, RRF_RT_REG_SZ, nullptr, text, &bytes);
    return text;
}

void WriteDefault(const wchar_t* key, const std::wstring& text) {
    RegSetKeyValueW(HKEY_CLASSES_ROOT, key, nullptr, REG_SZ, text.c_str(),
                    static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

// The folder of one before may stay for as long as its program still runs.
int NextNumber() {
    static int number = 0;
    return ++number;
}

// The key that decides what opens them.
const wchar_t* DecidingKey(Opens what) {
    return what == Opens::WebAddresses ? kAddressCommand : kHtmlExtension;
}

}  // namespace

StandinBrowser::StandinBrowser(Opens what)
    : folder_(fs::temp_directory_path() /
              ("zentar browser " + std::to_string(GetCurrentProcessId()) + " " +
               std::to_string(NextNumber()))),
      what_(what),
      before_(ReadDefault(DecidingKey(what))) {
    fs::create_directories(folder_);
    const fs::path program = folder_ / "browser.exe";
    fs::copy_file(BuildFolder() / "standin_game.exe", program,
                  fs::copy_options::overwrite_existing);
    SetGameSeconds(folder_, 0);
    WriteDefault(what == Opens::WebAddresses ? kAddressCommand : kHtmlCommand,
                 L"\"" + program.wstring() + L"\" \"%1\"");
    if (what == Opens::HtmlFiles) {
        WriteDefault(kHtmlExtension, kHtmlClass);
    }
}

StandinBrowser::~StandinBrowser() {
    WriteDefault(DecidingKey(what_), before_);
    std::error_code leftBehind;  // the system empties its temporary folder in time
    fs::remove_all(folder_, leftBehind);
}

// The last of the command line's words, all of which are quoted.
std::vector<std::string> StandinBrowser::Opened() const {
    std::vector<std::string> opened;
    for (const GameStart& start : StartsIn(folder_)) {
        const std::string& line = start.commandLine;
        const std::size_t end = line.rfind('"');
        const std::size_t begin = end == 0 ? end : line.rfind('"', end - 1);
        opened.push_back(begin < end ? line.substr(begin + 1, end - begin - 1) : line);
    }
    return opened;
}

}  // namespace zentar::window_tests
