#include "tests/fault/command_faults.h"

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

}  // namespace

CommandRun::CommandRun(const std::function<void(CommandRun&)>& prepare) : faulty(files) {
    shell.programFolder = "C:\\Zentar";
    files.AddFolder("C:\\Windows\\");
    files.AddFolder("C:\\Zentar\\");
    prepare(*this);
    program.emplace(Platform{faulty, shell, windows, locale, images, pictures, registry, forms});
    program->Start();
    Window().Activate();
}

CommandFaults::CommandFaults() {
    CommandRun run(GetParam().prepare);
    before_ = run.files.AllFiles();
    run.faulty.Restart();
    GetParam().run(run);
    calls_ = run.faulty.CallCount();
    names_ = run.faulty.Calls();
    sound_ = run.files.AllFiles();
}

FilesByPath CommandFaults::After(const std::function<void(FaultyFileSystem&)>& fault,
                                 std::string& where) {
    CommandRun run(GetParam().prepare);
    run.faulty.Restart();
    fault(run.faulty);
    GetParam().run(run);
    where += run.faulty.CallName(run.faulty.CallCount());
    return run.files.AllFiles();
}

bool CommandFaults::IsMoved(const std::string& path, const std::string& old,
                            const FilesByPath& now) const {
    for (const auto& [from, to] : GetParam().allowed.moved) {
        const auto there = now.find(to);
        if (from == path && there != now.end() && there->second == old) {
            return true;
        }
    }
    return false;
}

bool CommandFaults::IsWhole(const std::string& path, const std::string& old, const FilesByPath& now,
                            bool powerFailed) const {
    const Allowed& allowed = GetParam().allowed;
    const auto left = now.find(path);
    if (left == now.end()) {
        return Holds(allowed.given, path) || IsMoved(path, old, now);
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

void CommandFaults::ExpectAllWhole(const FilesByPath& now, const std::string& where,
                                   bool powerFailed) const {
    for (const auto& [path, old] : before_) {
        EXPECT_TRUE(IsWhole(path, old, now, powerFailed))
            << path << " is lost or broken; " << where;
    }
}

void CommandFaults::ExpectNothingLeftOver(const FilesByPath& now, const std::string& where) const {
    for (const auto& [path, bytes] : now) {
        EXPECT_TRUE(before_.contains(path) || sound_.contains(path))
            << path << " is left over; " << where;
    }
}

TEST_P(CommandFaults, WithoutAFaultTheCommandDoesSomething) {
    EXPECT_GT(calls_, 2);
    EXPECT_NE(before_, sound_);
    ExpectAllWhole(sound_, "nothing failed");
}

TEST_P(CommandFaults, NothingIsLostWhicheverCallFails) {
    for (const FileError error : {FileError::NoSpace, FileError::InUse, FileError::NotFound,
                                  FileError::AccessDenied, FileError::Other}) {
        for (int call = 1; call <= calls_; ++call) {
            std::string where = "failed: call " + std::to_string(call) + " of those until ";
            const FilesByPath now =
                After([&](FaultyFileSystem& files) { files.FailAt(call, error); }, where);
            ExpectAllWhole(now, where);
            if (error != FileError::NoSpace) {
                ExpectNothingLeftOver(now, where);
            }
        }
    }
}

TEST_P(CommandFaults, NothingIsLostWhenEverythingFailsFromSomeCallOn) {
    for (int call = 1; call <= calls_; ++call) {
        std::string where = "failed from call " + std::to_string(call) + " until ";
        ExpectAllWhole(
            After([&](FaultyFileSystem& files) { files.FailFrom(call, FileError::NoSpace); },
                  where),
            where);
    }
}

TEST_P(CommandFaults, NothingIsLostWhereverTheProgramIsKilled) {
    for (const Unflushed unflushed : {Unflushed::Kept, Unflushed::Halved, Unflushed::Lost}) {
        for (int call = 1; call <= calls_; ++call) {
            std::string where = "killed at call " + std::to_string(call) + " of those until ";
            ExpectAllWhole(
                After([&](FaultyFileSystem& files) { files.KillAt(call, unflushed); }, where),
                where, unflushed != Unflushed::Kept);
        }
    }
}

// What the user gave away goes only after all went well: where any call fails, it stays; but for
// the question whether it is read-only, which the deletion answers as well.
TEST_P(GivenAwayFaults, ItGoesOnlyWhenAllWentWell) {
    for (const std::string& path : GetParam().allowed.given) {
        EXPECT_FALSE(sound_.contains(path));
        for (int call = 1; call <= calls_; ++call) {
            if (names_[static_cast<std::size_t>(call - 1)] == "Info " + path) {
                continue;
            }
            std::string where = "failed: call " + std::to_string(call) + " of those until ";
            const FilesByPath now = After(
                [&](FaultyFileSystem& files) { files.FailAt(call, FileError::Other); }, where);
            EXPECT_TRUE(now.contains(path)) << where;
        }
    }
}

}  // namespace zentar
