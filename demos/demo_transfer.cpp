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

// What the free space is asked for: the drive, or a folder of the network, which has none.
std::string SpaceRoot(const std::string& folder) {
    return folder.starts_with(R"(\\)") ? folder : DriveOf(folder) + "\\";
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
            .sameDrive = DriveOf(remote) == DriveOf(demo.Path)};
    if (!MayBegin(job)) {
        return;
    }
    platform_.windows.PumpPending();
    CopyOutcome outcome = CopyOutcome::Missing;
    {
        const Hourglass hourglass(platform_.windows);
        outcome = Carry(job);
    }
    // No message comes between a copy and the deletion of its original, except about that.
    const bool done = outcome == CopyOutcome::Whole && (!job.leavesOriginal || DeleteOriginal(job));
    platform_.windows.PumpPending();
    if (outcome == CopyOutcome::Partial) {
        platform_.windows.Ask(messages::DemoPartlyTransferred(verb, job.mod));
    } else if (outcome != CopyOutcome::Whole) {
        platform_.windows.Ask(messages::DemoNotTransferred(verb, job.mod));
    } else {
        ShowResult(job, demo.Item, done);
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
    if (!HasRoom(job, source.Value().length) ||
        !Confirmed(state_, platform_.windows, messages::ReallyTransferDemo(job.verb))) {
        return false;
    }
    job.overwrites = platform_.files.Info(job.target).Ok();
    return !job.overwrites ||
           (platform_.windows.Ask(messages::DemoExistsInRemoteFolder()) == Answer::Yes &&
            MayChangeFile(platform_, job.target, messages::OverwriteReadOnlyDemo()));
}

bool DemoTransfer::HasRoom(const Job& job, std::uint64_t length) {
    if (job.verb == TransferVerb::Move && job.sameDrive) {
        return true;
    }
    const std::string folder(FolderOf(job.target));
    const Result<std::uint64_t> space = platform_.files.FreeSpace(SpaceRoot(folder));
    // A drive that does not say takes the copy, or refuses it.
    if (!space.Ok() || length <= space.Value()) {
        return true;
    }
    platform_.windows.Ask(messages::NoSpaceForDemo(job.verb, folder.substr(0, 1), length,
                                                   space.Value(),
                                                   platform_.locale.ThousandsSeparator()));
    return false;
}

// On the way to the same drive a demo only gets another path; but nothing is renamed over a file.
CopyOutcome DemoTransfer::Carry(Job& job) {
    const bool moves = job.verb == TransferVerb::Move;
    if (moves && job.sameDrive && !job.overwrites &&
        platform_.files.Rename(job.source, job.target).Ok()) {
        return CopyOutcome::Whole;
    }
    // A drive may have folders of other drives in it, where a copy is needed after all.
    const Result<FileInfo> source = platform_.files.Info(job.source);
    if (!source.Ok()) {
        return CopyOutcome::Missing;
    }
    job.copied = source.Value();
    job.leavesOriginal = moves;
    return CopyFileWhole(platform_.files, job.source, job.target, job.copied.length,
                         job.overwrites ? Existing::Replace : Existing::Keep);
}

// The original of a moved demo; true when it is gone, or where it was to go.
bool DemoTransfer::DeleteOriginal(const Job& job) {
    // The Remote Folder may be the demo's own folder under another name.
    const Result<bool> same = platform_.files.IsSameFile(job.source, job.target);
    if (same.Ok() && same.Value()) {
        return true;
    }
    if (!platform_.files.Info(job.source).Ok()) {
        return true;
    }
    if (same.Ok() && !MayChangeFile(platform_, job.source, messages::DeleteReadOnlyDemo())) {
        return false;
    }
    if (!same.Ok() || !IsStillTheCopied(job) ||
        !platform_.files.DeleteOriginal(job.source, job.target).Ok()) {
        platform_.windows.Ask(messages::MovedDemoNotDeleted(job.mod));
        return false;
    }
    return true;
}

// A game may have recorded another demo of that name since.
bool DemoTransfer::IsStillTheCopied(const Job& job) {
    const Result<FileInfo> now = platform_.files.Info(job.source);
    return now.Ok() && now.Value().length == job.copied.length &&
           now.Value().lastWrite == job.copied.lastWrite;
}

void DemoTransfer::ShowResult(const Job& job, const std::string& item, bool done) {
    // What is selected now stays so: the demo that is still there, or one clicked meanwhile. A file
    // that is no demo would only raise its question again.
    const DemoInfo& selected = list_.SelectedDemo();
    const bool stays = !done || job.verb == TransferVerb::Copy || selected.Item != item;
    if (stays && !selected.NotADemo) {
        list_.SetPendingReselection(selected.Item);
    }
    list_.RefreshDemoList();
    if (done) {
        platform_.windows.Sound(Beep::Information);
    }
}

}  // namespace zentar
