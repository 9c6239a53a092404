#include "demos/demo_list.h"

#include <cstring>

#include <gtest/gtest.h>

#include "tests/doubles/memory_file_system.h"

namespace zentar {
namespace {

using Entries = std::vector<std::string>;

const std::string kFolder = "C:\\Games\\Quake3\\baseq3\\demos\\";

class DemoListTest : public testing::Test {
  protected:
    DemoListTest() { files.AddFolder(kFolder); }

    DemoListing List(const DemoFilter& filter = {}, const std::string& extension = ".dm3") {
        return ListDemos(files, kFolder, extension, filter);
    }
    void Add(const std::string& name, const std::string& bytes = "") {
        files.AddFile(kFolder + name, bytes);
    }

    MemoryFileSystem files;
};

TEST_F(DemoListTest, AllThreeQuake3ExtensionsAreListedWithTheirMarkers) {
    Add("c.dm_66");
    Add("a.dm3");
    Add("b.dm_48");
    const DemoListing listing = List();
    EXPECT_EQ(listing.entries, (Entries{"a", "b ", "c  "}));
    EXPECT_EQ(listing.total, 3U);
}

TEST_F(DemoListTest, EntriesStandInAlphabeticalOrderWithoutRegardToCase) {
    for (const char* name : {"zoo.dm3", "Bar.dm3", "alpha.dm3", "bar2.dm3", "ÄRGER.dm3"})
        Add(name);
    EXPECT_EQ(List().entries, (Entries{"alpha", "Bar", "bar2", "zoo", "ÄRGER"}));
}

TEST_F(DemoListTest, TheMarkersTakePartInTheOrder) {
    Add("duel.dm_66");
    Add("duel.dm3");
    Add("duel.dm_48");
    Add("duel!.dm3");
    EXPECT_EQ(List().entries, (Entries{"duel", "duel ", "duel  ", "duel!"}));
}

TEST_F(DemoListTest, OtherFilesAreNeitherListedNorCounted) {
    Add("a.dm2");
    Add("a.dm3!");
    Add("readme.txt");
    Add("b.dm3");
    files.AddFolder(kFolder + "folder.dm3");
    const DemoListing listing = List();
    EXPECT_EQ(listing.entries, Entries{"b"});
    EXPECT_EQ(listing.total, 1U);
}

TEST_F(DemoListTest, UpperCaseExtensionsAreListed) {
    Add("X.DM3");
    EXPECT_EQ(List().entries, Entries{"X"});
}

TEST_F(DemoListTest, AFolderThatIsNotThereHoldsNoDemos) {
    const DemoListing listing = ListDemos(files, "C:\\nowhere\\", ".dm3", {});
    EXPECT_TRUE(listing.entries.empty());
    EXPECT_EQ(listing.total, 0U);
}

TEST_F(DemoListTest, WithShowAllNoFileIsOpened) {
    Add("a.dm3", "Fred");
    List({.showAll = true, .phrase = "Fred"});
    EXPECT_EQ(files.TotalOpens(), 0);
}

TEST_F(DemoListTest, AnEmptyPhraseListsEveryDemo) {
    Add("a.dm3", "Fred");
    Add("b.dm3");
    EXPECT_EQ(List({.showAll = false, .phrase = "", .contain = true}).entries, (Entries{"a", "b"}));
    EXPECT_EQ(List({.showAll = false, .phrase = "", .contain = false}).entries,
              (Entries{"a", "b"}));
    EXPECT_EQ(files.TotalOpens(), 0);
}

TEST_F(DemoListTest, ContainListsTheDemosWithThePhrase) {
    Add("with.dm3", "here was Fred");
    Add("without.dm_48", "here was fred");
    Add("marked.dm_66", "Fred");
    const DemoListing listing = List({.showAll = false, .phrase = "Fred", .contain = true});
    EXPECT_EQ(listing.entries, (Entries{"marked  ", "with"}));
    EXPECT_EQ(listing.total, 3U);
}

TEST_F(DemoListTest, DoNotContainLeavesThemOutAndCountsThem) {
    Add("with.dm3", "here was Fred");
    Add("without.dm_48", "here was fred");
    const DemoListing listing = List({.showAll = false, .phrase = "Fred", .contain = false});
    EXPECT_EQ(listing.entries, Entries{"without "});
    EXPECT_EQ(listing.total, 2U);
}

TEST_F(DemoListTest, AFileThatCannotBeReadIsSkippedAndCounted) {
    Add("locked.dm3", "Fred");
    Add("open.dm3", "Fred");
    files.SetLocked(kFolder + "locked.dm3");
    for (const bool contain : {true, false}) {
        const DemoListing listing = List({.showAll = false, .phrase = "Fred", .contain = contain});
        EXPECT_EQ(listing.entries, contain ? Entries{"open"} : Entries{}) << contain;
        EXPECT_EQ(listing.total, 2U);
    }
}

// A disk on which every file can be opened and none can be read.
class BrokenDisk : public MemoryFileSystem {
  public:
    Result<std::unique_ptr<ReadableFile>> OpenForReading(const std::string& /*path*/) override {
        class Broken : public ReadableFile {
          public:
            Result<std::size_t> ReadAt(std::uint64_t /*offset*/,
                                       std::span<std::byte> /*into*/) override {
                return FileError::Other;
            }
            Result<std::uint64_t> Length() override { return FileError::Other; }
        };
        return std::unique_ptr<ReadableFile>(std::make_unique<Broken>());
    }
};

TEST(DemoList, AFileThatBreaksOffWhileItIsReadIsSkippedAndCounted) {
    BrokenDisk files;
    files.AddFile(kFolder + "a.dm3", "Fred");
    for (const bool contain : {true, false}) {
        const DemoListing listing = ListDemos(
            files, kFolder, ".dm3", {.showAll = false, .phrase = "Fred", .contain = contain});
        EXPECT_TRUE(listing.entries.empty()) << contain;
        EXPECT_EQ(listing.total, 1U);
    }
}

TEST_F(DemoListTest, EveryDemoIsReadOnce) {
    Add("a.dm3", "Fred");
    Add("b.dm3", "nobody");
    List({.showAll = false, .phrase = "Fred", .contain = true});
    EXPECT_EQ(files.Reads(kFolder + "a.dm3").opens, 1);
    EXPECT_EQ(files.Reads(kFolder + "b.dm3").opens, 1);
}

// A folder of demos named by number; every thousandth says "Fred".
class CrowdedFolder : public MemoryFileSystem {
  public:
    static constexpr int kDemos = 100'000;

