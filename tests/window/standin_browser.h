// A program that stands in for the user's web browser, or for what shows pages of HTML, and notes
// what it is asked to open.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace zentar::window_tests {

class StandinBrowser {
  public:
    enum class Opens { WebAddresses, HtmlFiles };

    // From now on those are opened with it.
    explicit StandinBrowser(Opens what = Opens::WebAddresses);
    ~StandinBrowser();
    StandinBrowser(const StandinBrowser&) = delete;
    StandinBrowser& operator=(const StandinBrowser&) = delete;

    // What it was asked to open so far: addresses, or paths.
    std::vector<std::string> Opened() const;

  private:
    std::filesystem::path folder_;
    Opens what_;
    std::wstring before_;  // what opened them until then
};

}  // namespace zentar::window_tests
