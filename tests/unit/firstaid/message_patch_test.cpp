// Wiping messages out of executables.
#include <gtest/gtest.h>

#include "firstaid/message_patch.h"
#include "tests/doubles/memory_file_system.h"

namespace zentar {
namespace {

const std::string kGame = "C:\\Quake2\\quake2.exe";

class MessagePatch : public ::testing::Test {
  protected:
    MessagePatch() { files.AddFolder("C:\\Quake2\\"); }

    std::string Patched(const std::string& bytes, const std::vector<std::string_view>& texts) {
        files.AddFile(kGame, bytes);
        EXPECT_TRUE(PatchGameMessages(files, kGame, texts).Ok());
        return files.Contents(kGame);
    }

    static std::string Zeros(std::size_t count) { return std::string(count, '\0'); }

    MemoryFileSystem files;
};

TEST_F(MessagePatch, TheTextAndTheBytesBesideItBecomeZero) {
    EXPECT_EQ(Patched("code.execing %s\nmore", {"execing %s"}), "code" + Zeros(12) + "more");
    const std::string far(1000, 'x');
    const std::string patched = Patched(far + "Creating DS buffers\nrest", {"Creating DS buffers"});
    EXPECT_EQ(patched, far.substr(1) + Zeros(21) + "rest");
}

TEST_F(MessagePatch, OnlyTheFirstPlaceIsWiped) {
    EXPECT_EQ(Patched("a.text.text.", {"text"}), "a" + Zeros(6) + "text.");
}

TEST_F(MessagePatch, CaseCounts) { EXPECT_EQ(Patched("a TEXT b", {"text"}), "a TEXT b"); }

TEST_F(MessagePatch, EachTextIsWipedOnItsOwn) {
    EXPECT_EQ(Patched("--two--one--", {"one", "two"}), "-" + Zeros(5) + "" + Zeros(5) + "-");
    EXPECT_EQ(Patched("--two--", {"one", "two"}), "-" + Zeros(5) + "-");
}

TEST_F(MessagePatch, NothingIsWrittenWhereTheTextIsNotOrStandsFirst) {
    EXPECT_EQ(Patched("nothing", {"text"}), "nothing");
    EXPECT_EQ(Patched("", {"text"}), "");
    EXPECT_EQ(Patched("text first", {"text"}), "text first");
    EXPECT_EQ(Patched("tex", {"text"}), "tex");
}

TEST_F(MessagePatch, ATextAtTheVeryEndIsWipedWithAByteBehindIt) {
    EXPECT_EQ(Patched("a.text", {"text"}), "a" + Zeros(6));
}

TEST_F(MessagePatch, ASecondTimeChangesNothing) {
    const std::string once = Patched("code.execing %s\nmore", {"execing %s"});
    EXPECT_EQ(Patched(once, {"execing %s"}), once);
}

// The file is read in blocks of 256 KB.
TEST_F(MessagePatch, ATextIsFoundWhereverBlocksBegin) {
    constexpr std::size_t kBlock = std::size_t{256} * 1024;
    for (std::size_t before = kBlock - 12; before <= kBlock + 2; ++before) {
        const std::string front(before, '.');
        ASSERT_EQ(Patched(front + "execing %s" + "..", {"execing %s"}),
                  front.substr(1) + Zeros(12) + ".")
            << before;
    }
}

TEST_F(MessagePatch, AnExecutableThatCannotBeWrittenStaysAsItIs) {
    files.AddFile(kGame, "code.execing %s\nmore");
    files.SetReadOnly(kGame, true);
    const std::vector<std::string_view> texts = {"execing %s"};
    EXPECT_EQ(PatchGameMessages(files, kGame, texts).Error(), FileError::AccessDenied);
    EXPECT_EQ(files.Contents(kGame), "code.execing %s\nmore");
    EXPECT_EQ(PatchGameMessages(files, "C:\\Quake2\\none.exe", texts).Error(), FileError::NotFound);
}

}  // namespace
}  // namespace zentar
