// Every caption and tooltip of the windows, word for word: they are the program's voice.

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "core/program_info.h"
#include "ui/form_tables.h"
#include "ui/resource.h"

namespace zentar {
namespace {

struct Wording {
    int id;
    const char* caption;
    const char* tooltip;
};

void ExpectWording(const FormTable& table, const std::vector<Wording>& wordings) {
    for (const Wording& expected : wordings) {
        bool found = false;
        for (const ControlRow& row : table.controls) {
            if (row.id == expected.id) {
                found = true;
                EXPECT_STREQ(row.caption, expected.caption) << row.id;
                EXPECT_STREQ(row.tooltip, expected.tooltip) << row.id;
            }
        }
        EXPECT_TRUE(found) << expected.id;
    }
}

TEST(CaptionsTest, OfTheSplash) {
    EXPECT_STREQ(SplashTable().caption, "Loading Zentar");
    ExpectWording(SplashTable(),
                  {{IDC_labLoading, "Zentar", ""}, {IDC_labVersion, "v0.99 BETA", ""}});
}

TEST(CaptionsTest, TheSplashNamesTheVersionOfTheProgram) {
    std::string shown;
    for (const ControlRow& row : SplashTable().controls) {
        shown.append(shown.empty() ? "" : " ").append(row.caption);
    }
    EXPECT_EQ(shown, kVersionLine);
}

TEST(CaptionsTest, OfTheMainWindow) {
    EXPECT_STREQ(MainWindowTable().caption, "Zentar");
    ExpectWording(MainWindowTable(),
                  {
                      {IDC_optGameQuake1, "Q1", "Click here to select Quake1 as the current game."},
                      {IDC_optGameQuake2, "Q2", "Click here to select Quake2 as the current game."},
                      {IDC_optGameQuake3, "Q3", "Click here to select Quake3 as the current game."},
                      {IDC_labMod, "Mod Selection:", ""},
                  });
}

TEST(CaptionsTest, OfTheTabsInTheirOrder) {
    std::vector<std::string> captions;
    for (const ControlRow& row : MainWindowTable().controls) {
        if (row.kind == ControlKind::TabPage) {
            captions.emplace_back(row.caption);
        }
    }
    EXPECT_EQ(captions,
              (std::vector<std::string>{" Shots", " Demos", " Misc", " Q3 Text", " First Aid"}));
}

TEST(CaptionsTest, OfTheShotsTab) {
    ExpectWording(MainWindowTable(),
                  {
                      {IDC_lstScreenshots, "", ""},
                      {IDC_labNumShots, "Total: 0  (tga=0,  jpg=0,  pcx=0).",
                       "Shows the number of screenshots listed above."},
                      {IDC_imgShotView, "", ""},
                      {IDC_fraPreviewMode, "", ""},
                      {IDC_labPreviewMode, "View mode:", ""},
                      {IDC_optModePreview, "Preview.",
                       "If selected, the screenshot's preview image (if available) is shown only."},
                      {IDC_optModeReal, "Real.",
                       "If selected, the actual screenshot itself is loaded for viewing."},
                  });
}

TEST(CaptionsTest, OfTheFullSizeViewer) {
    EXPECT_STREQ(FullViewTable().caption, "Zentar - Screenshot");
    ExpectWording(FullViewTable(), {{IDC_picFull, "", ""}});
}

TEST(CaptionsTest, OfTheDemosTab) {
    ExpectWording(
        MainWindowTable(),
        {
            {IDC_labNumDemos, "Total listed: 0 of 0.", "Shows the number of demos listed above."},
            {IDC_fraDemoProperties, "Selected Demo Properties", ""},
            {IDC_labDemoVersion, "Q3 Version: (n/a)", ""},
            {IDC_labDemoName, "Name: (n/a)", ""},
            {IDC_labDemoMap, "Map: (n/a)", ""},
            {IDC_labDemoSize, "File size: (n/a)", ""},
            {IDC_labDemoDate, "Created: (n/a)", ""},
            {IDC_fraDemos, "Demo Filter", ""},
            {IDC_chkShowAllDemos, "&List all available demos.",
             "List all available demos and disregard the filter settings below."},
            {IDC_labDemo1, "Only list the demos that actually", ""},
            {IDC_optTextNo, "do not contain",
             "Finds all maps that do not contain the phrase below."},
            {IDC_optTextYes, "contain", "Finds all maps that contain the phrase below."},
            {IDC_labDemo2, "the following phrase*  in them:", ""},
            {IDC_txtDemoFilter, "phrase",
             "The phrase that you wish to find (eg. player or map name, speech, etc)."},
            {IDC_cmdFilter, "Go", "Click here to apply the filter phrase at left."},
            {IDC_lstDemoFilter, "",
             "Some pre-made phrases to aid in quickly filtering your demos."},
            {IDC_labFilterInfo, "* Only exact phrases are parsed.", ""},
        });
}

TEST(CaptionsTest, OfTheMiscTab) {
    ExpectWording(MainWindowTable(), {{IDC_cmdDemoInstaller, "Install Demos",
                                       "Click here to select a folder of demos to install."}});
}

TEST(CaptionsTest, OfTheChatFrame) {
    ExpectWording(
        MainWindowTable(),
        {
            {IDC_fraChat, "Quake2 Chat Transcript", ""},
            {IDC_cmdScanForNames, "Scan For Names",
             "Click here to scan a logfile or condump for all participating player names."},
            {IDC_cmdClearNames, "Clear",
             "Click here to clear all player names (and hold Shift to also clear colours)."},
            {IDC_chkTranscriptHTML, "Create transcript as HTML code instead of plain text.",
             "If checked, the transcript will be in the colours specified when you double-click "
             "the names."},
            {IDC_labColourUsed, "Colour used:", ""},
            {IDC_txtTranscriptMessages, "msgs", "Shows the colour used for game messages."},
            {IDC_chkTranscriptGameplay, "Include game messages.",
             "If checked, gameplay messages (in addition to speech) are included in the "
             "transcript."},
            {IDC_cmdCreateTranscript, "Create Transcript",
             "Click here to create a chat transcript."},
        });
    for (int box = IDC_txtPlayer1; box <= IDC_txtPlayer24; ++box) {
        ExpectWording(
            MainWindowTable(),
            {{box, "", "Name of a player whose speech you wish to include in the transcript."}});
    }
}

TEST(CaptionsTest, OfTheQ3TextTab) {
    ExpectWording(
        MainWindowTable(),
        {
            {IDC_labQ3Name,
             "The box below is used to create your own coloured name (or speech messages) for "
             "Quake 3: Arena.  Type your name (or speech) into the box, and then select the "
             "characters whose colours you wish to change and click a colour box.  \"Clipboard\" "
             "copies the code to the clipboard and \"Q3Config\" to your \"q3config.cfg\" file.  "
             "(Note: The \"pause\" key has been added to the code for your convenience when "
             "testing your designs).",
             ""},
            {IDC_rtbQ3Text, "", ""},
            {IDC_cmdQ3TextBlack, "", "Changes the selected text to black."},
            {IDC_cmdQ3TextRed, "", "Changes the selected text to red."},
            {IDC_cmdQ3TextGreen, "", "Changes the selected text to green."},
            {IDC_cmdQ3TextYellow, "", "Changes the selected text to yellow."},
            {IDC_cmdQ3TextBlue, "", "Changes the selected text to blue."},
            {IDC_cmdQ3TextCyan, "", "Changes the selected text to cyan."},
            {IDC_cmdQ3TextMagenta, "", "Changes the selected text to magenta."},
            {IDC_cmdQ3TextWhite, "", "Changes the selected text to white."},
            {IDC_labQ3TextCode, "This text code is designed to be used as:", ""},
            {IDC_txtQ3TextCode, "seta name UnnamedPlayer",
             "Shows the Quake 3 code needed for the coloured name (or text)."},
        });
}

TEST(CaptionsTest, OfTheUsesOfACodeAndItsOptions) {
    ExpectWording(
        MainWindowTable(),
        {
            {IDC_optQ3TextName, "Player name.",
             "Specifies that the coloured text is to be used for a player name."},
            {IDC_optQ3TextServer, "Server name.",
             "Specifies that the coloured text is to be used for a server name."},
            {IDC_optQ3TextPublic, "Public speech.",
             "Specifies that the coloured text is to be used for public speech."},
            {IDC_optQ3TextTeam, "Team speech.",
             "Specifies that the coloured text is to be used for team speech."},
            {IDC_optQ3TextAttacker, "Attacker speech.",
             "Specifies that the coloured text is to be used for attacker speech."},
            {IDC_optQ3TextTarget, "Target speech.",
             "Specifies that the coloured text is to be used for target speech."},
            {IDC_chkQ3TextKeyfox,
             "Make all text compatible with 'Keyfox' from its maker's web site.",
             "If checked, part of the Quake 3 code is stripped to be compatible with 'Keyfox' "
             "from its maker's web site."},
            {IDC_chkQ3TextOSP, "Make black text compatible with Quake 3 'OSP' mods.",
             "If checked, all black text in the Quake 3 code is made compatible with Quake 3 "
             "'OSP' mods."},
        });
}

TEST(CaptionsTest, OfTheButtonsThatUseACode) {
    ExpectWording(
        MainWindowTable(),
        {
            {IDC_cmdQ3TextSave, "Save As...",
             "Click here to save this Quake3 name/text for later editing."},
            {IDC_cmdQ3TextOpen, "Open...", "Click here to open a saved Quake3 coloured name/text."},
            {IDC_cmdQ3TextClipboard, "Clipboard",
             "Click here to copy the Quake3 text code to the Windows clipboard."},
            {IDC_chkQ3TextAddSlash, "Include a leading backslash when copying to clipboard.",
             "If checked, a leading backslash is added when clicking the \"Clipboard\" button."},
            {IDC_cmdQ3TextQ3Config, "Q3Config",
             "Click here to add the Quake3 text code to your \"q3config.cfg\" file."},
        });
}

// The face of a colour button says what it does, to those who see it.
TEST(CaptionsTest, OfTheColoursAreTheirFaces) {
    const std::vector<std::pair<int, ColourRef>> faces = {
        {IDC_cmdQ3TextBlack, 0x000000},   {IDC_cmdQ3TextRed, 0x0000FF},
        {IDC_cmdQ3TextGreen, 0x00FF00},   {IDC_cmdQ3TextYellow, 0x00FFFF},
        {IDC_cmdQ3TextBlue, 0xFF0000},    {IDC_cmdQ3TextCyan, 0xFFFF00},
        {IDC_cmdQ3TextMagenta, 0xFF00FF}, {IDC_cmdQ3TextWhite, 0xFFFFFF}};
    std::size_t found = 0;
    for (const ControlRow& row : MainWindowTable().controls) {
        for (const auto& [id, face] : faces) {
            if (row.id == id) {
                ++found;
                EXPECT_EQ(row.kind, ControlKind::ColourButton);
                EXPECT_EQ(row.colour, face) << id;
            }
        }
    }
    EXPECT_EQ(found, faces.size());
}

TEST(CaptionsTest, OfThePreferences) {
    EXPECT_STREQ(PreferencesTable().caption, "Preferences");
    ExpectWording(
        PreferencesTable(),
        {
            {IDC_pagGeneral, "General ", ""},
            {IDC_labRemote, "Location of Remote Folder:",
             "Specifies the folder where screenshots and demos can be copied/moved to."},
            {IDC_txtRemote, "",
             "Specifies the folder where screenshots and demos can be copied/moved to."},
            {IDC_cmdRemote, "...",
             "Click here to select a folder that you wish to be the Remote Folder."},
            {IDC_chkExpert,
             "Use Zentar in Expert Mode (no warnings are given before any harmful actions).",
             "If checked, you are NOT warned before any harmful actions are done."},
            {IDC_chkAutoShowAll,
             "Automatically show all demos when initially switching to a different game mod.",
             "If checked, all demos for a mod are shown when initially switching to it."},
            {IDC_chkAutoNextShot,
             "Automatically select the next screenshot or image after deleting the current.",
             "If checked, the next screenshot or image is selected after you delete the current."},
            {IDC_chkAutoNextDemo, "Automatically select the next demo after deleting the current.",
             "If checked, the next demo is selected after you delete the current."},
        });
}

// A line each, with the entries of a menu below it and a dash for a separator.
std::vector<std::string> MenuLines(const FormTable& table) {
    std::vector<std::string> lines;
    for (const MenuRow& row : table.menus) {
        lines.emplace_back(row.kind == MenuKind::Separator ? "-" : row.caption);
    }
    return lines;
}

TEST(CaptionsTest, OfTheMenusInTheirOrder) {
    EXPECT_EQ(MenuLines(MainWindowTable()), (std::vector<std::string>{
                                                "&Program",
                                                "&Preferences...",
                                                "-",
                                                "E&xit",
                                                "&Game",
                                                "&Quake",
                                                "Quake &2",
                                                "Quake &3: Arena",
                                                "-",
                                                "Specify &Folder...",
                                                "&Current Folders",
                                                "&Help",
                                                "&Help Topics",
                                                "-",
                                                "&About Zentar",
                                                "Screenshot",
                                                "&Show Actual Screenshot",
                                                "Show Shot &Properties",
                                                "-",
                                                "Make &JPG And Keep Original",
                                                "Make JPG And &Kill Original",
                                                "Set As System &Wallpaper",
                                                "-",
                                                "&Delete This Screenshot",
                                                "Delete Preview &Image",
                                                "Rena&me This Screenshot",
                                                "&Copy To Remote Folder",
                                                "Move To &Remote Folder",
                                                "-",
                                                "Delete Wallpaper &Images",
                                                "Delete &All Images/Shots",
                                                "Delete All Pre&view Images",
                                                "Delete All &JPG Images",
                                                "Delete All &TGA Shots",
                                                "Delete All PC&X Shots",
                                                "-",
                                                "Re&fresh List",
                                                "Demos",
                                                "&Play This Demo",
                                                "-",
                                                "&Delete This Demo",
                                                "Rena&me This Demo",
                                                "Rename &With Map",
                                                "&Copy To Remote Folder",
                                                "Move To &Remote Folder",
                                                "-",
                                                "Delete &All Listed Demos",
                                                "-",
                                                "&Search Internet For Map",
                                                "Find: q2ctf1 + McKinley Revival",
                                                "Find: McKinley Revival",
                                                "Find: q2ctf",
                                                "-",
                                                "Re&fresh List",
                                            }));
}

}  // namespace
}  // namespace zentar
