// What is listed of a folder, and how it is counted.

#include "screenshots/shot_list.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/doubles/memory_file_system.h"

namespace zentar {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string kFolder = "C:\\Quake2\\ctf\\scrnshot\\";

class ShotListTest : public ::testing::Test {
  protected:
    void Add(const std::string& name, const std::string& bytes = "x") {
        files_.AddFile(kFolder + name, bytes);
    }
    std::vector<std::string> Entries() { return ListShots(files_, kFolder).entries; }

    MemoryFileSystem files_;
};

TEST_F(ShotListTest, ShotsAreCountedByTheirKindInAnyCase) {
    for (const char* name : {"SHOT.TGA", "b.tga", "c.jpg", "d.JPG", "e.Jpg", "f.pcx"}) {
        Add(name);
    }
    const ShotListing listing = ListShots(files_, kFolder);
    EXPECT_THAT(listing.entries,
                ElementsAre("b.tga", "c.jpg", "d.JPG", "e.Jpg", "f.pcx", "SHOT.TGA"));
    EXPECT_EQ(listing.tga, 2U);
    EXPECT_EQ(listing.jpg, 3U);
    EXPECT_EQ(listing.pcx, 1U);
    EXPECT_EQ(CountText(listing), "Total: 6  (tga=2,  jpg=3,  pcx=1).");
}

TEST_F(ShotListTest, NothingElseIsListed) {
    for (const char* name : {"shot.jpeg", "shot.bmp", "x.zentar", "pak0.pak", "tga", "a.tga.bak"}) {
        Add(name);
    }
    files_.AddFolder(kFolder + "folder.tga\\");
    EXPECT_THAT(Entries(), IsEmpty());
}

TEST_F(ShotListTest, AShotWithAPreviewIsMarked) {
    Add("a.tga");
    Add("a.zentar");
    Add("b.tga");
    EXPECT_THAT(Entries(), ElementsAre("a.tga *", "b.tga"));
}

TEST_F(ShotListTest, AnEmptyPreviewIsNone) {
    Add("a.tga");
    Add("a.zentar", "");
    EXPECT_THAT(Entries(), ElementsAre("a.tga"));
}

TEST_F(ShotListTest, AFolderOfThePreviewsNameIsNone) {
    Add("a.tga");
    files_.AddFile(kFolder + "a.zentar\\inside", "x");
    EXPECT_THAT(Entries(), ElementsAre("a.tga"));
}

TEST_F(ShotListTest, ShotsOfOneNameShareAPreview) {
    Add("a.tga");
    Add("A.JPG");
    Add("a.pcx");
    Add("a.Zentar");
    EXPECT_THAT(Entries(), ElementsAre("A.JPG *", "a.pcx *", "a.tga *"));
}

TEST_F(ShotListTest, ThePreviewOfALongerNameIsNotTaken) {
    Add("shot1.tga");
    Add("shot10.tga");
    Add("shot10.zentar");
    Add("größe.tga");
    Add("GRÖSSE.zentar");
    Add("übung.tga");
    Add("ÜBUNG.zentar");
    EXPECT_THAT(Entries(), ElementsAre("größe.tga", "shot1.tga", "shot10.tga *", "übung.tga *"));
}

TEST_F(ShotListTest, AMarkerDoesNotChangeTheOrder) {
    for (const char* name : {"a.tga", "a.tga.jpg", "a.tga0.jpg"}) {
        Add(name);
    }
    EXPECT_THAT(Entries(), ElementsAre("a.tga", "a.tga.jpg", "a.tga0.jpg"));
    Add("a.zentar");
    EXPECT_THAT(Entries(), ElementsAre("a.tga *", "a.tga.jpg", "a.tga0.jpg"));
}

TEST_F(ShotListTest, AFolderThatIsMissingOrRefusesHasNone) {
    EXPECT_THAT(Entries(), IsEmpty());
    Add("a.tga");
    files_.SetReadingDenied(kFolder);
    const ShotListing listing = ListShots(files_, kFolder);
    EXPECT_THAT(listing.entries, IsEmpty());
    EXPECT_EQ(CountText(listing), "Total: 0  (tga=0,  jpg=0,  pcx=0).");
}

TEST_F(ShotListTest, ManyShotsAreNotGrouped) {
    for (int i = 0; i < 1234; ++i) {
        Add(std::to_string(i) + ".pcx");
    }
    EXPECT_EQ(CountText(ListShots(files_, kFolder)), "Total: 1234  (tga=0,  jpg=0,  pcx=1234).");
}

}  // namespace
}  // namespace zentar
