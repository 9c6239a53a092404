#include "demos/demo_header.h"

#include <cstring>

#include <gtest/gtest.h>

#include "samples/demo_maker.h"
#include "tests/doubles/memory_file_system.h"

namespace zentar {
namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;
using samples::DemoContents;
using samples::DemoKind;
using samples::MakeDemo;

constexpr std::size_t kBlock = 5120;
const std::string kPlayer = "progs/player.mdl";
const std::string kBlaster = "models/weapons/v_blast/tris.md2";

class DemoHeaderTest : public testing::Test {
  protected:
    HeaderResult Read(std::string_view game, std::string_view bytes,
                      const std::string& extension = ".dm3") {
        path = "C:\\demos\\duel" + extension;
        files.AddFile(path, bytes);
        files.ForgetReads();
        return ReadDemoHeader(files, path, game);
    }
    std::optional<DemoHeader> Quake1(std::string_view bytes) {
        return Read(kQuake1, bytes, ".dem").Value();
    }
    std::optional<DemoHeader> Quake2(std::string_view bytes) {
        return Read(kQuake2, bytes, ".dm2").Value();
    }
    std::optional<DemoHeader> Quake3(std::string_view bytes,
                                     const std::string& extension = ".dm3") {
        return Read(kQuake3, bytes, extension).Value();
    }
    ReadRecord Reads() const { return files.Reads(path); }

