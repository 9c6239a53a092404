// One command, run soundly and with whatever fault a test chooses, and what became of the files.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tests/fault/command_run.h"

namespace zentar {

// A run in which something failed.
struct FaultedRun {
    FilesByPath files;
    std::string until;  // the last call that the program made
    bool told = false;  // by more than a sound run says
};

class CommandSweep {
  public:
    // Runs the command once with nothing failing, to know its calls and what it makes.
    explicit CommandSweep(const CommandCase& command);

    const CommandCase& Command() const { return command_; }
    const std::vector<std::string>& Calls() const { return calls_; }
    const FilesByPath& Before() const { return before_; }
    const FilesByPath& Sound() const { return sound_; }

    FaultedRun RunWith(const std::function<void(FaultyFileSystem&)>& fault) const;

    // The files of the user that are gone, or are something else than the command may make of them.
    std::vector<std::string> Lost(const FilesByPath& now, bool powerFailed = false) const;
    // The files that neither were there before nor are what the command makes.
    std::vector<std::string> LeftOver(const FilesByPath& now) const;
    // The other files that are not as the command leaves them where nothing fails.
    std::vector<std::string> NotDone(const FilesByPath& now) const;

  private:
    bool IsWhole(const std::string& path, const std::string& old, const FilesByPath& now,
                 bool powerFailed) const;
    bool IsRescued(const std::string& path, const FilesByPath& now) const;
    bool MayBeGone(const std::string& path, const std::string& old, const FilesByPath& now) const;

    CommandCase command_;
    FilesByPath before_;
    FilesByPath sound_;
    std::vector<std::string> calls_;
    std::vector<std::string> heard_;
};

// Every kind of failure that a call is made to have.
inline constexpr FileError kFaults[] = {FileError::NoSpace, FileError::InUse, FileError::NotFound,
                                        FileError::AccessDenied, FileError::Other};

}  // namespace zentar
