// The file of a chat transcript, beside the console dump or log that it is made of.
#pragma once

#include <string>
#include <string_view>

#include "platform/file_system.h"
#include "transcripts/transcript_writer.h"

namespace zentar {

// Whether a path is that of a transcript: the mark may stand in a folder's name, too.
bool IsTranscript(std::string_view path);

// "duel.log" -> "duel (transcript).htm"; an extension other than .txt and .log stays.
std::string TranscriptPath(std::string_view source, bool html);

// Appends an empty line to the source, so that its last line has an end and counts, reads it and
// writes the transcript. The attributes of both files are cleared. Until the new transcript is
// whole, an older one stays as it is; on failure for good.
Status MakeTranscript(FileSystem& files, const std::string& source,
                      const TranscriptOptions& options);

}  // namespace zentar
