// Where the files of a test lie for the system that Wine runs on.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace zentar {

// A file's path outside of Wine; nothing on Windows.
std::optional<std::string> PathOutsideWine(const std::filesystem::path& file);

}  // namespace zentar
