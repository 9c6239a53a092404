// A game in a folder whose path has 200 characters, of several alphabets.
#include <gtest/gtest.h>

#include "platform/win32/win32_text.h"
#include "tests/window/screen_picture.h"
#include "tests/window/shots_fixture.h"
#include "tests/window/user_input.h"
#include "tests/window/waiting.h"
#include "tests/window/windows_of.h"
#include "ui/resource.h"

namespace zentar::window_tests {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kPathLength = 200;

class LongFolder : public ShotsWindowTest {
  protected:
    LongFolder() : game_(home_.Games() / Widen("Größe und дуэль ")) {
        game_ += std::wstring(kPathLength - game_.native().size(), L'x');
        fs::rename(home_.Games() / "Quake2", game_);
    }

    ZentarDriver& Open(int tab, const IniLines& more = {}) {
        IniLines settings = more;
        settings.push_back("Q2Folder=" + FolderText(game_));
        return CommandsTest::Open(tab, settings);
    }

    fs::path Shot(const std::string& name) const {
        return game_ / "baseq2" / "scrnshot" / Widen(name);
    }
    fs::path Demo(const std::string& name) const {
        return game_ / "baseq2" / "demos" / Widen(name + ".dm2");
    }

    void Rename(const std::string& title, const std::string& name) const {
        zentar_->OpenForm(VK_F2, title);
        zentar_->AnswerInputBox(title, name);
    }

    fs::path game_;
};

TEST_F(LongFolder, ItsShotsAreShownConvertedRenamedAndDeleted) {
    const ZentarDriver& zentar = Open(kShotsTab, {"Expert=1"});
    EXPECT_EQ(game_.native().size(), kPathLength);
    EXPECT_SOON(zentar.Items(IDC_lstScreenshots),
                (Lines{"broken.tga", "Größe.tga", "quake00.tga", "quake01.tga", "QUAKE02.PCX",
                       "quake03.jpg", "wide.tga", "выстрел.pcx"}));
    View("выстрел.pcx", 4);
    EXPECT_SOON(fs::exists(Shot("выстрел.zentar")), true);
    View("Größe.tga", 3);
    Choose("Größe.tga", IDM_mnuScreenshotMakeJPEGOnly);
    AnswerBox(zentar.WaitForBox("Done"), IDOK);
    EXPECT_SOON(zentar.Selected(IDC_lstScreenshots), "Größe.jpg *");
    EXPECT_SOON(ReadBytes(Shot("Größe.jpg")).starts_with("\xFF\xD8\xFF"), true);
    Rename("Rename Screenshot", "выше");
    EXPECT_SOON(zentar.Selected(IDC_lstScreenshots), "выше.jpg *");
    EXPECT_SOON(fs::exists(Shot("выше.jpg")), true);
    zentar.Settle();
    EXPECT_TRUE(TakesPicture(zentar.Main(), "long folder"));
    zentar.PressKey(VK_DELETE);
    EXPECT_SOON(fs::exists(Shot("выше.jpg")), false);
    EXPECT_SOON(zentar.Text(IDC_labNumShots), "Total: 8  (tga=5,  jpg=1,  pcx=2).");
}

TEST_F(LongFolder, ItsDemosAreReadRenamedAndDeleted) {
    const ZentarDriver& zentar = Open(kDemosTab, {"Expert=1"});
    EXPECT_SOON(zentar.Text(IDC_labNumDemos), "Total listed: 8 of 8.");
    zentar.ClickItem(IDC_lstDemos, "дуэль");
    EXPECT_SOON(zentar.Text(IDC_labDemoName), "Name: Warehouse");
    Rename("Rename Demo", "Größe дуэли");
    EXPECT_SOON(zentar.Selected(IDC_lstDemos), "Größe дуэли");
    EXPECT_SOON(fs::exists(Demo("Größe дуэли")), true);
    EXPECT_SOON(fs::exists(Demo("дуэль")), false);
    zentar.PressKey(VK_DELETE);
    EXPECT_SOON(fs::exists(Demo("Größe дуэли")), false);
    EXPECT_SOON(zentar.Text(IDC_labNumDemos), "Total listed: 7 of 7.");
}

TEST_F(LongFolder, ItAndItsModsAreNamedInFull) {
    fs::create_directories(game_ / Widen("für ctf") / "demos");
    fs::create_directories(game_ / Widen("дуэли") / "demos");
    fs::copy_file(Demo("edge final"), game_ / Widen("дуэли") / "demos" / Widen("матч.dm2"));
    const ZentarDriver& zentar = Open(kDemosTab);
    EXPECT_SOON(zentar.Items(IDC_lstMods),
                (Lines{"baseq2", "ctf", "docs2", "für ctf", "lithium", "rocket arena", "дуэли"}));
    zentar.ClickItem(IDC_lstMods, "дуэли");
    EXPECT_SOON(zentar.Items(IDC_lstDemos), Lines{"матч"});
    zentar.ClickItem(IDC_lstDemos, "матч");
    EXPECT_SOON(zentar.Text(IDC_labDemoName), "Name: The Edge");
    zentar.OpenMenuEntry('G', 'C');
    const HWND box = zentar.WaitForBox("Current Folders");
    EXPECT_NE(zentar.Read(box).text.find("Quake 2\t   " + FolderText(game_)), std::string::npos);
    RECT area{};
    GetWindowRect(box, &area);
    EXPECT_GE(area.left, 0);
    EXPECT_LE(area.right, GetSystemMetrics(SM_CXSCREEN));
    zentar.Settle();
    EXPECT_TRUE(TakesPicture(box, "long folder in a box"));
    AnswerBox(box, IDOK);
}

}  // namespace
}  // namespace zentar::window_tests
