#include "demos/demo_file_operations.h"

#include <cstdint>
#include <optional>
#include <vector>

#include "core/file_deletion.h"
#include "core/file_name.h"
#include "core/game_text.h"
#include "core/hourglass.h"
#include "core/messages.h"
#include "core/neighbour.h"
#include "core/questions.h"
#include "core/text.h"
#include "demos/demo_messages.h"
#include "demos/demo_name.h"
#include "platform/file_system.h"

namespace zentar {
namespace {

// Deletes demos of a list one after the other. Of those that are read-only it asks once: nobody
// wants to answer a thousand times.
class Deletion {
  public:
    explicit Deletion(const Platform& platform) : platform_(platform) {}

    void Delete(const std::string& path) {
        const Result<FileInfo> info = platform_.files.Info(path);
        if (info.Ok() && info.Value().readOnly && !ReadOnlyOnesToo()) {
            ++kept_;
            return;
        }
        const Status deleted = ForceDelete(platform_.files, path);
        // One that is gone already is as it should be.
        if (!deleted.Ok() && deleted.Error() != FileError::NotFound) {
            ++kept_;
        }
    }

    std::uint64_t Kept() const { return kept_; }

  private:
    bool ReadOnlyOnesToo() {
        if (!asked_) {
            asked_ = true;
            readOnlyOnesToo_ = platform_.windows.Ask(messages::DeleteReadOnlyDemo()) == Answer::Yes;
        }
        return readOnlyOnesToo_;
    }

    Platform platform_;
    bool asked_ = false;
    bool readOnlyOnesToo_ = false;
    std::uint64_t kept_ = 0;
};

}  // namespace

void DemoFileOperations::DeleteSelected() {
    const DemoInfo demo = list_.SelectedDemo();
    if (demo.Item.empty() || !Confirmed(state_, platform_.windows, messages::ReallyDeleteDemo())) {
        return;
    }
    const std::string neighbour = NeighbourOf(demo.Item, list_.ListedDemos());
    if (!MayChangeFile(platform_, demo.Path, messages::DeleteReadOnlyDemo())) {
        return;
    }
    const Status deleted = ForceDelete(platform_.files, demo.Path);
    if (!deleted.Ok() && deleted.Error() != FileError::NotFound) {
        platform_.windows.Ask(messages::DemoNotDeleted());
        return;
    }
    if (state_.settings.AutoNextDemo == 1) {
        list_.SetPendingReselection(neighbour);
    }
    list_.RefreshDemoList();
}

void DemoFileOperations::DeleteAllListed() {
    std::vector<std::string> paths;
    for (const std::string& entry : list_.ListedDemos()) {
        paths.push_back(list_.PathOfListed(entry));
    }
    if (!Confirmed(state_, platform_.windows, messages::ReallyDeleteAllListedDemos())) {
        return;
    }
    Deletion deletion(platform_);
    {
        const Hourglass hourglass(platform_.windows);
        for (const std::string& path : paths) {
            deletion.Delete(path);
        }
    }
    list_.RefreshDemoList();
    if (deletion.Kept() > 0) {
        platform_.windows.Ask(messages::DemosNotDeleted(deletion.Kept(), paths.size()));
    }
}

void DemoFileOperations::RenameSelected() {
    const DemoInfo demo = list_.SelectedDemo();
    if (demo.Item.empty()) {
        return;
    }
    const std::string bare = TrimBlanks(demo.Item);
    const std::optional<std::string> answer =
        platform_.windows.AskText(messages::EnterNewDemoName(bare));
    std::string name = TrimBlanks(answer.value_or(""));
    std::string extension = demo.Extension;
    if (EndsWithAnyCase(name, demo.Extension)) {
        extension = name.substr(name.size() - demo.Extension.size());
        name = TrimBlanks(name.substr(0, name.size() - demo.Extension.size()));
    }
    if (name.empty() || name == bare) {
        return;
    }
    if (name.size() > kLongestFileName) {
        platform_.windows.Ask(messages::NotRenamed("demo", FileError::BadName));
    } else if (ValidateFileName(platform_.windows, name)) {
        Rename(demo, name, extension);
    }
}

void DemoFileOperations::RenameSelectedWithMap() {
    const DemoInfo demo = list_.SelectedDemo();
    if (demo.Item.empty() || demo.NotADemo || demo.Unreadable) {
        return;
    }
    const std::string prefix = "[" + GameTextToUtf8(demo.Map) + "]_";
    // Nobody typed this: one message is enough, whatever a demo calls its map.
    if (HoldsIllegalCharacter(prefix)) {
        platform_.windows.Ask(messages::IllegalCharacters());
        return;
    }
    Rename(demo, prefix + TrimBlanks(demo.Item), demo.Extension);
}

void DemoFileOperations::Rename(const DemoInfo& demo, const std::string& name,
                                const std::string& extension) {
    const std::string to = std::string(FolderOf(demo.Path)) + name + extension;
    const Status renamed = platform_.files.Rename(demo.Path, to);
    if (renamed.Ok()) {
        list_.SetPendingReselection(name + std::string(EntryMarkers(demo.Extension)));
    } else {
        platform_.windows.Ask(messages::NotRenamed("demo", renamed.Error()));
        if (renamed.Error() != FileError::NotFound) {
            return;
        }
        // Somebody else has moved the demo: the list is out of date.
    }
    list_.RefreshDemoList();
}

}  // namespace zentar
