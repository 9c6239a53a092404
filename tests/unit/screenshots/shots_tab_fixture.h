// The Shots tab in the main window, in memory, with a user in front of it.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "core/program_state.h"
#include "screenshots/shots_tab.h"
#include "tests/doubles/memory_platform.h"
#include "tests/unit/expected_boxes.h"
#include "ui/form_bindings.h"
#include "ui/form_tables.h"
#include "ui/resource.h"

namespace zentar {

class ShotsTabTest : public ::testing::Test {
  protected:
    ShotsTabTest();

    // Makes a mod of Quake 2 the current one and lists its screenshots.
    void UseMod(const std::string& mod);
    // A shot that can be decoded; what it shows is its name without the extension unless said.
    void AddShot(const std::string& name, Size size = {640, 480}, const std::string& shows = {});
    // A file of the screenshot folder, whatever it is.
    void AddFile(const std::string& name, const std::string& bytes);
    void AddPreviewOf(const std::string& shot, const std::string& shows = "old");
    void AddWallpaper(const std::string& name) { os.files.AddFile("C:\\Windows\\" + name, "bmp"); }
    void RemoveLibrary() { os.files.Remove("C:\\Windows\\nviewlib.dll"); }
    void Refresh() { tab->RefreshScreenshotList(); }
    std::string PathOf(const std::string& name) const {
        return state.current.ScreenshotFolder + name;
    }

    // The user.
    void Select(const std::string& entry) { form->UserSelect(IDC_lstScreenshots, entry); }
    // Selects an entry with Shift held, pressed just before.
    void SelectWithShift(const std::string& entry);
    void RightClick(const std::string& entry);  // an entry that is not there: right beside all
    // Right-clicks an entry and picks from the menu.
    void Pick(const std::string& entry, int menuEntry);
    // The same with an entry that the user has viewed before, on the picture instead of the list.
    void PickOnPicture(int menuEntry);
    void Press(Key key);  // in the list
    void PressWithShift(Key key);
    void UsePreviewMode() { form->UserClick(IDC_optModePreview); }
    void UseRealMode() { form->UserClick(IDC_optModeReal); }
    // Runs once, the number-th time that waiting window messages are handled.
    void DuringPumpNumber(int number, std::function<void()> event);

    std::string Text(int id) { return form->AnyControl(id).Text(); }
    bool Enabled(int id) { return form->AnyControl(id).Enabled(); }
    bool MenuEnabled(int id) { return form->GetMenu(id).Enabled(); }
    std::vector<std::string> Listed() { return form->Items(IDC_lstScreenshots); }
    std::string Selected() { return form->SelectedItem(IDC_lstScreenshots); }
    int IndexOf(const std::string& entry);
    // What the picture in the view shows, empty for none.
    std::string Shown() { return ShownBy(View().Image()); }
    ImageBox& View() { return form->GetImageBox(IDC_imgShotView); }
    CaptionColour PreviewCaption();
    // The names in a folder, that of the current mod's screenshots by default.
    std::vector<std::string> Names(const std::string& folder = {});
    std::string Contents(const std::string& name) { return os.files.Contents(PathOf(name)); }
    bool Exists(const std::string& name) { return os.files.Exists(PathOf(name)); }

    MemoryPlatform os;
    ProgramState state;
    std::unique_ptr<Form> window;
    MemoryForm* form = nullptr;
    std::unique_ptr<ShotsTab> tab;
    // Each picture that was to be shown in its full size.
    std::vector<std::string> shownFull;
};

}  // namespace zentar
