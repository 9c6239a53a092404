// The Demos tab in the main window, in memory, with a user in front of it.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/program_state.h"
#include "demos/demos_tab.h"
#include "samples/demo_maker.h"
#include "tests/doubles/memory_platform.h"
#include "tests/unit/expected_boxes.h"
#include "ui/form_bindings.h"
#include "ui/form_tables.h"
#include "ui/resource.h"

namespace zentar {

class DemosTabTest : public testing::Test {
  protected:
    DemosTabTest();

    // Makes the game and the mod the current ones, as the mod list does, and lists the demos.
    void Use(std::string_view game, const std::string& mod);
    void AddDemo(const std::string& name, const std::string& bytes);
    void AddDemo(const std::string& name, samples::DemoKind kind,
                 const samples::DemoContents& contents);
    // "duel" in each of the three Quake 3 generations, the current one of the base mod or another.
    void UseQuake3Demos(const std::string& mod = "baseq3");
    std::string PathOf(const std::string& name) const { return state.current.DemoFolder + name; }

    // The user.
    void Select(const std::string& entry) { form->UserSelect(IDC_lstDemos, entry); }
    void RightClick(const std::string& entry);  // an entry that is not there: right beside all
    void Filter(const std::string& phrase, bool contain = true);  // and "Go"
    // Right-clicks an entry and picks from the menu.
    void Pick(const std::string& entry, int menuEntry);
    // Selects an entry and presses a key on it.
    void PressOn(const std::string& entry, Key key);
    // Runs once, the next time that waiting window messages are handled.
    void DuringNextPump(std::function<void()> event);
    void DuringPumpNumber(int number, std::function<void()> event);

    std::string Text(int id) { return form->AnyControl(id).Text(); }
    bool Enabled(int id) { return form->AnyControl(id).Enabled(); }
    bool MenuEnabled(int id) { return form->GetMenu(id).Enabled(); }
    bool Checked(int id) { return form->GetCheckBox(id).Checked(); }
    std::vector<std::string> Listed() { return form->Items(IDC_lstDemos); }
    std::string Selected() { return form->SelectedItem(IDC_lstDemos); }
    int IndexOf(const std::string& entry);
    Message Offer(const std::string& game) const;
    // The names in a folder, that of the current mod's demos by default.
    std::vector<std::string> Names(const std::string& folder = {});

    MemoryPlatform os;
    ProgramState state;
    std::unique_ptr<Form> window;
    MemoryForm* form = nullptr;
    std::unique_ptr<DemosTab> tab;
    bool started = true;
};

}  // namespace zentar
