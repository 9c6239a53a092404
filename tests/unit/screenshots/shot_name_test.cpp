#include "screenshots/shot_name.h"

#include <gtest/gtest.h>

namespace zentar {
namespace {

TEST(ShotNameTest, AShotIsKnownByItsLastFourCharactersInAnyCase) {
    for (const char* name : {"a.tga", "SHOT.TGA", "a.jpg", "a.JpG", "a.pcx", "a.b.PCX", ".tga"}) {
        EXPECT_TRUE(IsShot(name)) << name;
    }
    for (const char* name : {"", "tga", "atga", "a.jpeg", "a.bmp", "a.png", "a.zentar", "a.tga ",
                             "a.tga.zentar", "a.tgax", "pcx", "."}) {
        EXPECT_FALSE(IsShot(name)) << name;
    }
}

TEST(ShotNameTest, TheExtensionIsTheLastFourCharactersInLowerCase) {
    EXPECT_EQ(ShotExtension("Quake00.PCX"), ".pcx");
    EXPECT_EQ(ShotExtension("shot.jpeg"), "jpeg");
    EXPECT_EQ(ShotExtension("TGA"), "tga");
    EXPECT_EQ(ShotExtension(""), "");
}

TEST(ShotNameTest, WhatGoesWithAShotIsNamedAfterIt) {
    EXPECT_EQ(PreviewNameOf("shot0001.tga"), "shot0001.zentar");
    EXPECT_EQ(JpgNameOf("Shot0001.PCX"), "Shot0001.jpg");
    EXPECT_EQ(WallpaperNameOf("shot0001.pcx"), "[Zentar] shot0001.bmp");
    EXPECT_EQ(PreviewNameOf("a.b.jpg"), "a.b.zentar");
    EXPECT_EQ(PreviewNameOf(".tga"), ".zentar");
    EXPECT_EQ(PreviewNameOf("C:\\Quake2\\x\\größe.tga"), "C:\\Quake2\\x\\größe.zentar");
    EXPECT_EQ(BaseNameOf("shot0001.tga"), "shot0001");
    EXPECT_EQ(BaseNameOf("tga"), "");
}

TEST(ShotNameTest, PreviewsAreKnownInAnyCase) {
    EXPECT_TRUE(IsPreview("shot.zentar"));
    EXPECT_TRUE(IsPreview("SHOT.ZENTAR"));
    EXPECT_FALSE(IsPreview("zentar"));
    EXPECT_FALSE(IsPreview("shot.zentar.zentar-new"));
}

TEST(ShotNameTest, WallpapersOfTheProgramAreKnownInAnyCase) {
    EXPECT_TRUE(IsWallpaper("[Zentar] shot0001.bmp"));
    EXPECT_TRUE(IsWallpaper("[zentar] SHOT.BMP"));
    EXPECT_TRUE(IsWallpaper("[ZENTAR] .bmp"));
    EXPECT_FALSE(IsWallpaper("[Zentar]shot.bmp"));
    EXPECT_FALSE(IsWallpaper("My [Zentar] shot.bmp"));
    EXPECT_FALSE(IsWallpaper("[Zentar] shot.bmp.zentar-new"));
    EXPECT_FALSE(IsWallpaper("Zapotec.bmp"));
    EXPECT_FALSE(IsWallpaper("[Zentar] "));
}

TEST(ShotNameTest, TheMarkerIsNoPartOfTheName) {
    EXPECT_EQ(ShotOfEntry("shot.tga *"), "shot.tga");
    EXPECT_EQ(ShotOfEntry("shot.tga"), "shot.tga");
    EXPECT_EQ(ShotOfEntry(""), "");
    EXPECT_TRUE(IsMarked("shot.tga *"));
    EXPECT_FALSE(IsMarked("shot.tga"));
    EXPECT_FALSE(IsMarked("shot.tga*"));
}

}  // namespace
}  // namespace zentar
