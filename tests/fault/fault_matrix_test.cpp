// docs/reliability.md says what the commands do. ZENTAR_WRITE_DOCS=1 in the environment has the
// table written anew.

#include "tests/fault/fault_matrix.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>

#include <gtest/gtest.h>

namespace zentar {
namespace {

const std::string kDocument = std::string(ZENTAR_TEST_SOURCE_DIR) + "/docs/reliability.md";
const std::string kBegin = "<!-- fault matrix: made by fault_tests -->\n";
const std::string kEnd = "<!-- fault matrix: end -->\n";

std::string ReadDocument() {
    std::ifstream file(kDocument, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// The first line in which two texts differ.
std::string FirstDifference(const std::string& said, const std::string& found) {
    std::istringstream old(said);
    std::istringstream now(found);
    std::string oldLine;
    std::string nowLine;
    while (true) {
        const bool more = static_cast<bool>(std::getline(old, oldLine));
        const bool moreNow = static_cast<bool>(std::getline(now, nowLine));
        if (!more || !moreNow || oldLine != nowLine) {
            return "the document: " + (more ? oldLine : "(its end)") +
                   "\nthe program:  " + (moreNow ? nowLine : "(its end)");
        }
    }
}

bool WritesDocuments() {
    const char* const wanted = std::getenv("ZENTAR_WRITE_DOCS");
    return wanted != nullptr && std::string(wanted) == "1";
}

TEST(FaultMatrixTest, TheDocumentHoldsIt) {
    const FaultMatrix matrix = MakeFaultMatrix();
    EXPECT_EQ(matrix.filesLost, 0);
    const std::string document = ReadDocument();
    const std::size_t begin = document.find(kBegin);
    const std::size_t end = document.find(kEnd);
    ASSERT_TRUE(begin != std::string::npos && end != std::string::npos && begin < end)
        << kDocument << " has no place for the table";
    const std::size_t from = begin + kBegin.size();
    const std::string held = document.substr(from, end - from);
    const std::string made = "\n" + matrix.text + "\n";
    if (held != made && WritesDocuments()) {
        std::ofstream file(kDocument, std::ios::binary);
        file << document.substr(0, from) << made << document.substr(end);
        EXPECT_TRUE(file.flush().good()) << kDocument << " couldn't be written";
        return;
    }
    EXPECT_TRUE(held == made) << FirstDifference(held, made)
                              << "\nZENTAR_WRITE_DOCS=1 has the tests write the table anew.";
}

TEST(FaultMatrixTest, CallsAreToldByTheirNames) {
    const auto told = [](const std::string& call) {
        const CallInWords words = InWords(call);
        return words.kind + ": " + words.target;
    };
    EXPECT_EQ(told("Info C:\\Quake2\\ctf\\a (2).tga"), "Info: a (2).tga");
    EXPECT_EQ(told("Enumerate C:\\Quake2\\ctf\\"), "Enumerate: ctf\\");
    EXPECT_EQ(told("FreeSpace D:\\"), "FreeSpace: D:\\");
    EXPECT_EQ(told("Rename C:\\a\\b.x -> C:\\a\\c.x"), "Rename: b.x -> c.x");
    EXPECT_EQ(told("Copy C:\\a\\b.x -> C:\\a\\c\\b.x"), "Copy: b.x -> c\\b.x");
    EXPECT_EQ(told("DeleteOriginal C:\\a\\b.x of D:\\c\\b.x"), "DeleteOriginal: b.x of c\\b.x");
    EXPECT_EQ(told("IsSameFile C:\\a\\b.x = D:\\b.x"), "IsSameFile: b.x = D:\\b.x");
}

}  // namespace
}  // namespace zentar
