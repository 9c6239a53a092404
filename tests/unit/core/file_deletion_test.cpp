#include "core/file_deletion.h"

#include <gtest/gtest.h>

#include "tests/doubles/memory_file_system.h"

namespace zentar {
namespace {

TEST(FileDeletionTest, AReadOnlyFileGoesToo) {
    MemoryFileSystem files;
    files.AddFile("C:\\a.txt", "text");
    files.SetReadOnly("C:\\a.txt");
    EXPECT_TRUE(ForceDelete(files, "C:\\a.txt").Ok());
    EXPECT_FALSE(files.Exists("C:\\a.txt"));
}

TEST(FileDeletionTest, SaysWhyAFileStays) {
    MemoryFileSystem files;
    files.AddFile("C:\\a.txt", "text");
    files.SetLocked("C:\\a.txt");
    EXPECT_EQ(ForceDelete(files, "C:\\a.txt").Error(), FileError::InUse);
    EXPECT_EQ(ForceDelete(files, "C:\\b.txt").Error(), FileError::NotFound);
}

}  // namespace
}  // namespace zentar
