// Every caption and tooltip of the windows, word for word: they are the program's voice.

#include <gtest/gtest.h>

#include <string>
#include <vector>

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

TEST(CaptionsTest, OfTheSplash) { EXPECT_STREQ(SplashTable().caption, "Loading Zentar"); }

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
