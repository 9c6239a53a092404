#include "tests/fault/command_run.h"

namespace zentar {

CommandRun::CommandRun(const CommandCase& command) : faulty(files) {
    shell.programFolder = "C:\\Zentar";
    // The user is let in as an administrator, too.
    shell.copyElevated = [this](const std::string& from, const std::string& to) {
        return faulty.Copy(from, to, true);
    };
    shell.deleteElevated = [this](const std::vector<std::string>& paths) {
        Status all;
        for (const std::string& path : paths) {
            if (const Status deleted = faulty.Delete(path); !deleted.Ok()) {
                all = deleted;
            }
        }
        return all;
    };
    files.AddFolder("C:\\Windows\\");
    files.AddFolder("C:\\Zentar\\");
    command.prepare(*this);
    program.emplace(Platform{faulty, shell, windows, locale, images, pictures, registry, forms});
    program->Start();
    Window().Activate();
    if (command.before) {
        command.before(*this);
    }
    faulty.Restart();
    windows.said.clear();
    soundsBefore_ = windows.Sounds().size();
}

std::vector<std::string> CommandRun::Heard() const {
    std::vector<std::string> heard;
    for (const Message& message : windows.said) {
        heard.push_back(Describe(message));
    }
    for (std::size_t sound = soundsBefore_; sound < windows.Sounds().size(); ++sound) {
        if (windows.Sounds()[sound] == Beep::Exclamation) {
            heard.emplace_back("a warning sound");
        }
    }
    return heard;
}

}  // namespace zentar
