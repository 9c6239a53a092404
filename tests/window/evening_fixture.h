// A whole evening with the program: what the user does in it, and what that makes of the user's
// files.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "tests/window/evening_tree.h"
#include "tests/window/shots_fixture.h"
#include "tests/window/standin_browser.h"

namespace zentar::window_tests {

class EveningTest : public ShotsWindowTest {
  protected:
    EveningTest();
    ~EveningTest() override;

    // ---- the parts of an evening ----
    void FirstRun();
    // Ends the program. Every button and menu entry was used by then, and the files are what they
    // should be.
    void GoHome();
    // Starts it again for the second half.
    void ComeBack();
    void Preferences(bool switchToExpert);
    void GamesAndMenus();
    void Screenshots();
    void Demos();
    void Tools();
    void ColouredText();
    void FirstAid();

  private:
    // Shots, demos and other files as they were on the first day, and new ones to install.
    void Restock();
    void ExpectAllUsed();
    void ExpectFiles();

    // Does it, and notes that it was done.
    void ClickOn(int control);
    void PickFromBar(char menu, char entry, int id);
    void WaitForEntry(int list, const std::string& entry) const;
    void ShotCommand(const std::string& shot, int command);
    void DemoCommand(const std::string& demo, int command);
    void ClickIn(HWND window, int control);
    // Yes to the question that comes unless in Expert Mode.
    void Confirm();
    void AnswerNext(const std::string& title, int button);
    // The one that is asked in Expert Mode, too.
    void AgreeToReplace(const std::string& remoteFile);
    void ChooseIn(const std::string& title, const std::string& name);
    void Rename(const std::string& title, const std::string& name);

    void ConvertShots();
    void SetWallpaper();
    void TransferShots();
    void SweepShots();
    void RenameAndDeleteDemos();
    void TransferDemos();
    void FilterDemos();
    void SearchTheWeb(const std::string& demo);
    void PlayIn(const std::string& game, const std::string& demo);
    void Install();
    void BackUpAndEdit();
    void Transcribe();
    void TranscriptIs(bool html, bool gameMessages);
    void ColourLetters();
    void Remedy(std::size_t symptom);

    std::filesystem::path At(const std::string& path) const;
    // In the files, and as expected.
    void Put(const std::string& path, const std::string& bytes);
    // Expected only.
    void Moves(const std::string& from, const std::string& to);
    void Goes(const std::string& path);
    void Appends(const std::string& path, const std::string& bytes);

    // Of the half of the evening, for names that differ.
    std::string Number() const { return std::to_string(pass_); }
    std::string Name(const std::string& game) const;

    int pass_ = 1;
    bool expert_ = false;
    Tree firstDay_;
    Tree expected_;
    std::set<int> used_;
    StandinBrowser browser_{StandinBrowser::Opens::WebAddresses};
    StandinBrowser viewer_{StandinBrowser::Opens::HtmlFiles};
    std::wstring wallpaperBefore_;
};

}  // namespace zentar::window_tests
