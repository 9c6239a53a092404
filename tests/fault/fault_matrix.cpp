#include "tests/fault/fault_matrix.h"

#include <algorithm>
#include <cctype>
#include <iterator>
#include <map>
#include <string_view>
#include <vector>

#include "tests/fault/commands.h"
#include "tests/fault/fault_outcome.h"

namespace zentar {
namespace {

// As many as there are kinds of failure: the first one's outcomes first.
using OutcomesByFault = std::vector<std::vector<std::string>>;

// What stands in one line of the table.
struct Line {
    std::vector<std::string> kinds;
    std::vector<std::string> targets;
    std::string outcome;
};

struct Counts {
    int commands = 0;
    int calls = 0;
    int failures = 0;
    int kills = 0;
    int filesLost = 0;
};

std::string NameOf(FileError error) {
    switch (error) {
        case FileError::NoSpace:
            return "disk full";
        case FileError::InUse:
            return "in use";
        case FileError::NotFound:
            return "not found";
        case FileError::AccessDenied:
            return "refused";
        default:
            return "other error";
    }
}

void AddNew(std::vector<std::string>& words, const std::string& word) {
    if (std::find(words.begin(), words.end(), word) == words.end()) {
        words.push_back(word);
    }
}

// The kinds of failure that end alike stand together.
std::string Folded(const OutcomesByFault& outcomes) {
    std::vector<std::string> ends;
    std::map<std::string, std::vector<std::string>> faults;
    for (std::size_t fault = 0; fault < outcomes.size(); ++fault) {
        const std::string end = Joined(outcomes[fault], "<br>or ");
        AddNew(ends, end);
        faults[end].push_back(NameOf(kFaults[fault]));
    }
    if (ends.size() == 1) {
        return ends.front();
    }
    std::vector<std::string> folded;
    for (const std::string& end : ends) {
        folded.push_back("*" + Joined(faults[end], ", ") + ":* " + end);
    }
    return Joined(folded, "<br>");
}

// "MoveOverOneOnOneDrive" -> "Move over one on one drive".
std::string Spaced(std::string_view name) {
    std::string spaced;
    for (const char c : name) {
        const bool begins = std::isupper(static_cast<unsigned char>(c)) != 0;
        if (begins && !spaced.empty()) {
            spaced += ' ';
            spaced += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        } else {
            spaced += c;
        }
    }
    return spaced;
}

void RunAll(const CommandSweep& sweep, std::map<std::string, OutcomesByFault>& outcomes,
            Counts& counts) {
    const int calls = static_cast<int>(sweep.Calls().size());
    counts.calls += calls;
    for (int call = 1; call <= calls; ++call) {
        OutcomesByFault& found = outcomes[sweep.Calls()[static_cast<std::size_t>(call - 1)]];
        found.resize(std::size(kFaults));
        for (std::size_t fault = 0; fault < std::size(kFaults); ++fault) {
            const FaultedRun run =
                sweep.RunWith([&](FaultyFileSystem& files) { files.FailAt(call, kFaults[fault]); });
            AddNew(found[fault], OutcomeOf(sweep, run));
            counts.filesLost += static_cast<int>(sweep.Lost(run.files).size());
            ++counts.failures;
        }
        for (const Unflushed unflushed : {Unflushed::Kept, Unflushed::Halved, Unflushed::Lost}) {
            const FaultedRun run =
                sweep.RunWith([&](FaultyFileSystem& files) { files.KillAt(call, unflushed); });
            counts.filesLost +=
                static_cast<int>(sweep.Lost(run.files, unflushed != Unflushed::Kept).size());
            ++counts.kills;
        }
    }
}

// A name that two files have stands with its folder.
std::string TargetOf(const std::string& call, const std::vector<std::string>& calls) {
    const CallInWords words = InWords(call);
    const bool isOfTwo = std::any_of(calls.begin(), calls.end(), [&](const std::string& other) {
        const CallInWords otherWords = InWords(other);
        return other != call && otherWords.kind == words.kind && otherWords.target == words.target;
    });
    const std::string folder = call.substr(0, call.size() - words.target.size());
    return "`" + (isOfTwo ? LastNameOf(folder) : "") + words.target + "`";
}

// Lines of the same targets and outcome become one.
std::vector<Line> Folded(const std::vector<Line>& lines) {
    std::vector<Line> folded;
    for (const Line& line : lines) {
        const auto same = std::find_if(folded.begin(), folded.end(), [&line](const Line& other) {
            return other.targets == line.targets && other.outcome == line.outcome;
        });
        if (same == folded.end()) {
            folded.push_back(line);
        } else {
            same->kinds.insert(same->kinds.end(), line.kinds.begin(), line.kinds.end());
        }
    }
    return folded;
}

std::vector<Line> LinesOf(const CommandSweep& sweep, Counts& counts) {
    std::map<std::string, OutcomesByFault> outcomes;
    RunAll(sweep, outcomes, counts);
    std::vector<Line> lines;
    for (const std::string& call : sweep.Calls()) {
        const std::string kind = InWords(call).kind;
        const std::string outcome = Folded(outcomes[call]);
        const auto same = std::find_if(lines.begin(), lines.end(), [&](const Line& line) {
            return line.kinds.front() == kind && line.outcome == outcome;
        });
        Line& line = same == lines.end() ? lines.emplace_back(Line{{kind}, {}, outcome}) : *same;
        AddNew(line.targets, TargetOf(call, sweep.Calls()));
    }
    return Folded(lines);
}

std::string Grouped(int number) {
    std::string digits = std::to_string(number);
    for (std::size_t at = digits.size(); at > 3;) {
        at -= 3;
        digits.insert(at, ",");
    }
    return digits;
}

}  // namespace

CallInWords InWords(const std::string& call) {
    const std::size_t blank = call.find(' ');
    CallInWords words{.kind = call.substr(0, blank), .target = {}};
    const std::string paths = call.substr(blank + 1);
    const std::map<std::string, std::string> between = {{"Rename", " -> "},
                                                        {"Replace", " -> "},
                                                        {"Copy", " -> "},
                                                        {"IsSameFile", " = "},
                                                        {"DeleteOriginal", " of "}};
    const auto separator = between.find(words.kind);
    const std::size_t end =
        separator == between.end() ? std::string::npos : paths.find(separator->second);
    if (end == std::string::npos) {
        words.target = LastNameOf(paths);
        return words;
    }
    const std::string from = paths.substr(0, end);
    const std::string to = paths.substr(end + separator->second.size());
    const std::string toName = LastNameOf(to);
    const std::string toFolder = to.substr(0, to.size() - toName.size());
    const bool together = from.starts_with(toFolder) && from == toFolder + LastNameOf(from);
    words.target =
        LastNameOf(from) + separator->second + (together ? "" : LastNameOf(toFolder)) + toName;
    return words;
}

std::vector<CommandGroup> AllCommands() {
    return {{"Screenshots", ShotCommands()},
            {"Demos", DemoCommands()},
            {"Chat and coloured text", ChatAndQ3TextCommands()},
            {"Quake 3's configuration and First Aid", ConfigAndFirstAidCommands()},
            {"Leaving the program", LeavingCommands()}};
}

FaultMatrix MakeFaultMatrix() {
    Counts counts;
    std::string tables;
    for (const CommandGroup& group : AllCommands()) {
        tables += std::string("\n### ") + group.title +
                  "\n\n| command | call that fails | on | what then |\n|---|---|---|---|\n";
        for (const CommandCase& command : group.commands) {
            ++counts.commands;
            for (const Line& line : LinesOf(CommandSweep(command), counts)) {
                tables += "| " + Spaced(command.name) + " | " + Joined(line.kinds, ", ") + " | " +
                          Joined(line.targets, ", ") + " | " + line.outcome + " |\n";
            }
        }
    }
    const std::string sum = Grouped(counts.commands) + " commands with " + Grouped(counts.calls) +
                            " calls of the file system; " + Grouped(counts.failures) +
                            " runs in which one call failed, " + Grouped(counts.kills) +
                            " in which the program was killed or the power cut at one.\n\n" +
                            "**Files lost: " + Grouped(counts.filesLost) + "**\n";
    return {.text = sum + tables, .filesLost = counts.filesLost};
}

}  // namespace zentar
