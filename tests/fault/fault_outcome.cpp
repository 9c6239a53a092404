#include "tests/fault/fault_outcome.h"

#include <algorithm>
#include <optional>
#include <set>

namespace zentar {
namespace {

constexpr std::size_t kMostNames = 3;
const std::string kMadeAgain = "made again when it is needed";

std::optional<std::string> ReasonFor(const CommandCase& command, const std::string& path) {
    for (const Unsaid& unsaid : command.unsaid) {
        if (unsaid.path == path) {
            return unsaid.reason;
        }
    }
    const std::vector<std::string>& remade = command.allowed.remade;
    return std::find(remade.begin(), remade.end(), path) != remade.end() ? std::optional(kMadeAgain)
                                                                         : std::nullopt;
}

std::string Names(const std::vector<std::string>& paths) {
    std::set<std::string> names;
    for (const std::string& path : paths) {
        names.insert("`" + LastNameOf(path) + "`");
    }
    return Joined(names, ", ");
}

// What was done, without what is left over.
std::string Deed(const CommandSweep& sweep, const FaultedRun& run) {
    const std::vector<std::string> notDone = sweep.NotDone(run.files);
    if (notDone.empty()) {
        return sweep.Command().leavesAll && run.told ? "nothing changed" : "done";
    }
    FilesByPath kept = run.files;
    for (const std::string& path : sweep.LeftOver(run.files)) {
        kept.erase(path);
    }
    if (kept == sweep.Before()) {
        return "nothing changed";
    }
    return notDone.size() > kMostNames ? "partly done" : "done but for " + Names(notDone);
}

}  // namespace

std::string LastNameOf(const std::string& path) {
    if (path.size() < 2) {
        return path;
    }
    const std::size_t slash = path.rfind('\\', path.size() - 2);
    return slash == std::string::npos ? path : path.substr(slash + 1);
}

bool IsUnfinished(const std::string& path) {
    const std::string name = LastNameOf(path);
    return name == "zentar-copy.tmp" || name == "zentar.tmp" || name == "tmp.bmp" ||
           name == "zentar.ini.new" || name == "zentar-jpg.tmp.lock";
}

std::vector<std::string> UnsaidWithoutAReason(const CommandSweep& sweep, const FaultedRun& run) {
    std::vector<std::string> unsaid;
    if (!run.told) {
        for (const std::string& path : sweep.NotDone(run.files)) {
            if (!ReasonFor(sweep.Command(), path)) {
                unsaid.push_back(path);
            }
        }
    }
    return unsaid;
}

std::string OutcomeOf(const CommandSweep& sweep, const FaultedRun& run) {
    std::string outcome = Deed(sweep, run);
    if (run.told) {
        outcome = "told, " + outcome;
    } else if (outcome != "done") {
        std::set<std::string> reasons;
        for (const std::string& path : sweep.NotDone(run.files)) {
            reasons.insert(ReasonFor(sweep.Command(), path).value_or("NOBODY KNOWS WHY"));
        }
        outcome = "silent, " + outcome + ": " + Joined(reasons, ", ");
    }
    const std::vector<std::string> left = sweep.LeftOver(run.files);
    return left.empty() ? outcome : outcome + "; left over: " + Names(left);
}

}  // namespace zentar
