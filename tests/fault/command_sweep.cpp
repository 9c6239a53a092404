#include "tests/fault/command_sweep.h"

#include <algorithm>

namespace zentar {
namespace {

bool Holds(const std::vector<std::string>& paths, const std::string& path) {
    return std::find(paths.begin(), paths.end(), path) != paths.end();
}

bool IsPatched(const std::string& now, const std::string& old, const std::string& sound) {
    if (now.size() != old.size() || now.size() != sound.size()) {
        return false;
    }
    for (std::size_t i = 0; i < now.size(); ++i) {
        if (now[i] != old[i] && now[i] != sound[i]) {
            return false;
        }
    }
    return true;
}

// Whether one of these was heard more often than among those.
bool HearsMore(std::vector<std::string> these, std::vector<std::string> those) {
    std::sort(these.begin(), these.end());
    std::sort(those.begin(), those.end());
    return !std::includes(those.begin(), those.end(), these.begin(), these.end());
}

bool AreAlike(const FilesByPath& some, const FilesByPath& others, const std::string& path) {
    const auto one = some.find(path);
    const auto other = others.find(path);
    if (one == some.end() || other == others.end()) {
        return one == some.end() && other == others.end();
    }
    return one->second == other->second;
}

}  // namespace

CommandSweep::CommandSweep(const CommandCase& command) : command_(command) {
    CommandRun run(command_);
    before_ = run.files.AllFiles();
    command_.run(run);
    calls_ = run.faulty.Calls();
    sound_ = run.files.AllFiles();
    heard_ = run.Heard();
}

FaultedRun CommandSweep::RunWith(const std::function<void(FaultyFileSystem&)>& fault) const {
    CommandRun run(command_);
    fault(run.faulty);
    command_.run(run);
    return {.files = run.files.AllFiles(),
            .until = run.faulty.CallName(run.faulty.CallCount()),
            .told = HearsMore(run.Heard(), heard_)};
}

bool CommandSweep::MayBeGone(const std::string& path, const std::string& old,
                             const FilesByPath& now) const {
    const Allowed& allowed = command_.allowed;
    if (Holds(allowed.given, path)) {
        return true;
    }
    for (const auto& [from, to] : allowed.moved) {
        const auto there = now.find(to);
        if (from == path && there != now.end() && there->second == old) {
            return true;
        }
    }
    for (const auto& [from, to] : allowed.converted) {
        if (from == path && now.contains(to) && AreAlike(now, sound_, to)) {
            return true;
        }
    }
    return false;
}

bool CommandSweep::IsRescued(const std::string& path, const FilesByPath& now) const {
    const auto sound = sound_.find(path);
    for (const auto& [broken, spare] : command_.allowed.rescued) {
        const auto there = now.find(spare);
        if (broken == path && there != now.end() && sound != sound_.end() &&
            there->second == sound->second) {
            return true;
        }
    }
    return false;
}

bool CommandSweep::IsWhole(const std::string& path, const std::string& old, const FilesByPath& now,
                           bool powerFailed) const {
    const Allowed& allowed = command_.allowed;
    if (Holds(allowed.remade, path) || IsRescued(path, now)) {
        return true;
    }
    const auto left = now.find(path);
    if (left == now.end()) {
        return MayBeGone(path, old, now);
    }
    if (left->second == old) {
        return true;
    }
    const auto sound = sound_.find(path);
    if (sound == sound_.end()) {
        return false;
    }
    if (Holds(allowed.appended, path) && powerFailed) {
        return left->second.starts_with(old) && sound->second.starts_with(left->second);
    }
    if (Holds(allowed.patched, path)) {
        return IsPatched(left->second, old, sound->second);
    }
    return (Holds(allowed.replaced, path) || Holds(allowed.appended, path)) &&
           left->second == sound->second;
}

std::vector<std::string> CommandSweep::Lost(const FilesByPath& now, bool powerFailed) const {
    std::vector<std::string> lost;
    for (const auto& [path, old] : before_) {
        if (!IsWhole(path, old, now, powerFailed)) {
            lost.push_back(path);
        }
    }
    return lost;
}

std::vector<std::string> CommandSweep::LeftOver(const FilesByPath& now) const {
    const Allowed& allowed = command_.allowed;
    std::vector<std::string> left;
    for (const auto& [path, bytes] : now) {
        const auto leadsHere = [&path = path](const auto& move) { return move.second == path; };
        if (!before_.contains(path) && !sound_.contains(path) && !Holds(allowed.remade, path) &&
            std::none_of(allowed.moved.begin(), allowed.moved.end(), leadsHere)) {
            left.push_back(path);
        }
    }
    return left;
}

std::vector<std::string> CommandSweep::NotDone(const FilesByPath& now) const {
    const std::vector<std::string> left = LeftOver(now);
    FilesByPath all = now;
    all.insert(before_.begin(), before_.end());
    all.insert(sound_.begin(), sound_.end());
    std::vector<std::string> unlike;
    for (const auto& [path, bytes] : all) {
        if (!AreAlike(now, sound_, path) && !Holds(left, path)) {
            unlike.push_back(path);
        }
    }
    return unlike;
}

}  // namespace zentar
