// A monkey at a Zentar of its own, in memory, on a machine on which nothing lasts.
#pragma once

#include <cstdint>
#include <optional>

#include "tests/doubles/memory_pictures.h"
#include "tests/doubles/memory_registry.h"
#include "tests/doubles/scripted_services.h"
#include "tests/monkey/costs.h"
#include "tests/monkey/services.h"
#include "tests/monkey/user.h"
#include "tests/monkey/watched_file_system.h"
#include "tests/monkey/world.h"
#include "ui/zentar_program.h"

namespace zentar::monkey {

class Monkey {
  public:
    explicit Monkey(std::uint64_t seed);
    Monkey(const Monkey&) = delete;
    Monkey& operator=(const Monkey&) = delete;

    // Does one thing, and looks whether all is as it should be; what is not fails the test.
    void Step();

  private:
    void StartProgram();
    void EndProgram();
    void DoSomething();
    void CheckTouch(WatchedFileSystem::Touch touch, const std::string& path);
    bool IsWithinReach(const std::string& folded);
    void CheckFiles();
    void CheckWindow();
    void CheckDemoCount();
    void CheckShotCount();
    void CheckGame();
    void CheckTexts();
    MemoryForm& Main() { return forms_.Get(IDW_Form2); }

    Dice dice_;
    MemoryFileSystem files_;
    MemoryPictures pictures_;
    WatchedFileSystem watched_;
    MemoryImageLibrary images_{watched_, nullptr};
    MemoryRegistry registry_;
    FixedLocale locale_;
    MemoryFormFactory forms_;
    Ledger ledger_{files_};
    World world_;
    Chosen chosen_;
    MonkeyShell shell_;
    MonkeyWindows windows_;
    Costs costs_{ledger_, chosen_};
    User user_;
    std::optional<ZentarProgram> program_;
};

}  // namespace zentar::monkey
