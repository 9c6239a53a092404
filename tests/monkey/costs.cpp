#include "tests/monkey/costs.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "core/atomic_file.h"
#include "core/file_name.h"
#include "core/text.h"
#include "demos/demo_name.h"
#include "screenshots/shot_name.h"
#include "ui/resource.h"

namespace zentar::monkey {
namespace {

using After = Ledger::After;

Ledger::Which Is(const std::string& path) {
    return [wanted = Folded(path)](const std::string& folded) { return folded == wanted; };
}

Ledger::Which IsIn(const std::string& folder, std::vector<std::string_view> ends) {
    return [beginning = Folded(folder), ends = std::move(ends)](const std::string& folded) {
        return folded.starts_with(beginning) &&
               folded.find('\\', beginning.size()) == std::string::npos &&
               std::any_of(ends.begin(), ends.end(),
                           [&](std::string_view end) { return folded.ends_with(end); });
    };
}

bool Holds(const std::vector<std::string>& paths, const std::string& folded) {
    return std::find(paths.begin(), paths.end(), folded) != paths.end();
}

// Names under which nothing but the program's own files stands.
bool IsOwnName(std::string_view name) {
    constexpr std::array<std::string_view, 14> kOwn = {
        "zentar.ini",          "zentar.ini.new",
        "zentar-tmp.gif",      "zentar-tmp.htm",
        "zentar-help.htm",     "zentar.tmp",
        "zentar-copy.tmp",     "zentar-jpg.tmp",
        "zentar-jpg.tmp.lock", "single-player backups.txt",
        "strays info.txt",     "tmp.bmp",
        "q3config.cfg-",       "zentar-wallpaper.bmp"};
    return std::find(kOwn.begin(), kOwn.end(), name) != kOwn.end() || name.ends_with(kTemporaryEnd);
}

// A preview beside a screenshot, which is made anew whenever the shot is viewed. Packs of the game
// that are hidden have that extension elsewhere.
bool IsPreviewPath(const std::string& folded) {
    return folded.ends_with(".zentar") && (folded.find("\\scrnshot\\") != std::string::npos ||
                                           folded.find("\\screenshots\\") != std::string::npos ||
                                           folded.starts_with(Folded(kGameFolders[0])));
}

std::string ShotName(MemoryForm& main) {
    return ShotOfEntry(main.SelectedItem(IDC_lstScreenshots));
}

}  // namespace

void Costs::NotePlace(const ProgramState& state) {
    const Place place = {state.current.ScreenshotFolder, state.current.DemoFolder,
                         state.current.DemoExtension, Folded(state.settings.Remote)};
    if (std::find(places_.begin(), places_.end(), place) == places_.end()) {
        places_.push_back(place);
    }
}

bool Costs::IsInRemoteFolder(const std::string& foldedPath) const {
    return std::any_of(places_.begin(), places_.end(), [&foldedPath](const Place& place) {
        // One that was typed without its last backslash is a folder and the beginning of a name.
        const std::string_view folder = FolderOf(place.remote);
        return !folder.empty() && foldedPath.starts_with(folder);
    });
}

std::vector<std::string> Costs::DemoPaths(const std::string& entry) const {
    std::vector<std::string> paths;
    for (const Place& place : places_) {
        paths.push_back(RealPath(place.demos, entry, place.demoExtension));
    }
    return paths;
}

void Costs::TakesShots(After after, ProgramState& state, const std::string& name) {
    for (const Place& place : places_) {
        ledger_.MayTake(after, state.settings.Expert == 1, Is(place.shots + name));
    }
}

void Costs::OfAnything(const ProgramState* state) {
    places_.clear();
    if (state != nullptr) {
        NotePlace(*state);
    }
    ledger_.MayTake(After::Nothing, false, [](const std::string& folded) {
        return IsOwnName(folded.substr(folded.find_last_of('\\') + 1)) || IsPreviewPath(folded);
    });
}

void Costs::OfTheShot(MemoryForm& main, ProgramState& state, After after) {
    if (const std::string shot = ShotName(main); !shot.empty()) {
        TakesShots(after, state, shot);
    }
}

void Costs::OfTheDemo(MemoryForm& main, ProgramState& state) {
    const std::string entry = main.SelectedItem(IDC_lstDemos);
    if (entry.empty()) {
        return;
    }
    for (const std::string& path : DemoPaths(entry)) {
        ledger_.MayTake(After::Consent, state.settings.Expert == 1, Is(path));
    }
}

void Costs::OfDeleteKey(MemoryForm& main, ProgramState& state) {
    NotePlace(state);
    if (main.FocusedId() == IDC_lstScreenshots) {
        OfTheShot(main, state, After::Consent);
    } else if (main.FocusedId() == IDC_lstDemos) {
        OfTheDemo(main, state);
    }
}

void Costs::TakesRemoteFile(const std::string& name) {
    for (const Place& place : places_) {
        ledger_.MayTake(After::Yes, false, Is(place.remote + name));
    }
}

void Costs::OfShotCommand(int command, MemoryForm& main, ProgramState& state) {
    const bool expert = state.settings.Expert == 1;
    const std::string shot = ShotName(main);
    switch (command) {
        case IDM_mnuScreenshotDelete:
            OfTheShot(main, state, After::Consent);
            break;
        case IDM_mnuScreenshotCopy:
        case IDM_mnuScreenshotMove:
            TakesRemoteFile(shot);
            break;
        case IDM_mnuScreenshotMakeJPEGOnly:
        case IDM_mnuScreenshotMakeJPEGAndKill:
            TakesShots(After::Consent, state, JpgNameOf(shot));
            if (command == IDM_mnuScreenshotMakeJPEGAndKill) {
                OfTheShot(main, state, After::Consent);
                killsNext_ = true;
            } else if (killsNext_) {
                OfTheShot(main, state, After::Nothing);
            }
            break;
        case IDM_mnuScreenshotSetWallpaper:
            ledger_.MayTake(After::Consent, expert, Is(kWindowsFolder + WallpaperNameOf(shot)));
            break;
        default:
            OfShotSweep(command, state);
    }
}

void Costs::OfShotSweep(int command, ProgramState& state) {
    const auto sweeps = [&](const std::vector<std::string_view>& ends) {
        for (const Place& place : places_) {
            ledger_.MayTake(After::Consent, state.settings.Expert == 1, IsIn(place.shots, ends));
        }
    };
    switch (command) {
        case IDM_mnuScreenshotDeleteAll:
            sweeps({".tga", ".jpg", ".pcx"});
            break;
        case IDM_mnuScreenshotDeleteAllTGA:
            sweeps({".tga"});
            break;
        case IDM_mnuScreenshotDeleteAllJPG:
            sweeps({".jpg"});
            break;
        case IDM_mnuScreenshotDeleteAllPCX:
            sweeps({".pcx"});
            break;
        case IDM_mnuScreenshotDeleteAllWallpaper:
            ledger_.MayTake(After::Consent, state.settings.Expert == 1,
                            [](const std::string& folded) {
                                return folded.starts_with(Folded(kWindowsFolder) + "[zentar] ") &&
                                       folded.ends_with(".bmp");
                            });
            break;
        default:
            break;
    }
}

void Costs::OfDemoCommand(int command, MemoryForm& main, ProgramState& state) {
    const bool expert = state.settings.Expert == 1;
    switch (command) {
        case IDM_mnuDemosDelete:
            OfTheDemo(main, state);
            break;
        case IDM_mnuDemosCopy:
        case IDM_mnuDemosMove:
            if (const std::string entry = main.SelectedItem(IDC_lstDemos); !entry.empty()) {
                for (const std::string& path : DemoPaths(entry)) {
                    TakesRemoteFile(std::string(FileNameOf(path)));
                }
            }
            break;
        case IDM_mnuDemosDeleteAll:
            for (const std::string& entry : main.Items(IDC_lstDemos)) {
                for (const std::string& path : DemoPaths(entry)) {
                    ledger_.MayTake(After::Consent, expert, Is(path));
                }
            }
            break;
        case IDC_cmdDemoInstaller:
            // One that is installed already, byte for byte, goes from where it came.
            ledger_.MayDropCopies();
            break;
        default:
            break;
    }
}

void Costs::OfTextCommand(int command, ProgramState& state) {
    const bool expert = state.settings.Expert == 1;
    const auto isChosen = [this](const std::string& folded) {
        return Holds(chosen_.toWrite, folded);
    };
    switch (command) {
        case IDC_cmdScanForNames:
            ledger_.MayTake(After::Yes, false, [this](const std::string& folded) {
                return Holds(chosen_.toRead, folded);
            });
            break;
        case IDC_cmdCreateTranscript:
            ledger_.MayTake(After::Nothing, false, [](const std::string& folded) {
                return folded.find(" (transcript).") != std::string::npos;
            });
            ledger_.MayRewrite(IsAddedTo, [this](const std::string& folded) {
                return Holds(chosen_.toRead, folded);
            });
            break;
        case IDC_cmdQ3TextSave:
        case IDC_cmdQ3Backup:
            ledger_.MayTake(After::Consent, expert, isChosen);
            break;
        default:
            break;
    }
}

void Costs::OfConfigCommand(int command, ProgramState& state) {
    switch (command) {
        case IDC_cmdQ3TextQ3Config:
        case IDC_cmdQ3Restore:
        case IDC_cmdQ3ConfigEdit:
            for (const Ledger::StillSays stillSays : {IsAddedTo, IsConverted}) {
                ledger_.MayRewrite(stillSays,
                                   Is(state.games[kQuake3Row].BaseModPath + "q3config.cfg"));
            }
            break;
        case IDC_cmdRemedy1:
            for (const GameState& game : state.games) {
                ledger_.MayRewrite(IsBlanked, IsIn(game.GameFolder, {".exe"}));
            }
            break;
        default:
            break;
    }
}

void Costs::OfCommand(int command, MemoryForm& main, ProgramState& state) {
    NotePlace(state);
    OfShotCommand(command, main, state);
    OfDemoCommand(command, main, state);
    OfTextCommand(command, state);
    OfConfigCommand(command, state);
}

}  // namespace zentar::monkey
