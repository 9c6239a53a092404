// Replacing a file in one step.

#include "core/atomic_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/doubles/faulty_file_system.h"
#include "tests/doubles/memory_file_system.h"

namespace zentar {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;

const std::string kPath = "C:\\file.bmp";
const std::string kFlush = "Flush C:\\file.bmp.zentar-new";

class AtomicFileTest : public ::testing::Test {
  protected:
    MemoryFileSystem inner_;
    FaultyFileSystem files_{inner_};
};

TEST_F(AtomicFileTest, WhatIsToLastIsOnTheDiskBeforeItTakesThePlace) {
    EXPECT_TRUE(ReplaceFileContents(files_, kPath, "new").Ok());
    EXPECT_THAT(
        files_.Calls(),
        ElementsAre("OpenForWriting C:\\file.bmp.zentar-new", "Write C:\\file.bmp.zentar-new",
                    kFlush, "Close C:\\file.bmp.zentar-new", "Info C:\\file.bmp.zentar-new",
                    "Replace C:\\file.bmp.zentar-new -> C:\\file.bmp"));
    EXPECT_EQ(inner_.Contents(kPath), "new");
}

TEST_F(AtomicFileTest, WhatCanBeMadeAgainDoesNotWaitForTheDisk) {
    EXPECT_TRUE(ReplaceFileContents(files_, kPath, "new", Durability::Cached).Ok());
    EXPECT_THAT(files_.Calls(), Not(Contains(kFlush)));
    EXPECT_EQ(inner_.Contents(kPath), "new");
}

TEST_F(AtomicFileTest, WhicheverCallFailsTheOldFileStaysAloneAndTheFailureIsTold) {
    for (const Durability durability : {Durability::Flushed, Durability::Cached}) {
        files_.Restart();
        EXPECT_TRUE(ReplaceFileContents(files_, kPath, "old", durability).Ok());
        const int calls = files_.CallCount();
        for (int call = 1; call <= calls; ++call) {
            files_.Restart();
            files_.FailAt(call, FileError::NoSpace);
            const Status done = ReplaceFileContents(files_, kPath, "brand new", durability);
            EXPECT_FALSE(done.Ok()) << call;
            EXPECT_EQ(done.Error(), FileError::NoSpace) << call;
            EXPECT_EQ(inner_.Contents(kPath), "old") << call;
            EXPECT_THAT(inner_.Names("C:\\"), ElementsAre("file.bmp")) << call;
        }
    }
}

TEST_F(AtomicFileTest, AReadOnlyFileIsNotReplaced) {
    inner_.AddFile(kPath, "old");
    inner_.SetReadOnly(kPath);
    EXPECT_EQ(ReplaceFileContents(files_, kPath, "new").Error(), FileError::AccessDenied);
    EXPECT_EQ(inner_.Contents(kPath), "old");
}

}  // namespace
}  // namespace zentar
