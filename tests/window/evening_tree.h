// What stands in a folder and everything below it.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace zentar::window_tests {

// The bytes of each file by its path from the top, with slashes; a folder's path ends in one.
using Tree = std::map<std::string, std::string>;

Tree ReadTree(const std::filesystem::path& top);

// A text file of these lines.
std::string FileOf(const std::vector<std::string>& lines);

// How the trees differ, a line a path; empty when they do not.
std::vector<std::string> Differences(const Tree& expected, const Tree& found);

}  // namespace zentar::window_tests
