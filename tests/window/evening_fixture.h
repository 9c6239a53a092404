// A whole evening with the program: what the user does in it, and what that makes of the user's
// files.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "tests/window/evening_games.h"
#include "tests/window/evening_tree.h"
#include "tests/window/shots_fixture.h"
#include "tests/window/standin_browser.h"
#include "tests/window/wallpaper.h"

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
    // Starts it again, for the second half, and turns Expert Mode on.
    void ComeBack();
    void Preferences();
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
    void ShotCommand(const std::string& shot, int command);
    void DemoCommand(const std::string& demo, int command);
    void ClickIn(HWND window, int control);
    HWND OpenPreferences();
    // Answers what is asked then.
    void TurnExpertModeOn(HWND preferences, int answer);
    void Close(HWND window);
    void ReadHelp();
    void SwitchTo(const EveningGame& game);
    void DoubleClickItem(int list, const std::string& item) const;
    // With the key for it.
    void OpenMenuOf(int list) const;
    // Yes to the question that comes unless in Expert Mode.
    void Confirm();
    void AnswerNext(const std::string& title, int button);
    // The one that is asked in Expert Mode, too.
    void AgreeToReplace(const std::string& remoteFile);
    void ChooseIn(const std::string& title, const std::string& name);
    void Rename(const std::string& title, const std::string& name);
    // With F2, first thinking better of it.
    void RenameByKey(const std::string& title, const std::string& name);

    void PlayWithShots(const EveningGame& game);
    void ViewAndConvert(const EveningGame& game);
    void SelectShot(const std::string& shot);
    void CopyShot(const EveningGame& game, const std::string& shot);
    void MoveShot(const EveningGame& game, const std::string& shot);
    void ExpectJpg(const std::string& path);
    void ConvertShots();
    void SetWallpaper();
    void TransferShots();
    void SweepShots();
    void PlayWithDemos(const EveningGame& game);
    void Play(const EveningGame& game);
    void Filter(const EveningGame& game);
    void FilterBy(const std::string& phrase);
    void ExpectListed(const EveningGame& game, const std::string& phrase, bool contained);
    void DeleteDemoByKey(const EveningGame& game, const std::string& entry, WORD key);
    // Copies or moves a demo; gives the path that it then has.
    std::string SendToRemote(const EveningGame& game, const std::string& entry, int command);
    void CopyDemo(const EveningGame& game, const std::string& entry);
    void MoveDemo(const EveningGame& game, const std::string& entry);
    void RenameAndDeleteDemos();
    void DeleteAllListed();
    void SearchTheWeb(const std::string& demo);
    void ExpectStart(const EveningGame& game, std::size_t before);
    void Install();
    void BackUpAndEdit();
    void ChooseColours();
    void Transcribe(const EveningGame& game);
    void TranscriptIs(const EveningGame& game, bool html);
    void ColourLetters();
    void UndoCutAndPaste();
    void SaveDesign();
    void Remedy(std::size_t symptom);

    std::filesystem::path At(const std::string& path) const;
    // In the files, and as expected.
    void Put(const std::string& path, const std::string& bytes);
    bool Stands(const std::string& path) const { return std::filesystem::exists(At(path)); }
    // Expected only.
    void Moves(const std::string& from, const std::string& to);
    void Goes(const std::string& path);
    void Appends(const std::string& path, const std::string& bytes);

    // Of the half of the evening, for names that differ.
    std::string Number() const { return std::to_string(pass_); }
    // As the program says it.
    std::string Name(const std::string& path) const;

    int pass_ = 1;
    bool expert_ = false;
    bool gameMessages_ = false;  // come into transcripts
    Tree firstDay_;
    Tree expected_;
    std::set<int> used_;
    StandinBrowser browser_{StandinBrowser::Opens::WebAddresses};
    StandinBrowser viewer_{StandinBrowser::Opens::HtmlFiles};
    KeptWallpaper wallpaper_;
};

}  // namespace zentar::window_tests
