// zentar.ini as somebody may have left it: lines, values, and what takes its place, beside a plain
// way to read it.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/settings_file.h"
#include "core/settings_values.h"
#include "fuzz/fuzz_folder.h"
#include "fuzz/require.h"

namespace {

using namespace zentar;
using fuzz::Require;

const std::string kIni = "c:\\zentar.ini";
const std::string kSpare = "c:\\data\\zentar.ini.new";

using Values = std::map<std::string, std::string>;

// Settings that take every text.
std::vector<SettingRow> RowsOf(Values& values) {
    std::vector<SettingRow> rows;
    for (const char* key : {"Game=", "Remote=", "Preset1=", "DemoFilter="}) {
        rows.push_back({key, [&values, key](std::string_view text) { values[key] = text; },
                        [&values, key] { return values[key]; }});
    }
    return rows;
}

void TakeLine(const std::string& line, Values& values) {
    const std::size_t behindKey = line.find('=') + 1;
    const bool odd =
        behindKey == 0 || line.size() > kLongestSettingLine || line.find('\0') != std::string::npos;
    const auto value = values.find(line.substr(0, behindKey));
    if (!odd && value != values.end()) {
        value->second = line.substr(behindKey);
    }
}

Values PlainlyRead(const std::string& bytes, Values values) {
    std::string line;
    for (const char c : bytes + '\n') {
        if (c == '\r' || c == '\n') {
            TakeLine(line, values);
            line.clear();
        } else {
            line += c;
        }
    }
    return values;
}

Values Read(fuzz::FuzzFolder& folder) {
    Values values;
    const std::vector<SettingRow> rows = RowsOf(values);
    for (const SettingRow& row : rows) {
        values[row.key] = "untouched";
    }
    Require(LoadSettings(folder, "c:\\", rows));
    return values;
}

// Whether the word stands there, in whichever case, and nothing but blanks around it.
bool IsWord(std::string_view text, std::string_view word) {
    const std::size_t at = std::min(text.find_first_not_of(" \t"), text.size());
    const std::string_view found = text.substr(at, word.size());
    return std::equal(found.begin(), found.end(), word.begin(), word.end(),
                      [](char c, char letter) { return (c | ' ') == letter && c >= 'A'; }) &&
           text.find_first_not_of(" \t", at + found.size()) == std::string_view::npos;
}

void CheckValues(std::string_view text) {
    const std::optional<std::uint8_t> byte = ParseByte(text);
    const std::optional<std::int32_t> number = ParseLeadingNumber(text);
    Require(!byte || (number && *number == *byte));
    const std::optional<bool> tick = ParseTick(text);
    Require(!tick || (byte && *byte == (*tick ? 1 : 0)));
    const std::optional<bool> truth = ParseTruth(text);
    Require((truth == true) == IsWord(text, "true") && (truth == false) == IsWord(text, "false"));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    fuzz::FuzzFolder folder;
    folder.files[kIni] = bytes;
    Values values = Read(folder);
    const Values untouched = {{"Game=", "untouched"},
                              {"Remote=", "untouched"},
                              {"Preset1=", "untouched"},
                              {"DemoFilter=", "untouched"}};
    Require(values == PlainlyRead(bytes, untouched));
    for (const auto& [key, value] : values) {
        CheckValues(value);
    }
    SaveSettings(folder, "c:\\", RowsOf(values));
    Require(folder.files.size() == 1 && Read(folder) == values);
    // Cut off while it was written over, it is read whole from beside it.
    folder.files[kSpare] = folder.files.at(kIni);
    folder.files.at(kIni).resize(size % folder.files.at(kIni).size());
    Require(Read(folder) == values);
    return 0;
}
