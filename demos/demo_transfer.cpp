#include "demos/demo_transfer.h"

#include "core/file_name.h"
#include "core/hourglass.h"
#include "core/messages.h"
#include "core/questions.h"
#include "core/remote_folder.h"
#include "core/text.h"
#include "demos/demo_messages.h"
#include "platform/file_system.h"

namespace zentar {
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
    Job job{};
    job.verb = verb;
    job.mod = state_.current.SelectedMod;
    job.file.source = demo.Path;
    job.file.target = remote + std::string(FileNameOf(demo.Path));
    if (!MayBegin(job)) {
        return;
    }
    platform_.windows.PumpPending();
    CopyOutcome outcome = CopyOutcome::Missing;
    {
        const Hourglass hourglass(platform_.windows);
        outcome = verb == TransferVerb::Move ? MoveToTarget(platform_.files, job.file)
                                             : CopyToTarget(platform_.files, job.file);
    }
    // No message comes between a copy and the deletion of its original, except about that.
    const bool done = outcome == CopyOutcome::Whole &&
                      (!job.file.leavesOriginal ||
                       DeleteTransferredOrTell(platform_, job.file, messages::DeleteReadOnlyDemo(),
                                               messages::MovedDemoNotDeleted(job.mod)));
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
    const Result<FileInfo> source = platform_.files.Info(job.file.source);
    if (!source.Ok()) {
        platform_.windows.Ask(messages::IsGone("demo"));
        list_.RefreshDemoList();
        return false;
    }
    if (!HasRoom(platform_, job.verb, job.file, source.Value().length, "demo") ||
        !Confirmed(state_, platform_.windows, messages::ReallyTransferDemo(job.verb))) {
        return false;
    }
    job.file.overwrites = platform_.files.Info(job.file.target).Ok();
    return !job.file.overwrites ||
           (platform_.windows.Ask(messages::DemoExistsInRemoteFolder()) == Answer::Yes &&
            MayChangeFile(platform_, job.file.target, messages::OverwriteReadOnlyDemo()));
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
