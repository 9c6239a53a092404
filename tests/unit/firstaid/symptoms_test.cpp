// What First Aid knows: the list, the texts whole, and which buttons can be clicked.
#include "firstaid/symptoms.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <vector>

namespace zentar {
namespace {

using ::testing::ElementsAre;

SymptomSituation Situation(const std::string& game, const std::string& base) {
    SymptomSituation situation;
    situation.game = game;
    situation.base = base;
    return situation;
}

const SymptomSituation kInQuake2 = Situation("Quake2", " \"baseq2\"");

std::string TextOf(Symptom symptom) { return RemedyText(symptom, kInQuake2); }

TEST(Symptoms, StandInTheListInThisOrder) {
    EXPECT_THAT(
        SymptomTexts(),
        ElementsAre(
            "[ALL] Custom settings are not being saved between games.",
            "[ALL] Demos are not playing back correctly.",
            "[ALL] Freezes or lock-ups occur whenever trying to play online.",
            "[ALL] Logitech mousewheel binds aren't working.",
            "[ALL] Removing \"execing\" messages during gameplay.",
            "[Q1] Startup error: \"A required .DLL file, GLIDE2X.DLL, was not found\".",
            "[Q2] Can't select a custom player model that I've installed.",
            "[Q2] Game crashes or gives an error when changing player models.",
            "[Q2] Game crashes when taking a screenshot.",
            "[Q2] Game starts in software mode even though it's set to hardware.",
            "[Q2] Removing \"Creating DS buffers / ...using primary buffer\" messages.",
            "[Q3] Multiplayer connection error: \"Client_unknown_to_auth\".",
            "[Q3] Multiplayer connection error: \"Server uses protocol version X\".",
            "[Q3] Removing \"Couldn't write X\" messages during gameplay.",
            "[Q3] Startup error: \"GLW_StartOpenGL() - could not load OpenGL subsystem\".",
            "[Q3] Team Arena error: \"Quake III: Team Arena REQUIRES a valid installation...\""));
}

TEST(Symptoms, AreKnownByTheirWholeText) {
    for (std::size_t i = 0; i < kSymptomCount; ++i) {
        const std::string text(SymptomTexts()[i]);
        EXPECT_EQ(SymptomWithText(text), static_cast<Symptom>(i));
        EXPECT_EQ(SymptomWithText(text + " "), std::nullopt);
        EXPECT_EQ(SymptomWithText(text.substr(0, text.size() - 1)), std::nullopt);
    }
    EXPECT_EQ(SymptomWithText(""), std::nullopt);
    EXPECT_EQ(SymptomWithText("[ALL] Am I playing the latest version of this Quake game?"),
              std::nullopt);
}

TEST(RemedyTexts, AboutSettingsNameTheGameAndItsBaseMod) {
    EXPECT_EQ(RemedyText(Symptom::SettingsNotSaved, Situation("Quake3", " \"baseq3\"")),
              "All your current game settings are saved to a special config file by Quake 1/2/3 "
              "but these get overwritten every time you quit the games.  Therefore, to save your "
              "own custom settings, you need to put them in another file called \"autoexec.cfg\"."
              "  This remedy will create a blank \"autoexec.cfg\" file in your Quake3 \"baseq3\" "
              "folder that you can edit with settings to keep.  Don't forget that a copy of this "
              "file must also go into each mod folder of Quake3 (assuming you intend to play "
              "mods).");
}

TEST(RemedyTexts, AboutDemosGiveTheTwoSituations) {
    EXPECT_EQ(
        TextOf(Symptom::DemosPlayBadly),
        "If a demo refuses to play or has items (such as images or sounds) missing during "
        "playback, then it's usually due to one of these two situations:\r\n\r\n"
        "(1) The demo is installed in the wrong mod folder for the Quake game.  For example, a "
        "demo that was recorded in the CTF mod must be in the CTF mod folder to play properly.  "
        "If you are not sure which mod a demo belongs to, then click the \"Misc\" tab and then "
        "the \"Install Demos Into Game\" button.  This puts the demos of a folder into their "
        "correct mod folders, but works only for Quake 2 and Quake 3 because Quake 1 demos do "
        "not record the mod that they were made with.\r\n\r\n"
        "(2) You do not have the correct map installed that the demo was recorded on.  To find "
        "such a map on the Internet, click the \"Demos\" tab, right-click the demo in question "
        "and select \"Search Internet For Map\" from the pop-up menu.");
}

TEST(RemedyTexts, AboutFreezesDependOnTheFirewall) {
    const std::string cause =
        "This is most likely due to you using the firewall program \"ZoneAlarm\" ";
    SymptomSituation situation = Situation("Quake1", " \"id1\"");
    EXPECT_EQ(RemedyText(Symptom::FreezesOnline, situation),
              cause +
                  "but since you don't have it installed then other factors beyond Zentar's help "
                  "are involved.  Sorry!");
    situation.zoneAlarm = true;
    EXPECT_EQ(RemedyText(Symptom::FreezesOnline, situation),
              cause +
                  "and since you have this installed you should press the \"Y\" key when Quake1 "
                  "seems to lock up.  This tells ZoneAlarm that Quake1 is permitted to access the "
                  "Internet and Quake1 will then \"unfreeze\" and continue normally from then on."
                  "  Note that if you modify your Quake1 executable (such as with Zentar) then "
                  "ZoneAlarm will re-prompt you for online permission again because Quake1 is "
                  "thus a \"different\" program.");
}

TEST(RemedyTexts, AboutTheMousewheelTellTheVersionsApart) {
    EXPECT_EQ(TextOf(Symptom::MousewheelDead),
              "This is caused by a default setting in the Logitech drivers.  The remedy depends "
              "on which version of the Logitech drivers you are using:\r\n\r\n"
              "Versions less than 8.4: Fix the problem by opening the Mouse Properties icon of "
              "your Control Panel and changing the third/middle button setting to the \"Middle "
              "Button\" value (click \"Apply Remedy #1\" to open your Mouse Properties icon)."
              "\r\n\r\n"
              "Version 8.4 and higher: A system Registry setting needs to be changed to fix it, "
              "so click \"Apply Remedy #2\" to make the change.  Don't fret: You can later undo "
              "the change by again clicking \"Apply Remedy #2\".");
}

TEST(RemedyTexts, AboutMessagesWarnOfTheChange) {
    const auto warning = [](const std::string& game) {
        return "WARNING: This remedy will irreversibly modify your " + game +
               " game executable, and please read the First Aid item about freezes/lock-ups if "
               "you apply this modification.\r\n\r\n";
    };
    EXPECT_EQ(RemedyText(Symptom::ExecingMessages, Situation("Quake1", " \"id1\"")),
              warning("Quake1") +
                  "This remedy will stop all \"execing\" messages appearing whenever you \"exec\" "
                  "a config from within Quake1.  This can be visually pleasing for a variety of "
                  "reasons.");
    for (const char* game : {"Quake1", "Quake2", "Quake3"}) {
        EXPECT_EQ(RemedyText(Symptom::SoundBufferMessages, Situation(game, "")),
                  warning("Quake2") +
                      "This remedy will stop the annoying \"Creating DS buffer / ...using primary "
                      "buffer\" message pair appearing whenever you give your Quake2 window the "
                      "focus.");
        EXPECT_EQ(RemedyText(Symptom::CouldntWriteMessages, Situation(game, "")),
                  warning("Quake3") +
                      "This remedy will stop the annoying \"Couldn't write X\" message appearing "
                      "whenever you change various in-game options.  Note that X refers to either "
                      "\"baseq3\" or the name of the mod currently being played.");
    }
}

TEST(RemedyTexts, AboutTheDriverAreTheSameForAllGames) {
    for (const Symptom symptom :
         {Symptom::GlideMissing, Symptom::SoftwareMode, Symptom::OpenGLMissing}) {
        EXPECT_EQ(
            TextOf(symptom),
            "This error usually occurs when you have switched from using a Voodoo graphics card "
            "to a non-Voodoo card; however, several other factors could be the cause.  Click "
            "\"Apply Remedy #1\" to let Zentar try to fix the problem (if disabled, it has been "
            "applied), and if this fails then click \"Apply Remedy #2\" to restore the fix back "
            "to normal (whereupon you'll have to contact Tech Support from Quake3's publishers)."
            "\r\n\r\n"
            "NOTE: If both remedy buttons are disabled, then Zentar can't fix the problem at "
            "all.");
    }
}

TEST(RemedyTexts, AboutPlayersAndScreenshotsSayWhatIsWrong) {
    for (const Symptom symptom : {Symptom::ModelNotSelectable, Symptom::CrashOnModelChange}) {
        EXPECT_EQ(TextOf(symptom),
                  "This is caused by having a file (or files) inside your \"players\" folder.  "
                  "Such files must be removed because only folders can exist inside there.  This "
                  "remedy will move any such stray files to a new folder called \"Zentar Strays\" "
                  "inside your Quake2 folder.");
    }
    EXPECT_EQ(TextOf(Symptom::CrashOnScreenshot),
              "This is caused by Quake 2 not having a \"scrnshot\" folder for every mod that you "
              "have installed.  This remedy will have Zentar create such folders for you.");
}

TEST(RemedyTexts, AboutVersionsAndTeamArena) {
    for (const Symptom symptom : {Symptom::UnknownToAuth, Symptom::ProtocolVersion}) {
        EXPECT_EQ(TextOf(symptom),
                  "This error is caused by the server using a different version of Quake 3 to the "
                  "version that you currently have installed.  Usually this means that your "
                  "version of Quake 3 needs updating, so please click \"Apply Remedy #1\" to "
                  "check if a newer version of Quake 3 exists that you may not be aware of.");
    }
    EXPECT_EQ(TextOf(Symptom::TeamArenaInstallation),
              "This error occurs when you try to install Team Arena but you do not have Quake 3 "
              "installed, or the Registry files for Quake 3 are missing (usually due to a "
              "re-install of Windows).  Thus, install Quake 3 if not currently done, or click "
              "\"Apply Remedy #1\" to restore the Quake 3 Registry settings if it is.");
}

TEST(RemedyButtonsTest, DependOnTheSymptom) {
    const std::map<Symptom, RemedyButtons> special = {
        {Symptom::DemosPlayBadly, RemedyButtons::None},
        {Symptom::FreezesOnline, RemedyButtons::None},
        {Symptom::MousewheelDead, RemedyButtons::Both},
        {Symptom::GlideMissing, RemedyButtons::None},
        {Symptom::SoftwareMode, RemedyButtons::None},
        {Symptom::OpenGLMissing, RemedyButtons::None}};
    for (const bool zoneAlarm : {false, true}) {
        SymptomSituation situation = kInQuake2;
        situation.zoneAlarm = zoneAlarm;
        for (std::size_t i = 0; i < kSymptomCount; ++i) {
            const auto symptom = static_cast<Symptom>(i);
            const auto at = special.find(symptom);
            EXPECT_EQ(ButtonsFor(symptom, situation),
                      at == special.end() ? RemedyButtons::First : at->second)
                << i;
        }
    }
}

TEST(RemedyButtonsTest, OfTheDriverDependOnTheFiles) {
    for (const Symptom symptom :
         {Symptom::GlideMissing, Symptom::SoftwareMode, Symptom::OpenGLMissing}) {
        const auto buttons = [symptom](bool stands, bool setAside) {
            SymptomSituation situation = kInQuake2;
            situation.driverStands = stands;
            situation.driverIsSetAside = setAside;
            return ButtonsFor(symptom, situation);
        };
        EXPECT_EQ(buttons(true, false), RemedyButtons::First);
        EXPECT_EQ(buttons(false, true), RemedyButtons::Second);
        EXPECT_EQ(buttons(true, true), RemedyButtons::None);
        EXPECT_EQ(buttons(false, false), RemedyButtons::None);
    }
}

TEST(RemedyButtonsTest, TheDriverIsThatOfTheSymptomsGame) {
    EXPECT_EQ(DriverGameOf(Symptom::GlideMissing), std::size_t{0});
    EXPECT_EQ(DriverGameOf(Symptom::SoftwareMode), std::size_t{1});
    EXPECT_EQ(DriverGameOf(Symptom::OpenGLMissing), std::size_t{2});
    EXPECT_EQ(DriverGameOf(Symptom::CrashOnScreenshot), std::nullopt);
}

}  // namespace
}  // namespace zentar
