// The mod that a demo names.

#include "demos/demo_mod.h"

#include <gtest/gtest.h>

#include "samples/demo_maker.h"
#include "tests/doubles/memory_file_system.h"

namespace zentar {
namespace {

using samples::DemoKind;
using samples::MakeDemo;

class DemoModTest : public ::testing::Test {
  protected:
    using Reader = Result<std::string> (*)(ReadableFile&);

    std::string ModOf(const std::string& bytes, Reader read) {
        files_.AddFile("C:\\demo", bytes);
        const auto file = files_.OpenForReading("C:\\demo");
        const Result<std::string> mod = read(*file.Value());
        EXPECT_TRUE(mod.Ok());
        return mod.ValueOr("");
    }

    MemoryFileSystem files_;
};

TEST_F(DemoModTest, AQuake2DemoNamesItsGameFolder) {
    EXPECT_EQ(ModOf(MakeDemo(DemoKind::Dm2, {.mod = "ctf"}), ReadQuake2Mod), "ctf");
    EXPECT_EQ(ModOf(MakeDemo(DemoKind::Dm2, {}), ReadQuake2Mod), "");
}

TEST_F(DemoModTest, ABackslashBehindItDoesNotCount) {
    EXPECT_EQ(ModOf(std::string(14, 'x') + "ctf\\" + '\0', ReadQuake2Mod), "ctf");
}

TEST_F(DemoModTest, AnOldQuake3DemoNamesItInTheServersSettings) {
    EXPECT_EQ(ModOf(MakeDemo(DemoKind::Dm3, {.mod = "osp"}), ReadQuake3Mod), "osp");
    EXPECT_EQ(ModOf(MakeDemo(DemoKind::Dm48, {.mod = "osp"}), ReadQuake3Mod), "osp");
    EXPECT_EQ(ModOf(std::string(300'000, 'x') + "\\gamename\\far\\", ReadQuake3Mod), "far");
    EXPECT_EQ(ModOf(std::string("\\gamename\\last\0more\\", 20), ReadQuake3Mod), "last");
    EXPECT_EQ(ModOf("a\\gamename\\first\\b\\gamename\\second\\", ReadQuake3Mod), "first");
}

TEST_F(DemoModTest, FilesThatNameNoneOrAreTooShortGiveNone) {
    for (const std::string& bytes : {std::string(), std::string("short"), std::string(13, '\0')}) {
        EXPECT_EQ(ModOf(bytes, ReadQuake2Mod), "");
        EXPECT_EQ(ModOf(bytes, ReadQuake3Mod), "");
    }
    EXPECT_EQ(ModOf("a\\gamename\\", ReadQuake3Mod), "");
}

TEST(FolderName, OfOneFolderOnly) {
    for (const char* name : {"ctf", "Rocket Arena", "q3ut2", "..a", "a..b", "\xC3\xB6l"}) {
        EXPECT_TRUE(IsFolderName(name)) << name;
    }
    for (const std::string& name :
         {std::string(""), std::string("."), std::string(".."), std::string("..\\..\\Windows"),
          std::string("a/b"), std::string("C:"), std::string("C:\\x"), std::string("\\\\server"),
          std::string("a."), std::string("a "), std::string("a\nb"), std::string("a\0b", 3),
          std::string("a*"), std::string("a|b"), std::string(300, 'm')}) {
        EXPECT_FALSE(IsFolderName(name)) << name;
    }
}

}  // namespace
}  // namespace zentar
