// The whole program in memory, with its First Aid tab in front.
#pragma once

#include <string>

#include "firstaid/symptoms.h"
#include "tests/unit/program/program_test.h"

namespace zentar {

inline const std::string kLogitechKey = "Software\\Logitech\\MouseWare\\CurrentVersion\\Technical";
inline const std::string kQuake3Key = "Software\\Id\\Quake III Arena";

inline Message FolderUnknown(const std::string& game) {
    return {"Folder Error",
            "The correct folder for " + game +
                " is not specified!\r\n\r\n"
                "Zentar can't carry out the requested task because it doesn't\r\n"
                "know where " +
                game + " is.  Ensure that " + game +
                " is selected under\r\n"
                "the \"Game\" menu, followed by \"Specify Folder\".  Then browse\r\n"
                "to your " +
                game + " folder and try this function again.  Good luck!",
            MessageIcon::Exclamation};
}

inline Message Failure(const std::string& text) {
    return {"Error", text, MessageIcon::Exclamation};
}

class FirstAidTest : public ProgramTest {
  protected:
    FirstAidTest() {
        InstallGames();
        WriteSettings({"Game=Quake2"});
    }

    MemoryForm& StartOnFirstAid() {
        Start();
        Window().UserSelectTab(IDC_SSTab1, 4);
        return Window();
    }
    void Pick(Symptom symptom) { Window().UserSelect(IDC_lstSymptoms, static_cast<int>(symptom)); }
    void Apply(Symptom symptom) {
        Pick(symptom);
        Window().UserClick(IDC_cmdRemedy1);
    }
    std::string Remedy() { return Text(IDC_txtRemedy); }
    // Which buttons can be clicked.
    std::string Buttons() {
        const auto enabled = [this](int id) { return Window().GetButton(id).Enabled(); };
        return std::string(enabled(IDC_cmdRemedy1) ? "1" : "-") +
               (enabled(IDC_cmdRemedy2) ? "2" : "-");
    }
    ProgramStart Notepad(const std::string& path) {
        return {.folder = "C:\\Windows\\",
                .executable = "notepad.exe",
                .arguments = " " + path,
                .window = StartWindow::Maximised};
    }
};

}  // namespace zentar
