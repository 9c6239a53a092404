#include "tests/window/evening_tree.h"

#include "platform/win32/win32_text.h"
#include "tests/window/zentar_home.h"

namespace zentar::window_tests {
namespace {

namespace fs = std::filesystem;

std::string Sizes(const std::string& expected, const std::string& found) {
    return " (" + std::to_string(found.size()) + " bytes instead of " +
           std::to_string(expected.size()) + ")";
}

}  // namespace

Tree ReadTree(const fs::path& top) {
    Tree tree;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(top)) {
        const std::string path = Narrow(entry.path().lexically_relative(top).generic_wstring());
        if (entry.is_directory()) {
            tree[path + "/"] = "";
        } else {
            tree[path] = ReadBytes(entry.path());
        }
    }
    return tree;
}

std::string FileOf(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += line + "\r\n";
    }
    return text;
}

std::vector<std::string> Differences(const Tree& expected, const Tree& found) {
    std::vector<std::string> differences;
    for (const auto& [path, bytes] : expected) {
        const auto there = found.find(path);
        if (there == found.end()) {
            differences.push_back("missing: " + path);
        } else if (there->second != bytes) {
            differences.push_back("another: " + path + Sizes(bytes, there->second));
        }
    }
    for (const auto& [path, bytes] : found) {
        if (!expected.contains(path)) {
            differences.push_back("too much: " + path);
        }
    }
    return differences;
}

}  // namespace zentar::window_tests
