#include "q3tools/progress_backup.h"

#include <algorithm>
#include <array>
#include <memory>
#include <optional>

#include "core/atomic_file.h"
#include "core/console_lines.h"
#include "core/program_info.h"
#include "core/text.h"
#include "q3tools/q3_config.h"

namespace zentar {
namespace {

constexpr std::string_view kProgress = "seta g_sp";

// Each with its blank: "seta names" is another setting.
constexpr std::array<std::string_view, 12> kPlayer = {
    "seta name ",
    "seta model ",
    "seta headmodel ",
    "seta team_model ",
    "seta team_headmodel ",
    "seta sex ",
    "seta handicap ",
    "seta color ",
    "seta r_railsegmentlength ",
    "seta r_railcorewidth ",
    "seta r_railwidth ",
    "seta cg_railtrailtime ",
};

// The longest of them, with room to spare.
constexpr std::size_t kLongestBeginning = 40;

}  // namespace

bool IsProgressLine(std::string_view line, bool all) {
    const std::string lower = LowerAscii(line.substr(0, kLongestBeginning));
    return lower.starts_with(kProgress) ||
           (all && std::any_of(kPlayer.begin(), kPlayer.end(), [&lower](std::string_view setting) {
                return lower.starts_with(setting);
            }));
}

Status BackUpProgress(FileSystem& files, const std::string& config, const std::string& backup,
                      bool all) {
    const Result<std::unique_ptr<ReadableFile>> file = files.OpenForReading(config);
    if (!file.Ok()) {
        return file.Error();
    }
    FileReplacement written(files, backup);
    written.Write(
        Lines({"// " + std::string(kVersionLine) + " Quake 3 Single-Player Backup",
               "// " + WebSiteLine(), "// -----------------------------------------", ""}));
    ConsoleLines lines(*file.Value());
    while (const std::optional<std::string_view> line = lines.Next()) {
        if (IsProgressLine(*line, all)) {
            written.Write(*line);
            written.Write("\r\n");
        }
    }
    if (lines.Failed()) {
        return FileError::Other;
    }
    written.Write("// ===================================================================\r\n");
    return written.Finish();
}

Status RestoreProgress(FileSystem& files, const std::string& backup, const std::string& config,
                       bool all) {
    const Result<std::unique_ptr<ReadableFile>> file = files.OpenForReading(backup);
    if (!file.Ok()) {
        return file.Error();
    }
    std::string restored;
    ConsoleLines lines(*file.Value());
    while (const std::optional<std::string_view> line = lines.Next()) {
        if (!IsProgressLine(*line, all)) {
            continue;
        }
        restored.append(*line).append("\r\n");
        if (restored.size() > kMostProgress) {
            return FileError::NoSpace;
        }
    }
    if (lines.Failed()) {
        return FileError::Other;
    }
    return restored.empty() ? Status() : AppendToConfig(files, config, restored);
}

void WriteBackupsInfo(FileSystem& files, const std::string& folder) {
    const std::string path = folder + "Single-Player Backups.txt";
    IgnoreFailure(files.CreateFolder(folder));
    IgnoreFailure(files.ClearAttributes(path));
    IgnoreFailure(ReplaceFileContents(
        files, path,
        Lines({std::string(kVersionLine) + " Single-Player Backups", WebSiteLine(),
               "----------------------------------",
               "The files in this folder are backups of Quake 3 single-player games",
               "and were created by Zentar.  You can restore these backups to Quake 3",
               "by running Zentar and clicking the \"Misc\" tab and then \"Restore\".",
               "Alternatively, you can copy-and-paste the data in the files here into",
               "your existing \"q3config.cfg\" file, but be sure to paste them to the",
               "very END of the file to ensure the existing settings get overwritten!",
               "======================================================================", ""}),
        Durability::Cached));
}

}  // namespace zentar
