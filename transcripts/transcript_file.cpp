#include "transcripts/transcript_file.h"

#include <memory>
#include <optional>

#include "core/atomic_file.h"
#include "core/console_lines.h"
#include "core/text.h"

namespace zentar {
namespace {

constexpr std::string_view kMark = " (transcript)";

void AppendEmptyLine(FileSystem& files, const std::string& path) {
    // A source that cannot be changed, on a CD say, only loses its last line where that has no end.
    IgnoreFailure(files.ClearAttributes(path));
    const Result<std::unique_ptr<WritableFile>> file =
        files.OpenForWriting(path, WriteMode::Append);
    if (file.Ok()) {
        IgnoreFailure(file.Value()->Write("\r\n"));
        IgnoreFailure(file.Value()->Close());
    }
}

}  // namespace

bool IsTranscript(std::string_view path) {
    return LowerAscii(path).find(kMark) != std::string::npos;
}

std::string TranscriptPath(std::string_view source, bool html) {
    if (EndsWithAnyCase(source, ".txt") || EndsWithAnyCase(source, ".log")) {
        source.remove_suffix(4);
    }
    return std::string(source).append(kMark).append(html ? ".htm" : ".txt");
}

Status MakeTranscript(FileSystem& files, const std::string& source,
                      const TranscriptOptions& options) {
    AppendEmptyLine(files, source);
    const Result<std::unique_ptr<ReadableFile>> log = files.OpenForReading(source);
    if (!log.Ok()) {
        return log.Error();
    }
    const std::string path = TranscriptPath(source, options.html);
    FileReplacement transcript(files, path);
    TranscriptWriter writer(options,
                            [&transcript](std::string_view text) { transcript.Write(text); });
    ConsoleLines lines(*log.Value());
    writer.Begin();
    while (const std::optional<std::string_view> line = lines.Next()) {
        writer.Add(*line);
    }
    writer.End();
    if (lines.Failed()) {
        return FileError::Other;
    }
    // Usually there is none yet.
    IgnoreFailure(files.ClearAttributes(path));
    return transcript.Finish();
}

}  // namespace zentar
