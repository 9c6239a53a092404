// A program that stands in for the user's web browser and notes what it is asked to open.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace zentar::window_tests {

class StandinBrowser {
  public:
    // From now on web addresses are opened with it.
    StandinBrowser();
    ~StandinBrowser();
    StandinBrowser(const StandinBrowser&) = delete;
    StandinBrowser& operator=(const StandinBrowser&) = delete;

    // The addresses that it was asked to open so far.
    std::vector<std::string> Opened() const;

  private:
    std::filesystem::path folder_;
    std::wstring before_;  // the command that opened web addresses until then
};

}  // namespace zentar::window_tests
