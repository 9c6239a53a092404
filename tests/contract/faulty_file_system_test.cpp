// What the fault tests rely on in the file system that fails and dies for them.
#include "tests/doubles/faulty_file_system.h"

#include <map>
#include <utility>

#include <gtest/gtest.h>

#include "tests/contract/file_system_contract.h"
#include "tests/doubles/memory_file_system.h"

namespace zentar {
namespace {

// As a program saves: whole under another name, then into place. Gives up at the first failure.
Status Save(FileSystem& files, bool flushed) {
    auto file = files.OpenForWriting("C:\\a.tmp", WriteMode::Truncate);
    if (!file.Ok())
        return file.Error();
    const Status wrote = file.Value()->Write("new text");
    if (!wrote.Ok())
        return wrote;
    const Status flush = flushed ? file.Value()->Flush() : Status();
    if (!flush.Ok())
        return flush;
    const Status closed = file.Value()->Close();
    if (!closed.Ok())
        return closed;
    return files.Replace("C:\\a.tmp", "C:\\a.txt");
}

// What a kill at the given call leaves in a.txt, which held "old text".
std::string LeftAfterKill(int call, Unflushed unflushed, bool flushed) {
    MemoryFileSystem memory;
    memory.AddFile("C:\\a.txt", "old text");
    FaultyFileSystem files(memory);
    files.KillAt(call, unflushed);
    IgnoreFailure(Save(files, flushed));  // a killed program hears of nothing
    EXPECT_TRUE(files.Killed());
    return memory.Contents("C:\\a.txt");
}

}  // namespace

TEST(FaultyFileSystem, TheChosenCallFailsAndNoOther) {
    MemoryFileSystem memory;
    FaultyFileSystem files(memory);
    EXPECT_TRUE(Succeeded(Save(files, true)));
    EXPECT_EQ(files.Calls(), (std::vector<std::string>{
                                 "OpenForWriting C:\\a.tmp", "Write C:\\a.tmp", "Flush C:\\a.tmp",
                                 "Close C:\\a.tmp", "Replace C:\\a.tmp -> C:\\a.txt"}));
    for (int call = 1; call <= 5; ++call) {
        files.Restart();
        files.FailAt(call, FileError::AccessDenied);
        EXPECT_TRUE(FailedWith(Save(files, true), FileError::AccessDenied)) << call;
        EXPECT_EQ(files.CallCount(), call);
        EXPECT_TRUE(Succeeded(Save(files, true))) << files.CallName(call);
    }
    files.Restart();
    files.FailFrom(3, FileError::InUse);
    EXPECT_FALSE(Save(files, true).Ok());
    EXPECT_TRUE(FailedWith(Save(files, true), FileError::InUse));
}

TEST(FaultyFileSystem, AKilledProgramLeavesTheOldFileOrTheNewOne) {
    for (const Unflushed unflushed : {Unflushed::Kept, Unflushed::Halved, Unflushed::Lost}) {
        for (int call = 1; call <= 5; ++call) {
            EXPECT_EQ(LeftAfterKill(call, unflushed, true), "old text");
        }
    }
}

TEST(FaultyFileSystem, APowerFailureHurtsAFileThatWasNotFlushed) {
    const auto left = [](Unflushed unflushed) {
        MemoryFileSystem memory;
        memory.AddFile("C:\\a.txt", "old text");
        FaultyFileSystem files(memory);
        files.KillAt(5, unflushed);
        EXPECT_TRUE(Succeeded(Save(files, false)));
        EXPECT_FALSE(files.Info("C:\\a.txt").Ok());  // the call at which it dies
        return memory.Contents("C:\\a.txt");
    };
    EXPECT_EQ(left(Unflushed::Kept), "new text");
    EXPECT_EQ(left(Unflushed::Halved), "new ");
    EXPECT_EQ(left(Unflushed::Lost), "");
}

TEST(FaultyFileSystem, APowerFailureFindsAnUnflushedFileUnderItsNewName) {
    MemoryFileSystem memory;
    FaultyFileSystem files(memory);
    files.KillAt(5, Unflushed::Lost);
    {
        const auto file = files.OpenForWriting("C:\\a.tmp", WriteMode::Truncate);
        ASSERT_TRUE(file.Ok());
        EXPECT_TRUE(Succeeded(file.Value()->Write("text")));
        EXPECT_TRUE(Succeeded(file.Value()->Close()));
    }
    EXPECT_TRUE(Succeeded(files.Rename("C:\\a.tmp", "C:\\a.txt")));
    EXPECT_EQ(memory.Contents("C:\\a.txt"), "text");
    EXPECT_FALSE(files.Delete("C:\\a.txt").Ok());
    EXPECT_EQ(memory.AllFiles(), (std::map<std::string, std::string>{{"C:\\a.txt", ""}}));
}

TEST(FaultyFileSystem, AKilledProgramLeavesAnOpenFileAsFarAsItWasWritten) {
    MemoryFileSystem memory;
    memory.AddFile("C:\\q3config.cfg", "bind a\n");
    for (const auto& [unflushed, expected] :
         {std::pair{Unflushed::Lost, "bind a\n"}, std::pair{Unflushed::Halved, "bind a\nbin"},
          std::pair{Unflushed::Kept, "bind a\nbinbind b\n"}}) {
        FaultyFileSystem files(memory);
        files.KillAt(3, unflushed);
        const auto file = files.OpenForWriting("C:\\q3config.cfg", WriteMode::Append);
        ASSERT_TRUE(file.Ok());
        EXPECT_TRUE(Succeeded(file.Value()->Write("bind b\n")));
        EXPECT_FALSE(file.Value()->Flush().Ok());
        EXPECT_EQ(memory.Contents("C:\\q3config.cfg"), expected);
    }
}

TEST(FaultyFileSystem, ACopyThatDoesNotFitBreaksWhatItWasToReplace) {
    MemoryFileSystem memory;
    memory.AddFile("C:\\a.txt", "new text");
    memory.AddFile("C:\\b.txt", "old");
    FaultyFileSystem files(memory);
    files.FailFrom(1, FileError::NoSpace);
    EXPECT_TRUE(FailedWith(files.Copy("C:\\a.txt", "C:\\b.txt", false), FileError::NoSpace));
    EXPECT_EQ(memory.Contents("C:\\b.txt"), "old");
    EXPECT_TRUE(FailedWith(files.Copy("C:\\a.txt", "C:\\b.txt", true), FileError::NoSpace));
    EXPECT_EQ(memory.Contents("C:\\b.txt"), "new ");
    EXPECT_TRUE(FailedWith(files.Copy("C:\\a.txt", "C:\\c.txt", false), FileError::NoSpace));
    EXPECT_EQ(memory.Contents("C:\\c.txt"), "new ");
}

TEST(FaultyFileSystem, AProgramThatIsKilledWhileItCopiesLeavesHalfTheFile) {
    for (const auto& [unflushed, expected] :
         {std::pair{Unflushed::Kept, "new "}, std::pair{Unflushed::Halved, "new "},
          std::pair{Unflushed::Lost, ""}}) {
        MemoryFileSystem memory;
        memory.AddFile("C:\\a.txt", "new text");
        memory.AddFile("C:\\b.txt", "old");
        FaultyFileSystem files(memory);
        files.KillAt(1, unflushed);
        EXPECT_FALSE(files.Copy("C:\\a.txt", "C:\\b.txt", true).Ok());
        EXPECT_FALSE(files.Copy("C:\\a.txt", "C:\\c.txt", true).Ok());  // nobody is there any more
        EXPECT_EQ(memory.AllFiles(), (std::map<std::string, std::string>{{"C:\\a.txt", "new text"},
                                                                         {"C:\\b.txt", expected}}));
    }
}

TEST(FaultyFileSystem, APowerFailureHurtsACopyUntilItIsFlushed) {
    const auto left = [](Unflushed unflushed, bool flushed) {
        MemoryFileSystem memory;
        memory.AddFile("C:\\a.txt", "new text");
        FaultyFileSystem files(memory);
        files.KillAt(flushed ? 4 : 3, unflushed);
        EXPECT_TRUE(Succeeded(files.Copy("C:\\a.txt", "C:\\b.txt", false)));
        {
            const auto file = files.OpenForWriting("C:\\B.TXT", WriteMode::Append);
            EXPECT_TRUE(file.Ok() && (!flushed || file.Value()->Flush().Ok()));
        }
        EXPECT_FALSE(files.Delete("C:\\a.txt").Ok());  // the call at which it dies
        return memory.Contents("C:\\b.txt");
    };
    EXPECT_EQ(left(Unflushed::Kept, false), "new text");
    EXPECT_EQ(left(Unflushed::Halved, false), "new ");
    EXPECT_EQ(left(Unflushed::Lost, false), "");
    EXPECT_EQ(left(Unflushed::Halved, true), "new text");
    EXPECT_EQ(left(Unflushed::Lost, true), "new text");
}

}  // namespace zentar
