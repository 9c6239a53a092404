#include "q3tools/q3_text_files.h"

#include <array>
#include <optional>
#include <utility>

#include "core/atomic_file.h"
#include "core/file_reading.h"
#include "core/game_text.h"
#include "platform/rtf/rtf_reader.h"
#include "platform/rtf/rtf_writer.h"

namespace zentar {
namespace {

constexpr std::uint64_t kLargest = 1024 * 1024;

struct Escape {
    char character;
    std::string_view word;
};

constexpr std::array<Escape, 9> kEscapes = {{{'"', "'"},
                                             {'\\', "[BS]"},
                                             {'/', "[FS]"},
                                             {':', "[C]"},
                                             {'?', "[Q]"},
                                             {'*', "[A]"},
                                             {'<', "[LB]"},
                                             {'>', "[RB]"},
                                             {'|', "[P]"}}};

}  // namespace

std::string SuggestedFileName(std::string_view text) {
    std::string name;
    for (const char character : text) {
        std::string_view stands(&character, 1);
        for (const Escape& escape : kEscapes) {
            if (escape.character == character) {
                stands = escape.word;
            }
        }
        name += stands;
    }
    return name;
}

Result<std::vector<ColouredRun>> LoadColouredText(FileSystem& files, const std::string& path) {
    const Result<std::string> bytes = ReadWholeFile(files, path, kLargest);
    if (!bytes.Ok()) {
        return bytes.Error();
    }
    if (std::optional<std::vector<ColouredRun>> runs = ReadRtf(bytes.Value())) {
        return std::move(*runs);
    }
    const std::string_view text = bytes.Value();
    return std::vector<ColouredRun>{
        {GameTextOnOneLine(text.substr(0, kMostRtfCharacters)), kBlack}};
}

Status SaveColouredText(FileSystem& files, const std::string& path,
                        const std::vector<ColouredRun>& runs) {
    return ReplaceFileContents(files, path, WriteRtf(runs));
}

}  // namespace zentar
