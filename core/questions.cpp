#include "core/questions.h"

#include "core/file_reading.h"
#include "platform/file_system.h"

namespace zentar {

bool Confirmed(const ProgramState& state, WindowServices& windows, const Message& question) {
    return state.settings.Expert == 1 || windows.Ask(question) == Answer::Yes;
}

bool MayChangeFile(const Platform& platform, const std::string& path,
                   const Message& readOnlyQuestion) {
    const Result<FileInfo> info = platform.files.Info(path);
    if (!info.Ok() || !info.Value().readOnly) {
        return true;
    }
    if (platform.windows.Ask(readOnlyQuestion) != Answer::Yes) {
        return false;
    }
    // If that is refused, so is what was to be done, and its message says why.
    IgnoreFailure(platform.files.ClearAttributes(path));
    return true;
}

bool MayReplaceFile(const ProgramState& state, const Platform& platform, const std::string& path,
                    const Message& question, const Message& readOnlyQuestion) {
    return !FileExists(platform.files, path) || (Confirmed(state, platform.windows, question) &&
                                                 MayChangeFile(platform, path, readOnlyQuestion));
}

}  // namespace zentar
