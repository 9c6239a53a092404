#include "tests/unit/q3tools/q3_text_fixture.h"

#include "q3tools/colour_codes.h"

namespace zentar {

Q3TextTabTest::Q3TextTabTest() {
    os.files.AddFolder(folder_);
    os.files.AddFile("C:\\Quake3\\quake3.exe", "game");
    os.files.AddFolder("C:\\Quake3\\baseq3\\");
    state.ProgramFolder = "c:\\zentar\\";
    state.Q3TextFolder = folder_;
    state.settings.Game = std::string(kQuake2);
    state.games[kQuake3Row].GameFolder = "C:\\Quake3\\";
    state.games[kQuake3Row].BaseModPath = "C:\\Quake3\\baseq3\\";
    Restart();
}

void Q3TextTabTest::Restart() {
    tab.reset();
    window = os.forms.Create(MainWindowTable());
    form = static_cast<MemoryForm*>(window.get());
    tab = std::make_unique<Q3TextTab>(state, os.Services(), Q3TextControlsOf(*window));
    tab->LoadCurrent();
    tab->LoadLastUsed();
    form->Show();
    form->UserSelectTab(IDC_SSTab1, 3);
    os.log.Clear();
}

void Q3TextTabTest::Type(const std::string& text) {
    Editor();
    form->UserType(text);
}

void Q3TextTabTest::Colour(int from, int to, int button) {
    Editor().Select(from, to);
    Click(button);
}

void Q3TextTabTest::TypeTwoColours() {
    Type("Ab");
    Colour(0, 1, IDC_cmdQ3TextRed);
    Colour(1, 2, IDC_cmdQ3TextWhite);
}

Message Q3TextTabTest::Confirm(const std::string& text) {
    return {"Confirm", text, MessageIcon::Question, MessageButtons::YesNo, DefaultButton::Second};
}

Message Q3TextTabTest::Question(const std::string& text) {
    return {"Error", text, MessageIcon::Exclamation, MessageButtons::YesNo, DefaultButton::Second};
}

Message Q3TextTabTest::Failure(const std::string& text) {
    return {"Error", text, MessageIcon::Exclamation};
}

}  // namespace zentar
