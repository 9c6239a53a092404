#include "demos/demo_transfer.h"

#include "core/file_name.h"
#include "core/questions.h"
#include "core/remote_folder.h"
#include "core/text.h"
#include "demos/demo_messages.h"
#include "demos/hourglass.h"
#include "platform/file_system.h"
#include "platform/locale.h"

namespace zentar {
namespace {

constexpr std::size_t kRootLength = 3;  // "C:\"

std::string RootOf(const std::string& path) { return LowerAscii(path.substr(0, kRootLength)); }

// What the free space is asked for: the drive, or a folder of the network, which has none.
std::string SpaceRoot(const std::string& folder) {
    return folder.starts_with("\\\\") ? folder : folder.substr(0, kRootLength);
}

}  // namespace

void DemoTransfer::Transfer(TransferVerb verb) {
    const DemoInfo demo = list_.SelectedDemo();
    if (demo.Item.empty()) {
        return;
    }
    CheckRemoteFolder(state_, platform_);
    if (!state_.RemoteFolderOK) {
        return;
    }
    const std::string remote = state_.settings.Remote;
    Job job{.verb = verb,
            .source = demo.Path,
            .target = remote + std::string(FileNameOf(demo.Path)),
            .mod = state_.current.SelectedMod,
            .sameDrive = RootOf(remote) == RootOf(demo.Path)};
    if (!MayBegin(job)) {
        return;
    }
    platform_.windows.PumpPending();
    CopyOutcome outcome = CopyOutcome::Missing;
    {
        const Hourglass hourglass(platform_.windows);
        outcome = Carry(job);
    }
    platform_.windows.PumpPending();
    if (outcome == CopyOutcome::Partial) {
        platform_.windows.Ask(messages::DemoPartlyTransferred(verb, job.mod));
    } else if (outcome != CopyOutcome::Whole) {
        platform_.windows.Ask(messages::DemoNotTransferred(verb, job.mod));
    } else {
        ShowResult(job, demo.Item);
    }
}

// Asks what there is to ask.
bool DemoTransfer::MayBegin(Job& job) {
    const Result<FileInfo> source = platform_.files.Info(job.source);
    if (!source.Ok()) {
        platform_.windows.Ask(messages::DemoIsGone());
        list_.RefreshDemoList();
        return false;
    }
    job.length = source.Value().length;
    if (!HasRoom(job) ||
        !Confirmed(state_, platform_.windows, messages::ReallyTransferDemo(job.verb))) {
        return false;
    }
    job.overwrites = platform_.files.Info(job.target).Ok();
    return !job.overwrites ||
           (platform_.windows.Ask(messages::DemoExistsInRemoteFolder()) == Answer::Yes &&
            MayChangeFile(platform_, job.target, messages::OverwriteReadOnlyDemo()));
}

bool DemoTransfer::HasRoom(const Job& job) {
    if (job.verb == TransferVerb::Move && job.sameDrive) {
        return true;
    }
    const std::string folder(FolderOf(job.target));
    const Result<std::uint64_t> space = platform_.files.FreeSpace(SpaceRoot(folder));
    // A drive that does not say takes the copy, or refuses it.
    if (!space.Ok() || job.length <= space.Value()) {
        return true;
    }
    platform_.windows.Ask(messages::NoSpaceForDemo(job.verb, folder.substr(0, 1), job.length,
                                                   space.Value(),
                                                   platform_.locale.ThousandsSeparator()));
    return false;
}

// On the way to the same drive a demo only gets another path; but nothing is renamed over a file.
CopyOutcome DemoTransfer::Carry(const Job& job) {
    if (job.verb == TransferVerb::Move && job.sameDrive && !job.overwrites) {
        if (platform_.files.Rename(job.source, job.target).Ok()) {
            return CopyOutcome::Whole;
        }
        // A drive may have folders of other drives in it, where a copy is needed after all.
    }
    return CopyFileWhole(platform_.files, job.source, job.target, job.length,
                         job.overwrites ? Existing::Replace : Existing::Keep);
}

void DemoTransfer::ShowResult(const Job& job, const std::string& item) {
    const bool done = job.verb == TransferVerb::Copy || DeleteSource(job);
    // What is selected now stays so: the demo that is still there, or one clicked meanwhile.
    const std::string selected = list_.SelectedDemo().Item;
    if (!done || job.verb == TransferVerb::Copy || selected != item) {
        list_.SetPendingReselection(selected);
    }
    list_.RefreshDemoList();
    if (done) {
        platform_.windows.Sound(Beep::Information);
    }
}

// The original of a moved demo; true when it is gone, or where it was to go.
bool DemoTransfer::DeleteSource(const Job& job) {
    if (!platform_.files.Info(job.source).Ok()) {
        return true;
    }
    // The Remote Folder may be the demo's own folder under another name.
    const Result<bool> same = platform_.files.IsSameFile(job.source, job.target);
    if (same.Ok() && same.Value()) {
        return true;
    }
    if (same.Ok() && !MayChangeFile(platform_, job.source, messages::DeleteReadOnlyDemo())) {
        return false;
    }
    if (!same.Ok() || !platform_.files.Delete(job.source).Ok()) {
        platform_.windows.Ask(messages::MovedDemoNotDeleted(job.mod));
        return false;
    }
    return true;
}

}  // namespace zentar
