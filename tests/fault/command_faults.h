// Commands with each call of the file system failing in turn, and with the program killed there:
// no file of the user is lost, nor left as something else than the command was asked to make of it.
#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/fault/command_sweep.h"

namespace zentar {

class CommandFaults : public ::testing::TestWithParam<CommandCase> {
  protected:
    CommandFaults() : sweep_(GetParam()), calls_(static_cast<int>(sweep_.Calls().size())) {}

    // `where` says what failed, and is completed by the last call of the run.
    FaultedRun ExpectNothingLost(const std::string& where,
                                 const std::function<void(FaultyFileSystem&)>& fault,
                                 bool powerFailed = false) const;

    CommandSweep sweep_;
    int calls_;
};

// Of commands that the user lets delete something.
class GivenAwayFaults : public CommandFaults {};

}  // namespace zentar
