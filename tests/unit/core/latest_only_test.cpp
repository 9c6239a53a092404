// What is asked for by the messages that it lets run comes later, and once.
#include <gtest/gtest.h>

#include "core/latest_only.h"

namespace zentar {
namespace {

TEST(LatestOnly, RunsOnceMoreHoweverOftenItWasAskedMeanwhile) {
    LatestOnly latest;
    int runs = 0;
    int depth = 0;
    const std::function<void()> procedure = [&] {
        ++runs;
        EXPECT_EQ(++depth, 1);
        EXPECT_TRUE(latest.Runs());
        if (runs == 1) {
            EXPECT_FALSE(latest.AskedAgain());
            latest.Run(procedure);
            latest.Run(procedure);
            EXPECT_TRUE(latest.AskedAgain());
        }
        --depth;
    };
    latest.Run(procedure);
    EXPECT_EQ(runs, 2);
    EXPECT_FALSE(latest.Runs());
    latest.Run(procedure);
    EXPECT_EQ(runs, 3);
}

TEST(LatestOnly, AProcedureThatFailsCanRunAgain) {
    LatestOnly latest;
    EXPECT_ANY_THROW(latest.Run([] { throw 1; }));
    int runs = 0;
    latest.Run([&] { ++runs; });
    EXPECT_EQ(runs, 1);
}

}  // namespace
}  // namespace zentar