    MemoryFileSystem files;
    std::string path;
};

// ---- Quake 1 ----

TEST_F(DemoHeaderTest, Quake1ShowsMapAndLevelName) {
    const auto header =
        Quake1(MakeDemo(DemoKind::Dem, {.map = "E1M1", .levelName = "The Slipgate Complex"}));
    ASSERT_TRUE(header);
    EXPECT_EQ(header->Map, "e1m1");
    EXPECT_EQ(header->Name, "The Slipgate Complex");
    EXPECT_EQ(header->Generation, Q3Generation::None);
}

TEST_F(DemoHeaderTest, Quake1LevelWithoutANameHasNone) {
    const auto header = Quake1(MakeDemo(DemoKind::Dem, {.map = "jbottest", .levelName = ""}));
    ASSERT_TRUE(header);
    EXPECT_EQ(header->Name, "");
    EXPECT_EQ(header->Map, "jbottest");
}

TEST_F(DemoHeaderTest, Quake1CooperativeGamesNameEndsAtTheGameTypeToo) {
    const auto header = Quake1("\x0B\x0F\0\0\0\1\0the Police\0maps/e1m3.bsp\0progs/player.mdl\0"sv);
    ASSERT_TRUE(header);
    EXPECT_EQ(header->Name, "the Police");
    EXPECT_EQ(header->Map, "e1m3");
}

TEST_F(DemoHeaderTest, Quake1NameThatStartsTheFileIsKept) {
    const auto header = Quake1("Lost Beginning\0maps/dm4.bsp\0progs/player.mdl\0"sv);
    ASSERT_TRUE(header);
    EXPECT_EQ(header->Name, "Lost Beginning");
}

TEST_F(DemoHeaderTest, Quake1FileThatStartsWithTheMapHasNoName) {
    EXPECT_EQ(Quake1("maps/dm4.bsp\0progs/player.mdl\0"sv)->Name, "");
    EXPECT_EQ(Quake1("\0maps/dm4.bsp\0progs/player.mdl\0"sv)->Name, "");
}

TEST_F(DemoHeaderTest, Quake1FileWithoutThePlayerModelIsNotADemo) {
    EXPECT_FALSE(Quake1("\1Name\0maps/dm4.bsp\0progs/eyes.mdl\0"sv));
    EXPECT_FALSE(Quake1(samples::MakeTextFile(9000)));
    EXPECT_FALSE(Quake1(""));
}

TEST_F(DemoHeaderTest, TheMarkersCaseCounts) {
    EXPECT_FALSE(Quake1("\1Name\0maps/dm4.bsp\0PROGS/PLAYER.MDL\0"sv));
    EXPECT_FALSE(Quake3("\\MAPNAME\\q3dm1\\"));
}

TEST_F(DemoHeaderTest, Quake1PlayerModelBehindTheBlockIsNotSeen) {
    const std::string inside = std::string(kBlock - kPlayer.size(), 'x') + kPlayer;
    EXPECT_TRUE(Quake1(inside));
    EXPECT_FALSE(Quake1("x" + inside));
}

TEST_F(DemoHeaderTest, Quake1WithoutMapsReadsFromTheFifthByte) {
    const auto header = Quake1("1234FIFTH.bsp\0progs/player.mdl\0"sv);
    ASSERT_TRUE(header);
    EXPECT_EQ(header->Map, "fifth");
    EXPECT_EQ(header->Name, "");
}

TEST_F(DemoHeaderTest, MapTextsTooShortForAnExtensionGiveAnEmptyMap) {
    EXPECT_EQ(Quake1("\1N\0maps/a.b\0progs/player.mdl\0"sv)->Map, "");
    EXPECT_EQ(Quake1("\1N\0maps/\0progs/player.mdl\0"sv)->Map, "");
}

TEST_F(DemoHeaderTest, AMapThatTheFileBreaksOffIsKeptAsFarAsItGoes) {
    EXPECT_EQ(Quake1("progs/player.mdl\0\1N\0maps/e1m1.bsp"sv)->Map, "e1m1");
}

TEST_F(DemoHeaderTest, MapsOfForeignLettersKeepTheirBytes) {
    EXPECT_EQ(Quake1("\1N\0maps/\xC4"
                     "B.bsp\0progs/player.mdl\0"sv)
                  ->Map,
              "\xC4"
              "b");
}

TEST_F(DemoHeaderTest, AMapAcrossTheEndOfTheBlockIsWhole) {
    for (std::size_t at = kBlock - 12; at <= kBlock - 5; ++at) {
        const auto header = Quake1(
            MakeDemo(DemoKind::Dem,
                     {.map = "start", .levelName = "Intro", .earlyText = kPlayer, .mapAt = at}));
        ASSERT_TRUE(header) << at;
        EXPECT_EQ(header->Map, "start") << at;
        EXPECT_EQ(header->Name, "Intro") << at;
    }
}

TEST_F(DemoHeaderTest, AMapMarkerBehindTheBlockIsNotSeen) {
    const auto header = Quake1(
        MakeDemo(DemoKind::Dem, {.map = "start", .earlyText = kPlayer, .mapAt = kBlock - 4}));
    ASSERT_TRUE(header);
    EXPECT_NE(header->Map, "start");
}

// ---- Quake 2 ----

TEST_F(DemoHeaderTest, Quake2BaseGameShowsMapAndLevelName) {
    const auto header = Quake2(MakeDemo(DemoKind::Dm2, {.map = "Q2DM1", .levelName = "The Edge"}));
    ASSERT_TRUE(header);
    EXPECT_EQ(header->Map, "q2dm1");
    EXPECT_EQ(header->Name, "The Edge");
}

TEST_F(DemoHeaderTest, Quake2ModShowsTheRightLevelName) {
    for (const char* mod : {"ctf", "x", "a_rather_long_folder_name"}) {
        const auto header = Quake2(MakeDemo(
            DemoKind::Dm2, {.map = "q2ctf1", .levelName = "McKinley Revival", .mod = mod}));
        ASSERT_TRUE(header);
        EXPECT_EQ(header->Name, "McKinley Revival") << mod;
        EXPECT_EQ(header->Map, "q2ctf1") << mod;
    }
}

TEST_F(DemoHeaderTest, Quake2LevelNameKeepsItsLineFeed) {
    EXPECT_EQ(Quake2(MakeDemo(DemoKind::Dm2, {.levelName = "Terminal\nby WizardExt"}))->Name,
              "Terminal\nby WizardExt");
}

TEST_F(DemoHeaderTest, Quake2FileWithoutTheBlasterIsNotADemo) {
    EXPECT_FALSE(Quake2(samples::MakeTextFile(9000)));
    EXPECT_FALSE(Quake2(""));
    EXPECT_FALSE(Quake2("short"));
}

TEST_F(DemoHeaderTest, Quake2BlasterBehindTheBlockIsNotADemo) {
    EXPECT_FALSE(Quake2(MakeDemo(DemoKind::Dm2, {.mapAt = kBlock})));
}

TEST_F(DemoHeaderTest, Quake2WithoutMapsReadsFromTheFifthByte) {
    const auto header = Quake2("1234FIFTH.bsp\0models/weapons/v_blast/tris.md2\0"sv);
    ASSERT_TRUE(header);
    EXPECT_EQ(header->Map, "fifth");
}

TEST_F(DemoHeaderTest, Quake2TextsAcrossTheEndOfTheBlockAreWhole) {
    const std::string mod = kBlaster + std::string(kBlock - 60, 'm');
    const auto longMod =
        Quake2(MakeDemo(DemoKind::Dm2, {.map = "base1", .levelName = "A Name", .mod = mod}));
    ASSERT_TRUE(longMod);
    EXPECT_EQ(longMod->Name, "A Name");
    const std::string name = kBlaster + std::string(kBlock, 'n');
    EXPECT_EQ(Quake2(MakeDemo(DemoKind::Dm2, {.levelName = name}))->Name, name);
    for (std::size_t at = kBlock - 12; at <= kBlock - 5; ++at) {
        EXPECT_EQ(
            Quake2(MakeDemo(DemoKind::Dm2, {.map = "base1", .earlyText = kBlaster, .mapAt = at}))
                ->Map,
            "base1")
            << at;
    }
}

// ---- Quake 3 ----

TEST_F(DemoHeaderTest, Quake3GenerationsAreToldByTheSpellingOfTheirKey) {
    const DemoContents contents{.map = "Q3DM17", .levelName = "The Longest Yard"};
    const auto old = Quake3(MakeDemo(DemoKind::Dm3, contents));
    ASSERT_TRUE(old);
    EXPECT_EQ(old->Generation, Q3Generation::V117);
    EXPECT_EQ(old->Map, "q3dm17");
    EXPECT_EQ(old->Name, "The Longest Yard");
    const auto later = Quake3(MakeDemo(DemoKind::Dm48, contents), ".dm_48");
    ASSERT_TRUE(later);
    EXPECT_EQ(later->Generation, Q3Generation::V127h);
    EXPECT_EQ(later->Map, "q3dm17");
    EXPECT_EQ(later->Name, "The Longest Yard");
}

TEST_F(DemoHeaderTest, Quake3ExtensionPlaysNoPartInTheGeneration) {
    EXPECT_EQ(Quake3(MakeDemo(DemoKind::Dm48, {}), ".dm3")->Generation, Q3Generation::V127h);
    EXPECT_EQ(Quake3(MakeDemo(DemoKind::Dm3, {}), ".dm_66")->Generation, Q3Generation::V117);
}

TEST_F(DemoHeaderTest, Quake3MisspelledKeyIsLookedForFirst) {
    EXPECT_EQ(
        Quake3(MakeDemo(DemoKind::Dm48, {.levelName = "\\g_syncronousClients\\"}))->Generation,
        Q3Generation::V117);
}

TEST_F(DemoHeaderTest, Quake3WithNeitherKeyIsOf129fAndHasNoMap) {
    const auto header = Quake3("\\mapname\\q3dm1\\x\0\3\3\0Arena Gate\0"sv);
    ASSERT_TRUE(header);
    EXPECT_EQ(header->Generation, Q3Generation::V129f);
    EXPECT_EQ(header->Map, "(n/a for v1.29f and higher)");
    EXPECT_EQ(header->Name, "(n/a for v1.29f and higher)");
}

TEST_F(DemoHeaderTest, Quake3CompressedDemosAreNeverRejected) {
    for (const std::string& bytes :
         {MakeDemo(DemoKind::Dm66, {}), std::string("text"), std::string()}) {
        const auto header = Quake3(bytes, ".dm_66");
        ASSERT_TRUE(header);
        EXPECT_EQ(header->Generation, Q3Generation::V129f);
        EXPECT_EQ(header->Map, "(n/a for v1.29f and higher)");
    }
}

TEST_F(DemoHeaderTest, Quake3FilesWithoutAMapNameAreNotDemos) {
    EXPECT_FALSE(Quake3(MakeDemo(DemoKind::Dm66, {}), ".dm3"));
    EXPECT_FALSE(Quake3(MakeDemo(DemoKind::Dm66, {}), ".dm_48"));
    EXPECT_FALSE(Quake3(MakeDemo(DemoKind::Dm66, {}), ".DM_66")) << "the test is case-sensitive";
    EXPECT_FALSE(Quake3(MakeDemo(DemoKind::Dm3, {.mapAt = kBlock - 8}))) << "behind the block";
}

TEST_F(DemoHeaderTest, Quake3MapRunsUpToTheNextBackslashAndOverANul) {
    EXPECT_EQ(Quake3("\\g_syncronousClients\\0\\mapname\\Q3\0TOURNEY\\p"sv)->Map, "q3\0tourney"sv);
}

TEST_F(DemoHeaderTest, Quake3WithoutTheNameMarkerReadsFromTheFourthByte) {
    EXPECT_EQ(Quake3("123Fourth byte\0\\g_syncronousClients\\0\\mapname\\q3dm1\\"sv)->Name,
              "Fourth byte");
}

TEST_F(DemoHeaderTest, Quake3WithoutAMapMarkerReadsFromTheNinthByte) {
    const auto header = Quake3("12345678Ninth\\g_syncronousClients\\0"sv, ".dm_66");
    ASSERT_TRUE(header);
    EXPECT_EQ(header->Map, "ninth");
}

TEST_F(DemoHeaderTest, Quake3LevelNamesMayBeEmpty) {
    EXPECT_EQ(Quake3(MakeDemo(DemoKind::Dm3, {.levelName = ""}))->Name, "");
}

TEST_F(DemoHeaderTest, Quake3TextsAcrossTheEndOfTheBlockAreWhole) {
    for (std::size_t at = kBlock - 16; at <= kBlock - 4; ++at) {
        const auto header = Quake3(
            MakeDemo(DemoKind::Dm48, {.levelName = "The Camping Grounds", .levelNameAt = at}));
        ASSERT_TRUE(header) << at;
        EXPECT_EQ(header->Name, "The Camping Grounds") << at;
    }
    for (std::size_t at = kBlock - 16; at <= kBlock - 9; ++at) {
        const auto header = Quake3(
            MakeDemo(DemoKind::Dm3,
                     {.map = "q3tourney2", .earlyText = "\\g_syncronousClients\\0", .mapAt = at}));
        ASSERT_TRUE(header) << at;
        EXPECT_EQ(header->Map, "q3tourney2") << at;
    }
}

TEST_F(DemoHeaderTest, ANameThatTheFileBreaksOffIsKeptAsFarAsItGoes) {
    const std::string demo = MakeDemo(DemoKind::Dm3, {.levelName = "The Longest Yard"});
    const std::size_t name = demo.find("The Longest Yard");
    EXPECT_EQ(Quake3(demo.substr(0, name + 6))->Name, "The Lo");
    EXPECT_EQ(Quake3("\\g_syncronousClients\\0\\mapname\\q3d")->Map, "q3d");
}

// ---- What is read ----

TEST_F(DemoHeaderTest, OneReadOfOneBlockIsEnoughForACommonDemo) {
    for (const DemoKind kind : {DemoKind::Dem, DemoKind::Dm2, DemoKind::Dm3, DemoKind::Dm66}) {
        const std::string_view game = kind == DemoKind::Dem   ? kQuake1
                                      : kind == DemoKind::Dm2 ? kQuake2
                                                              : kQuake3;
        Read(game, MakeDemo(kind, {.size = 100'000}), samples::ExtensionOf(kind)).Value();
        EXPECT_EQ(Reads().opens, 1);
        EXPECT_EQ(Reads().reads, 1);
        EXPECT_EQ(Reads().bytes, kBlock);
    }
}

TEST_F(DemoHeaderTest, BehindTheBlockOnlyTheTextThatRunsOnIsRead) {
    Quake1(MakeDemo(DemoKind::Dem,
                    {.map = "start", .size = 100'000, .earlyText = kPlayer, .mapAt = kBlock - 7}));
    EXPECT_EQ(Reads().reads, 2);
    EXPECT_EQ(Reads().bytes, kBlock + 512);
}

TEST_F(DemoHeaderTest, AHugeFileWithoutAnyEndToItsTextsIsCutShort) {
    const std::string start = "\1N\0maps/"s + std::string(100'000, 'A');
    std::string demo = kPlayer + start;
    EXPECT_EQ(Quake1(demo)->Map, std::string(65536 - 4, 'a'));
    EXPECT_LE(Reads().bytes, kBlock + 65536 + 512);
}

// ---- Files that cannot be read ----

TEST_F(DemoHeaderTest, AVanishedFileIsNeitherADemoNorNone) {
    const HeaderResult header = ReadDemoHeader(files, "C:\\gone.dm2", kQuake2);
    ASSERT_FALSE(header.Ok());
    EXPECT_EQ(header.Error(), FileError::NotFound);
}

TEST_F(DemoHeaderTest, ALockedFileIsNeitherADemoNorNone) {
    files.AddFile("C:\\locked.dm2", MakeDemo(DemoKind::Dm2, {}));
    files.SetLocked("C:\\locked.dm2");
    EXPECT_EQ(ReadDemoHeader(files, "C:\\locked.dm2", kQuake2).Error(), FileError::InUse);
}

// A disk that fails from the given offset on.
class FailingFile : public ReadableFile {
  public:
    FailingFile(std::string bytes, std::uint64_t from) : bytes_(std::move(bytes)), from_(from) {}
    Result<std::size_t> ReadAt(std::uint64_t offset, std::span<std::byte> into) override {
        if (offset >= from_)
            return FileError::Other;
        const std::string_view rest = std::string_view(bytes_).substr(offset, into.size());
        std::memcpy(into.data(), rest.data(), rest.size());
        return rest.size();
    }
    Result<std::uint64_t> Length() override { return std::uint64_t{bytes_.size()}; }

  private:
    std::string bytes_;
    std::uint64_t from_;
};

TEST(DemoHeaderFailure, ADiskThatFailsGivesItsErrorWhereverItFails) {
    const std::string quake1 =
        MakeDemo(DemoKind::Dem, {.map = "start", .earlyText = kPlayer, .mapAt = kBlock - 7});
    const std::string quake2 =
        MakeDemo(DemoKind::Dm2, {.mod = kBlaster + std::string(kBlock, 'm')});
    const std::string quake3 =
        MakeDemo(DemoKind::Dm48, {.levelName = "Long Name", .levelNameAt = kBlock - 6});
    for (const std::uint64_t from : {std::uint64_t{0}, std::uint64_t{kBlock}}) {
        FailingFile file1(quake1, from);
        EXPECT_EQ(ReadQuake1Header(file1).Error(), FileError::Other) << from;
        FailingFile file2(quake2, from);
        EXPECT_EQ(ReadQuake2Header(file2).Error(), FileError::Other) << from;
        FailingFile file3(quake3, from);
        EXPECT_EQ(ReadQuake3Header(file3, false).Error(), FileError::Other) << from;
    }
}

}  // namespace
}  // namespace zentar
