#include "q3tools/q3_config.h"

#include <array>
#include <cstddef>
#include <memory>

namespace zentar {
namespace {

// Also where nobody can tell: an empty line harms nobody, two lines in one would spoil both.
bool LastLineMayLackItsEnd(FileSystem& files, const std::string& path) {
    const Result<std::unique_ptr<ReadableFile>> file = files.OpenForReading(path);
    if (!file.Ok()) {
        return true;
    }
    const Result<std::uint64_t> length = file.Value()->Length();
    if (length.Ok() && length.Value() == 0) {
        return false;
    }
    std::array<std::byte, 1> last{};
    if (!length.Ok() || file.Value()->ReadAt(length.Value() - 1, last).ValueOr(0) == 0) {
        return true;
    }
    return last[0] != std::byte{'\n'} && last[0] != std::byte{'\r'};
}

}  // namespace

std::string Q3ConfigPath(const ProgramState& state) {
    return state.games[kQuake3Row].BaseModPath + "q3config.cfg";
}

Status AppendToConfig(FileSystem& files, const std::string& path, std::string_view lines) {
    std::string bytes = LastLineMayLackItsEnd(files, path) ? "\r\n" : "";
    bytes += lines;
    const Result<std::unique_ptr<WritableFile>> file =
        files.OpenForWriting(path, WriteMode::Append);
    if (!file.Ok()) {
        return file.Error();
    }
    if (Status written = file.Value()->Write(bytes); !written.Ok()) {
        return written;
    }
    if (Status flushed = file.Value()->Flush(); !flushed.Ok()) {
        return flushed;
    }
    return file.Value()->Close();
}

}  // namespace zentar
