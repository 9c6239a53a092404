// Preferences, About and tooltips.
#include <gtest/gtest.h>

#include "tests/window/user_input.h"
#include "tests/window/waiting.h"
#include "tests/window/windows_of.h"
#include "tests/window/zentar_driver.h"
#include "ui/resource.h"

namespace zentar::window_tests {
namespace {

class Dialogs : public testing::Test {
  protected:
    HWND OpenPreferences(const IniLines& settings = {}) {
        home_.WriteIni(settings);
        zentar_ = std::make_unique<ZentarDriver>(home_);
        zentar_->OpenMenuEntry('P', 'P');
        const HWND preferences = zentar_->WaitForForm("Preferences");
        zentar_->Settle();
        return preferences;
    }

    // Closes the dialog and the program; gives the settings that were saved.
    std::string CloseBoth(HWND preferences) {
        PostMessageW(preferences, WM_CLOSE, 0, 0);
        zentar_->WaitUntilLeft(preferences);
        EXPECT_EQ(zentar_->Close(), 0);
        return ReadBytes(home_.Ini());
    }

    ZentarHome home_;
    std::unique_ptr<ZentarDriver> zentar_;
};

BoxContents ExpertWarning() {
    return {.title = "Confirm",
            .text = BoxLines({"WARNING: You are now switching to Expert Mode!", "",
                              "This means that your actions will NOT be confirmed",
                              "under ANY circumstances!  Are you sure about this?"}),
            .icon = BoxIcon::Exclamation,
            .buttons = {IDYES, IDNO},
            .defaultButton = IDNO};
}

TEST_F(Dialogs, ExpertModeIsOnlyOnAfterYes) {
    const HWND preferences = OpenPreferences();
    const HWND expert = FindControl(preferences, IDC_chkExpert);
    zentar_->ClickIn(preferences, IDC_chkExpert);
    HWND box = zentar_->WaitForBox("Confirm");
    EXPECT_EQ(zentar_->Read(box), ExpertWarning());
    AnswerBox(box, IDNO);
    EXPECT_SOON(IsChecked(expert), false);
    zentar_->ClickIn(preferences, IDC_chkExpert);
    AnswerBox(zentar_->WaitForBox("Confirm"), IDYES);
    EXPECT_SOON(IsChecked(expert), true);
    EXPECT_NE(CloseBoth(preferences).find("\r\nExpert=1\r\n"), std::string::npos);
}

TEST_F(Dialogs, ExpertModeThatIsOnShowsTickedWithoutAWarning) {
    const HWND preferences = OpenPreferences({"Expert=1"});
    EXPECT_SOON(IsChecked(FindControl(preferences, IDC_chkExpert)), true);
    EXPECT_FALSE(zentar_->HasBox());
    zentar_->ClickIn(preferences, IDC_chkExpert);
    EXPECT_SOON(IsChecked(FindControl(preferences, IDC_chkExpert)), false);
    EXPECT_FALSE(zentar_->HasBox());
    EXPECT_NE(CloseBoth(preferences).find("\r\nExpert=0\r\n"), std::string::npos);
}

TEST_F(Dialogs, TheOtherPreferencesAreSaved) {
    const HWND preferences = OpenPreferences();
    EXPECT_SOON(IsChecked(FindControl(preferences, IDC_chkAutoShowAll)), true);
    for (const int id : {IDC_chkAutoShowAll, IDC_chkAutoNextShot, IDC_chkAutoNextDemo}) {
        zentar_->ClickIn(preferences, id);
    }
    EXPECT_SOON(IsChecked(FindControl(preferences, IDC_chkAutoNextDemo)), true);
    EXPECT_NE(CloseBoth(preferences).find("\r\nAutoShowAll=0\r\nAutoNextShot=1\r\nAutoNextDemo=1"),
              std::string::npos);
}

TEST_F(Dialogs, TheRemoteFolderIsTakenAsTyped) {
    const HWND preferences = OpenPreferences();
    const HWND remote = FindControl(preferences, IDC_txtRemote);
    EXPECT_SOON(TextOf(remote), FolderText(home_.Remote()));
    TypeOver(remote, "D:\\Größe");
    EXPECT_SOON(TextOf(remote), "D:\\Größe");
    EXPECT_NE(CloseBoth(preferences).find("\r\nRemote=D:\\Größe\r\n"), std::string::npos);
}

TEST_F(Dialogs, CancellingTheRemoteFolderPickerChangesNothing) {
    const HWND preferences = OpenPreferences();
    zentar_->ClickIn(preferences, IDC_cmdRemote);
    AnswerBox(zentar_->WaitForPicker("Please specify a folder to be the Remote Folder:"), IDCANCEL);
    EXPECT_SOON(TextOf(FindControl(preferences, IDC_txtRemote)), FolderText(home_.Remote()));
}

TEST_F(Dialogs, APickedRemoteFolderGetsItsBackslash) {
    const std::filesystem::path folder = home_.Remote() / "Best of";
    std::filesystem::create_directories(folder);
    const HWND preferences = OpenPreferences();
    zentar_->ClickIn(preferences, IDC_cmdRemote);
    zentar_->PickFolder("Please specify a folder to be the Remote Folder:", folder);
    EXPECT_SOON(TextOf(FindControl(preferences, IDC_txtRemote)), FolderText(folder));
    EXPECT_NE(CloseBoth(preferences).find("\r\nRemote=" + FolderText(folder) + "\r\n"),
              std::string::npos);
}

TEST_F(Dialogs, EscapeClosesThePreferences) {
    const HWND preferences = OpenPreferences();
    zentar_->LeaveBy(VK_ESCAPE, preferences);
    EXPECT_SOON(IsWindowEnabled(zentar_->Main()) != FALSE, true);
}

// As when the folder picker was closed with it.
TEST_F(Dialogs, EscapeThatIsHeldDownClosesOneWindowOnly) {
    const HWND preferences = OpenPreferences();
    zentar_->RepeatKey(VK_ESCAPE);
    EXPECT_NE(IsWindowVisible(preferences), FALSE);
    zentar_->LeaveBy(VK_ESCAPE, preferences);
}

TEST_F(Dialogs, ThePreferencesKeepTheMainWindowWaiting) {
    OpenPreferences();
    EXPECT_SOON(IsWindowEnabled(zentar_->Main()), FALSE);
}

TEST_F(Dialogs, AboutNamesTheVersion) {
    home_.WriteIni();
    const ZentarDriver zentar(home_);
    zentar.OpenMenuEntry('H', 'A');
    const HWND box = zentar.WaitForBox("About Zentar");
    const BoxContents about = zentar.Read(box);
    EXPECT_EQ(about.text.rfind("Zentar v0.99 BETA\r\n\r\n", 0), 0U);
    EXPECT_EQ(about.icon, BoxIcon::Information);
    EXPECT_EQ(about.buttons, std::vector<int>{IDOK});
    AnswerBox(box, IDOK);
    EXPECT_FALSE(zentar.HasBox());
}

TEST_F(Dialogs, ATooltipExplainsAControl) {
    home_.WriteIni();
    const ZentarDriver zentar(home_);
    const POINT place = CentreOf(zentar.Control(IDC_optGameQuake1));
    const HWND tip = Eventually([&] {
        MovePointer({place.x + 3, place.y});
        MovePointer(place);
        return Eventually([&] { return FindTop(zentar.Process(), kTooltipClass); },
                          kBeforeTryingAgain);
    });
    ASSERT_NE(tip, nullptr);
    EXPECT_SOON(TextOf(tip), "Click here to select Quake1 as the current game.");
}

}  // namespace
}  // namespace zentar::window_tests
