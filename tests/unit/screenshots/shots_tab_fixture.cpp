#include "tests/unit/screenshots/shots_tab_fixture.h"

#include <algorithm>

#include "screenshots/shot_name.h"

namespace zentar {

ShotsTabTest::ShotsTabTest() {
    os.files.AddFolder("C:\\Zentar\\");
    os.files.AddFolder("C:\\Temp\\");
    os.files.AddFile("C:\\Windows\\nviewlib.dll", "library");
    os.files.AddFile("C:\\Windows\\win.ini", "");
    state.ProgramFolder = "c:\\zentar\\";
    state.WindowsFolder = "C:\\Windows\\";
    state.settings.Game = std::string(kQuake2);
    state.settings.Remote = "D:\\Remote\\";
    os.files.AddFolder(state.settings.Remote);
    window = os.forms.Create(MainWindowTable());
    form = static_cast<MemoryForm*>(window.get());
    tab = std::make_unique<ShotsTab>(
        state, os.Services(), ShotsTabControlsOf(*window),
        [this] { form->ShowPopup(IDM_mnuScreenshot); },
        [this](const BitmapPtr& picture) { shownFull.push_back(ShownBy(picture)); });
    form->Show();
    UseMod("ctf");
}

void ShotsTabTest::UseMod(const std::string& mod) {
    state.current.SelectedMod = mod;
    state.current.ScreenshotFolder = "C:\\Quake2\\" + mod + "\\scrnshot\\";
    os.files.AddFolder(state.current.ScreenshotFolder);
    tab->RefreshScreenshotList();
}

void ShotsTabTest::AddShot(const std::string& name, Size size, const std::string& shows) {
    AddFile(name, PictureFile(size, shows.empty() ? std::string(BaseNameOf(name)) : shows));
}

void ShotsTabTest::AddFile(const std::string& name, const std::string& bytes) {
    os.files.AddFile(PathOf(name), bytes);
}

void ShotsTabTest::AddPreviewOf(const std::string& shot, const std::string& shows) {
    AddFile(PreviewNameOf(shot), PictureFile({320, 240}, shows));
}

void ShotsTabTest::SelectWithShift(const std::string& entry) {
    os.windows.SetKeyState(PollKey::Shift, 0x8001);
    Select(entry);
    os.windows.SetKeyState(PollKey::Shift, 0);
}

void ShotsTabTest::RightClick(const std::string& entry) {
    form->UserRightClick(IDC_lstScreenshots, IndexOf(entry));
}

void ShotsTabTest::Pick(const std::string& entry, int menuEntry) {
    form->SetPopupUser([this, menuEntry](int) { form->UserPickMenu(menuEntry); });
    RightClick(entry);
    form->SetPopupUser({});
}

void ShotsTabTest::PickOnPicture(int menuEntry) {
    form->SetPopupUser([this, menuEntry](int) { form->UserPickMenu(menuEntry); });
    form->UserRightClick(IDC_imgShotView);
    form->SetPopupUser({});
}

void ShotsTabTest::Press(Key key) {
    form->GetListBox(IDC_lstScreenshots).SetFocus();
    form->UserKey(key);
}

void ShotsTabTest::PressWithShift(Key key) {
    os.windows.SetDown(PollKey::Shift);
    Press(key);
    os.windows.SetDown(PollKey::Shift, false);
}

void ShotsTabTest::DuringPumpNumber(int number, std::function<void()> event) {
    os.windows.SetDuringPump([number, event = std::move(event)]() mutable {
        if (--number == 0) {
            event();
        }
    });
}

int ShotsTabTest::IndexOf(const std::string& entry) {
    const std::vector<std::string> listed = Listed();
    const auto found = std::find(listed.begin(), listed.end(), entry);
    return found == listed.end() ? -1 : static_cast<int>(found - listed.begin());
}

CaptionColour ShotsTabTest::PreviewCaption() {
    return form->GetOptionButton(IDC_optModePreview).ShownCaptionColour();
}

std::vector<std::string> ShotsTabTest::Names(const std::string& folder) {
    return os.files.Names(folder.empty() ? state.current.ScreenshotFolder : folder);
}

}  // namespace zentar
