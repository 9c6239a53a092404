#include "tests/fault/command_faults.h"

#include <gmock/gmock.h>

#include "tests/fault/fault_outcome.h"

namespace zentar {

FaultedRun CommandFaults::ExpectNothingLost(const std::string& where,
                                            const std::function<void(FaultyFileSystem&)>& fault,
                                            bool powerFailed) const {
    FaultedRun run = sweep_.RunWith(fault);
    EXPECT_THAT(sweep_.Lost(run.files, powerFailed), ::testing::IsEmpty()) << where << run.until;
    return run;
}

TEST_P(CommandFaults, WithoutAFaultTheCommandDoesSomething) {
    EXPECT_GT(calls_, 0);
    EXPECT_EQ(sweep_.Before() == sweep_.Sound(), GetParam().leavesAll);
    EXPECT_THAT(sweep_.Lost(sweep_.Sound()), ::testing::IsEmpty());
}

TEST_P(CommandFaults, NothingIsLostWhicheverCallFails) {
    for (const FileError error : kFaults) {
        for (int call = 1; call <= calls_; ++call) {
            const std::string where = "failed: call " + std::to_string(call) + " of those until ";
            const FaultedRun run = ExpectNothingLost(
                where, [&](FaultyFileSystem& files) { files.FailAt(call, error); });
            // Of a failure the program knows, so that it takes away what it began; where that is
            // what failed, the next command of the kind does.
            EXPECT_THAT(sweep_.LeftOver(run.files), ::testing::Each(::testing::Truly(IsUnfinished)))
                << where << run.until;
            // And it tells the user, unless nobody needs to know.
            EXPECT_THAT(UnsaidWithoutAReason(sweep_, run), ::testing::IsEmpty())
                << where << run.until;
        }
    }
}

TEST_P(CommandFaults, NothingIsLostWhenEverythingFailsFromSomeCallOn) {
    for (int call = 1; call <= calls_; ++call) {
        ExpectNothingLost(
            "failed from call " + std::to_string(call) + " until ",
            [&](FaultyFileSystem& files) { files.FailFrom(call, FileError::NoSpace); });
    }
}

TEST_P(CommandFaults, NothingIsLostWhereverTheProgramIsKilled) {
    for (const Unflushed unflushed : {Unflushed::Kept, Unflushed::Halved, Unflushed::Lost}) {
        for (int call = 1; call <= calls_; ++call) {
            ExpectNothingLost(
                "killed at call " + std::to_string(call) + " of those until ",
                [&](FaultyFileSystem& files) { files.KillAt(call, unflushed); },
                unflushed != Unflushed::Kept);
        }
    }
}

// What the user gave away goes only after all went well: where any call fails, it stays; but for
// the question whether it is read-only, which the deletion answers as well.
TEST_P(GivenAwayFaults, ItGoesOnlyWhenAllWentWell) {
    for (const std::string& path : GetParam().allowed.given) {
        EXPECT_FALSE(sweep_.Sound().contains(path));
        for (int call = 1; call <= calls_; ++call) {
            if (sweep_.Calls()[static_cast<std::size_t>(call - 1)] == "Info " + path) {
                continue;
            }
            const FaultedRun run = sweep_.RunWith(
                [&](FaultyFileSystem& files) { files.FailAt(call, FileError::Other); });
            EXPECT_TRUE(run.files.contains(path))
                << "failed: call " << call << " of those until " << run.until;
        }
    }
}

}  // namespace zentar
