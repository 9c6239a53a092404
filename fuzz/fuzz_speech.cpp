// The lines of a console dump or log, however it is read, and who speaks in them.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "core/console_lines.h"
#include "fuzz/odd_file.h"
#include "fuzz/plain_speech.h"
#include "fuzz/require.h"
#include "transcripts/name_scan.h"
#include "transcripts/speech_line.h"

namespace {

using namespace zentar;
using fuzz::Require;

std::vector<std::string> LinesOf(ReadableFile& file) {
    ConsoleLines lines(file);
    std::vector<std::string> all;
    while (const auto line = lines.Next()) {
        all.emplace_back(*line);
    }
    Require(!lines.Failed() && !lines.Next());
    return all;
}

// None of the known messages does.
bool BeginsAsNoMessage(const std::string& line) {
    constexpr std::string_view kFirst = "*.[abcefghilmnoprstuwz";
    const char first = line.empty() ? ' ' : line.front();
    const char lower = first >= 'A' && first <= 'Z' ? static_cast<char>(first + 32) : first;
    return kFirst.find(lower) == std::string_view::npos;
}

void CheckLine(const std::string& line, bool quake3) {
    Require(WithoutSpeechMarkers(line) == fuzz::PlainWithoutMarkers(line));
    const auto speaker = SpeakerOf(line, quake3);
    const auto plain = fuzz::PlainSpeaker(line, quake3);
    Require(!speaker || speaker == plain);
    // Else it is a message by its beginning.
    Require(speaker || !plain ||
            !BeginsAsNoMessage(quake3 ? fuzz::PlainWithoutMarkers(line) : line));
}

void CheckScan(std::string_view bytes, const std::vector<std::string>& lines, bool quake3) {
    std::vector<std::string> expected;
    for (const std::string& line : lines) {
        const auto speaker = SpeakerOf(line, quake3);
        if (speaker && !speaker->empty() && expected.size() < 24 &&
            std::find(expected.begin(), expected.end(), *speaker) == expected.end()) {
            expected.push_back(*speaker);
        }
    }
    fuzz::FuzzFile file(bytes);
    ConsoleLines console(file);
    Require(ScanForNames(console, quake3) == expected);
}

}  // namespace

// The first four bytes say how the file is read.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t kSteps = 4;
    const std::string_view all(reinterpret_cast<const char*>(data), size);
    const std::string_view bytes = all.substr(std::min(kSteps, size));
    fuzz::OddFile file(bytes, all.substr(0, kSteps));
    const std::vector<std::string> lines = LinesOf(file);
    Require(lines == fuzz::PlainLines(bytes));
    for (const std::string& line : lines) {
        CheckLine(line, false);
        CheckLine(line, true);
    }
    // One of the two: what takes time is to make the file's buffer.
    CheckScan(bytes, lines, size % 2 == 0);
    return 0;
}
