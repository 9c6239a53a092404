// The First Aid tab.
#include <gtest/gtest.h>

#include "firstaid/symptoms.h"
#include "tests/window/commands_fixture.h"
#include "tests/window/notepad.h"
#include "tests/window/user_input.h"
#include "tests/window/waiting.h"
#include "tests/window/windows_of.h"
#include "ui/resource.h"

namespace zentar::window_tests {
namespace {

namespace fs = std::filesystem;

class FirstAid : public CommandsTest {
  protected:
    ZentarDriver& Open(const IniLines& settings = {}) {
        return CommandsTest::Open(kFirstAidTab, settings);
    }
    void Pick(Symptom symptom) const {
        zentar_->ClickItem(IDC_lstSymptoms,
                           std::string(SymptomTexts()[static_cast<std::size_t>(symptom)]));
    }
    void Apply(Symptom symptom) const {
        Pick(symptom);
        EXPECT_SOON(zentar_->Usable(IDC_cmdRemedy1), true);
        zentar_->ClickOn(IDC_cmdRemedy1);
        zentar_->Settle();
    }
    std::string Buttons() const {
        return std::string(zentar_->Usable(IDC_cmdRemedy1) ? "1" : "-") +
               (zentar_->Usable(IDC_cmdRemedy2) ? "2" : "-");
    }
    fs::path Quake2() const { return home_.Games() / "Quake2"; }
};

TEST_F(FirstAid, TheSymptomsAreListedAndNoneIsShown) {
    const ZentarDriver& zentar = Open();
    EXPECT_SOON(zentar.Items(IDC_lstSymptoms), Lines(SymptomTexts().begin(), SymptomTexts().end()));
    EXPECT_SOON(zentar.Text(IDC_txtRemedy), "");
    EXPECT_SOON(Buttons(), "--");
}

TEST_F(FirstAid, EachSymptomShowsItsRemedy) {
    const ZentarDriver& zentar = Open();
    const std::string expected[] = {"1-", "--", "--", "12", "1-", "--", "1-", "1-",
                                    "1-", "--", "1-", "1-", "1-", "1-", "--", "1-"};
    for (std::size_t i = 0; i < kSymptomCount; ++i) {
        const auto symptom = static_cast<Symptom>(i);
        SymptomSituation situation;
        situation.game = "Quake2";
        situation.base = " \"baseq2\"";
        Pick(symptom);
        EXPECT_SOON(zentar.Text(IDC_txtRemedy), RemedyText(symptom, situation));
        EXPECT_SOON(Buttons(), expected[i]) << i;
    }
}

TEST_F(FirstAid, AnAutoexecIsMadeAndLaterOpened) {
    const ZentarDriver& zentar = Open();
    Apply(Symptom::SettingsNotSaved);
    const fs::path autoexec = Quake2() / "baseq2" / "autoexec.cfg";
    EXPECT_SOON(fs::exists(autoexec), true);
    const std::string made = ReadBytes(autoexec);
    EXPECT_EQ(made.find("// Quake2 AutoExec Config by Zentar v0.99 BETA\r\n"), 0U);
    zentar.ClickOn(IDC_cmdRemedy1);
    Answer(
        {.title = "Error",
         .text = BoxLines({"Your Quake2 \"baseq2\" folder already has an \"autoexec.cfg\" file!",
                           "", "As such, please edit this file with your custom commands and they",
                           "will be kept and not destroyed from game to game.  Would you like",
                           "to edit this file right now?"}),
         .icon = BoxIcon::Question,
         .buttons = {IDYES, IDNO},
         .defaultButton = IDNO},
        IDYES);
    EXPECT_EQ(CloseNotepad("autoexec").text, made);
    EXPECT_SOON(ReadBytes(autoexec), made);
}

TEST_F(FirstAid, AMessageIsWipedOutOfTheExecutable) {
    const ZentarDriver& zentar = Open();
    const fs::path game = Quake2() / "quake2.exe";
    const std::string before = std::string(500'000, '.') + "execing %s\n" + ReadBytes(game);
    WriteBytes(game, before);
    std::string after = before;
    after.replace(499'999, 12, 12, '\0');
    Apply(Symptom::ExecingMessages);
    EXPECT_SOON(ReadBytes(game) == after, true);
    MakeReadOnly(game);
    Apply(Symptom::SoundBufferMessages);  // not in it, so there is nothing to write
    EXPECT_FALSE(zentar.HasBox());
    SetFileAttributesW(game.c_str(), FILE_ATTRIBUTE_NORMAL);
    WriteBytes(game, before);
    MakeReadOnly(game);
    Apply(Symptom::ExecingMessages);
    Answer(Failure({"The game's executable couldn't be changed.", "",
                    "The game may be running, or the file may be write-protected."}),
           IDOK);
    EXPECT_SOON(ReadBytes(game) == before, true);
}

TEST_F(FirstAid, TheDriverIsSetAsideAndPutBack) {
    const ZentarDriver& zentar = Open();
    const fs::path driver = Quake2() / "opengl32.dll";
    const fs::path setAside = Quake2() / "opengl32.zentar";
    WriteBytes(driver, "driver");
    Apply(Symptom::SoftwareMode);
    EXPECT_SOON(Buttons(), "-2");
    EXPECT_SOON(ReadBytes(setAside), "driver");
    EXPECT_SOON(fs::exists(driver), false);
    zentar.ClickOn(IDC_cmdRemedy2);
    EXPECT_SOON(Buttons(), "1-");
    EXPECT_SOON(ReadBytes(driver), "driver");
    EXPECT_SOON(fs::exists(setAside), false);
    WriteBytes(setAside, "another");
    Pick(Symptom::DemosPlayBadly);
    Pick(Symptom::SoftwareMode);
    EXPECT_SOON(Buttons(), "--");
}

TEST_F(FirstAid, StraysAndScreenshotFolders) {
    Open({"Game=Quake1"});
    const fs::path players = Quake2() / "baseq2" / "players";
    fs::create_directories(players / "male");
    WriteBytes(players / "male" / "tris.md2", "model");
    WriteBytes(players / L"дуэль.pcx", "stray");
    Apply(Symptom::CrashOnModelChange);
    EXPECT_SOON(fs::exists(players / L"дуэль.pcx"), false);
    EXPECT_SOON(ReadBytes(Quake2() / "Zentar Strays" / L"дуэль.pcx"), "stray");
    EXPECT_SOON(ReadBytes(players / "male" / "tris.md2"), "model");
    Apply(Symptom::CrashOnScreenshot);
    EXPECT_SOON(fs::is_directory(Quake2() / "Rocket Arena" / "scrnshot"), true);
    EXPECT_SOON(fs::exists(Quake2() / "Zentar Strays" / "scrnshot"), false);
}

TEST_F(FirstAid, AVersionMismatchBringsQuake3) {
    const ZentarDriver& zentar = Open();
    Apply(Symptom::UnknownToAuth);
    EXPECT_SOON(zentar.Checked(IDC_optGameQuake3), true);
    EXPECT_SOON(zentar.Selected(IDC_lstSymptoms), "");
    EXPECT_SOON(Buttons(), "--");
}

TEST_F(FirstAid, TheLogitechBoxTakesZeroOrOneOnly) {
    const ZentarDriver& zentar = Open();
    Pick(Symptom::MousewheelDead);
    const auto answer = [&](const std::string& text) {
        zentar.ClickOn(IDC_cmdRemedy2);
        zentar.AnswerInputBox("Change Logitech Setting", text);
    };
    for (const char* wrong : {"2", " 1", "01"}) {
        answer(wrong);
        EXPECT_FALSE(zentar.HasBox());
    }
    answer("1");
    Answer({.title = "Change Logitech Setting",
            .text = BoxLines({"The change has been successfully made!", "",
                              "However, a reboot is required for it to take effect.",
                              "Would you like to reboot your system right now?"}),
            .icon = BoxIcon::Question,
            .buttons = {IDYES, IDNO},
            .defaultButton = IDNO},
           IDNO);
    zentar.ClickOn(IDC_cmdRemedy2);
    const HWND box = zentar.WaitForForm("Change Logitech Setting");
    bool found = false;
    for (const HWND child : Descendants(box)) {
        found = found || TextOf(child).find("(currently set to 1):") != std::string::npos;
    }
    EXPECT_TRUE(found);
    zentar_->LeaveBy(VK_ESCAPE, box);
}

TEST_F(FirstAid, TheRegistryOfQuake3IsRestored) {
    Open();
    Apply(Symptom::TeamArenaInstallation);
    const auto value = [](const wchar_t* name) {
        wchar_t text[600] = {};
        DWORD bytes = sizeof text;
        RegGetValueW(HKEY_LOCAL_MACHINE, L"Software\\Id\\Quake III Arena", name,
                     RRF_RT_REG_SZ | RRF_SUBKEY_WOW6432KEY, nullptr, text, &bytes);
        return std::wstring(text);
    };
    const std::wstring folder = (home_.Games() / "Quake3").wstring() + L"\\";
    EXPECT_SOON(value(L"INSTALLPATH") == folder, true);
    EXPECT_SOON(value(L"CD") == L"D:\\setup\\", true);
    EXPECT_SOON(value(L"INSTALLEXEPATH") == folder + L"quake3.exe", true);
}

}  // namespace
}  // namespace zentar::window_tests
