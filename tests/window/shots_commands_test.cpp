// Converting, deleting, renaming, copying and moving screenshots, and the wallpaper.
#include <gtest/gtest.h>

#include "core/text.h"
#include "platform/win32/win32_text.h"
#include "tests/window/image_library_file.h"
#include "tests/window/second_drive.h"
#include "tests/window/shots_fixture.h"
#include "tests/window/user_input.h"
#include "tests/window/waiting.h"
#include "tests/window/wallpaper.h"
#include "tests/window/windows_of.h"
#include "ui/resource.h"

namespace zentar::window_tests {
namespace {

namespace fs = std::filesystem;

const Lines kReallyKill = {"Really kill original after converting to JPG?"};
const Lines kReallyOverwriteJpg = {"Really overwrite the existing JPG version?"};

class ShotCommands : public ShotsWindowTest {
  protected:
    // 1234567 as "1,234,567".
    static std::string Grouped(long long number) {
        const std::string digits = GroupDigits(static_cast<std::uint64_t>(std::abs(number)), ",");
        return number < 0 ? "-" + digits : digits;
    }

    // The report that a conversion ends with.
    void AnswerDone(long long original, const std::string& jpg) const {
        const HWND box = zentar_->WaitForBox("Done");
        const auto length = static_cast<long long>(fs::file_size(Shots() / Widen(jpg)));
        EXPECT_EQ(zentar_->Read(box),
                  Done({"Original image size:\t" + Grouped(original) + " bytes.",
                        "JPG version size:\t" + Grouped(length) + " bytes.",
                        "Total bytes saved:\t" + Grouped(original - length) + "."}));
        AnswerBox(box, IDOK);
        zentar_->Settle();
    }

