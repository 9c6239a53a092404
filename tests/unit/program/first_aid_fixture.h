// The whole program in memory, with its First Aid tab in front.
#pragma once

#include <string>

#include "firstaid/symptoms.h"
#include "tests/unit/expected_boxes.h"
#include "tests/unit/program/program_test.h"

namespace zentar {

inline const std::string kLogitechKey = "Software\\Logitech\\MouseWare\\CurrentVersion\\Technical";
inline const std::string kQuake3Key = "Software\\Id\\Quake III Arena";

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
