// How long the program takes from its start to its first painted window, against Windows' own
// Notepad: windows_startup_benchmark <zentar.exe> <folder>
//
// The folder takes three games, the current one with 100 mods, 1,000 demos and 1,000 screenshots,
// and a copy of the program with its settings.
#include <windows.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "samples/demo_maker.h"

namespace zentar::benchmarks {

namespace {

namespace fs = std::filesystem;

void WriteFile(const fs::path& path, const std::string& bytes) {
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << bytes;
}

void MakeGames(const fs::path& games) {
    if (fs::exists(games)) {
        return;
    }
    WriteFile(games / "Quake" / "glquake.exe", "game");
    WriteFile(games / "Quake3" / "quake3.exe", "game");
    WriteFile(games / "Quake2" / "quake2.exe", "game");
    for (int mod = 0; mod < 99; ++mod) {
        fs::create_directories(games / "Quake2" / ("mod" + std::to_string(mod)));
    }
    const std::string demo = samples::MakeDemo(samples::DemoKind::Dm2, {});
    for (int file = 0; file < 1000; ++file) {
        const std::string number = std::to_string(file);
        WriteFile(games / "Quake2" / "baseq2" / "demos" / ("demo" + number + ".dm2"), demo);
        WriteFile(games / "Quake2" / "baseq2" / "scrnshot" / ("quake" + number + ".pcx"), "shot");
    }
}

fs::path InstallProgram(const fs::path& program, const fs::path& folder) {
    const fs::path games = folder / "Games";
    MakeGames(games);
    const fs::path copy = folder / "Zentar" / "zentar.exe";
    fs::create_directories(copy.parent_path());
    // MinGW's copy_file copies over nothing, whatever it is told.
    fs::remove(copy);
    fs::copy_file(program, copy);
    std::string ini = "Virgin=0\r\nGame=Quake2\r\n";
    ini += "Q1Folder=" + (games / "Quake").string() + "\\\r\n";
    ini += "Q2Folder=" + (games / "Quake2").string() + "\\\r\n";
    ini += "Q3Folder=" + (games / "Quake3").string() + "\\\r\n";
    WriteFile(copy.parent_path() / "zentar.ini", ini);
    return copy;
}

// The process's window with a menu bar: neither a splash nor a helper window has one.
struct MainWindowSearch {
    DWORD process = 0;
    HWND found = nullptr;
};

BOOL CALLBACK TakeMainWindow(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<MainWindowSearch*>(parameter);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process == search.process && IsWindowVisible(window) && GetMenu(window) != nullptr) {
        search.found = window;
    }
    return TRUE;
}

// The window is there, answers, and has nothing left to paint.
bool IsPainted(HWND window) {
    return window != nullptr && GetUpdateRect(window, nullptr, FALSE) == FALSE &&
           SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL, 10'000, nullptr) != 0 &&
           GetUpdateRect(window, nullptr, FALSE) == FALSE;
}

double MillisecondsToFirstPaint(const std::wstring& program) {
    std::wstring commandLine = L"\"" + program + L"\"";
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    const auto start = std::chrono::steady_clock::now();
    if (CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                       &startup, &process) == FALSE) {
        return 0;
    }
    MainWindowSearch search{process.dwProcessId, nullptr};
    while (!IsPainted(search.found)) {
        Sleep(1);
        EnumWindows(TakeMainWindow, reinterpret_cast<LPARAM>(&search));
    }
    const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - start;
    PostMessageW(search.found, WM_CLOSE, 0, 0);
    WaitForSingleObject(process.hProcess, 10'000);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return took.count();
}

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void Measure(const fs::path& program) {
    constexpr int kRuns = 11;
    std::vector<double> ours;
    std::vector<double> notepads;
    for (int run = 0; run < kRuns; ++run) {
        ours.push_back(MillisecondsToFirstPaint(program.wstring()));
        notepads.push_back(MillisecondsToFirstPaint(L"notepad.exe"));
    }
    const double our = Median(ours);
    const double notepad = Median(notepads);
    std::printf(
        "start to first painted window: %.0f ms, Notepad %.0f ms, ratio %.2f (target 1.5)\n", our,
        notepad, our / notepad);
}

}  // namespace

}  // namespace zentar::benchmarks

int main(int argc, char** argv) {
    using namespace zentar::benchmarks;
    if (argc < 3) {
        std::puts("windows_startup_benchmark <zentar.exe> <folder>");
        return 2;
    }
    Measure(InstallProgram(argv[1], argv[2]));
    return 0;
}
