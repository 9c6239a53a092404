#include "transcripts/transcript_messages.h"

#include "core/message_kinds.h"
#include "core/text.h"

namespace zentar::messages {
namespace {

FileKind AllFiles() { return {"All files (*.*)", "*.*"}; }

FileKind Condumps(const GameId& game) { return {game + " condumps only (*.txt)", "*.txt"}; }

FileKind Logs(const GameId& game) { return {game + " logfiles only (*.log)", "*.log"}; }

}  // namespace

Message ScanMayErr() {
    return {"Information",
            Lines({"Please note that scanning a condump/logfile for names is not always 100%",
                   "successful due to these two situations:", "",
                   "(1) Unknown console messages might get misinterpreted as a player name.",
                   "(2) Silly players sometimes use console messages as their name.", "",
                   "Due to this, please be aware that this scanning feature might find names",
                   "that are not actually players (1) or might miss a name when it is actually",
                   "present (2).  In either case, please contact the author with the name details",
                   "so that they can be fixed in a future Zentar release -- thank you!", "",
                   "Tip: Hold down Shift when clicking \"OK\" to skip this warning in future."}),
            MessageIcon::Information};
}

Message TranscriptCannotBeScanned() {
    return Failure("You cannot use a transcript for name scanning!");
}

Message NoNamesFound(const std::string& path) {
    return {"Done",
            Lines({"There were no player names found in:", path, "",
                   "As such, may I delete the file for you?"}),
            MessageIcon::Question, MessageButtons::YesNo, DefaultButton::Second};
}

Message DeleteReadOnlyLog() {
    return FailureWithQuestion(
        Lines({"This condump/logfile couldn't be deleted due to being set as read-only.",
               "Would you like me to remove this setting to force the deletion?"}));
}

Message LogNotReadable() {
    return Failure(Lines({"This condump/logfile couldn't be read.", "",
                          "Another program may be using it, or it may be protected."}));
}

Message TranscriptOfTranscript() {
    return Failure(Lines({"Sorry, you cannot create transcripts of transcripts.",
                          "The Universe would become unravelled if you did!"}));
}

Message LogIsGone(const std::string& path) { return Failure("\"" + path + "\" no longer exists!"); }

FileQuestion LogToScan(const GameId& game, const std::string& folder) {
    return {.title = "Open a " + game + " condump/logfile for name scanning",
            .folder = folder,
            .name = "",
            .kinds = {{game + " condumps and logfiles (*.txt, *.log)", "*.txt;*.log"},
                      Condumps(game),
                      Logs(game),
                      AllFiles()}};
}

FileQuestion LogToTranscribe(const GameId& game, const std::string& folder) {
    return {.title = "Open a " + game + " condump/logfile for chat transcription",
            .folder = folder,
            .name = "",
            .kinds = {{game + " logfiles and condumps (*.log, *.txt)", "*.log;*.txt"},
                      Logs(game),
                      Condumps(game),
                      AllFiles()}};
}

}  // namespace zentar::messages
