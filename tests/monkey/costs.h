// What each command of the program may cost the user: the files that it deletes or replaces, and
// what the user has to have said before.
#pragma once

#include <string>
#include <vector>

#include "tests/doubles/memory_form.h"
#include "tests/monkey/ledger.h"
#include "tests/monkey/services.h"
#include "ui/zentar_program.h"

namespace zentar::monkey {

class Costs {
  public:
    Costs(Ledger& ledger, Chosen& chosen) : ledger_(ledger), chosen_(chosen) {}

    // A program has been started.
    void Begins() { killsNext_ = false; }
    // Of whatever is done in the step that begins: files that are the program's own.
    void OfAnything(const ProgramState* state);
    // Of a button or a menu entry.
    void OfCommand(int command, MemoryForm& main, ProgramState& state);
    // Of a key that deletes something.
    void OfDeleteKey(MemoryForm& main, ProgramState& state);

    // Whether a file is where this step's user keeps, or kept, the Remote Folder.
    bool IsInRemoteFolder(const std::string& foldedPath) const;

  private:
    // Where the files of a list are. While a game or a mod is being changed the lists still show
    // the files of the one before, and commands are about what is shown.
    struct Place {
        std::string shots;
        std::string demos;
        std::string demoExtension;
        std::string remote;
        bool operator==(const Place&) const = default;
    };

    void NotePlace(const ProgramState& state);
    std::vector<std::string> DemoPaths(const std::string& entry) const;
    void TakesShots(Ledger::After after, ProgramState& state, const std::string& name);
    void OfShotCommand(int command, MemoryForm& main, ProgramState& state);
    void OfShotSweep(int command, ProgramState& state);
    void OfDemoCommand(int command, MemoryForm& main, ProgramState& state);
    void OfTextCommand(int command, ProgramState& state);
    void OfConfigCommand(int command, ProgramState& state);
    void OfTheShot(MemoryForm& main, ProgramState& state, Ledger::After after);
    void OfTheDemo(MemoryForm& main, ProgramState& state);
    void TakesRemoteFile(const std::string& name);

    Ledger& ledger_;
    Chosen& chosen_;
    std::vector<Place> places_;  // of this step
    bool killsNext_ = false;     // a broken-off "Make JPG And Kill Original" holds for the next one
};

}  // namespace zentar::monkey
