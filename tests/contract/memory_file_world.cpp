// The file system contract, kept by the double.
#include "tests/contract/file_system_contract.h"
#include "tests/doubles/memory_file_system.h"

namespace zentar {
namespace {

class MemoryFileWorld : public FileWorld {
  public:
    MemoryFileWorld() {
        files_.AddFolder(Folder());
        files_.AddFolder(OtherDrive());
    }

    FileSystem& Files() override { return files_; }
    std::string Folder() const override { return "C:\\Games\\Test\\"; }
    void SetReadOnly(const std::string& path) override { files_.SetReadOnly(path); }
    void Lock(const std::string& path) override { files_.SetLocked(path); }
    void Unlock(const std::string& path) override { files_.SetLocked(path, false); }
    void MakeHugeFile(const std::string& path, std::uint64_t length,
                      std::string_view tail) override {
        files_.AddHugeFile(path, length, length - tail.size(), tail);
    }
    std::string OtherDrive() const override { return "D:\\Remote\\"; }

  private:
    MemoryFileSystem files_;
};

std::unique_ptr<FileWorld> MakeMemoryFileWorld() { return std::make_unique<MemoryFileWorld>(); }

const auto kMemory = testing::Values(&MakeMemoryFileWorld);

}  // namespace

INSTANTIATE_TEST_SUITE_P(Memory, FileContentsContract, kMemory);
INSTANTIATE_TEST_SUITE_P(Memory, FileOperationsContract, kMemory);
INSTANTIATE_TEST_SUITE_P(Memory, FileNamesContract, kMemory);
INSTANTIATE_TEST_SUITE_P(Memory, FileOverwriteContract, kMemory);

}  // namespace zentar
