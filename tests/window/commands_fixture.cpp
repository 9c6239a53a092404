#include "tests/window/commands_fixture.h"

namespace zentar::window_tests {

BoxContents Question(const Lines& lines) {
    return {.title = "Confirm",
            .text = BoxLines(lines),
            .icon = BoxIcon::Question,
            .buttons = {IDYES, IDNO},
            .defaultButton = IDNO};
}

BoxContents FailureWithQuestion(const Lines& lines) {
    return {.title = "Error",
            .text = BoxLines(lines),
            .icon = BoxIcon::Exclamation,
            .buttons = {IDYES, IDNO},
            .defaultButton = IDNO};
}

BoxContents Failure(const Lines& lines) {
    return {.title = "Error",
            .text = BoxLines(lines),
            .icon = BoxIcon::Exclamation,
            .buttons = {IDOK},
            .defaultButton = IDOK};
}

BoxContents Done(const Lines& lines, BoxIcon icon) {
    return {.title = "Done",
            .text = BoxLines(lines),
            .icon = icon,
            .buttons = {IDOK},
            .defaultButton = IDOK};
}

void MakeReadOnly(const std::filesystem::path& file) {
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY);
}

ZentarDriver& CommandsTest::Open(int tab, const IniLines& settings) {
    home_.WriteIni(settings);
    zentar_ = std::make_unique<ZentarDriver>(home_);
    zentar_->ShowTab(tab);
    return *zentar_;
}

void CommandsTest::Answer(const BoxContents& expected, int button) const {
    const HWND box = zentar_->WaitForBox(expected.title);
    EXPECT_EQ(zentar_->Read(box), expected);
    AnswerBox(box, button);
    zentar_->Settle();
}

}  // namespace zentar::window_tests
