// Every command of the program that writes, renames or deletes files.
#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/fault/command_run.h"

namespace zentar {

std::vector<CommandCase> ShotCommands();
std::vector<CommandCase> DemoCommands();
std::vector<CommandCase> ChatAndQ3TextCommands();
std::vector<CommandCase> ConfigAndFirstAidCommands();
std::vector<CommandCase> LeavingCommands();

struct CommandGroup {
    const char* title;
    std::vector<CommandCase> commands;
};

std::vector<CommandGroup> AllCommands();

inline std::string NameOfCommand(const ::testing::TestParamInfo<CommandCase>& command) {
    return command.param.name;
}

}  // namespace zentar
