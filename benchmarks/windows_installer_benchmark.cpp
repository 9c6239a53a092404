// How fast a folder of 5,000 demos is installed, against the command processor's own copy and del
// of the same files: windows_installer_benchmark <game folder> <folder of the demos>
//
// On one drive the program only renames; give folders of two drives to see it copy and check.
#include <windows.h>

#include <array>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

#include "core/game_info.h"
#include "demos/demo_installation.h"
#include "platform/win32/win32_file_system.h"
#include "samples/demo_maker.h"

namespace zentar::benchmarks {

namespace {

namespace fs = std::filesystem;

constexpr int kDemos = 5000;

// Demos of three generations and two mods, 8 KB each.
void MakeDemos(const fs::path& folder) {
    using samples::DemoKind;
    using samples::MakeDemo;
    struct Kind {
        std::string demo;
        const char* extension;
    };
    const std::array<Kind, 3> kinds = {{
        {MakeDemo(DemoKind::Dm3, {.mod = "baseq3", .size = 8000}), ".dm3"},
        {MakeDemo(DemoKind::Dm48, {.mod = "osp", .size = 8000}), ".dm_48"},
        {MakeDemo(DemoKind::Dm66, {.size = 8000}), ".dm_66"},
    }};
    fs::create_directories(folder);
    for (int i = 0; i < kDemos; ++i) {
        const Kind& kind = kinds[static_cast<std::size_t>(i) % kinds.size()];
        std::ofstream(folder / ("demo" + std::to_string(i) + kind.extension), std::ios::binary)
            << kind.demo << i;
    }
}

template <typename Work>
double Milliseconds(Work work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - start;
    return took.count();
}

void RunCommand(std::wstring commandLine) {
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, CREATE_NO_WINDOW,
                       nullptr, nullptr, &startup, &process) == FALSE) {
        std::puts("the command processor does not start");
        return;
    }
    WaitForSingleObject(process.hProcess, INFINITE);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
}

void Measure(const fs::path& game, const fs::path& from) {
    fs::create_directories(game / "baseq3");
    fs::create_directories(game / "osp");
    MakeDemos(from);
    Win32FileSystem files;
    InstallCount count;
    const double ours = Milliseconds([&] {
        count = InstallDemos(files, AllGames()[2], game.string() + "\\", from.string() + "\\");
    });
    fs::remove_all(game);
    fs::create_directories(game);
    MakeDemos(from);
    const std::wstring demos = L"\"" + (from / "*").wstring() + L"\"";
    const double theirs = Milliseconds([&] {
        RunCommand(L"cmd /c \"copy " + demos + L" \"" + game.wstring() + L"\" >nul & del /q " +
                   demos + L"\"");
    });
    const auto copied = std::distance(fs::directory_iterator(game), fs::directory_iterator());
    std::printf(
        "%d of %d demos installed: %.0f ms; copy and del of %d: %.0f ms, ratio %.2f "
        "(target 2.0)\n",
        static_cast<int>(count.installed), static_cast<int>(count.found), ours,
        static_cast<int>(copied), theirs, ours / theirs);
    fs::remove_all(game);
    fs::remove_all(from);
}

}  // namespace

}  // namespace zentar::benchmarks

int main(int argc, char** argv) {
    if (argc != 3) {
        std::puts("windows_installer_benchmark <folder of the game> <folder of the demos>");
        return 2;
    }
    // Both are deleted at the end.
    if (std::filesystem::exists(argv[1]) || std::filesystem::exists(argv[2])) {
        std::puts("the folders must not exist yet");
        return 2;
    }
    zentar::benchmarks::Measure(argv[1], argv[2]);
    return 0;
}
