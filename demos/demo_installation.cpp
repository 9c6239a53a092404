#include "demos/demo_installation.h"

#include <vector>

#include "core/file_copy.h"
#include "core/game_folders.h"
#include "core/game_text.h"
#include "core/text.h"
#include "demos/demo_mod.h"
#include "demos/demo_name.h"

namespace zentar {
namespace {

bool IsDemoOf(const GameInfo& game, std::string_view name) {
    return EndsWithAnyCase(name, game.demoExtension) ||
           (game.id == kQuake3 && (EndsWithAnyCase(name, kDm48) || EndsWithAnyCase(name, kDm66)));
}

class Installation {
  public:
    Installation(FileSystem& files, const GameInfo& game, const std::string& gameFolder)
        : files_(files), game_(game), gameFolder_(gameFolder) {}

    // True when the demo is in its mod's folder afterwards.
    bool Install(const std::string& from, const std::string& name) {
        const std::string source = from + name;
        const std::string mod = ModOf(source);
        const Result<FileInfo> info = files_.Info(source);
        if (!IsFolderName(mod) || HoldsNoMod(LowerCase(mod)) || !info.Ok()) {
            return false;
        }
        // An empty Quake 2 demo was never finished.
        if (game_.id == kQuake2 && info.Value().length == 0) {
            return false;
        }
        const std::string folder = gameFolder_ + mod + "\\demos\\";
        // Fails where the folder is there, and where the mod is not, which the next step finds out.
        IgnoreFailure(files_.CreateFolder(folder));
        const std::string target = folder + name;
        if (files_.Info(target).Ok()) {
            return IsInstalled(source, target);
        }
        return Move(source, target, info.Value().length);
    }

  private:
    // The mod that the demo names, or the base folder; empty when the demo cannot be read.
    std::string ModOf(const std::string& path) {
        std::string mod;
        if (!EndsWithAnyCase(path, kDm66)) {
            const auto file = files_.OpenForReading(path);
            if (!file.Ok()) {
                return {};
            }
            const Result<std::string> read =
                game_.id == kQuake2 ? ReadQuake2Mod(*file.Value()) : ReadQuake3Mod(*file.Value());
            if (!read.Ok()) {
                return {};
            }
            mod = GameTextToUtf8(read.Value());
        }
        return mod.empty() ? std::string(game_.baseMod) : mod;
    }

    // The same demo may be there since an installation that was broken off, or be the very file.
    bool IsInstalled(const std::string& source, const std::string& target) {
        const Result<bool> sameFile = files_.IsSameFile(source, target);
        if (!sameFile.Ok() || sameFile.Value()) {
            return sameFile.Ok();
        }
        const Result<bool> sameBytes = HoldSameBytes(files_, source, target);
        if (!sameBytes.Ok() || !sameBytes.Value()) {
            return false;
        }
        // A read-only one stays: nobody was asked.
        IgnoreFailure(files_.DeleteOriginal(source, target));
        return true;
    }

    bool Move(const std::string& source, const std::string& target, std::uint64_t length) {
        // On one drive the file only gets another path. Otherwise, or where that is refused:
        if (files_.Rename(source, target).Ok()) {
            return true;
        }
        if (CopyFileWhole(files_, source, target, length, Existing::Keep) != CopyOutcome::Whole) {
            return false;
        }
        IgnoreFailure(files_.DeleteOriginal(source, target));
        return true;
    }

    FileSystem& files_;
    const GameInfo& game_;
    const std::string& gameFolder_;
};

}  // namespace

InstallCount InstallDemos(FileSystem& files, const GameInfo& game, const std::string& gameFolder,
                          const std::string& from) {
    std::vector<std::string> demos;
    const auto collect = [&](const FolderEntry& entry) {
        if (!entry.info.isFolder && IsDemoOf(game, entry.name)) {
            demos.push_back(entry.name);
        }
    };
    // Of a folder that stops answering, those demos are installed that it named before.
    IgnoreFailure(files.Enumerate(from, collect));
    InstallCount count;
    Installation installation(files, game, gameFolder);
    for (const std::string& demo : demos) {
        ++count.found;
        if (installation.Install(from, demo)) {
            ++count.installed;
        }
    }
    return count;
}

}  // namespace zentar
