#include "tests/window/zentar_home.h"

#include <windows.h>

#include <fstream>
#include <iterator>

#include "samples/sample_games.h"
#include "tests/window/image_library_file.h"
#include "tests/window/text_conversion.h"

namespace zentar::window_tests {

namespace fs = std::filesystem;

namespace {

fs::path NewFolder() {
    static int made = 0;
    const fs::path folder =
        fs::temp_directory_path() / ("zentar window test " + std::to_string(GetCurrentProcessId()) +
                                     " " + std::to_string(++made));
    fs::create_directories(folder);
    return folder;
}

void MakeAllWritable(const fs::path& top) {
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(top)) {
        SetFileAttributesW(entry.path().c_str(), FILE_ATTRIBUTE_NORMAL);
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

std::string FolderText(const fs::path& folder) { return Narrow(folder.wstring()) + "\\"; }

std::string ReadBytes(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

void WriteBytes(const fs::path& file, const std::string& bytes) {
    std::ofstream(file, std::ios::binary | std::ios::trunc) << bytes;
}

}  // namespace zentar::window_tests
