// The pictures that the README shows, of a well filled game: "readme shots" becomes shots.png in
// docs/pictures, and so on.
#include <gtest/gtest.h>

#include <array>

#include "platform/win32/win32_text.h"
#include "samples/demo_maker.h"
#include "samples/shot_maker.h"
#include "tests/window/screen_picture.h"
#include "tests/window/user_input.h"
#include "tests/window/waiting.h"
#include "tests/window/windows_of.h"
#include "tests/window/zentar_driver.h"
#include "ui/resource.h"

namespace zentar::window_tests {
namespace {

namespace fs = std::filesystem;

struct Match {
    const char* demo;
    const char* map;
    const char* level;
};

constexpr std::array<Match, 21> kMatches{{
    {"2v2 Fred+Bob vs Anna+Max", "q2dm1", "The Edge"},
    {"Anna - rail only", "q2dm2", "Tokay's Towers"},
    {"clan war, first map", "q2dm3", "The Frag Pipe"},
    {"clan war, second map", "q2dm7", "The Slimy Place"},
    {"clan war, third map", "q2dm8", "Warehouse"},
    {"cup final", "q2dm1", "The Edge"},
    {"cup semi-final", "q2dm5", "The Pits"},
    {"duel Fred vs Bob", "q2dm1", "The Edge"},
    {"duel Fred vs Max", "q2dm6", "Lava Tomb"},
    {"Endspiel", "q2dm4", "Lost Hallways"},
    {"ffa Friday", "q2dm8", "Warehouse"},
    {"ffa Sunday", "q2dm3", "The Frag Pipe"},
    {"frag of the year", "q2dm1", "The Edge"},
    {"ladder round 1", "q2dm5", "The Pits"},
    {"ladder round 2", "q2dm7", "The Slimy Place"},
    {"Max finds the secret", "q2dm4", "Lost Hallways"},
    {"party at Bob's", "q2dm8", "Warehouse"},
    {"speedrun base1", "base1", "Outer Base"},
    {"speedrun city1", "city1", "Outer Courts"},
    {"team deathmatch", "q2dm2", "Tokay's Towers"},
    {"Überraschung", "q2dm3", "The Frag Pipe"},
}};

constexpr std::array<const char*, 18> kShots{
    "arena at night", "cup final 1", "cup final 2", "cup final 3", "first frag", "Fred on top",
    "great hall",     "lava jump",   "lift",        "main hall",   "red gate",   "score board",
    "secret door",    "the edge",    "the pits",    "towers",      "warehouse",  "water cave"};

const std::string kDesign =
    R"({\rtf1\ansi{\colortbl;\red255\green0\blue0;\red255\green255\blue0;)"
    R"(\red255\green255\blue255;\red0\green255\blue0;\red0\green255\blue255;)"
    R"(\red0\green0\blue255;\red255\green0\blue255;}[\cf1 E\cf2 m\cf3 ber\cf0 ] )"
    R"(\cf4 the \cf5 quick \cf6 blue \cf7 fox\par})";

void FillGame(const fs::path& game) {
    for (const Match& match : kMatches) {
        const samples::DemoContents contents{
            .map = match.map, .levelName = match.level, .chat = {"Fred: gg"}, .size = 180'000};
        WriteBytes(game / "baseq2" / "demos" / (Widen(match.demo) + L".dm2"),
                   samples::MakeDemo(samples::DemoKind::Dm2, contents));
    }
    const std::string shot = samples::MakeTgaShot({640, 480, 3});
    for (const char* name : kShots) {
        WriteBytes(game / "baseq2" / "scrnshot" / (std::string(name) + ".tga"), shot);
    }
    for (const char* mod : {"action", "jailbreak", "lmctf", "weapons factory"}) {
        fs::create_directories(game / mod / "demos");
    }
}

const IniLines kSettings = {"Remote=C:\\Games\\Remote\\",
                            "TranscriptBackground=12648447",
                            "TranscriptMessages=8388608",
                            "TranscriptGameplay=1",
                            "Player1Name=Fred",
                            "Player1Colour=32768",
                            "Player2Name=Bob <3",
                            "Player2Colour=128",
                            "Player3Name=Fragger",
                            "Player3Colour=8388736",
                            "Player4Name=Anna",
                            "Player4Colour=8388608",
                            "Player5Name=Max",
                            "Player5Colour=16512",
                            "Player6Name=[CP] Rocketeer",
                            "Player7Name=camper42"};

void Take(HWND window, const std::string& name) {
    EXPECT_TRUE(TakesPicture(window, "readme " + name)) << name;
}

void TakeTabs(const ZentarDriver& zentar) {
    zentar.ClickItem(IDC_lstScreenshots, "cup final 2.tga");
    zentar.ClickItem(IDC_lstScreenshots, "main hall.tga");
    Take(zentar.Main(), "shots");
    zentar.ShowTab(kDemosTab);
    zentar.ClickItem(IDC_lstDemos, "cup final");
    EXPECT_SOON(zentar.Text(IDC_labDemoName), "Name: The Edge");
    zentar.Settle();
    Take(zentar.Main(), "demos");
    zentar.ShowTab(kMiscTab);
    Take(zentar.Main(), "misc");
    zentar.ShowTab(kQ3TextTab);
    Take(zentar.Main(), "q3text");
    zentar.ShowTab(kFirstAidTab);
    zentar.ClickItem(IDC_lstSymptoms, "[ALL] Logitech mousewheel binds aren't working.");
    Take(zentar.Main(), "firstaid");
}

void TakeOtherWindows(const ZentarDriver& zentar) {
    const HWND help = zentar.OpenForm(VK_F1, "Zentar Help");
    zentar.Settle();
    zentar.PressKey(VK_DOWN);
    zentar.PressKey(VK_RETURN);
    zentar.Settle();
    Take(help, "help");
    zentar.LeaveBy(VK_ESCAPE, help);
    zentar.OpenMenuEntry('P', 'P');
    const HWND preferences = zentar.WaitForForm("Preferences");
    zentar.Settle();
    Take(preferences, "preferences");
}

TEST(Pictures, ForTheReadme) {
    const ZentarHome home;
    FillGame(home.Games() / "Quake2");
    fs::create_directories(home.Program() / "data" / "q3text");
    WriteBytes(home.Program() / "data" / "q3text" / "current.ini", kDesign);
    home.WriteIni(kSettings);
    const ZentarDriver zentar(home);
    TakeTabs(zentar);
    TakeOtherWindows(zentar);
}

}  // namespace
}  // namespace zentar::window_tests
