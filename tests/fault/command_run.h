// A command of the program, and a program in memory to run it on a file system that can fail.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "tests/doubles/faulty_file_system.h"
#include "tests/doubles/memory_platform.h"
#include "tests/fault/yes_windows.h"
#include "ui/resource.h"
#include "ui/zentar_program.h"

namespace zentar {

class CommandRun;

using FilesByPath = std::map<std::string, std::string>;

// What a command may do to the files that were there.
struct Allowed {
    std::vector<std::string> replaced{};  // the older one, or the new one whole
    // The older bytes, and behind them the new ones; after a power cut, the beginning of those.
    std::vector<std::string> appended{};
    std::vector<std::string> patched{};                        // each byte the older or the new one
    std::vector<std::string> given{};                          // what the user said may go
    std::vector<std::pair<std::string, std::string>> moved{};  // under one name or the other, whole
    // The first goes only when the second stands, as the command makes it.
    std::vector<std::pair<std::string, std::string>> converted{};
    // The first is broken off only while the second stands, which is what the first was to become
    // and takes its place at the next start.
    std::vector<std::pair<std::string, std::string>> rescued{};
    std::vector<std::string> remade{};  // what the program makes again: anything, or gone
};

// A file of which the user is not told when the command leaves it otherwise than it should, and why
// nobody needs to know.
struct Unsaid {
    std::string path;
    std::string reason;
};

struct CommandCase {
    const char* name;
    // Makes the user's files, the settings among them; the program is in "C:\Zentar\".
    std::function<void(CommandRun&)> prepare;
    std::function<void(CommandRun&)> run;
    Allowed allowed{};
    // What the user does before the command, such as selecting a file. Nothing fails then.
    std::function<void(CommandRun&)> before{};
    std::vector<Unsaid> unsaid{};
    bool leavesAll = false;  // where nothing fails, every file is as it was before the command
};

// A user who says yes, and picks these files.
class PickingWindows : public YesWindows {
  public:
    std::optional<std::string> ChooseFileToOpen(const FileQuestion& /*question*/) override {
        return toOpen;
    }
    std::optional<std::string> ChooseFileToSave(const FileQuestion& /*question*/) override {
        return toSave;
    }

    std::string toOpen;
    std::string toSave;
};

// A system on which everything opens.
class OpeningShell : public ScriptedShell {
  public:
    std::optional<std::string> PickFolder(const std::string& /*title*/) override { return toPick; }
    Status StartProgram(const ProgramStart& /*start*/) override { return {}; }
    Status OpenFile(const std::string& /*path*/, const std::string& /*folder*/) override {
        return {};
    }

    std::string toPick;
};

// A program on a file system that can fail, ready for the command.
class CommandRun {
  public:
    explicit CommandRun(const CommandCase& command);

    MemoryForm& Window() { return forms.Get(IDW_Form2); }
    void ShowTab(int index) { Window().UserSelectTab(IDC_SSTab1, index); }
    // Message boxes and warning sounds since the command began.
    std::vector<std::string> Heard() const;

    EventLog log;
    MemoryFileSystem files;
    FaultyFileSystem faulty;
    OpeningShell shell;
    PickingWindows windows;
    FixedLocale locale;
    MemoryImageLibrary images{faulty, &log};
    MemoryPictures pictures;
    MemoryRegistry registry;
    MemoryFormFactory forms{&log};
    std::optional<ZentarProgram> program;

  private:
    std::size_t soundsBefore_ = 0;
};

}  // namespace zentar
