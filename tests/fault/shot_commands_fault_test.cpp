// Every command on screenshots, with each call of the file system failing in turn, and with the
// program killed there: each shot still exists whole, where its user would look for it.

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <optional>

#include "tests/doubles/faulty_file_system.h"
#include "tests/doubles/memory_platform.h"
#include "tests/fault/yes_windows.h"
#include "ui/resource.h"
#include "ui/zentar_program.h"

namespace zentar {
namespace {

const std::string kShots = "C:\\Quake2\\ctf\\scrnshot\\";
const std::string kWallpaper = "C:\\Windows\\[Zentar] a.bmp";

// A user who is let in everywhere, and a Windows folder that needs it.
class AdministratorsShell : public ScriptedShell {
  public:
    explicit AdministratorsShell(FileSystem& files) : files_(files) {
        copyElevated = [this](const std::string& from, const std::string& to) {
            return files_.Copy(from, to, true);
        };
    }

  private:
    FileSystem& files_;
};

// A program on a file system that can fail, with the shot "a.tga" on the screen.
struct OneRun {
    OneRun() : faulty(files) {
        shell.programFolder = "C:\\Zentar";
        files.AddFolder("C:\\Temp\\");
        files.AddFile("C:\\Windows\\nviewlib.dll", "library");
        files.AddFile(kWallpaper, PictureFile({640, 480}, "older-wallpaper"));
        files.AddFile("C:\\Quake2\\quake2.exe", "game");
        for (const char* name : {"a.tga", "a.jpg", "b.tga", "c.pcx", "c.jpg", "d.jpg"}) {
            files.AddFile(kShots + name, PictureFile({640, 480}, name));
        }
        files.AddFile(kShots + "c.zentar", PictureFile({320, 240}, "c"));
        files.AddFile("D:\\Remote\\a.tga", "an image of the same name");
        files.AddFile("C:\\Zentar\\zentar.ini",
                      "Virgin=0\r\nGame=Quake2\r\nQ2Folder=C:\\Quake2\\\r\nCurMod2=ctf\r\n"
                      "Remote=D:\\Remote\\\r\nExpert=1\r\nAutoNextShot=1\r\n");
        program.emplace(
            Platform{faulty, shell, windows, locale, images, pictures, registry, forms});
        program->Start();
        Window().Activate();
        Window().UserSelect(IDC_lstScreenshots, "a.tga");
        faulty.Restart();
    }

    MemoryForm& Window() { return forms.Get(IDW_Form2); }

    // A user can pick only what the menu offers.
    void Pick(int entry) {
        Window().SetPopupUser([this, entry](int) {
            if (Window().GetMenu(entry).Enabled()) {
                Window().UserPickMenu(entry);
            }
        });
        const int selected = Window().GetListBox(IDC_lstScreenshots).SelectedIndex();
        Window().UserRightClick(IDC_lstScreenshots, selected);
    }

    EventLog log;
    MemoryFileSystem files;
    FaultyFileSystem faulty;
    AdministratorsShell shell{faulty};
    YesWindows windows;
    FixedLocale locale;
    MemoryImageLibrary images{faulty, &log};
    MemoryPictures pictures;
    MemoryRegistry registry;
    MemoryFormFactory forms{&log};
    std::optional<ZentarProgram> program;
};

struct CommandCase {
    const char* name;
    std::function<void(OneRun&)> run;
    // Files that the command was asked to delete or to overwrite.
    std::vector<std::string> given;
    // Files that may also have become these.
    std::map<std::string, std::string> made;
    // Whether a shot that is gone must stand as one of these.
    std::map<std::string, std::string> instead;
};

class ShotCommandsFault : public ::testing::TestWithParam<CommandCase> {
  protected:
    // What the program can make again, or that nobody made.
    static bool IsTreasure(const std::string& path) {
        const auto ends = [&path](std::string_view end) { return path.ends_with(end); };
        return !ends(".zentar") && !ends(".tmp") && !ends(".new") && !ends(".gif") &&
               path.find("Zentar\\") == std::string::npos &&
               path.find("Temp\\") == std::string::npos;
    }

    // Under its own name as it was or as the command made it, or under another name as it was.
    static bool IsThere(const std::string& path, const std::string& bytes,
                        const std::map<std::string, std::string>& after) {
        const auto same = after.find(path);
        const auto made = GetParam().made.find(path);
        if (same != after.end()) {
            return same->second == bytes ||
                   (made != GetParam().made.end() && same->second == made->second);
        }
        return std::any_of(after.begin(), after.end(), [&bytes](const auto& file) {
            return IsTreasure(file.first) && file.second == bytes;
        });
    }

