// A program of its own for each test, and boxes that come and are answered.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tests/window/zentar_driver.h"
#include "tests/window/zentar_home.h"

namespace zentar::window_tests {

using Lines = std::vector<std::string>;

// The kinds of boxes that commands show.
BoxContents Question(const Lines& lines);
BoxContents FailureWithQuestion(const Lines& lines);
BoxContents Failure(const Lines& lines);
BoxContents Done(const Lines& lines, BoxIcon icon = BoxIcon::Information);

void MakeReadOnly(const std::filesystem::path& file);

class CommandsTest : public testing::Test {
  protected:
    // Starts the program with these settings and brings a tab to the front.
    ZentarDriver& Open(int tab, const IniLines& settings = {});
    // Waits for a box, which must be that one, and answers it.
    void Answer(const BoxContents& expected, int button) const;

    ZentarHome home_;
    std::unique_ptr<ZentarDriver> zentar_;
};

}  // namespace zentar::window_tests
