#include "tests/window/zentar_home.h"

#include <windows.h>

#include <algorithm>
#include <fstream>
#include <stdexcept>

#include "platform/win32/win32_text.h"
#include "samples/sample_games.h"
#include "tests/window/image_library_file.h"

namespace zentar::window_tests {

namespace fs = std::filesystem;

namespace {

// An earlier run that was killed may have left one of the same name.
fs::path NewFolder() {
    static int made = 0;
    const std::string name = "zentar window test " + std::to_string(GetCurrentProcessId()) + " ";
    fs::path folder;
    do {
        folder = fs::temp_directory_path() / (name + std::to_string(++made));
    } while (!fs::create_directories(folder));
    return folder;
}

// As far as it can be listed; it is no tragedy when something stays.
void MakeAllWritable(const fs::path& top) {
    std::error_code error;
    for (fs::recursive_directory_iterator entry(top, error), end; !error && entry != end;
         entry.increment(error)) {
        SetFileAttributesW(entry->path().c_str(), FILE_ATTRIBUTE_NORMAL);
    }
}

}  // namespace

fs::path BuildFolder() {
    std::wstring path(MAX_PATH, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return fs::path(path).parent_path();
}

ZentarHome::ZentarHome(int extraDemos) : top_(NewFolder()) {
    fs::create_directories(Program());
    fs::create_directories(Remote());
    fs::copy_file(BuildFolder() / "zentar.exe", Program() / "zentar.exe");
    PutImageLibraryInPlace();
    samples::WriteSampleGames(
        Games(), {.standin = BuildFolder() / "standin_game.exe", .extraDemos = extraDemos});
}

ZentarHome::~ZentarHome() {
    std::error_code leftBehind;  // the system empties its temporary folder in time
    MakeAllWritable(top_);
    fs::remove_all(top_, leftBehind);
}

IniLines ZentarHome::GameLines() const {
    return {"Virgin=0",
            "Game=Quake2",
            "Q1Folder=" + FolderText(Games() / "Quake"),
            "Q2Folder=" + FolderText(Games() / "Quake2"),
            "Q3Folder=" + FolderText(Games() / "Quake3"),
            "Remote=" + FolderText(Remote())};
}

void ZentarHome::WriteIni(const IniLines& more) const {
    IniLines lines = GameLines();
    lines.insert(lines.end(), more.begin(), more.end());
    std::string bytes;
    for (const std::string& line : lines) {
        bytes += line + "\r\n";
    }
    WriteBytes(Ini(), bytes);
}

std::string ZentarHome::WholeIni(const IniLines& others) const {
    IniLines lines = GameLines();
    const std::string remote = lines.back();
    lines.pop_back();
    lines.insert(lines.end(),
                 {"CurMod1=id1", "CurMod2=baseq2", "CurMod3=baseq3", remote, "Expert=0",
                  "Preview=0", "AutoShowAll=1", "AutoNextShot=0", "AutoNextDemo=0", "BackupAll=0",
                  "DemosAll=1", "DemosText=True", "DemosFilter=", "ScanWarn=0", "TranscriptHTML=1",
                  "TranscriptGameplay=0", "TranscriptMessages=-1", "TranscriptBackground=-1"});
    for (int box = 1; box <= 24; ++box) {
        const std::string player = "Player" + std::to_string(box);
        lines.insert(lines.end(), {player + "Name=", player + "Colour="});
    }
    lines.insert(lines.end(), {"Q3TextType=0", "Q3TextKeyfox=0", "Q3TextOSP=0", "Q3TextText="});
    for (const std::string& other : others) {
        const std::string setting = other.substr(0, other.find('=') + 1);
        const auto same = std::find_if(lines.begin(), lines.end(), [&](const std::string& line) {
            return line.starts_with(setting);
        });
        if (same == lines.end()) {
            throw std::logic_error("no such setting: " + other);
        }
        *same = other;
    }
    std::string text =
        "// Zentar v0.99 BETA Settings File.\r\n"
        "// Changes are NOT recommended!\r\n"
        "// ----------------------------\r\n";
    for (const std::string& line : lines) {
        text += line + "\r\n";
    }
    return text + "// ===================================================================\r\n";
}

std::string FolderText(const fs::path& folder) { return Narrow(folder.wstring()) + "\\"; }

std::string ReadBytes(const fs::path& file) {
    // Whoever writes, renames or deletes the file meanwhile is not kept from it.
    const HANDLE handle = CreateFileW(file.c_str(), GENERIC_READ,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                      nullptr, OPEN_EXISTING, 0, nullptr);
    std::string bytes;
    DWORD read = 0;
    do {
        constexpr DWORD kBlock = 65'536;
        const std::size_t before = bytes.size();
        bytes.resize(before + kBlock);
        read = 0;
        ReadFile(handle, bytes.data() + before, kBlock, &read, nullptr);
        bytes.resize(before + read);
    } while (read != 0);
    CloseHandle(handle);
    return bytes;
}

void WriteBytes(const fs::path& file, const std::string& bytes) {
    std::ofstream(file, std::ios::binary | std::ios::trunc) << bytes;
}

}  // namespace zentar::window_tests
