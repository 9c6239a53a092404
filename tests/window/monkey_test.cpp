// A monkey at the real window: thousands of clicks and keys, sizes and games, while files come and
// go. ZENTAR_MONKEY_STEPS says how many follow the first ones; ZENTAR_MONKEY_SEED names another
// monkey.
#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>

#include "tests/window/answer_time.h"
#include "tests/window/game_log.h"
#include "tests/window/monkey_hands.h"
#include "tests/window/monkey_resources.h"
#include "tests/window/standin_browser.h"

namespace zentar::window_tests {
namespace {

constexpr int kSteps = 2'500;
// By then the program has opened each kind of dialog, which leaves the system's libraries loaded.
constexpr int kStepsToGetWarm = 2'500;
constexpr int kFirstSeed = 1999;
constexpr std::chrono::milliseconds kMostWork{2'000};

// What libraries of the system keep for themselves as time goes by, and the windows that are made
// when they are first shown, if the first steps did not.
constexpr std::size_t kMoreHandles = 32;
constexpr std::size_t kMoreDrawing = 80;
constexpr std::size_t kMoreWindows = 40;
constexpr std::size_t kMoreMemory = std::size_t{16} * 1024 * 1024;

int FromEnvironment(const char* name, int otherwise) {
    const char* const text = std::getenv(name);
    return text == nullptr ? otherwise : std::atoi(text);
}

class WindowMonkey : public testing::Test {
  protected:
    WindowMonkey() {
        for (const char* game : {"Quake", "Quake2", "Quake3"}) {
            SetGameSeconds(home_.Games() / game, 0);
        }
        home_.WriteIni();
    }

    // False when the program has ended or does not answer.
    bool Run(const ZentarDriver& zentar, MonkeyHands& hands, int steps) const {
        for (int step = 1; step <= steps; ++step) {
            const std::string action = hands.Act();
            const bool runs = zentar.Running();
            EXPECT_TRUE(runs) << "it ended at step " << step << ": " << action;
            const bool answers = runs && AnswersAfter(zentar.Main(), kMostWork);
            EXPECT_TRUE(!runs || answers) << "it hangs at step " << step << ": " << action;
            if (!answers) {
                return false;
            }
        }
        return true;
    }

    const StandinBrowser browser_{StandinBrowser::Opens::WebAddresses};
    const StandinBrowser viewer_{StandinBrowser::Opens::HtmlFiles};
    const ZentarHome home_;
};

TEST_F(WindowMonkey, DoesNoHarmAndLeavesNothingBehind) {
    const int seed = FromEnvironment("ZENTAR_MONKEY_SEED", kFirstSeed);
    SCOPED_TRACE("ZENTAR_MONKEY_SEED=" + std::to_string(seed));
    ZentarDriver zentar(home_);
    MonkeyHands hands(zentar, home_, static_cast<std::uint64_t>(seed));
    ASSERT_TRUE(Run(zentar, hands, kStepsToGetWarm));
    hands.CalmDown();
    const Resources before = ResourcesOf(zentar.Process());
    // Where nothing can be counted, nothing would ever leak.
    ASSERT_GT(before.handles, 0U);
    ASSERT_GT(before.drawing, 0U);
    ASSERT_GT(before.windows, 0U);
    ASSERT_GT(before.memory, 0U);
    ASSERT_TRUE(Run(zentar, hands, FromEnvironment("ZENTAR_MONKEY_STEPS", kSteps)));
    hands.CalmDown();
    const Resources after = ResourcesOf(zentar.Process());
    SCOPED_TRACE(testing::PrintToString(before) + ", then " + testing::PrintToString(after));
    RecordProperty("Before", testing::PrintToString(before));
    RecordProperty("After", testing::PrintToString(after));
    EXPECT_LE(after.handles, before.handles + kMoreHandles);
    EXPECT_LE(after.drawing, before.drawing + kMoreDrawing);
    EXPECT_LE(after.windows, before.windows + kMoreWindows);
    EXPECT_LE(after.memory, before.memory + kMoreMemory);
    EXPECT_EQ(zentar.Close(), 0);
}

}  // namespace
}  // namespace zentar::window_tests
