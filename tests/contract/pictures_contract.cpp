#include "tests/contract/pictures_contract.h"

#include "tests/contract/file_system_contract.h"

namespace zentar {

std::string PicturesContract::Write(const std::string& name, const std::string& bytes) {
    const std::string path = World().Folder() + name;
    const auto file = World().Files().OpenForWriting(path, WriteMode::Truncate);
    EXPECT_TRUE(file.Ok());
    if (file.Ok()) {
        EXPECT_TRUE(Succeeded(file.Value()->Write(bytes)));
        EXPECT_TRUE(Succeeded(file.Value()->Close()));
    }
    return path;
}

std::uint64_t PicturesContract::LengthOf(const std::string& path) {
    return World().Files().Info(path).ValueOr({}).length;
}

TEST_P(PicturesContract, WhatIsNoPictureIsNotDecoded) {
    const std::string picture = World().PictureBytes({40, 30});
    EXPECT_EQ(World().TheSystem().Decode(""), nullptr);
    EXPECT_EQ(World().TheSystem().Decode("no picture"), nullptr);
    EXPECT_EQ(World().TheSystem().Decode(std::string(100'000, '\0')), nullptr);
    EXPECT_EQ(World().TheSystem().Decode(picture.substr(0, picture.size() / 2)), nullptr);
}

TEST_P(PicturesContract, APictureHasTheSizeThatItsFileSays) {
    for (const Size size : {Size{40, 30}, Size{1, 1}, Size{1, 500}, Size{641, 3}}) {
        const BitmapPtr picture = World().TheSystem().Decode(World().PictureBytes(size));
        ASSERT_NE(picture, nullptr);
        EXPECT_EQ(picture->Dimensions(), size);
    }
}

TEST_P(PicturesContract, AStretchedPictureHasTheSizeAskedFor) {
    const BitmapPtr picture = World().TheSystem().Decode(World().PictureBytes({64, 48}));
    ASSERT_NE(picture, nullptr);
    for (const Size size : {Size{320, 240}, Size{7, 5}, Size{1, 1}, Size{64, 48}, Size{3, 90}}) {
        const BitmapPtr stretched = World().TheSystem().Stretch(*picture, size);
        ASSERT_NE(stretched, nullptr);
        EXPECT_EQ(stretched->Dimensions(), size);
    }
    EXPECT_EQ(picture->Dimensions(), (Size{64, 48}));
}

TEST_P(PicturesContract, AnEncodedPictureIsDecodedAgain) {
    const BitmapPtr picture = World().TheSystem().Decode(World().PictureBytes({33, 21}));
    ASSERT_NE(picture, nullptr);
    const Result<std::string> bytes = World().TheSystem().EncodeBmp(*picture);
    ASSERT_TRUE(bytes.Ok());
    const BitmapPtr again = World().TheSystem().Decode(bytes.Value());
    ASSERT_NE(again, nullptr);
    EXPECT_EQ(again->Dimensions(), (Size{33, 21}));
}

TEST_P(PicturesContract, TheLibraryIsPresentWhileItsFileIsThere) {
    EXPECT_FALSE(World().Images().Present());
    World().PlaceLibrary(true);
    EXPECT_TRUE(World().Images().Present());
    World().PlaceLibrary(false);
    EXPECT_FALSE(World().Images().Present());
    World().PlaceLibrary(true);
    EXPECT_TRUE(World().Images().Present());
}

TEST_P(PicturesContract, AFileThatIsNoLibraryIsNone) {
    World().PlaceBrokenLibrary();
    EXPECT_FALSE(World().Images().Present());
}

TEST_P(PicturesContract, TheCurrentImageIsTheOneLoadedLast) {
    World().PlaceLibrary(true);
    const BitmapPtr first = World().Images().Load(WritePicture("a.tga", {40, 30}));
    const BitmapPtr second = World().Images().Load(WritePicture("b.pcx", {20, 10}));
    ASSERT_NE(first, nullptr);
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(first->Dimensions(), (Size{40, 30}));
    EXPECT_EQ(second->Dimensions(), (Size{20, 10}));
    const std::string saved = World().Folder() + "saved.jpg";
    ASSERT_TRUE(World().Images().SaveAsJpg(80, saved));
    const BitmapPtr again = World().Images().Load(saved);
    ASSERT_NE(again, nullptr);
    EXPECT_EQ(again->Dimensions(), (Size{20, 10}));
}

TEST_P(PicturesContract, AFileThatIsNoImageLeavesNoCurrentOne) {
    World().PlaceLibrary(true);
    const std::string saved = World().Folder() + "saved.jpg";
    EXPECT_FALSE(World().Images().SaveAsJpg(80, saved));
    for (const std::string& bad :
         {Write("bad.tga", "no image"), Write("empty.pcx", ""), World().Folder() + "missing.tga"}) {
        ASSERT_NE(World().Images().Load(WritePicture("good.tga", {4, 3})), nullptr);
        EXPECT_EQ(World().Images().Load(bad), nullptr) << bad;
        EXPECT_FALSE(World().Images().SaveAsJpg(80, saved)) << bad;
    }
    EXPECT_FALSE(World().Files().Info(saved).Ok());
}

TEST_P(PicturesContract, AJpgReplacesTheWholeFileThatWasThere) {
    World().PlaceLibrary(true);
    const std::string fresh = World().Folder() + "fresh.jpg";
    const std::string old = Write("old.jpg", std::string(50'000, 'x'));
    ASSERT_NE(World().Images().Load(WritePicture("a.tga", {8, 8})), nullptr);
    ASSERT_TRUE(World().Images().SaveAsJpg(80, fresh));
    ASSERT_TRUE(World().Images().SaveAsJpg(80, old));
    EXPECT_GT(LengthOf(fresh), 0U);
    EXPECT_EQ(LengthOf(old), LengthOf(fresh));
}

TEST_P(PicturesContract, AJpgThatCannotBeWrittenIsToldOf) {
    World().PlaceLibrary(true);
    ASSERT_NE(World().Images().Load(WritePicture("a.tga", {8, 8})), nullptr);
    EXPECT_FALSE(World().Images().SaveAsJpg(80, World().Folder() + "no such folder\\a.jpg"));
}

}  // namespace zentar
