// Waiting for what a user would see, without sleeping longer than it takes.
#pragma once

#include <chrono>
#include <thread>

namespace zentar::window_tests {

// Generous: a loaded machine must not fail a test.
inline constexpr std::chrono::seconds kPatience{30};
// What did not come after this time is asked for once more.
inline constexpr std::chrono::seconds kBeforeTryingAgain{5};

// Asks again and again until the condition gives something true, and gives that; its last answer
// when it never does.
template <typename Condition>
auto Eventually(Condition condition, std::chrono::milliseconds patience = kPatience) {
    const auto end = std::chrono::steady_clock::now() + patience;
    auto answer = condition();
    while (!answer && std::chrono::steady_clock::now() < end) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
        answer = condition();
    }
    return answer;
}

// Reads a value again and again until it is the expected one; gives the last one read.
template <typename Read, typename Value>
auto Soon(Read read, const Value& expected) {
    auto value = read();
    Eventually([&] {
        value = read();
        return value == expected;
    });
    return value;
}

}  // namespace zentar::window_tests

// Like EXPECT_EQ, for what becomes true within a moment.
#define EXPECT_SOON(expression, expected) \
    EXPECT_EQ(::zentar::window_tests::Soon([&] { return (expression); }, (expected)), (expected))
