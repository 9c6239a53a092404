// The commands on screenshots.

#include "tests/fault/command_faults.h"
#include "tests/fault/commands.h"

namespace zentar {
namespace {

const std::string kShots = "C:\\Quake2\\ctf\\scrnshot\\";
const std::string kTga = kShots + "a.tga";
const std::string kJpg = kShots + "a.jpg";
const std::string kWallpaper = "C:\\Windows\\[Zentar] a.bmp";
const std::string kRemoteTga = "D:\\Remote\\a.tga";
const std::string kNotOffered = "the menu does not offer it then";
const std::string kBestTga = "C:\\Best\\a.tga";

std::vector<std::string> Shots(const std::vector<std::string>& names) {
    std::vector<std::string> paths;
    for (const std::string& name : names) {
        paths.push_back(kShots + name);
    }
    return paths;
}

// Previews, and the picture that is shown while a shot is loaded.
std::vector<std::string> MadeAgain() {
    std::vector<std::string> made =
        Shots({"a.zentar", "b.zentar", "c.zentar", "d.zentar", "renamed.zentar"});
    made.emplace_back("C:\\Windows\\zentar-tmp.gif");
    return made;
}

void Prepare(CommandRun& run) {
    run.files.AddFolder("C:\\Temp\\");
    run.files.AddFile("C:\\Windows\\nviewlib.dll", "library");
    run.files.AddFile(kWallpaper, PictureFile({640, 480}, "older-wallpaper"));
    run.files.AddFile("C:\\Quake2\\quake2.exe", "game");
    for (const char* name : {"a.tga", "a.jpg", "b.tga", "c.pcx", "c.jpg", "d.jpg"}) {
        run.files.AddFile(kShots + name, PictureFile({640, 480}, name));
    }
    run.files.AddFile(kShots + "c.zentar", PictureFile({320, 240}, "c"));
    run.files.AddFile(kRemoteTga, "an image of the same name");
    run.files.AddFile("C:\\Zentar\\zentar.ini",
                      "Virgin=0\r\nGame=Quake2\r\nQ2Folder=C:\\Quake2\\\r\nCurMod2=ctf\r\n"
                      "Remote=D:\\Remote\\\r\nExpert=1\r\nAutoNextShot=1\r\n");
}

void SelectTga(CommandRun& run) { run.Window().UserSelect(IDC_lstScreenshots, "a.tga"); }

void SelectTgaForBest(CommandRun& run) {
    SelectTga(run);
    run.program->State().settings.Remote = "C:\\Best\\";
}

// A user can pick only what the menu offers.
std::function<void(CommandRun&)> Pick(int entry) {
    return [entry](CommandRun& run) {
        run.Window().SetPopupUser([&run, entry](int) {
            if (run.Window().GetMenu(entry).Enabled()) {
                run.Window().UserPickMenu(entry);
            }
        });
        const int selected = run.Window().GetListBox(IDC_lstScreenshots).SelectedIndex();
        run.Window().UserRightClick(IDC_lstScreenshots, selected);
    };
}

std::vector<Unsaid> Because(const std::vector<std::string>& paths, const std::string& reason) {
    std::vector<Unsaid> unsaid;
    for (const std::string& path : paths) {
        unsaid.push_back({path, reason});
    }
    return unsaid;
}

CommandCase OnShot(const char* name, int entry, Allowed allowed, std::vector<Unsaid> unsaid = {}) {
    allowed.remade = MadeAgain();
    return {name, Prepare, Pick(entry), std::move(allowed), SelectTga, std::move(unsaid)};
}

CommandCase Deletion(const char* name, int entry, const std::vector<std::string>& paths) {
    return OnShot(name, entry, {.given = paths}, Because(paths, "seen in the list"));
}

CommandCase OnOneDrive(const char* name, bool overwrites) {
    Allowed allowed{.moved = {{kTga, kBestTga}}, .remade = MadeAgain()};
    if (overwrites) {
        allowed.replaced = {kBestTga};
    }
    return {name,
            [overwrites](CommandRun& run) {
                Prepare(run);
                run.files.AddFolder("C:\\Best\\");
                if (overwrites) {
                    run.files.AddFile(kBestTga, "of the same name");
                }
            },
            Pick(IDM_mnuScreenshotMove),
            std::move(allowed),
            SelectTgaForBest,
            Because({kTga}, "seen in the list")};
}

INSTANTIATE_TEST_SUITE_P(Shots, CommandFaults, ::testing::ValuesIn(ShotCommands()), NameOfCommand);

}  // namespace

std::vector<CommandCase> ShotCommands() {
    return {
        CommandCase{"View",
                    Prepare,
                    [](CommandRun& run) { run.Window().UserSelect(IDC_lstScreenshots, "b.tga"); },
                    {.remade = MadeAgain()},
                    SelectTga},
        OnShot("Convert", IDM_mnuScreenshotMakeJPEGOnly, {.replaced = {kJpg}},
               Because({kJpg}, kNotOffered)),
        OnShot("ConvertAndKill", IDM_mnuScreenshotMakeJPEGAndKill,
               {.replaced = {kJpg}, .converted = {{kTga, kJpg}}},
               Because({kJpg, kTga}, kNotOffered + ", or the list shows it")),
        OnShot("SetWallpaper", IDM_mnuScreenshotSetWallpaper, {.replaced = {kWallpaper}},
               Because({kWallpaper}, kNotOffered)),
        OnShot("DeleteAllWallpapers", IDM_mnuScreenshotDeleteAllWallpaper, {.given = {kWallpaper}},
               Because({kWallpaper}, "the menu goes on offering it")),
        Deletion("Delete", IDM_mnuScreenshotDelete, {kTga}),
        OnShot("DeletePreview", IDM_mnuScreenshotDeletePreview, {}),
        Deletion("DeleteAll", IDM_mnuScreenshotDeleteAll,
                 Shots({"a.tga", "a.jpg", "b.tga", "c.pcx", "c.jpg", "d.jpg"})),
        OnShot("DeleteAllPreviews", IDM_mnuScreenshotDeleteAllPreview, {}),
        Deletion("DeleteAllJpg", IDM_mnuScreenshotDeleteAllJPG, Shots({"a.jpg", "c.jpg", "d.jpg"})),
        Deletion("DeleteAllTga", IDM_mnuScreenshotDeleteAllTGA, Shots({"a.tga", "b.tga"})),
        Deletion("DeleteAllPcx", IDM_mnuScreenshotDeleteAllPCX, Shots({"c.pcx"})),
        OnShot("Rename", IDM_mnuScreenshotRename, {.moved = {{kTga, kShots + "renamed.tga"}}}),
        OnShot("Copy", IDM_mnuScreenshotCopy, {.replaced = {kRemoteTga}}),
        OnShot("Move", IDM_mnuScreenshotMove, {.replaced = {kRemoteTga}}),
        OnOneDrive("MoveOnOneDrive", false),
        OnOneDrive("MoveOverOneOnOneDrive", true),
    };
}

}  // namespace zentar
