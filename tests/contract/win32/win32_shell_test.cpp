// What only the real Windows shows of the shell: folders, and programs that start.
#include <windows.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "platform/shell.h"
#include "platform/win32/win32_text.h"
#include "platform/window_services.h"
#include "tests/contract/file_system_contract.h"
#include "tests/contract/win32/picture_files.h"
#include "tests/contract/win32/the_platform.h"

namespace zentar {
namespace {

namespace fs = std::filesystem;

// A program that never gets so far fails the test after this time.
constexpr auto kPatience = std::chrono::seconds(30);

bool ComesTrue(const std::function<bool()>& condition) {
    const auto end = std::chrono::steady_clock::now() + kPatience;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    return true;
}

Shell& TheShell() { return ThePlatform().Services().shell; }

std::string Quoted(const std::string& text) {
    return std::string(1, '"').append(text).append(1, '"');
}

std::string CurrentFolder() { return Narrow(fs::current_path().wstring()); }

// Folders with games that note how they were started. While this stands, another game of the same
// name waits where Windows looks for programs: in the current folder, and on the path.
class Win32ProgramStart : public testing::Test {
  protected:
    Win32ProgramStart() {
        AddGame(Folder("current"), "glquake.exe");
        AddGame(Folder("on the path"), "glquake.exe");
        fs::current_path(Folder("current"));
        SetEnvironmentVariableW(L"PATH", (Folder("on the path").wstring() + L";" + path_).c_str());
    }
    ~Win32ProgramStart() override {
        SetEnvironmentVariableW(L"PATH", path_.c_str());
        fs::current_path(currentFolder_);
        // A program that just ended may still hold its file.
        EXPECT_TRUE(ComesTrue([this] {
            std::error_code error;
            fs::remove_all(root_, error);
            return !error;
        }));
    }
    Win32ProgramStart(const Win32ProgramStart&) = delete;
    Win32ProgramStart& operator=(const Win32ProgramStart&) = delete;

    fs::path Folder(const std::string& name) {
        const fs::path folder = root_ / Widen(name);
        fs::create_directories(folder);
        return folder;
    }

    // The game shows its window for so many seconds.
    static void AddGame(const fs::path& folder, const std::string& name, int seconds = 0) {
        const fs::path standin = fs::path(Widen(TheShell().ProgramFolder())) / "standin_game.exe";
        fs::copy_file(standin, folder / name);
        std::ofstream(folder / "standin.seconds") << seconds;
    }

    static ProgramStart StartOf(const fs::path& folder, const std::string& executable,
                                const std::string& arguments) {
        return {Narrow(folder.wstring()) + "\\", executable, arguments};
    }

    // What the game in the folder noted, once it has.
    static std::string LogOf(const fs::path& folder) {
        std::string log;
        EXPECT_TRUE(ComesTrue([&] {
            std::stringstream text;
            text << std::ifstream(folder / "standin.log", std::ios::binary).rdbuf();
            log = text.str();
            return log.ends_with("\r\n\r\n");
        })) << "nothing started in "
            << folder;
        return log;
    }

    fs::path root_ =
        fs::temp_directory_path() / ("zentar-start-" + std::to_string(GetCurrentProcessId()));

  private:
    fs::path currentFolder_ = fs::current_path();
    std::wstring path_ = _wgetenv(L"PATH");
};

// A kind of file that a program opens which notes how it was asked.
class Win32FileOpening : public Win32ProgramStart {
  protected:
    Win32FileOpening() {
        AddGame(viewer_, "viewer.exe");
        const std::wstring command = L"\"" + (viewer_ / "viewer.exe").wstring() + L"\" \"%1\"";
        Write(kExtension, kKind);
        Write(std::wstring(kKind) + L"\\shell\\open\\command", command);
    }
    ~Win32FileOpening() override {
        for (const Place& place : kPlaces) {
            RegDeleteTreeW(place.root, (place.folder + kExtension).c_str());
            RegDeleteTreeW(place.root, (place.folder + kKind).c_str());
        }
    }
    Win32FileOpening(const Win32FileOpening&) = delete;
    Win32FileOpening& operator=(const Win32FileOpening&) = delete;

    std::string AddFile(const std::string& name) {
        const fs::path file = Folder("out & дуэль") / Widen(name);
        std::ofstream(file) << "text";
        return Narrow(file.wstring());
    }
    // What the viewer notes when it opens the file.
    std::string NoteOf(const std::string& file, const fs::path& folder) const {
        std::string note = Quoted(Narrow((viewer_ / "viewer.exe").wstring()));
        note.append(" ").append(Quoted(file)).append("\r\n");
        return note.append(Narrow(folder.wstring())).append("\r\n1\r\n\r\n");
    }
    // Opens one that opens, which comes to the log behind whatever was started before.
    void ExpectNothingStarted() {
        const std::string last = AddFile("last.zentar-test");
        EXPECT_TRUE(Succeeded(TheShell().OpenFile(last, Narrow(viewer_.wstring()))));
        EXPECT_EQ(LogOf(viewer_), NoteOf(last, viewer_));
    }

    const fs::path viewer_ = Folder("viewer");