    static void ExpectNothingLost(const MemoryFileSystem& before, const MemoryFileSystem& after,
                                  const std::string& where) {
        const std::map<std::string, std::string> now = after.AllFiles();
        const std::vector<std::string>& given = GetParam().given;
        for (const auto& [path, bytes] : before.AllFiles()) {
            const bool isGiven = std::find(given.begin(), given.end(), path) != given.end();
            if (!IsTreasure(path) || isGiven) {
                continue;
            }
            const auto instead = GetParam().instead.find(path);
            const bool replaced = instead != GetParam().instead.end() && !now.contains(path);
            if (replaced) {
                const auto jpg = now.find(instead->second);
                EXPECT_TRUE(jpg != now.end() && jpg->second == GetParam().made.at(instead->second))
                    << path << " has gone without its JPG; " << where;
            } else {
                EXPECT_TRUE(IsThere(path, bytes, now)) << path << " is lost; " << where;
            }
        }
    }
};

TEST_P(ShotCommandsFault, WithoutAFaultTheCommandDoesSomething) {
    const OneRun before;
    OneRun sound;
    GetParam().run(sound);
    EXPECT_GT(sound.faulty.CallCount(), 0);
    EXPECT_NE(before.files.AllFiles(), sound.files.AllFiles());
    ExpectNothingLost(before.files, sound.files, "nothing failed");
}

TEST_P(ShotCommandsFault, NothingIsLostWhicheverCallFails) {
    const OneRun before;
    OneRun sound;
    GetParam().run(sound);
    for (const FileError error :
         {FileError::NoSpace, FileError::InUse, FileError::NotFound, FileError::AccessDenied}) {
        for (int call = 1; call <= sound.faulty.CallCount(); ++call) {
            OneRun run;
            run.faulty.FailAt(call, error);
            GetParam().run(run);
            ExpectNothingLost(before.files, run.files, "failed: " + run.faulty.CallName(call));
        }
    }
}

TEST_P(ShotCommandsFault, NothingIsLostWhenEverythingFailsFromSomeCallOn) {
    const OneRun before;
    OneRun sound;
    GetParam().run(sound);
    for (int call = 1; call <= sound.faulty.CallCount(); ++call) {
        OneRun run;
        run.faulty.FailFrom(call, FileError::NoSpace);
        GetParam().run(run);
        ExpectNothingLost(before.files, run.files, "failed from " + run.faulty.CallName(call));
    }
}

TEST_P(ShotCommandsFault, NothingIsLostWhereverTheProgramIsKilled) {
    const OneRun before;
    OneRun sound;
    GetParam().run(sound);
    for (const Unflushed unflushed : {Unflushed::Kept, Unflushed::Halved, Unflushed::Lost}) {
        for (int call = 1; call <= sound.faulty.CallCount(); ++call) {
            OneRun run;
            run.faulty.KillAt(call, unflushed);
            GetParam().run(run);
            ExpectNothingLost(before.files, run.files, "killed at " + run.faulty.CallName(call));
        }
    }
}

CommandCase MenuCase(const char* name, int entry, std::vector<std::string> given = {}) {
    return {name, [entry](OneRun& run) { run.Pick(entry); }, std::move(given), {}, {}};
}

CommandCase OnOneDrive(const char* name, bool overwrites) {
    return {name,
            [overwrites](OneRun& run) {
                run.files.AddFolder("C:\\Best\\");
                if (overwrites) {
                    run.files.AddFile("C:\\Best\\a.tga", "of the same name");
                }
                run.program->State().settings.Remote = "C:\\Best\\";
                run.Pick(IDM_mnuScreenshotMove);
            },
            {},
            {},
            {}};
}

std::vector<std::string> Shots(const std::vector<std::string>& names) {
    std::vector<std::string> paths;
    for (const std::string& name : names) {
        paths.push_back(kShots + name);
    }
    return paths;
}

const std::string kJpg = kShots + "a.jpg";
const std::string kNewJpg = PictureFile({640, 480}, "jpg-of-a.tga");
const std::string kOverwritten = "D:\\Remote\\a.tga";

INSTANTIATE_TEST_SUITE_P(
    Commands, ShotCommandsFault,
    ::testing::Values(
        CommandCase{"View",
                    [](OneRun& run) { run.Window().UserSelect(IDC_lstScreenshots, "b.tga"); },
                    {},
                    {},
                    {}},
        CommandCase{"Convert",
                    [](OneRun& run) { run.Pick(IDM_mnuScreenshotMakeJPEGOnly); },
                    {},
                    {{kJpg, kNewJpg}},
                    {}},
        CommandCase{"ConvertAndKill",
                    [](OneRun& run) { run.Pick(IDM_mnuScreenshotMakeJPEGAndKill); },
                    {},
                    {{kJpg, kNewJpg}},
                    {{kShots + "a.tga", kJpg}}},
        CommandCase{"Wallpaper",
                    [](OneRun& run) { run.Pick(IDM_mnuScreenshotSetWallpaper); },
                    {},
                    {{kWallpaper, PictureFile({640, 480}, "a.tga")}},
                    {}},
        MenuCase("DeleteWallpapers", IDM_mnuScreenshotDeleteAllWallpaper, {kWallpaper}),
        MenuCase("Delete", IDM_mnuScreenshotDelete, Shots({"a.tga"})),
        MenuCase("DeletePreview", IDM_mnuScreenshotDeletePreview),
        MenuCase("DeleteAll", IDM_mnuScreenshotDeleteAll,
                 Shots({"a.tga", "a.jpg", "b.tga", "c.pcx", "c.jpg", "d.jpg"})),
        MenuCase("DeleteAllPreviews", IDM_mnuScreenshotDeleteAllPreview),
        MenuCase("DeleteAllJpg", IDM_mnuScreenshotDeleteAllJPG, Shots({"a.jpg", "c.jpg", "d.jpg"})),
        MenuCase("DeleteAllTga", IDM_mnuScreenshotDeleteAllTGA, Shots({"a.tga", "b.tga"})),
        MenuCase("DeleteAllPcx", IDM_mnuScreenshotDeleteAllPCX, Shots({"c.pcx"})),
        MenuCase("Rename", IDM_mnuScreenshotRename),
        MenuCase("Copy", IDM_mnuScreenshotCopy, {kOverwritten}),
        MenuCase("Move", IDM_mnuScreenshotMove, {kOverwritten}),
        OnOneDrive("MoveOnOneDrive", false), OnOneDrive("MoveOverOneOnOneDrive", true)),
    [](const auto& command) { return std::string(command.param.name); });

}  // namespace
}  // namespace zentar
