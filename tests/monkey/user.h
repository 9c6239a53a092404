// A user who does anything that a user can do, in no order at all.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "tests/doubles/memory_form.h"
#include "tests/monkey/costs.h"
#include "tests/monkey/dice.h"
#include "ui/resource.h"
#include "ui/zentar_program.h"

namespace zentar::monkey {

class User {
  public:
    User(Dice& dice, MemoryFormFactory& forms, Costs& costs);

    // A program has been started.
    void Uses(ZentarProgram& program);
    // Its windows are no more.
    void Leaves() { program_ = nullptr; }
    // Does one thing in a window of the program that takes input.
    void Act();
    // The same, now and then, while the program is at work and lets messages through.
    void ActMeanwhile();

  private:
    void ActIn(MemoryForm& form);
    void ActOn(MemoryForm& form, const ControlRow& row);
    void ActOnList(MemoryForm& form, int list);
    void ActOnTextBox(MemoryForm& form, int textBox);
    void ActOnRichText(MemoryForm& form, int richTextBox);
    void ActOnPicture(MemoryForm& form, int pictureBox);
    void PressKey(MemoryForm& form);
    void TypeText(MemoryForm& form);
    void PickFrom(MemoryForm& form, const std::vector<int>& entries);
    void PickFromMenuBar(MemoryForm& form);
    void PickFromPopup(MemoryForm& form, int menu);
    void BeInModal(MemoryForm& modal);
    const ControlRow* SomeControl(MemoryForm& form);
    bool TakesInput(int form, int alwaysUsable);
    MemoryForm& Main() { return forms_.Get(IDW_Form2); }
    void Announce(const char* action, int id);

    Dice& dice_;
    MemoryFormFactory& forms_;
    Costs& costs_;
    ZentarProgram* program_ = nullptr;
    int depth_ = 0;
};

}  // namespace zentar::monkey