    Status Enumerate(const std::string& /*folder*/, const EntryVisitor& visit) override {
        for (int i = 0; i < kDemos; ++i)
            visit({.name = std::to_string(i) + ".dm3", .info = {}});
        return {};
    }
    Result<std::unique_ptr<ReadableFile>> OpenForReading(const std::string& path) override {
        class Demo : public ReadableFile {
          public:
            explicit Demo(bool fred) : text_(fred ? "Fred" : "nobody") {}
            Result<std::size_t> ReadAt(std::uint64_t /*offset*/,
                                       std::span<std::byte> into) override {
                std::memcpy(into.data(), text_.data(), text_.size());
                return text_.size();
            }
            Result<std::uint64_t> Length() override { return std::uint64_t{text_.size()}; }

          private:
            std::string_view text_;
        };
        return std::unique_ptr<ReadableFile>(std::make_unique<Demo>(path.ends_with("000.dm3")));
    }
};

TEST(DemoList, MoreDemosThanFitIntoSixteenBitsAreListedAndCountedRight) {
    CrowdedFolder files;
    const DemoListing fred =
        ListDemos(files, kFolder, ".dm3", {.showAll = false, .phrase = "Fred", .contain = true});
    EXPECT_EQ(fred.entries.size(), 99U);
    EXPECT_EQ(fred.total, 100'000U);
    const DemoListing all = ListDemos(files, kFolder, ".dm3", {});
    EXPECT_EQ(all.entries.size(), 100'000U);
    EXPECT_EQ(all.total, 100'000U);
}

}  // namespace
}  // namespace zentar
