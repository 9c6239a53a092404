// A folder as if it lay on another drive: the same files under another drive's letter.
#pragma once

#include <filesystem>
#include <string>

namespace zentar::window_tests {

class SecondDrive {
  public:
    // Throws std::runtime_error when the system gives no letter.
    explicit SecondDrive(const std::filesystem::path& folder);
    ~SecondDrive();
    SecondDrive(const SecondDrive&) = delete;
    SecondDrive& operator=(const SecondDrive&) = delete;

    // The folder's path on that drive, with a backslash at its end.
    std::string Root() const;

  private:
    std::wstring root_;
    std::wstring letter_;  // with its colon, if the drive was made for this
};

}  // namespace zentar::window_tests