    bool IsJpg(const std::string& file) const {
        return ReadBytes(Shots() / Widen(file)).starts_with("\xFF\xD8\xFF");
    }
};

constexpr long long kTga640 = 18 + 640 * 480 * 3;

TEST_F(ShotCommands, MakesAJpgAndKeepsTheOriginal) {
    const ZentarDriver& zentar = Open();
    Choose("quake00.tga", IDM_mnuScreenshotMakeJPEGOnly);
    AnswerDone(kTga640, "quake00.jpg");
    EXPECT_SOON(IsJpg("quake00.jpg"), true);
    EXPECT_SOON(IsHere("quake00.tga"), true);
    EXPECT_SOON(fs::exists(home_.Program() / "tmp.bmp"), false);
    EXPECT_SOON(zentar.Selected(IDC_lstScreenshots), "quake00.jpg *");
    EXPECT_SOON(ViewShowsHall(0), true);
    EXPECT_SOON(zentar.Text(IDC_labNumShots), "Total: 9  (tga=5,  jpg=2,  pcx=2).");
}

TEST_F(ShotCommands, KillsTheOriginalWhenTheUserWantsThat) {
    const ZentarDriver& zentar = Open();
    Choose("QUAKE02.PCX", IDM_mnuScreenshotMakeJPEGAndKill);
    const auto length = static_cast<long long>(fs::file_size(Shots() / "QUAKE02.PCX"));
    Answer(Question(kReallyKill), IDYES);
    AnswerDone(length, "QUAKE02.jpg");
    EXPECT_SOON(IsHere("QUAKE02.PCX"), false);
    EXPECT_SOON(zentar.Selected(IDC_lstScreenshots), "QUAKE02.jpg *");
    Choose("quake00.tga", IDM_mnuScreenshotMakeJPEGAndKill);
    Answer(Question(kReallyKill), IDNO);
    AnswerDone(kTga640, "quake00.jpg");
    EXPECT_SOON(IsHere("quake00.tga"), true);
}

TEST_F(ShotCommands, TheWishToKillOutlivesAConversionThatEndedEarly) {
    Open();
    WriteBytes(Shots() / "quake00.jpg", "old");
    Choose("quake00.tga", IDM_mnuScreenshotMakeJPEGAndKill);
    Answer(Question(kReallyKill), IDYES);
    Answer(Question(kReallyOverwriteJpg), IDNO);
    EXPECT_SOON(ReadBytes(Shots() / "quake00.jpg"), "old");
    Choose("quake00.tga", IDM_mnuScreenshotMakeJPEGOnly);
    Answer(Question(kReallyOverwriteJpg), IDYES);
    AnswerDone(kTga640, "quake00.jpg");
    EXPECT_SOON(IsJpg("quake00.jpg"), true);
    EXPECT_SOON(IsHere("quake00.tga"), false);
}

TEST_F(ShotCommands, AReadOnlyJpgIsAskedAboutInExpertModeToo) {
    Open({"Expert=1"});
    WriteBytes(Shots() / "quake00.jpg", "old");
    MakeReadOnly(Shots() / "quake00.jpg");
    const BoxContents question =
        FailureWithQuestion({"JPG version exists and can't be overwritten due to being read-only.",
                             "Would you like me to remove this setting and force the overwrite?"});
    Choose("quake00.tga", IDM_mnuScreenshotMakeJPEGOnly);
    Answer(question, IDNO);
    EXPECT_SOON(ReadBytes(Shots() / "quake00.jpg"), "old");
    Choose("quake00.tga", IDM_mnuScreenshotMakeJPEGOnly);
    Answer(question, IDYES);
    AnswerDone(kTga640, "quake00.jpg");
    EXPECT_SOON(IsJpg("quake00.jpg"), true);
}

TEST_F(ShotCommands, SetsTheWallpaperAndDeletesWhatItMade) {
    const KeptWallpaper kept;
    const fs::path file = WindowsFolder() / "[Zentar] quake00.bmp";
    const ZentarDriver& zentar = Open();
    Choose("quake00.tga", IDM_mnuScreenshotSetWallpaper);
    EXPECT_SOON(CurrentWallpaper() == file.wstring(), true);
    zentar.Settle();
    EXPECT_SOON(fs::file_size(file), 54U + 640 * 480 * 3);
    Choose("quake00.tga", IDM_mnuScreenshotSetWallpaper);
    Answer(Question({"Really overwrite the existing wallpaper with this name?"}), IDNO);
    Choose("quake00.tga", IDM_mnuScreenshotDeleteAllWallpaper);
    Answer(Question({"Really delete all Zentar-created wallpaper?"}), IDYES);
    EXPECT_SOON(fs::exists(file), false);
    EXPECT_EQ(CurrentWallpaper(), file.wstring());
    const HWND popup = zentar.OpenPopup(IDC_lstScreenshots, "quake00.tga *");
    EXPECT_FALSE(zentar.PopupLine(popup, IDM_mnuScreenshotDeleteAllWallpaper).enabled);
    zentar.ClosePopup(popup);
}

TEST_F(ShotCommands, DeleteAsksAndShowsTheNextShotIfSoPreferred) {
    const ZentarDriver& zentar = Open({"AutoNextShot=1"});
    View("quake00.tga", 0);
    zentar.PressKey(VK_DELETE);
    Answer(Question({"Really delete this screenshot?"}), IDNO);
    EXPECT_SOON(IsHere("quake00.tga"), true);
    zentar.PressKey(VK_BACK);
    Answer(Question({"Really delete this screenshot?"}), IDYES);
    EXPECT_SOON(IsHere("quake00.tga"), false);
    EXPECT_SOON(IsHere("quake00.zentar"), false);
    EXPECT_SOON(zentar.Selected(IDC_lstScreenshots), "quake01.tga *");
    EXPECT_SOON(ViewShowsHall(1), true);
    MakeReadOnly(Shots() / "quake01.tga");
    Choose("quake01.tga", IDM_mnuScreenshotDelete);
    Answer(Question({"Really delete this screenshot?"}), IDYES);
    Answer(FailureWithQuestion({"Screenshot couldn't be deleted due to being set as read-only.",
                                "Would you like me to remove this setting to force the deletion?"}),
           IDYES);
    EXPECT_SOON(IsHere("quake01.tga"), false);
}

TEST_F(ShotCommands, ShiftAndDeleteDeleteThePreviewAloneAndThePictureStays) {
    const ZentarDriver& zentar = Open();
    View("quake00.tga", 0);
    zentar.PressKeyWith(VK_SHIFT, VK_DELETE);
    Answer(Question({"Really delete this screenshot's preview image?"}), IDYES);
    EXPECT_SOON(IsHere("quake00.zentar"), false);
    EXPECT_SOON(IsHere("quake00.tga"), true);
    EXPECT_SOON(zentar.Selected(IDC_lstScreenshots), "quake00.tga");
    EXPECT_SOON(ViewShowsHall(0), true);
    View("quake01.tga", 1);
    MakeReadOnly(Shots() / "quake01.zentar");
    Choose("quake01.tga", IDM_mnuScreenshotDeletePreview);
    Answer(Question({"Really delete this screenshot's preview image?"}), IDYES);
    Answer(FailureWithQuestion({"Preview couldn't be deleted due to being set as read-only.",
                                "Would you like me to remove this setting and force the delete?"}),
           IDYES);
    EXPECT_SOON(IsHere("quake01.zentar"), false);
}

TEST_F(ShotCommands, DeletingAllOfAKindFollowsTheRulesOfSharedPreviews) {
    const ZentarDriver& zentar = Open();
    for (const char* file : {"a.tga", "a.jpg", "a.zentar", "b.pcx", "b.jpg", "b.zentar"}) {
        WriteBytes(Shots() / file, "x");
    }
    zentar.PressKey(VK_F5);
    Choose("wide.tga", IDM_mnuScreenshotDeleteAllJPG);
    Answer(Question({"Really delete all JPG images?"}), IDYES);
    EXPECT_SOON(IsHere("a.jpg"), false);
    EXPECT_SOON(IsHere("a.zentar"), false);
    EXPECT_SOON(IsHere("b.zentar"), true);
    EXPECT_SOON(IsHere("quake03.jpg"), false);
    Choose("wide.tga", IDM_mnuScreenshotDeleteAllPCX);
    Answer(Question({"Really delete all PCX screenshots?"}), IDYES);
    EXPECT_SOON(IsHere("b.pcx"), false);
    EXPECT_SOON(IsHere("b.zentar"), false);
    EXPECT_SOON(IsHere("QUAKE02.PCX"), false);
    Choose("wide.tga", IDM_mnuScreenshotDeleteAllPreview);
    Answer(Question({"Really delete all preview images?"}), IDYES);
    EXPECT_SOON(IsHere("wide.zentar"), false);
    EXPECT_SOON(IsHere("wide.tga"), true);
    Choose("wide.tga", IDM_mnuScreenshotDeleteAllTGA);
    Answer(Question({"Really delete all TGA screenshots?"}), IDYES);
    EXPECT_SOON(zentar.Text(IDC_labNumShots), "Total: 0  (tga=0,  jpg=0,  pcx=0).");
    EXPECT_SOON(IsHere("notes.txt"), true);
}

TEST_F(ShotCommands, DeletingAllLeavesOtherFiles) {
    const ZentarDriver& zentar = Open();
    View("wide.tga", 5);
    Choose("wide.tga", IDM_mnuScreenshotDeleteAll);
    Answer(Question({"Really delete all images/shots?"}), IDYES);
    EXPECT_SOON(zentar.Text(IDC_labNumShots), "Total: 0  (tga=0,  jpg=0,  pcx=0).");
    EXPECT_SOON(IsHere("notes.txt"), true);
    EXPECT_EQ(std::distance(fs::directory_iterator(Shots()), fs::directory_iterator()), 1);
}

class ShotNames : public ShotCommands {
  protected:
    void Rename(const std::string& name) const {
        zentar_->OpenForm(VK_F2, "Rename Screenshot");
        zentar_->AnswerInputBox("Rename Screenshot", name);
    }
};

TEST_F(ShotNames, RenamingTakesThePreviewAlongAndKeepsThePicture) {
    const ZentarDriver& zentar = Open();
    View("quake00.tga", 0);
    const HWND box = zentar.OpenForm(VK_F2, "Rename Screenshot");
    Lines texts;
    for (const HWND control : Descendants(box)) {
        texts.push_back(TextOf(control));
    }
    EXPECT_EQ(texts, (Lines{"Enter new name for \"quake00\".\r\n\r\n(Do not type the extension).",
                            "quake00", "OK", "Cancel"}));
    zentar.AnswerInputBox("Rename Screenshot", "größte Halle");
    EXPECT_SOON(zentar.Selected(IDC_lstScreenshots), "größte Halle.tga *");
    EXPECT_SOON(ViewShowsHall(0), true);
    EXPECT_SOON(IsHere("größte Halle.zentar"), true);
    EXPECT_SOON(IsHere("quake00.zentar"), false);
}

TEST_F(ShotNames, NamesThatCannotBeAreRefused) {
    const ZentarDriver& zentar = Open();
    View("quake00.tga", 0);
    const BoxContents illegal = Failure({"Can't rename due to illegal characters.", "",
                                         "Filenames cannot have these characters",
                                         "in them:   \"   \\   /   |   <   >   :   ?   *"});
    Rename("a:b?");
    Answer(illegal, IDOK);
    Answer(illegal, IDOK);
    Rename("quake01");
    Answer(Failure({"Can't rename due to another screenshot having that name.", "",
                    "Please choose another name and try again."}),
           IDOK);
    Rename("con");
    Answer(
        Failure({"Can't rename due to Windows not allowing that name.", "",
                 "It may be too long, or be a name that Windows", "keeps for itself (eg. con)."}),
        IDOK);
    EXPECT_FALSE(zentar.HasBox());
    EXPECT_SOON(IsHere("quake00.tga"), true);
    EXPECT_SOON(fs::file_size(Shots() / "quake01.tga"), 18U + 1024 * 768 * 3);
}

TEST_F(ShotCommands, CopiesWithoutAskingAndMovesOnOneDrive) {
    const ZentarDriver& zentar = Open();
    const std::string bytes = ReadBytes(Shots() / "quake00.tga");
    const fs::path there = home_.Remote() / "quake00.tga";
    Choose("quake00.tga", IDM_mnuScreenshotCopy);
    EXPECT_SOON(ReadBytes(there) == bytes, true);
    zentar.Settle();
    MakeReadOnly(there);
    Choose("quake00.tga", IDM_mnuScreenshotMove);
    Answer(Question({"Really move this image to this folder?", FolderText(home_.Remote())}), IDYES);
    Answer(Question({"Image already exists in Remote Folder -- Overwrite?"}), IDYES);
    Answer(
        FailureWithQuestion({"Can't overwrite existing image due to it being read-only.",
                             "Would you like me to remove this setting to force the overwrite?"}),
        IDYES);
    EXPECT_SOON(IsHere("quake00.tga"), false);
    EXPECT_SOON(ReadBytes(there) == bytes, true);
    EXPECT_SOON(IsHere("quake00.zentar"), true);
    EXPECT_SOON(zentar.Text(IDC_labNumShots), "Total: 7  (tga=4,  jpg=1,  pcx=2).");
}

TEST_F(ShotCommands, AMoveToAnotherDriveLeavesTheOriginal) {
    const SecondDrive drive(home_.Remote());
    const ZentarDriver& zentar = Open({"Expert=1", "Remote=" + drive.Root()});
    Choose("quake00.tga", IDM_mnuScreenshotMove);
    EXPECT_SOON(fs::exists(home_.Remote() / "quake00.tga"), true);
    zentar.Settle();
    EXPECT_TRUE(ReadBytes(home_.Remote() / "quake00.tga") == ReadBytes(Shots() / "quake00.tga"));
    EXPECT_EQ(std::distance(fs::directory_iterator(home_.Remote()), fs::directory_iterator()), 1);
}

}  // namespace
}  // namespace zentar::window_tests
