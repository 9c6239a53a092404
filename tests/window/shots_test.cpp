// The Shots tab: the list, the view of a shot, and the two view modes.
#include <gtest/gtest.h>

#include <algorithm>

#include "platform/win32/win32_text.h"
#include "samples/shot_maker.h"
#include "screenshots/shot_name.h"
#include "tests/window/image_library_file.h"
#include "tests/window/screen_picture.h"
#include "tests/window/shots_fixture.h"
#include "tests/window/user_input.h"
#include "tests/window/waiting.h"
#include "tests/window/windows_of.h"
#include "ui/resource.h"

namespace zentar::window_tests {
namespace {

namespace fs = std::filesystem;

using ShotsTabWindow = ShotsWindowTest;

const Lines kListed = {"broken.tga",  "Größe.tga",   "quake00.tga", "quake01.tga",
                       "QUAKE02.PCX", "quake03.jpg", "wide.tga",    "выстрел.pcx"};

BoxContents Properties(const std::string& title, const Lines& lines) {
    return {.title = title,
            .text = BoxLines(lines),
            .icon = BoxIcon::Information,
            .buttons = {IDOK},
            .defaultButton = IDOK};
}

TEST_F(ShotsTabWindow, ListsAndCountsTheShotsInOrder) {
    const ZentarDriver& zentar = Open();
    EXPECT_SOON(zentar.Items(IDC_lstScreenshots), kListed);
    EXPECT_SOON(zentar.Text(IDC_labNumShots), "Total: 8  (tga=5,  jpg=1,  pcx=2).");
    zentar.ClickOn(IDC_optGameQuake3);
    EXPECT_SOON(zentar.Text(IDC_labNumShots), "Total: 3  (tga=2,  jpg=1,  pcx=0).");
    zentar.ClickItem(IDC_lstMods, "osp");
    EXPECT_SOON(zentar.Items(IDC_lstScreenshots), (Lines{"shot0000.tga"}));
    zentar.ClickItem(IDC_lstMods, "threewave");
    EXPECT_SOON(zentar.Text(IDC_labNumShots), "Total: 0  (tga=0,  jpg=0,  pcx=0).");
    EXPECT_SOON(zentar.Usable(IDC_lstScreenshots), false);
    EXPECT_SOON(zentar.Usable(IDC_labNumShots), false);
    zentar.ClickOn(IDC_optGameQuake1);
    EXPECT_SOON(zentar.Items(IDC_lstScreenshots), (Lines{"quake00.pcx", "quake01.pcx"}));
}

TEST_F(ShotsTabWindow, AViewedShotGetsAPreviewAndItsMarkerAndStaysSelectedAndShown) {
    const ZentarDriver& zentar = Open();
    View("quake00.tga", 0);
    EXPECT_SOON(fs::file_size(Shots() / "quake00.zentar"), 54U + 320 * 240 * 3);
    EXPECT_SOON(ReadBytes(Shots() / "quake00.zentar").substr(0, 2), "BM");
    EXPECT_SOON(zentar.Usable(IDC_imgShotView), true);
    View("выстрел.pcx", 4);
    EXPECT_SOON(IsHere("выстрел.zentar"), true);
    View("QUAKE02.PCX", 2);
    View("wide.tga", 5);
    View("quake03.jpg", 7);
    EXPECT_SOON(IsHere("quake03.zentar"), true);
    EXPECT_SOON(zentar.Items(IDC_lstScreenshots).size(), kListed.size());
}

TEST_F(ShotsTabWindow, TheSameShotTwiceIsLoadedOnce) {
    const ZentarDriver& zentar = Open();
    View("quake00.tga", 0);
    fs::remove(Shots() / "quake00.zentar");
    ClickShot("quake00.tga");
    EXPECT_SOON(IsHere("quake00.zentar"), false);
    ClickShot("quake01.tga");
    EXPECT_SOON(zentar.Selected(IDC_lstScreenshots), "quake01.tga *");
    // The list that was read then says that the other one has none.
    ClickShot("quake00.tga");
    EXPECT_SOON(IsHere("quake00.zentar"), true);
}

TEST_F(ShotsTabWindow, PropertiesTellOfSizeDateAndPixels) {
    const ZentarDriver& zentar = Open();
    View("quake00.tga", 0);
    Choose("quake00.tga", IDM_mnuScreenshotProperties);
    const HWND box = zentar.WaitForBox("quake00.tga");
    const BoxContents read = zentar.Read(box);
    const std::string taken = read.text.substr(0, read.text.rfind("\r\n"));
    EXPECT_EQ(read, Properties("quake00.tga",
                               {"File size:\t921,618 bytes", taken.substr(taken.find("\r\n") + 2),
                                "Dims:\t640 x 480 pixels"}));
    EXPECT_NE(taken.find("Taken:\t"), std::string::npos);
    EXPECT_EQ(taken.find("(Unknown)"), std::string::npos);
    AnswerBox(box, IDOK);
}

TEST_F(ShotsTabWindow, ABrokenShotLeavesAnEmptyViewAndSaysSo) {
    const ZentarDriver& zentar = Open();
    View("quake00.tga", 0);
    ClickShot("broken.tga");
    EXPECT_SOON(ViewIsEmpty(), true);
    EXPECT_SOON(zentar.Selected(IDC_lstScreenshots), "broken.tga");
    EXPECT_SOON(IsHere("broken.zentar"), false);
    Choose("broken.tga", IDM_mnuScreenshotProperties);
    const HWND box = zentar.WaitForBox("broken.tga");
    const std::string text = zentar.Read(box).text;
    EXPECT_EQ(text.substr(0, text.find("\r\n")), "File size:\t20 bytes");
    EXPECT_EQ(text.substr(text.rfind("\r\n") + 2), "Dims:\t0 x 0 pixels");
    AnswerBox(box, IDOK);
}

TEST_F(ShotsTabWindow, PreviewModeShowsThePreviewAloneAndItsCaptionIsRed) {
    const ZentarDriver& zentar = Open();
    View("quake00.tga", 0);
    EXPECT_SOON(CaptionIsRed(), false);
    zentar.ClickOn(IDC_optModePreview);
    EXPECT_SOON(CaptionIsRed(), true);
    EXPECT_SOON(ViewIsEmpty(), true);
    EXPECT_SOON(zentar.Selected(IDC_lstScreenshots), "");
    ClickShot("quake00.tga");
    EXPECT_SOON(ViewShowsHall(0), true);
    ClickShot("quake01.tga");
    EXPECT_SOON(ViewShowsHall(0), false);
    EXPECT_SOON(ViewIsEmpty(), false);  // the busy picture stays
    EXPECT_SOON(IsHere("quake01.zentar"), false);
    Choose("quake01.tga", IDM_mnuScreenshotProperties);
    const HWND box = zentar.WaitForBox("quake01.tga");
    const std::string text = zentar.Read(box).text;
    EXPECT_EQ(text.substr(text.rfind("\r\n") + 2), "Dims:\t(Unknown)");
    AnswerBox(box, IDOK);
    zentar.ClickOn(IDC_optModeReal);
    EXPECT_SOON(CaptionIsRed(), false);
}

TEST_F(ShotsTabWindow, EnterInPreviewModePointsAtTheViewModeByFlashing) {
    const ZentarDriver& zentar = Open({"Preview=1"});
    EXPECT_SOON(CaptionIsRed(), true);
    ClickShot("quake00.tga");
    // It flashes but for a moment, which a loaded machine may not get to see.
    EXPECT_TRUE(Eventually([&] {
        zentar.Settle();
        Press(VK_RETURN);
        return Eventually([&] { return !CaptionIsRed(); }, kBeforeTryingAgain);
    }));
    zentar.Settle();
    EXPECT_SOON(CaptionIsRed(), true);
    EXPECT_EQ(FindTop(zentar.Process(), kFormClass, "Zentar - Screenshot"), nullptr);
}

TEST_F(ShotsTabWindow, ShiftShowsThePreviewForOneSelection) {
    const ZentarDriver& zentar = Open();
    ClickShot("quake00.tga");
    EXPECT_SOON(zentar.Selected(IDC_lstScreenshots), "quake00.tga *");
    // With the arrow key, as the pointer's arrival at a window resets what the system knows of
    // keys. Should it have come to that all the same, there are more shots.
    const Lines shots = {"quake01.tga", "QUAKE02.PCX", "quake03.jpg"};
    const auto* previewed =
        std::find_if(shots.data(), shots.data() + shots.size(), [&](const std::string& shot) {
            {
                const HeldKey shift(VK_SHIFT);
                zentar.PressKey(VK_DOWN);
            }
            EXPECT_SOON(ShotOfEntry(zentar.Selected(IDC_lstScreenshots)), shot);
            zentar.Settle();
            return zentar.Selected(IDC_lstScreenshots) == shot;
        });
    ASSERT_NE(previewed, shots.data() + shots.size());
    EXPECT_SOON(CaptionIsRed(), true);
    EXPECT_SOON(IsHere(fs::path(Widen(*previewed)).stem().string() + ".zentar"), false);
    EXPECT_SOON(zentar.Checked(IDC_optModeReal), true);
    View("wide.tga", 5);
    EXPECT_SOON(CaptionIsRed(), false);
}

std::vector<int> EnabledIn(const ZentarDriver& zentar, HWND popup) {
    std::vector<int> enabled;
    for (int id = IDM_mnuScreenshotShowFull; id <= IDM_mnuScreenshotRefresh; ++id) {
        if (zentar.PopupLine(popup, id).enabled) {
            enabled.push_back(id);
        }
    }
    zentar.ClosePopup(popup);
    return enabled;
}

std::vector<int> With(std::vector<int> entries) {
    for (const int always :
         {IDM_mnuScreenshotProperties, IDM_mnuScreenshotDeleteAll,
          IDM_mnuScreenshotDeleteAllPreview, IDM_mnuScreenshotDeleteAllJPG,
          IDM_mnuScreenshotDeleteAllTGA, IDM_mnuScreenshotDeleteAllPCX, IDM_mnuScreenshotRefresh}) {
        entries.push_back(always);
    }
    std::sort(entries.begin(), entries.end());
    return entries;
}

const std::vector<int> kFileCommands = {IDM_mnuScreenshotDelete, IDM_mnuScreenshotRename,
                                        IDM_mnuScreenshotCopy, IDM_mnuScreenshotMove};

std::vector<int> FileCommandsAnd(std::vector<int> more) {
    more.insert(more.end(), kFileCommands.begin(), kFileCommands.end());
    return With(more);
}

TEST_F(ShotsTabWindow, ThePopupOffersWhatCanBeDone) {
    const ZentarDriver& zentar = Open();
    const auto enabledOn = [&](const std::string& shot) {
        return EnabledIn(zentar, zentar.OpenPopup(IDC_lstScreenshots, shot));
    };
    EXPECT_EQ(EnabledIn(zentar, zentar.OpenPopupBelowItems(IDC_lstScreenshots)), With({}));
    const std::vector<int> whole = {IDM_mnuScreenshotShowFull, IDM_mnuScreenshotMakeJPEGOnly,
                                    IDM_mnuScreenshotMakeJPEGAndKill, IDM_mnuScreenshotSetWallpaper,
                                    IDM_mnuScreenshotDeletePreview};
    EXPECT_EQ(enabledOn("quake00.tga"), FileCommandsAnd(whole));
    EXPECT_EQ(enabledOn("quake03.jpg"),
              FileCommandsAnd({IDM_mnuScreenshotShowFull, IDM_mnuScreenshotDeletePreview}));
    zentar.ClickOn(IDC_optModePreview);
    EXPECT_EQ(enabledOn("quake00.tga"), FileCommandsAnd({IDM_mnuScreenshotDeletePreview}));
    EXPECT_EQ(enabledOn("quake01.tga"), FileCommandsAnd({}));
    zentar.ClickOn(IDC_optModeReal);
    View("quake00.tga", 0);
    const WithoutImageLibrary without;
    EXPECT_EQ(enabledOn("quake00.tga"), FileCommandsAnd({IDM_mnuScreenshotDeletePreview}));
}

TEST_F(ShotsTabWindow, WithoutItsLibraryItSaysSoAndTheListStaysUsable) {
    const WithoutImageLibrary without;
    const ZentarDriver& zentar = Open();
    ClickShot("quake00.tga");
    Answer(Failure({"Screenshots cannot currently be viewed.", "",
                    "Zentar is missing a required file that is needed for",
                    "screenshot viewing.  This file would have been",
                    "present when you first installed Zentar, so you'll",
                    "need to re-install Zentar over itself to get it back."}),
           IDOK);
    EXPECT_SOON(zentar.Selected(IDC_lstScreenshots), "quake00.tga");
    zentar.PressKey(VK_F5);
    EXPECT_SOON(zentar.Items(IDC_lstScreenshots), kListed);
}

TEST_F(ShotsTabWindow, TheListStaysWhereItIsScrolledTo) {
    for (int number = 0; number < 60; ++number) {
        samples::ShotView view{.width = 64, .height = 48, .number = 0};
        WriteBytes(Shots() / ("shot" + std::to_string(100 + number) + ".tga"),
                   samples::MakeTgaShot(view));
    }
    const ZentarDriver& zentar = Open();
    const HWND list = zentar.Control(IDC_lstScreenshots);
    Send(list, LB_SETTOPINDEX, 25);
    const auto top = Send(list, LB_GETTOPINDEX);
    ClickShot("shot135.tga");
    EXPECT_SOON(zentar.Selected(IDC_lstScreenshots), "shot135.tga *");
    EXPECT_SOON(Send(list, LB_GETTOPINDEX), top);
}

TEST_F(ShotsTabWindow, TheViewModeIsKept) {
    {
        ZentarDriver& zentar = Open();
        EXPECT_SOON(zentar.Checked(IDC_optModeReal), true);
        zentar.ClickOn(IDC_optModePreview);
        EXPECT_EQ(zentar.Close(), 0);
    }
    EXPECT_NE(ReadBytes(home_.Ini()).find("\r\nPreview=1\r\n"), std::string::npos);
    const ZentarDriver again(home_);
    EXPECT_TRUE(again.Checked(IDC_optModePreview));
}

}  // namespace
}  // namespace zentar::window_tests
