// Keeps account of the user's files: none may be lost but those that the user let go of.
//
// A file is lost when neither it nor, since it was moved or copied, another with its bytes is
// there. What the world outside the program does to files is told to the ledger, and is no loss.
#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "tests/doubles/memory_file_system.h"

namespace zentar::monkey {

// Paths compare in lower case; as many backslashes as somebody typed are one.
std::string Folded(const std::string& path);

class Ledger {
  public:
    // What has to happen before a command takes a file.
    enum class After : std::uint8_t {
        Nothing,  // the user knows that the command replaces it
        Consent,  // a Yes, unless the user is in Expert Mode
        Yes,
    };
    using Which = std::function<bool(const std::string& foldedPath)>;
    using StillSays = bool (*)(const std::string& old, const std::string& now);

    explicit Ledger(const MemoryFileSystem& files) : files_(files) {}

    // A step of the user begins.
    void Begin();
    // In this step a command may take these files.
    void MayTake(After after, bool expertMode, Which which);
    // In this step a command may write these files anew, if they still say what they said.
    void MayRewrite(StillSays stillSays, Which which) {
        rewritten_.push_back({stillSays, std::move(which)});
    }
    // In this step one of two files with the same bytes may go.
    void MayDropCopies() { copiesMayGo_ = true; }
    void UserSaidYes() { saidYes_ = true; }

    // Somebody else writes or deletes a file. Said before it happens; a file that is written needs
    // WroteOutside afterwards.
    void TakesOutside(const std::string& path);
    void WroteOutside(const std::string& path);

    // The step is over: what was lost in it, and what became of it. `changed`: whether there is
    // anything to look at.
    std::vector<std::string> Lost(bool changed);

    // The files at the beginning of the step, with what happened outside since.
    const std::map<std::string, std::string>& Files() const { return before_; }

  private:
    struct Taking {
        After after = After::Nothing;
        bool expertMode = false;
        Which which;
    };
    struct Rewriting {
        StillSays stillSays = nullptr;
        Which which;
    };
    using Counts = std::map<std::string, int>;

    bool MayGo(const std::string& path, const std::string& bytes) const;
    int CountThatMayGo(const std::string& bytes) const;
    bool IsRewritten(const std::string& path, const std::string& old,
                     const std::map<std::string, std::string>& now) const;
    static Counts CountsOf(const std::map<std::string, std::string>& files);

    const MemoryFileSystem& files_;
    std::map<std::string, std::string> before_;
    bool known_ = false;  // before_ is what there is
    std::vector<Taking> takings_;
    std::vector<Rewriting> rewritten_;
    std::set<std::string> takenOutside_;  // contents
    bool saidYes_ = false;
    bool copiesMayGo_ = false;
};

// Whether all that a file says is there still: with more behind it; in a configuration with other
// ends of its lines and another header; in an executable but for texts that were blanked.
bool IsAddedTo(const std::string& old, const std::string& now);
bool IsConverted(const std::string& old, const std::string& now);
bool IsBlanked(const std::string& old, const std::string& now);

}  // namespace zentar::monkey
