#include "core/settings_storage.h"

#include <cstdint>
#include <optional>
#include <utility>

#include "core/atomic_file.h"
#include "core/file_reading.h"

namespace zentar {
namespace {

constexpr std::uint64_t kLongest = std::uint64_t{16} * 1024 * 1024;

std::string SettingsPath(const std::string& programFolder) { return programFolder + "zentar.ini"; }

std::string SparePath(const std::string& programFolder) {
    return programFolder + "data\\zentar.ini.new";
}

// The text of the spare, if zentar.ini is what is left of writing that text over the old one: its
// beginning, and after a power cut perhaps zeros. One that a user wrote is none, whole or not.
Result<std::optional<std::string>> CutOffText(FileSystem& files, const std::string& path,
                                              const std::string& spare) {
    std::optional<std::string> whole;
    if (!FileExists(files, spare) || !FileExists(files, path)) {
        return whole;
    }
    Result<std::string> text = ReadWholeFile(files, spare, kLongest);
    const Result<std::string> written = ReadWholeFile(files, path, kLongest);
    if (!text.Ok() || !written.Ok()) {
        return text.Ok() ? written.Error() : text.Error();
    }
    const std::string_view left =
        std::string_view(written.Value()).substr(0, written.Value().find_last_not_of('\0') + 1);
    if (text.Value().ends_with(kSettingsEnd) && left.size() < text.Value().size() &&
        text.Value().starts_with(left)) {
        whole = std::move(text.Value());
    }
    return whole;
}

// While one of the two cannot be read, the spare may be the only whole text.
bool IsOfNoUse(FileSystem& files, const std::string& path, const std::string& spare) {
    const Result<std::optional<std::string>> cutOff = CutOffText(files, path, spare);
    return cutOff.Ok() && !cutOff.Value();
}

// One that stays is of no use: whoever reads finds the file itself whole.
void DeleteSpare(FileSystem& files, const std::string& spare) {
    IgnoreFailure(files.Delete(spare));
}

Status WriteThrough(WritableFile& file, std::string_view text) {
    if (Status written = file.Write(text); !written.Ok()) {
        return written;
    }
    if (Status flushed = file.Flush(); !flushed.Ok()) {
        return flushed;
    }
    return file.Close();
}

Status WriteOver(FileSystem& files, const std::string& path, std::string_view text) {
    const Result<std::unique_ptr<WritableFile>> file =
        files.OpenForWriting(path, WriteMode::Truncate);
    return file.Ok() ? WriteThrough(*file.Value(), text) : Status(file.Error());
}

// The old text goes when the file is opened, so the new one is on the disk before. What an earlier
// attempt left is brought to an end first: the spare may be the only whole text.
Status StoreWithSpare(FileSystem& files, const std::string& path, const std::string& spare,
                      std::string_view text) {
    const Result<std::optional<std::string>> cutOff = CutOffText(files, path, spare);
    if (!cutOff.Ok()) {
        return cutOff.Error();
    }
    if (cutOff.Value()) {
        if (Status finished = WriteOver(files, path, *cutOff.Value()); !finished.Ok()) {
            return finished;
        }
    }
    Status stored = WriteOver(files, spare, text);
    if (stored.Ok()) {
        stored = WriteOver(files, path, text);
    }
    if (stored.Ok() || IsOfNoUse(files, path, spare)) {
        DeleteSpare(files, spare);
    }
    return stored;
}

}  // namespace

Result<std::unique_ptr<ReadableFile>> OpenSettings(FileSystem& files,
                                                   const std::string& programFolder) {
    const std::string path = SettingsPath(programFolder);
    const std::string spare = SparePath(programFolder);
    const Result<std::optional<std::string>> cutOff = CutOffText(files, path, spare);
    if (!cutOff.Ok()) {
        return cutOff.Error();
    }
    return files.OpenForReading(cutOff.Value() ? spare : path);
}

Status StoreSettings(FileSystem& files, const std::string& programFolder, std::string_view text) {
    const std::string path = SettingsPath(programFolder);
    const Result<FileInfo> old = files.Info(path);
    if (old.Ok() && old.Value().readOnly) {
        return {};
    }
    const std::string spare = SparePath(programFolder);
    Status stored = ReplaceFileContents(files, path, text);
    if (stored.Ok() && FileExists(files, spare)) {
        DeleteSpare(files, spare);
    } else if (!stored.Ok() && stored.Error() == FileError::AccessDenied && old.Ok()) {
        stored = StoreWithSpare(files, path, spare, text);
    }
    return stored;
}

}  // namespace zentar
