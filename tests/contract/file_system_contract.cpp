#include "tests/contract/file_system_contract.h"

#include <algorithm>
#include <array>

namespace zentar {
namespace {

const char* Name(FileError error) {
    constexpr std::array<const char*, 7> kNames = {
        "NotFound", "AccessDenied", "InUse", "AlreadyExists", "NoSpace", "BadName", "Other"};
    return kNames[static_cast<std::size_t>(error)];
}

}  // namespace

testing::AssertionResult Succeeded(const Status& status) {
    if (status.Ok())
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "failed with " << Name(status.Error());
}

testing::AssertionResult FailedWith(const Status& status, FileError error) {
    if (status.Ok())
        return testing::AssertionFailure() << "succeeded";
    if (status.Error() == error)
        return testing::AssertionSuccess();
    return testing::AssertionFailure()
           << "failed with " << Name(status.Error()) << " instead of " << Name(error);
}

void FileSystemContract::Write(const std::string& path, std::string_view bytes, WriteMode mode) {
    Result<std::unique_ptr<WritableFile>> file = Files().OpenForWriting(path, mode);
    ASSERT_TRUE(file.Ok()) << path << ": " << Name(file.Error());
    EXPECT_TRUE(Succeeded(file.Value()->Write(bytes)));
    EXPECT_TRUE(Succeeded(file.Value()->Flush()));
    EXPECT_TRUE(Succeeded(file.Value()->Close()));
}

std::string FileSystemContract::Read(const std::string& path) {
    Result<std::unique_ptr<ReadableFile>> file = Files().OpenForReading(path);
    if (!file.Ok())
        return "(missing)";
    std::string bytes(static_cast<std::size_t>(file.Value()->Length().ValueOr(0)), '\0');
    const Result<std::size_t> count =
        file.Value()->ReadAt(0, std::as_writable_bytes(std::span(bytes)));
    EXPECT_TRUE(count.Ok() && count.Value() == bytes.size()) << path;
    return bytes;
}

std::vector<std::string> FileSystemContract::Names(const std::string& folder) {
    std::vector<std::string> names;
    EXPECT_TRUE(Succeeded(Files().Enumerate(folder, [&](const FolderEntry& entry) {
        if (entry.name != "." && entry.name != "..")
            names.push_back(entry.name);
    })));
    std::sort(names.begin(), names.end());
    return names;
}

FileError FileSystemContract::WriteError(const std::string& path, WriteMode mode) {
    const Result<std::unique_ptr<WritableFile>> file = Files().OpenForWriting(path, mode);
    EXPECT_FALSE(file.Ok()) << path << " could be opened for writing";
    return file.Ok() ? FileError::Other : file.Error();
}

FileError FileSystemContract::ReadError(const std::string& path) {
    const Result<std::unique_ptr<ReadableFile>> file = Files().OpenForReading(path);
    EXPECT_FALSE(file.Ok()) << path << " could be opened for reading";
    return file.Ok() ? FileError::Other : file.Error();
}

}  // namespace zentar
