// One evening with the program: the first run, three games, every tab, and every command, first
// with a question before each harm and then in Expert Mode. Afterwards there is nothing on the disk
// but what should be.
#include "tests/window/evening_fixture.h"

namespace zentar::window_tests {
namespace {

TEST_F(EveningTest, LeavesEveryFileAsItShouldBe) {
    FirstRun();
    for (const bool expert : {false, true}) {
        if (expert) {
            ComeBack();
        }
        Preferences();
        GamesAndMenus();
        Screenshots();
        Demos();
        Tools();
        ColouredText();
        FirstAid();
        GoHome();
    }
}

}  // namespace
}  // namespace zentar::window_tests
