// The messages that docs/reliability.md quotes are those that the program shows.

#include <fstream>
#include <iterator>
#include <set>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/messages.h"
#include "demos/demo_messages.h"
#include "demos/demo_transfer_messages.h"
#include "firstaid/first_aid_messages.h"
#include "q3tools/config_messages.h"
#include "q3tools/q3_text_messages.h"
#include "screenshots/shot_messages.h"
#include "screenshots/shot_transfer_messages.h"

namespace zentar {
namespace {

// As one line: breaks of lines and of paragraphs are a blank, and so are two of them.
std::string InOneLine(const Message& message) {
    std::string line;
    for (const char c : message.text) {
        if (c == '\n' || c == ' ') {
            if (!line.ends_with(' ')) {
                line += ' ';
            }
        } else if (c != '\r') {
            line += c;
        }
    }
    return line;
}

// What stands between *" and "*.
std::set<std::string> QuotedByTheDocument() {
    std::ifstream file(std::string(ZENTAR_TEST_SOURCE_DIR) + "/docs/reliability.md",
                       std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    std::set<std::string> quoted;
    for (std::size_t from = text.find("*\""); from != std::string::npos;) {
        from += 2;
        const std::size_t end = text.find("\"*", from);
        if (end == std::string::npos) {
            ADD_FAILURE() << "A quotation without an end: " << text.substr(from, 40);
            break;
        }
        quoted.insert(text.substr(from, end - from));
        from = text.find("*\"", end + 2);
    }
    return quoted;
}

std::set<std::string> Shown(const std::vector<Message>& messages) {
    std::set<std::string> texts;
    for (const Message& message : messages) {
        texts.insert(InOneLine(message));
    }
    return texts;
}

TEST(ReliabilityTexts, TheDocumentQuotesWhatTheProgramShows) {
    using namespace messages;
    const FileError refused = FileError::AccessDenied;
    EXPECT_EQ(QuotedByTheDocument(), Shown({ColouredTextNotSaved(),
                                            OverwriteReadOnlyColouredText(),
                                            WallpaperNotSet(),
                                            ImageLibraryMissing(),
                                            JpgNotMade("Quake2"),
                                            OriginalNotKilled("Quake2"),
                                            NotRenamed("screenshot", refused),
                                            MovedShotNotDeleted("Quake2"),
                                            NotRenamed("demo", refused),
                                            NotADemoRenameFailed(refused),
                                            DemoNotDeleted(),
                                            DemosNotDeleted(2, 5),
                                            MovedDemoNotDeleted("ctf"),
                                            DemosInstalled("Quake2", 1, 2),
                                            PakNotHidden("pak4", refused),
                                            CodeNotAdded(),
                                            ProgressNotBackedUp(),
                                            ProgressNotRestored(),
                                            ConfigNotConverted(),
                                            AutoexecNotCreated(),
                                            ExecutableNotChanged(),
                                            DriverNotRenamed(),
                                            RemoteFolderInvalid(),
                                            DemoNotTransferred(TransferVerb::Copy, "ctf"),
                                            DemoNotTransferred(TransferVerb::Move, "ctf"),
                                            ShotNotTransferred(TransferVerb::Copy, "Quake2"),
                                            ShotNotTransferred(TransferVerb::Move, "Quake2")}));
}

}  // namespace
}  // namespace zentar
