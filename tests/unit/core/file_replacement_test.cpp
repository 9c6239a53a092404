// Replacing a file by one that is written piece by piece.

#include "core/atomic_file.h"

#include <algorithm>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/doubles/faulty_file_system.h"
#include "tests/doubles/memory_file_system.h"

namespace zentar {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string kPath = "C:\\chat (transcript).txt";
const std::string kWrite = "Write C:\\chat (transcript).txt.zentar-new";
constexpr std::size_t kPiece = std::size_t{256} * 1024;

class FileReplacementTest : public ::testing::Test {
  protected:
    FileReplacementTest() { inner_.AddFile(kPath, "old"); }

    // Replaces the file by these pieces.
    Status Replace(const std::vector<std::string>& pieces) {
        FileReplacement replacement(files_, kPath);
        for (const std::string& piece : pieces) {
            replacement.Write(piece);
        }
        return replacement.Finish();
    }
    int Writes() const {
        return static_cast<int>(std::count(files_.Calls().begin(), files_.Calls().end(), kWrite));
    }

    MemoryFileSystem inner_;
    FaultyFileSystem files_{inner_};
};

TEST_F(FileReplacementTest, ManySmallPiecesAreWrittenAtOnce) {
    std::vector<std::string> pieces;
    std::string whole;
    for (int i = 0; i < 10'000; ++i) {
        pieces.push_back("line " + std::to_string(i) + "\r\n");
        whole += pieces.back();
    }
    EXPECT_TRUE(Replace(pieces).Ok());
    EXPECT_EQ(inner_.Contents(kPath), whole);
    EXPECT_EQ(Writes(), 1);
}

TEST_F(FileReplacementTest, PiecesOfAllSizesKeepTheirOrder) {
    std::vector<std::string> pieces;
    std::string whole;
    char letter = 'a';
    for (const std::size_t size :
         {std::size_t{1}, kPiece - 1, std::size_t{1}, std::size_t{0}, kPiece, kPiece + 1,
          std::size_t{7}, 3 * kPiece, kPiece - 7, std::size_t{8}}) {
        pieces.emplace_back(size, letter++);
        whole += pieces.back();
    }
    EXPECT_TRUE(Replace(pieces).Ok());
    EXPECT_TRUE(inner_.Contents(kPath) == whole);
    EXPECT_LT(Writes(), 9);
}

TEST_F(FileReplacementTest, NothingAtAllMakesAnEmptyFile) {
    EXPECT_TRUE(Replace({}).Ok());
    EXPECT_EQ(inner_.Contents(kPath), "");
    EXPECT_TRUE(Replace({"", ""}).Ok());
    EXPECT_EQ(inner_.Contents(kPath), "");
    EXPECT_EQ(Writes(), 0);
}

TEST_F(FileReplacementTest, UntilItIsFinishedTheOldFileStands) {
    {
        FileReplacement replacement(files_, kPath);
        replacement.Write(std::string(2 * kPiece, 'x'));
        EXPECT_EQ(inner_.Contents(kPath), "old");
        EXPECT_THAT(inner_.Names("C:\\"),
                    ElementsAre("chat (transcript).txt", "chat (transcript).txt.zentar-new"));
    }
    EXPECT_EQ(inner_.Contents(kPath), "old");
    EXPECT_THAT(inner_.Names("C:\\"), ElementsAre("chat (transcript).txt"));
}

TEST_F(FileReplacementTest, WhicheverCallFailsTheOldFileStaysAloneAndTheFailureIsTold) {
    const std::vector<std::string> pieces = {"begin", std::string(kPiece, 'x'),
                                             std::string(kPiece + 1, 'y'), "end"};
    EXPECT_TRUE(Replace(pieces).Ok());
    const int calls = files_.CallCount();
    EXPECT_EQ(Writes(), 4);
    for (const FileError error : {FileError::NoSpace, FileError::InUse, FileError::AccessDenied}) {
        for (int call = 1; call <= calls; ++call) {
            inner_.AddFile(kPath, "old");
            files_.Restart();
            files_.FailAt(call, error);
            const Status done = Replace(pieces);
            ASSERT_FALSE(done.Ok()) << files_.CallName(call);
            EXPECT_EQ(done.Error(), error) << files_.CallName(call);
            EXPECT_EQ(inner_.Contents(kPath), "old") << files_.CallName(call);
            EXPECT_THAT(inner_.Names("C:\\"), ElementsAre("chat (transcript).txt"))
                << files_.CallName(call);
        }
    }
}

TEST_F(FileReplacementTest, NothingIsWrittenAfterAFailure) {
    files_.FailAt(2, FileError::NoSpace);
    FileReplacement replacement(files_, kPath);
    for (int i = 0; i < 4; ++i) {
        replacement.Write(std::string(kPiece, 'x'));
    }
    EXPECT_EQ(replacement.Finish().Error(), FileError::NoSpace);
    EXPECT_EQ(Writes(), 1);
}

TEST_F(FileReplacementTest, AFileThatCameOutShorterIsNotTaken) {
    inner_.SetFreeSpace("C:\\", kPiece);
    EXPECT_EQ(Replace({std::string(kPiece + 1, 'x')}).Error(), FileError::NoSpace);
    EXPECT_EQ(inner_.Contents(kPath), "old");
}

TEST_F(FileReplacementTest, WhereverTheProgramIsKilledTheFileIsTheOldOrTheNewOneWhole) {
    const std::string begin(kPiece, 'x');
    EXPECT_TRUE(Replace({begin, "end"}).Ok());
    const int calls = files_.CallCount();
    for (const Unflushed unflushed : {Unflushed::Kept, Unflushed::Halved, Unflushed::Lost}) {
        for (int call = 1; call <= calls; ++call) {
            inner_.AddFile(kPath, "old");
            files_.Restart();
            files_.KillAt(call, unflushed);
            EXPECT_FALSE(Replace({begin, "end"}).Ok());
            const std::string left = inner_.Contents(kPath);
            EXPECT_TRUE(left == "old" || left == begin + "end") << files_.CallName(call);
        }
    }
}

TEST_F(FileReplacementTest, ANewFileIsMadeToo) {
    inner_.Remove(kPath);
    EXPECT_TRUE(Replace({"a", "b"}).Ok());
    EXPECT_EQ(inner_.Contents(kPath), "ab");
    inner_.Remove(kPath);
    files_.Restart();
    files_.FailAt(1, FileError::AccessDenied);
    EXPECT_FALSE(Replace({"a", "b"}).Ok());
    EXPECT_THAT(inner_.Names("C:\\"), IsEmpty());
}

}  // namespace
}  // namespace zentar
