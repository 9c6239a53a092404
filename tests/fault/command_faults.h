// Commands with each call of the file system failing in turn, and with the program killed there:
// no file of the user is lost, nor left as something else than the command was asked to make of it.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "tests/doubles/faulty_file_system.h"
#include "tests/doubles/memory_platform.h"
#include "tests/fault/yes_windows.h"
#include "ui/resource.h"
#include "ui/zentar_program.h"

namespace zentar {

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
    Status StartProgram(const ProgramStart& /*start*/) override { return {}; }
    Status OpenFile(const std::string& /*path*/, const std::string& /*folder*/) override {
        return {};
    }
};

// A program on a file system that can fail.
class CommandRun {
  public:
    // `prepare` makes the user's files, the settings among them; the program is in "C:\Zentar\".
    explicit CommandRun(const std::function<void(CommandRun&)>& prepare);

    MemoryForm& Window() { return forms.Get(IDW_Form2); }
    void ShowTab(int index) { Window().UserSelectTab(IDC_SSTab1, index); }

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
};

using FilesByPath = std::map<std::string, std::string>;

// What a command may do to the files that were there.
struct Allowed {
    std::vector<std::string> replaced{};  // the older one, or the new one whole
    // The older bytes, and behind them the new ones; after a power cut, the beginning of those.
    std::vector<std::string> appended{};
    std::vector<std::string> patched{};                        // each byte the older or the new one
    std::vector<std::string> given{};                          // what the user said may go
    std::vector<std::pair<std::string, std::string>> moved{};  // under one name or the other, whole
};

struct CommandCase {
    const char* name;
    std::function<void(CommandRun&)> prepare;
    std::function<void(CommandRun&)> run;
    Allowed allowed;
};

class CommandFaults : public ::testing::TestWithParam<CommandCase> {
  protected:
    CommandFaults();

    // A run in which the test has the command fail or the program killed.
    FilesByPath After(const std::function<void(FaultyFileSystem&)>& fault, std::string& where);
    void ExpectAllWhole(const FilesByPath& now, const std::string& where,
                        bool powerFailed = false) const;
    // Of a failure the program knows, so that it takes away what it began.
    void ExpectNothingLeftOver(const FilesByPath& now, const std::string& where) const;

    FilesByPath before_;
    FilesByPath sound_;
    int calls_ = 0;
    std::vector<std::string> names_;  // of the calls

  private:
    bool IsWhole(const std::string& path, const std::string& old, const FilesByPath& now,
                 bool powerFailed) const;
    bool IsMoved(const std::string& path, const std::string& old, const FilesByPath& now) const;
};

// Of commands that the user lets delete something.
class GivenAwayFaults : public CommandFaults {};

}  // namespace zentar
