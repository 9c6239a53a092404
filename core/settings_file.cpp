#include "core/settings_file.h"

#include <array>
#include <cstddef>
#include <string>
#include <unordered_map>

#include "core/program_info.h"
#include "core/settings_storage.h"

namespace zentar {
namespace {

// Cuts a stream of bytes into lines. CR, LF and CR LF each end one.
class LineSplitter {
  public:
    explicit LineSplitter(std::function<void(const std::string&)> line) : line_(std::move(line)) {}

    void Feed(std::string_view bytes) {
        for (const char c : bytes) {
            if (c == '\r' || c == '\n') {
                Finish();
            } else if (current_.size() <= kLongestSettingLine) {
                current_ += c;
            }
        }
    }

    void Finish() {
        // An empty line is nobody's setting, so the one inside each CR LF does no harm.
        if (!current_.empty() && current_.size() <= kLongestSettingLine) {
            line_(current_);
        }
        current_.clear();
    }

  private:
    std::function<void(const std::string&)> line_;
    std::string current_;
};

bool FeedWholeFile(ReadableFile& file, LineSplitter& lines) {
    std::array<std::byte, 16384> block{};
    std::uint64_t offset = 0;
    for (;;) {
        const Result<std::size_t> read = file.ReadAt(offset, block);
        if (!read.Ok()) {
            return false;
        }
        if (read.Value() == 0) {
            break;
        }
        lines.Feed({reinterpret_cast<const char*>(block.data()), read.Value()});
        offset += read.Value();
    }
    lines.Finish();
    return true;
}

}  // namespace

bool LoadSettings(FileSystem& files, const std::string& programFolder,
                  const std::vector<SettingRow>& rows) {
    const Result<std::unique_ptr<ReadableFile>> file = OpenSettings(files, programFolder);
    if (!file.Ok()) {
        return file.Error() == FileError::NotFound;
    }
    std::unordered_map<std::string_view, const SettingRow*> byKey;
    for (const SettingRow& row : rows) {
        byKey.emplace(row.key, &row);
    }
    LineSplitter lines([&byKey](const std::string& line) {
        const std::size_t equals = line.find('=');
        if (equals == std::string::npos || line.find('\0') != std::string::npos) {
            return;
        }
        const std::string_view text = line;
        if (const auto found = byKey.find(text.substr(0, equals + 1)); found != byKey.end()) {
            found->second->read(text.substr(equals + 1));
        }
    });
    return FeedWholeFile(*file.Value(), lines);
}

void SaveSettings(FileSystem& files, const std::string& programFolder,
                  const std::vector<SettingRow>& rows) {
    std::string text = "// " + std::string(kVersionLine) + " Settings File.\r\n" +
                       "// Changes are NOT recommended!\r\n// " + std::string(28, '-') + "\r\n";
    for (const SettingRow& row : rows) {
        text += row.key + row.write() + "\r\n";
    }
    text += kSettingsEnd;
    // The user is leaving the program: there is nobody left to tell, and the old text is whole.
    IgnoreFailure(StoreSettings(files, programFolder, text));
}

}  // namespace zentar
