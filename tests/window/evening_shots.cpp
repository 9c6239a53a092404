// An evening: the Shots tab.
#include "tests/window/evening_fixture.h"
#include "tests/window/image_library_file.h"
#include "tests/window/user_input.h"
#include "tests/window/waiting.h"
#include "tests/window/windows_of.h"
#include "ui/resource.h"

namespace zentar::window_tests {
namespace {

namespace fs = std::filesystem;

const std::string kFullView = "Zentar - Screenshot";

const std::string& ShotsOfQuake2() { return EveningQuake2().shots; }

}  // namespace

// Previews come with each shot that is shown; the sweeps take them, too.
void EveningTest::Screenshots() {
    zentar_->ShowTab(kShotsTab);
    ClickOn(IDC_optModePreview);
    ClickOn(IDC_optModeReal);
    for (const EveningGame& game : EveningGames()) {
        if (!game.shot.empty()) {
            PlayWithShots(game);
        }
    }
    SwitchTo(EveningQuake2());
    ShotCommand("quake00.tga", IDM_mnuScreenshotShowFull);
    zentar_->LeaveBy(VK_ESCAPE, zentar_->WaitForForm(kFullView));
    ShotCommand("quake00.tga", IDM_mnuScreenshotProperties);
    AnswerNext("quake00.tga", IDOK);
    ConvertShots();
    SetWallpaper();
    TransferShots();
    SweepShots();
}

// ---- by the keys of the list, and the menu for the rest ----

void EveningTest::PlayWithShots(const EveningGame& game) {
    SwitchTo(game);
    ViewAndConvert(game);
    SelectShot(game.otherShot);
    const std::string name = "renamed " + Number();
    const std::string renamed = name + game.otherShot.substr(game.otherShot.rfind('.'));
    RenameByKey("Rename Screenshot", name);
    EXPECT_SOON(Stands(game.shots + renamed), true);
    Moves(game.shots + game.otherShot, game.shots + renamed);
    MoveShot(game, renamed);
    CopyShot(game, game.shot);
    zentar_->PressKey(VK_F5);
    // What was moved has left its preview.
    ShotCommand(game.shot, IDM_mnuScreenshotDeleteAllPreview);
    Confirm();
    EXPECT_SOON(Stands(game.shots + name + ".zentar"), false);
    SelectShot(game.shot);
    zentar_->PressKey(VK_BACK);
    Confirm();
    EXPECT_SOON(Stands(game.shots + game.shot), false);
    Goes(game.shots + game.shot);
}

void EveningTest::ViewAndConvert(const EveningGame& game) {
    ShotCommand(game.shot, IDM_mnuScreenshotProperties);
    AnswerNext(game.shot, IDOK);
    SelectShot(game.shot);
    OpenMenuOf(IDC_lstScreenshots);
    zentar_->LeaveBy(VK_SPACE, zentar_->OpenForm(VK_RETURN, kFullView));
    ClickOn(IDC_imgShotView);
    const HWND full = zentar_->WaitForForm(kFullView);
    Click(CentreOf(full), MouseButton::Right);
    zentar_->WaitUntilLeft(full);
    ShotCommand(game.shot, IDM_mnuScreenshotMakeJPEGOnly);
    AnswerNext("Done", IDOK);
    const std::string jpg = game.shot.substr(0, game.shot.rfind('.')) + ".jpg";
    ExpectJpg(game.shots + jpg);
    SelectShot(jpg);
    zentar_->PressKey(VK_DELETE);
    Confirm();
    EXPECT_SOON(Stands(game.shots + jpg), false);
}

// Its bytes only whoever makes it knows. None outlives the evening.
void EveningTest::ExpectJpg(const std::string& path) {
    const std::string bytes = ReadBytes(At(path));
    EXPECT_TRUE(bytes.starts_with("\xFF\xD8\xFF") && bytes.ends_with("\xFF\xD9")) << path;
}

void EveningTest::CopyShot(const EveningGame& game, const std::string& shot) {
    ShotCommand(shot, IDM_mnuScreenshotCopy);
    AgreeToReplace(shot);
    EXPECT_SOON(Stands("Remote/" + shot), true);
    expected_["Remote/" + shot] = expected_.at(game.shots + shot);
}

void EveningTest::MoveShot(const EveningGame& game, const std::string& shot) {
    ShotCommand(shot, IDM_mnuScreenshotMove);
    Confirm();
    AgreeToReplace(shot);
    EXPECT_SOON(Stands(game.shots + shot), false);
    Moves(game.shots + shot, "Remote/" + shot);
}

void EveningTest::SelectShot(const std::string& shot) {
    ClickShot(shot);
    EXPECT_SOON(zentar_->Selected(IDC_lstScreenshots), shot + " *");
    zentar_->Settle();
}

// ---- all commands of the menu ----

void EveningTest::ConvertShots() {
    ShotCommand("quake00.tga", IDM_mnuScreenshotMakeJPEGOnly);
    AnswerNext("Done", IDOK);
    ExpectJpg(ShotsOfQuake2() + "quake00.jpg");
    ShotCommand("quake01.tga", IDM_mnuScreenshotMakeJPEGAndKill);
    Confirm();
    AnswerNext("Done", IDOK);
    Goes(ShotsOfQuake2() + "quake01.tga");
    ExpectJpg(ShotsOfQuake2() + "quake01.jpg");
}

// The picture is 640 x 480, three bytes a pixel behind two headers.
void EveningTest::SetWallpaper() {
    const fs::path file = WindowsFolder() / "[Zentar] quake00.bmp";
    ShotCommand("quake00.tga", IDM_mnuScreenshotSetWallpaper);
    EXPECT_SOON(fs::exists(file), true);
    zentar_->Settle();
    const std::string bitmap = ReadBytes(file);
    EXPECT_EQ(bitmap.size(), 54U + 640 * 480 * 3);
    EXPECT_TRUE(bitmap.starts_with("BM"));
    ShotCommand("quake00.tga", IDM_mnuScreenshotDeleteAllWallpaper);
    Confirm();
    EXPECT_SOON(fs::exists(file), false);
}

void EveningTest::TransferShots() {
    CopyShot(EveningQuake2(), "wide.tga");
    MoveShot(EveningQuake2(), "выстрел.pcx");
    ShotCommand("Größe.tga", IDM_mnuScreenshotRename);
    Rename("Rename Screenshot", "umbenannt " + Number());
    EXPECT_SOON(IsHere("umbenannt " + Number() + ".tga"), true);
    Moves(ShotsOfQuake2() + "Größe.tga", ShotsOfQuake2() + "umbenannt " + Number() + ".tga");
}

void EveningTest::SweepShots() {
    const auto sweep = [this](int command) {
        ShotCommand("broken.tga", command);
        Confirm();
    };
    View("wide.tga", 5);
    ShotCommand("wide.tga", IDM_mnuScreenshotDeletePreview);
    Confirm();
    EXPECT_SOON(IsHere("wide.zentar"), false);
    ShotCommand("wide.tga", IDM_mnuScreenshotDelete);
    Confirm();
    EXPECT_SOON(IsHere("wide.tga"), false);
    Goes(ShotsOfQuake2() + "wide.tga");
    ShotCommand("broken.tga", IDM_mnuScreenshotRefresh);
    sweep(IDM_mnuScreenshotDeleteAllPreview);
    EXPECT_SOON(IsHere("quake00.zentar"), false);
    sweep(IDM_mnuScreenshotDeleteAllJPG);
    for (const char* shot : {"quake00.jpg", "quake01.jpg", "quake03.jpg"}) {
        EXPECT_SOON(IsHere(shot), false);
    }
    Goes(ShotsOfQuake2() + "quake03.jpg");
    sweep(IDM_mnuScreenshotDeleteAllPCX);
    EXPECT_SOON(IsHere("QUAKE02.PCX"), false);
    Goes(ShotsOfQuake2() + "QUAKE02.PCX");
    sweep(IDM_mnuScreenshotDeleteAllTGA);
    for (const std::string& shot : {std::string("quake00.tga"), std::string("broken.tga"),
                                    "umbenannt " + Number() + ".tga"}) {
        EXPECT_SOON(IsHere(shot), false);
        Goes(ShotsOfQuake2() + shot);
    }
    EXPECT_SOON(zentar_->Text(IDC_labNumShots), "Total: 0  (tga=0,  jpg=0,  pcx=0).");
    // The last sweep is for a folder with one shot, and its preview.
    WriteBytes(Shots() / "quake00.tga", firstDay_.at(ShotsOfQuake2() + "quake00.tga"));
    zentar_->ClickOn(IDC_optModePreview);
    zentar_->ClickOn(IDC_optModeReal);
    View("quake00.tga", 0);
    ShotCommand("quake00.tga", IDM_mnuScreenshotDeleteAll);
    Confirm();
    EXPECT_SOON(IsHere("quake00.zentar"), false);
}

}  // namespace zentar::window_tests
