// What scanning for names and making a transcript say to the user.
#pragma once

#include <string>

#include "core/game_info.h"
#include "platform/window_services.h"

namespace zentar::messages {

Message ScanMayErr();
Message TranscriptCannotBeScanned();
Message NoNamesFound(const std::string& path);
Message DeleteReadOnlyLog();
Message LogNotReadable();
Message TranscriptOfTranscript();
Message LogIsGone(const std::string& path);

// `folder` is shown at first.
FileQuestion LogToScan(const GameId& game, const std::string& folder);
FileQuestion LogToTranscribe(const GameId& game, const std::string& folder);

}  // namespace zentar::messages