  private:
    struct Place {
        HKEY root;
        std::wstring folder;
    };

    static void Write(const std::wstring& key, const std::wstring& value) {
        for (const Place& place : kPlaces) {
            RegSetKeyValueW(place.root, (place.folder + key).c_str(), nullptr, REG_SZ,
                            value.c_str(),
                            static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t)));
        }
    }

    // Windows lets a user write the first; Wine reads the other only.
    inline static const std::vector<Place> kPlaces = {{HKEY_CURRENT_USER, L"Software\\Classes\\"},
                                                      {HKEY_CLASSES_ROOT, L""}};
    static constexpr const wchar_t* kExtension = L".zentar-test";
    static constexpr const wchar_t* kKind = L"ZentarTestFile";
};

}  // namespace

TEST(Win32Shell, TheSystemsFoldersAreThereWithoutABackslash) {
    for (const std::string& folder :
         {TheShell().ProgramFolder(), TheShell().WindowsFolder(), TheShell().TemporaryFolder()}) {
        EXPECT_TRUE(ThePlatform().Services().files.Info(folder).ValueOr({}).isFolder) << folder;
        EXPECT_EQ(folder.ends_with('\\'), folder.size() == 3) << folder;
    }
}

TEST(Win32Shell, TheWallpaperIsTheFileThatWasNamedLast) {
    wchar_t before[MAX_PATH] = L"";
    SystemParametersInfoW(SPI_GETDESKWALLPAPER, MAX_PATH, before, 0);
    const TestFolder folder;
    const std::string path = folder.Write("[Zentar] дуэль.bmp", BmpOf({64, 48}));
    EXPECT_TRUE(Succeeded(TheShell().SetWallpaper(path)));
    wchar_t now[MAX_PATH] = L"";
    EXPECT_TRUE(SystemParametersInfoW(SPI_GETDESKWALLPAPER, MAX_PATH, now, 0));
    EXPECT_EQ(Narrow(now), path);
    wchar_t kept[MAX_PATH] = L"";
    DWORD bytes = sizeof kept;
    EXPECT_EQ(RegGetValueW(HKEY_CURRENT_USER, L"Control Panel\\Desktop", L"Wallpaper",
                           RRF_RT_REG_SZ, nullptr, kept, &bytes),
              ERROR_SUCCESS);
    EXPECT_EQ(Narrow(kept), path);
    EXPECT_TRUE(
        FailedWith(TheShell().SetWallpaper(folder.Name() + "\\none.bmp"), FileError::NotFound));
    EXPECT_TRUE(FailedWith(TheShell().SetWallpaper("none.bmp"), FileError::BadName));
    SystemParametersInfoW(SPI_GETDESKWALLPAPER, MAX_PATH, now, 0);
    EXPECT_EQ(Narrow(now), path);
    SystemParametersInfoW(SPI_SETDESKWALLPAPER, 0, before, SPIF_UPDATEINIFILE | SPIF_SENDCHANGE);
}

// What exists is not touched here: the system would ask the user.
TEST(Win32Shell, WhatIsNotThereIsNeitherCopiedNorDeletedByAnAdministrator) {
    const TestFolder folder;
    const std::string missing = folder.Name() + "\\missing.bmp";
    const std::string copy = folder.Name() + "\\copy.bmp";
    EXPECT_FALSE(TheShell().CopyElevated(missing, copy).Ok());
    EXPECT_FALSE(TheShell().DeleteElevated({missing}).Ok());
    EXPECT_TRUE(FailedWith(TheShell().CopyElevated("missing.bmp", copy), FileError::BadName));
    EXPECT_TRUE(FailedWith(TheShell().CopyElevated(missing, "copy.bmp"), FileError::BadName));
    EXPECT_TRUE(FailedWith(TheShell().DeleteElevated({"missing.bmp"}), FileError::BadName));
    EXPECT_TRUE(fs::is_empty(folder.Path()));
}

TEST(Win32Shell, OnlyWebAddressesAreOpened) {
    for (const char* text :
         {"", "C:\\Windows\\notepad.exe", "notepad.exe", "file:///C:/Windows/notepad.exe",
          "\\\\server\\share\\a.exe", "mailto:a@b.example", "http:/a", "https:a", " http://a",
          "shell:startup", "ftp://a.example/"}) {
        EXPECT_TRUE(FailedWith(TheShell().OpenAddress(text), FileError::BadName)) << text;
    }
}

TEST_F(Win32ProgramStart, TheGameOfTheFolderStartsThereMinimisedWithItsCommandLineAsItIs) {
    const fs::path game = Folder("Quake & дуэль");
    AddGame(game, "glquake.exe");
    const std::string before = CurrentFolder();
    const std::string arguments = " -game x  +playdemo \"a & дуэль.dem\" %PATH% \\\"";
    EXPECT_TRUE(Succeeded(TheShell().StartProgram(StartOf(game, "glquake.exe", arguments))));
    EXPECT_EQ(LogOf(game),
              "glquake.exe" + arguments + "\r\n" + Narrow(game.wstring()) + "\r\n2\r\n\r\n");
    EXPECT_EQ(CurrentFolder(), before);
    EXPECT_FALSE(fs::exists(Folder("current") / "standin.log"));
    EXPECT_FALSE(fs::exists(Folder("on the path") / "standin.log"));
}

