// A folder of one test's own: a copy of the program, the sample games, and a Remote Folder.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace zentar::window_tests {

using IniLines = std::vector<std::string>;

class ZentarHome {
  public:
    // Makes the folder; `extraDemos` as in SampleOptions.
    explicit ZentarHome(int extraDemos = 0);
    // Deletes it with everything in it.
    ~ZentarHome();
    ZentarHome(const ZentarHome&) = delete;
    ZentarHome& operator=(const ZentarHome&) = delete;

    std::filesystem::path Program() const { return top_ / "Program"; }
    std::filesystem::path Games() const { return top_ / "Games"; }
    std::filesystem::path Remote() const { return top_ / "Remote"; }
    std::filesystem::path Ini() const { return Program() / "zentar.ini"; }

    // The lines that point a settings file at the sample games, with the first run done.
    IniLines GameLines() const;
    // Writes zentar.ini: GameLines() and then the given ones, which win.
    void WriteIni(const IniLines& more = {}) const;
    // zentar.ini, whole, as the program writes it after it showed all demos: with the given lines
    // in the place of those that it has for the same setting otherwise.
    std::string WholeIni(const IniLines& others) const;

  private:
    std::filesystem::path top_;
};

// The folder of this program, where the built zentar.exe lies too.
std::filesystem::path BuildFolder();

// A folder as the settings file holds it: UTF-8 with a backslash at its end.
std::string FolderText(const std::filesystem::path& folder);

std::string ReadBytes(const std::filesystem::path& file);
void WriteBytes(const std::filesystem::path& file, const std::string& bytes);

}  // namespace zentar::window_tests
