#include "tests/monkey/services.h"

#include <array>
#include <string_view>

#include "core/file_name.h"
#include "platform/file_system.h"

namespace zentar::monkey {
namespace {

constexpr std::array<std::string_view, 14> kAnswers = {
    "",       "duel",
    "final",  "shot01",
    "shot02", "a:b",
    "con",    "  ",
    "Größe",  "renamed",
    "x.dm2",  "duel.dm_48",
    "..\\up", "my name is as long as it can be and then some more of that kind"};

}  // namespace

void Chosen::Read(const std::string& path) {
    toRead.push_back(Folded(path));
    folders.push_back(Folded(std::string(FolderOf(path))));
}

void Chosen::Write(const std::string& path) {
    toWrite.push_back(Folded(path));
    folders.push_back(Folded(std::string(FolderOf(path))));
}

void MonkeyWindows::TimePasses() {
    if (dice_.OneIn(8)) {
        world_.Happen();
    }
}

Answer MonkeyWindows::Ask(const Message& message) {
    TimePasses();
    if (message.buttons == MessageButtons::Ok) {
        return Answer::Ok;
    }
    if (dice_.OneIn(3)) {
        return Answer::No;
    }
    ledger_.UserSaidYes();
    return Answer::Yes;
}

std::optional<std::string> MonkeyWindows::AskText(const TextQuestion& question) {
    TimePasses();
    switch (dice_.Below(6)) {
        case 0:
            return std::nullopt;
        case 1:
            return question.answer;
        case 2:
            return std::to_string(dice_.Below(2));
        case 3:
            return question.answer + std::to_string(dice_.Below(1000));
        default:
            return std::string(dice_.Of(kAnswers));
    }
}

std::optional<std::string> MonkeyWindows::ChooseFileToOpen(const FileQuestion& /*question*/) {
    TimePasses();
    if (dice_.OneIn(6)) {
        return std::nullopt;
    }
    const std::size_t kind = dice_.Below(8);
    const std::string path = kind == 0   ? world_.NewPath(".txt")
                             : kind <= 5 ? world_.SomeLog()
                                         : world_.SomeFile();
    if (!path.empty()) {
        chosen_.Read(path);
    }
    return path;
}

std::optional<std::string> MonkeyWindows::ChooseFileToSave(const FileQuestion& /*question*/) {
    TimePasses();
    if (dice_.OneIn(6)) {
        return std::nullopt;
    }
    const std::size_t kind = dice_.Below(5);
    const std::string path =
        kind == 0 ? world_.SomeFile() : world_.NewPath(kind == 1 ? ".ini" : ".cfg");
    if (!path.empty()) {
        chosen_.Write(path);
    }
    return path;
}

std::optional<ColourRef> MonkeyWindows::ChooseColour(ColourRef shown) {
    TimePasses();
    if (dice_.OneIn(4)) {
        return std::nullopt;
    }
    return dice_.OneIn(4) ? shown : static_cast<ColourRef>(dice_.Below(0x1000000));
}

Status MonkeyWindows::PutOnClipboard(const std::string& /*text*/) {
    return dice_.OneIn(6) ? Status(FileError::InUse) : Status();
}

bool MonkeyWindows::HasWindowTitled(const std::string& /*title*/) { return dice_.OneIn(3); }

void MonkeyWindows::Sound(Beep /*beep*/) {}

std::uint16_t MonkeyWindows::KeyState(PollKey /*key*/) {
    constexpr std::array<std::uint16_t, 4> kStates = {0, 1, 0x8000, 0x8001};
    return dice_.Of(kStates);
}

bool MonkeyWindows::IsDown(PollKey /*key*/) { return dice_.OneIn(4); }

void MonkeyWindows::PumpPending() {
    TimePasses();
    if (duringPump_) {
        duringPump_();
    }
}

std::optional<std::string> MonkeyShell::PickFolder(const std::string& /*title*/) {
    if (dice_.OneIn(5)) {
        return std::nullopt;
    }
    std::string folder = kDownloads;
    if (dice_.OneIn(2)) {
        folder = dice_.Of(kGameFolders);
    } else if (dice_.OneIn(3)) {
        folder = dice_.OneIn(2) ? kRemoteFolder : kOtherRemoteFolder;
    }
    chosen_.folders.push_back(Folded(folder));
    folder.pop_back();  // as the system's dialog gives it
    return folder;
}

Status MonkeyShell::StartProgram(const ProgramStart& /*start*/) { return Either(); }

Status MonkeyShell::OpenAddress(const std::string& /*address*/) { return Either(); }

Status MonkeyShell::OpenFile(const std::string& /*path*/, const std::string& /*folder*/) {
    return Either();
}

Status MonkeyShell::SetWallpaper(const std::string& /*path*/) { return Either(); }

Status MonkeyShell::CopyElevated(const std::string& from, const std::string& to) {
    return dice_.OneIn(2) ? files_.Copy(from, to, true) : FileError::AccessDenied;
}

Status MonkeyShell::DeleteElevated(const std::vector<std::string>& paths) {
    if (dice_.OneIn(2)) {
        return FileError::AccessDenied;
    }
    for (const std::string& path : paths) {
        IgnoreFailure(files_.Delete(path));
    }
    return {};
}

}  // namespace zentar::monkey
