// Monkeys at the program: whatever a user does, whatever happens on the disk meanwhile, the program
// stands, says what is true, keeps to its folders and loses no file.
//
// ZENTAR_MONKEY_STEPS says how many steps are taken in all; ZENTAR_MONKEY_SEED names the monkey to
// begin with, for one that failed. Each monkey has a machine of its own for a while, then the next
// one comes.
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include <gtest/gtest.h>

#include "tests/monkey/last_words.h"
#include "tests/monkey/monkey.h"

namespace zentar::monkey {
namespace {

constexpr long kSteps = 500'000;
constexpr long kStepsPerMonkey = 1'000;
constexpr std::uint64_t kFirstSeed = 1999;

long FromEnvironment(const char* name, long otherwise) {
    const char* const text = std::getenv(name);
    return text == nullptr ? otherwise : std::strtol(text, nullptr, 10);
}

TEST(Monkeys, DoNoHarm) {
    PromiseLastWords();
    const long steps = FromEnvironment("ZENTAR_MONKEY_STEPS", kSteps);
    auto seed = static_cast<std::uint64_t>(
        FromEnvironment("ZENTAR_MONKEY_SEED", static_cast<long>(kFirstSeed)));
    const auto began = std::chrono::steady_clock::now();
    for (long done = 0; done < steps; ++seed) {
        Here() = {.seed = seed};
        Monkey monkey(seed);
        for (long step = 1; step <= kStepsPerMonkey && done < steps; ++step, ++done) {
            Here().step = step;
            monkey.Step();
            if (HasFailure()) {
                SayWhereabouts();
                return;
            }
        }
    }
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - began;
    std::printf("%ld steps, %.0f a second\n", steps, static_cast<double>(steps) / took.count());
}

}  // namespace
}  // namespace zentar::monkey
