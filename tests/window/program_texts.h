// What the program writes around the user's own lines in its files.
#pragma once

#include <string>

namespace zentar::window_tests {

// Of a backup of Quake 3's single-player game.
inline const std::string kBackupHead =
    "// Zentar v0.99 BETA Quake 3 Single-Player Backup\r\n"
    "// Web Site: " ZENTAR_WEB_SITE
    "\r\n"
    "// -----------------------------------------\r\n";
inline const std::string kBackupFoot =
    "// ===================================================================\r\n";

// Of a chat transcript in plain text: above and below the chosen names, and at its end.
inline const std::string kTranscriptHead =
    "Zentar v0.99 BETA Chat Transcript\r\n"
    "Web Site: " ZENTAR_WEB_SITE
    "\r\n"
    "-------------------------------\r\n"
    "\r\n";
inline const std::string kTranscriptChosen =
    "The following players were chosen to be part of this transcript:\r\n"
    "\r\n";
inline const std::string kTranscriptStart =
    "------------------------ START OF TRANSCRIPT -------------------------\r\n"
    "\r\n";
inline const std::string kTranscriptEnd =
    "\r\n"
    "========================= END OF TRANSCRIPT ==========================\r\n";

}  // namespace zentar::window_tests
