#include "tests/window/evening_tree.h"

#include "platform/win32/win32_text.h"
#include "tests/window/zentar_home.h"

namespace zentar::window_tests {
namespace {

namespace fs = std::filesystem;

bool IsAsExpected(const std::string& expected, const std::string& found) {
    if (expected == kSomeJpg) {
        return found.starts_with("\xFF\xD8\xFF") && found.ends_with("\xFF\xD9");
    }
    return expected == found;
}

std::string Sizes(const std::string& expected, const std::string& found) {
    return " (" + std::to_string(found.size()) + " bytes instead of " +
           std::to_string(expected.size()) + ")";
}

}  // namespace

const std::string kSomeJpg = "some JPG";

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

std::vector<std::string> Differences(const Tree& expected, const Tree& found) {
    std::vector<std::string> differences;
    for (const auto& [path, bytes] : expected) {
        const auto there = found.find(path);
        if (there == found.end()) {
            differences.push_back("missing: " + path);
        } else if (!IsAsExpected(bytes, there->second)) {
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