TEST_F(Win32ProgramStart, AnEditorStartsMaximised) {
    const fs::path folder = Folder("Windows");
    AddGame(folder, "notepad.exe");
    ProgramStart start = StartOf(folder, "notepad.exe", " \"C:\\a & дуэль.txt\"");
    start.window = StartWindow::Maximised;
    EXPECT_TRUE(Succeeded(TheShell().StartProgram(start)));
    EXPECT_EQ(LogOf(folder),
              "notepad.exe \"C:\\a & дуэль.txt\"\r\n" + Narrow(folder.wstring()) + "\r\n3\r\n\r\n");
}

TEST_F(Win32ProgramStart, AMissingGameIsNotLookedForElsewhere) {
    const Status missing =
        TheShell().StartProgram(StartOf(Folder("empty"), "glquake.exe", " +map a"));
    EXPECT_TRUE(FailedWith(missing, FileError::NotFound));
    const Status noFolder = TheShell().StartProgram(StartOf(root_ / "none", "glquake.exe", ""));
    EXPECT_TRUE(FailedWith(noFolder, FileError::NotFound));
    const Status relative = TheShell().StartProgram({"", "glquake.exe", ""});
    EXPECT_TRUE(FailedWith(relative, FileError::BadName));
    // One that starts now comes to its log behind whatever started before.
    const fs::path there = Folder("there");
    AddGame(there, "glquake.exe");
    EXPECT_TRUE(Succeeded(TheShell().StartProgram(StartOf(there, "glquake.exe", ""))));
    EXPECT_EQ(LogOf(there), "glquake.exe\r\n" + Narrow(there.wstring()) + "\r\n2\r\n\r\n");
    EXPECT_FALSE(fs::exists(Folder("current") / "standin.log"));
    EXPECT_FALSE(fs::exists(Folder("on the path") / "standin.log"));
}

TEST_F(Win32ProgramStart, AFileThatIsNoProgramDoesNotStart) {
    const fs::path folder = Folder("text");
    std::ofstream(folder / "glquake.exe") << "This is no program.";
    EXPECT_FALSE(TheShell().StartProgram(StartOf(folder, "glquake.exe", "")).Ok());
    fs::create_directory(folder / "quake2.exe");
    EXPECT_FALSE(TheShell().StartProgram(StartOf(folder, "quake2.exe", "")).Ok());
}

TEST_F(Win32ProgramStart, TheWindowOfARunningGameIsFoundByItsTitle) {
    WindowServices& windows = ThePlatform().Services().windows;
    const fs::path game = Folder("Quake 3");
    AddGame(game, "quake3.exe", 1);
    EXPECT_FALSE(windows.HasWindowTitled("Quake 3: Arena"));
    EXPECT_TRUE(Succeeded(TheShell().StartProgram(StartOf(game, "quake3.exe", ""))));
    EXPECT_TRUE(ComesTrue([&] { return windows.HasWindowTitled("Quake 3: Arena"); }));
    EXPECT_TRUE(ComesTrue([&] { return !windows.HasWindowTitled("Quake 3: Arena"); }));
}

TEST_F(Win32FileOpening, AFileOpensWithTheProgramForItsKind) {
    const std::string file = AddFile("chat 100% & дуэль.zentar-test");
    const fs::path folder = Folder("Zentar дуэль");
    const std::string before = CurrentFolder();
    EXPECT_TRUE(Succeeded(TheShell().OpenFile(file, Narrow(folder.wstring()) + "\\")));
    EXPECT_EQ(LogOf(viewer_), NoteOf(file, folder));
    EXPECT_EQ(CurrentFolder(), before);
}

TEST_F(Win32FileOpening, AFileThatIsMissingOpensNothing) {
    const std::string file = AddFile("there.zentar-test");
    const std::string folder = Narrow(viewer_.wstring());
    EXPECT_TRUE(FailedWith(TheShell().OpenFile(file + "x", folder), FileError::NotFound));
    EXPECT_TRUE(FailedWith(TheShell().OpenFile(folder + "\\viewer", folder), FileError::NotFound));
    EXPECT_TRUE(FailedWith(TheShell().OpenFile("there.zentar-test", folder), FileError::BadName));
    EXPECT_TRUE(FailedWith(TheShell().OpenFile("viewer.exe", folder), FileError::BadName));
    EXPECT_TRUE(FailedWith(TheShell().OpenFile("https://a.example/", folder), FileError::BadName));
    EXPECT_TRUE(FailedWith(TheShell().OpenFile(file, "Zentar"), FileError::BadName));
    ExpectNothingStarted();
}

TEST_F(Win32FileOpening, AFileOfAnUnknownKindOpensNothing) {
    const std::string file = AddFile("chat.zentar-unknown");
    EXPECT_FALSE(TheShell().OpenFile(file, Narrow(viewer_.wstring())).Ok());
    ExpectNothingStarted();
}

}  // namespace zentar
