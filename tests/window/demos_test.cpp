// The Demos tab: selecting, filtering, and the popup menu.
#include <gtest/gtest.h>

#include "platform/win32/win32_text.h"
#include "tests/window/user_input.h"
#include "tests/window/waiting.h"
#include "tests/window/windows_of.h"
#include "tests/window/zentar_driver.h"
#include "ui/resource.h"

namespace zentar::window_tests {
namespace {

using Lines = std::vector<std::string>;

class Demos : public testing::Test {
  protected:
    // The Demos tab of a running program with the given settings.
    const ZentarDriver& Open(const IniLines& settings = {}) {
        home_.WriteIni(settings);
        zentar_ = std::make_unique<ZentarDriver>(home_);
        zentar_->ShowTab(kDemosTab);
        return *zentar_;
    }

    ZentarHome home_;
    std::unique_ptr<ZentarDriver> zentar_;
};

TEST_F(Demos, NothingIsSelectedAtFirst) {
    const ZentarDriver& zentar = Open();
    EXPECT_SOON(zentar.Text(IDC_labDemoName), "Name: (n/a)");
    EXPECT_SOON(zentar.Text(IDC_labDemoMap), "Map: (n/a)");
    EXPECT_SOON(zentar.Text(IDC_labDemoSize), "Demo size: (n/a)");
    EXPECT_SOON(zentar.Text(IDC_labDemoDate), "Created: (n/a)");
    EXPECT_SOON(zentar.Usable(IDC_labDemoName), false);
}

TEST_F(Demos, AQuake2DemoShowsItsProperties) {
    const ZentarDriver& zentar = Open();
    zentar.ClickItem(IDC_lstDemos, "edge final");
    EXPECT_SOON(zentar.Text(IDC_labDemoName), "Name: The Edge");
    EXPECT_SOON(zentar.Text(IDC_labDemoMap), "Map: q2dm1");
    EXPECT_SOON(zentar.Text(IDC_labDemoSize).rfind("File size: ", 0), 0U);
    EXPECT_TRUE(zentar.Text(IDC_labDemoSize).ends_with(" bytes"));
    EXPECT_NE(zentar.Text(IDC_labDemoDate), "Created: (n/a)");
    EXPECT_SOON(zentar.Usable(IDC_labDemoName), true);
}

TEST_F(Demos, ADemoOfAModShowsTheRightLevelName) {
    const ZentarDriver& zentar = Open({"CurMod2=ctf"});
    zentar.ClickItem(IDC_lstDemos, "revival");
    EXPECT_SOON(zentar.Text(IDC_labDemoName), "Name: McKinley Revival");
    EXPECT_SOON(zentar.Text(IDC_labDemoMap), "Map: q2ctf1");
}

TEST_F(Demos, AQuake1DemoShowsItsProperties) {
    const ZentarDriver& zentar = Open({"Game=Quake1"});
    zentar.ClickItem(IDC_lstDemos, "speedrun e1m1");
    EXPECT_SOON(zentar.Text(IDC_labDemoName), "Name: the Slipgate Complex");
    EXPECT_SOON(zentar.Text(IDC_labDemoMap), "Map: e1m1");
    zentar.ClickItem(IDC_lstDemos, "no level name");
    EXPECT_SOON(zentar.Text(IDC_labDemoName), "Name: (None)");
}

TEST_F(Demos, ANameInAnyAlphabetCanBeSelected) {
    const ZentarDriver& zentar = Open();
    zentar.ClickItem(IDC_lstDemos, "дуэль");
    EXPECT_SOON(zentar.Text(IDC_labDemoName), "Name: Warehouse");
    zentar.ClickItem(IDC_lstDemos, "Größe [q2dm1]");
    EXPECT_SOON(zentar.Text(IDC_labDemoName), "Name: The Edge");
}

TEST_F(Demos, AnyNameThatWindowsCanHoldCanBeSelected) {
    const std::filesystem::path folder = home_.Games() / "Quake2" / "baseq2" / "demos";
    const std::string demo = ReadBytes(folder / "edge final.dm2");
    const std::vector<std::string> names = {"100% & more", "\U0001F600 gg", "«duel» „best“",
                                            "blanks at the end  ", std::string(250, 'x')};
    // The system's own form of a path may be longer than others.
    const std::wstring prefix = LR"(\\?\)" + folder.wstring() + L"\\";
    for (const std::string& name : names) {
        WriteBytes(prefix + Widen(name) + L".dm2", demo);
    }
    const ZentarDriver& zentar = Open();
    EXPECT_SOON(zentar.Text(IDC_labNumDemos), "Total listed: 13 of 13.");
    for (const std::string& name : names) {
        zentar.ClickItem(IDC_lstDemos, "campaign");
        EXPECT_SOON(zentar.Text(IDC_labDemoName), "Name: Outer Base") << name;
        zentar.ClickItem(IDC_lstDemos, name);
        EXPECT_SOON(zentar.Text(IDC_labDemoName), "Name: The Edge") << name;
    }
    DeleteFileW((prefix + Widen(names.back()) + L".dm2").c_str());
}

TEST_F(Demos, EachQuake3GenerationIsTold) {
    const ZentarDriver& zentar = Open({"Game=Quake3"});
    zentar.ClickItem(IDC_lstDemos, "duel");
    EXPECT_SOON(zentar.Text(IDC_labDemoVersion), "Q3 Version: 1.17 compatible");
    EXPECT_SOON(zentar.Text(IDC_labDemoName), "Name: The Longest Yard");
    EXPECT_SOON(zentar.Text(IDC_labDemoMap), "Map: q3dm17");
    zentar.ClickItem(IDC_lstDemos, "duel ");
    EXPECT_SOON(zentar.Text(IDC_labDemoVersion), "Q3 Version: 1.27h compatible");
    EXPECT_SOON(zentar.Text(IDC_labDemoMap), "Map: q3dm17");
    zentar.ClickItem(IDC_lstDemos, "duel  ");
    EXPECT_SOON(zentar.Text(IDC_labDemoVersion), "Q3 Version: 1.29f or higher");
    EXPECT_SOON(zentar.Text(IDC_labDemoName), "Name: (n/a for v1.29f and higher)");
    EXPECT_SOON(zentar.Text(IDC_labDemoMap), "Map: (n/a for v1.29f and higher)");
}

TEST_F(Demos, ACompressedDemoTurnsTheFilterOffWhileItIsSelected) {
    const ZentarDriver& zentar =
        Open({"Game=Quake3", "AutoShowAll=0", "DemosAll=0", "DemosFilter="});
    zentar.ClickItem(IDC_lstDemos, "duel  ");
    EXPECT_SOON(zentar.Text(IDC_fraDemos), "Demo Filter (n/a for v1.29f and higher)");
    EXPECT_SOON(zentar.Checked(IDC_chkShowAllDemos), true);
    EXPECT_SOON(zentar.Usable(IDC_fraDemos), false);
    EXPECT_SOON(zentar.Selected(IDC_lstDemos), "duel  ");
    zentar.ClickItem(IDC_lstDemos, "duel ");
    EXPECT_SOON(zentar.Text(IDC_fraDemos), "Demo Filter");
    EXPECT_SOON(zentar.Usable(IDC_chkShowAllDemos), true);
}

BoxContents NotADemo(const std::string& game) {
    return {.title = "Error",
            .text = BoxLines({"The selected file is not really a " + game + " demo!", "",
                              "Would you like me to add an \"!\" after its extension",
                              "to stop it accidentally showing up in this list again?"}),
            .icon = BoxIcon::Exclamation,
            .buttons = {IDYES, IDNO},
            .defaultButton = IDNO};
}

TEST_F(Demos, AFileThatIsNoDemoIsRenamedOnlyOnYes) {
    const ZentarDriver& zentar = Open();
    const std::filesystem::path file =
        home_.Games() / "Quake2" / "baseq2" / "demos" / "shopping list.dm2";
    const std::string bytes = ReadBytes(file);
    zentar.ClickItem(IDC_lstDemos, "shopping list");
    HWND box = zentar.WaitForBox("Error");
    EXPECT_EQ(zentar.Read(box), NotADemo("Quake2"));
    AnswerBox(box, IDNO);
    EXPECT_SOON(ReadBytes(file), bytes);
    zentar.ClickItem(IDC_lstDemos, "empty");
    box = zentar.WaitForBox("Error");
    EXPECT_SOON(zentar.Text(IDC_labDemoSize), "File size: 0 bytes");
    AnswerBox(box, IDNO);
    zentar.ClickItem(IDC_lstDemos, "shopping list");
    AnswerBox(zentar.WaitForBox("Error"), IDYES);
    EXPECT_SOON(zentar.Text(IDC_labNumDemos), "Total listed: 7 of 7.");
    EXPECT_SOON(std::filesystem::exists(file), false);
    EXPECT_SOON(ReadBytes(file.parent_path() / "shopping list.dm2!"), bytes);
}

TEST_F(Demos, UnfilteredDemosGreyTheFilter) {
    const ZentarDriver& zentar = Open();
    for (const int id : {IDC_labDemo1, IDC_labDemo2, IDC_optTextYes, IDC_optTextNo,
                         IDC_txtDemoFilter, IDC_lstDemoFilter, IDC_cmdFilter}) {
        EXPECT_SOON(zentar.Usable(id), false) << id;
    }
    zentar.ClickOn(IDC_chkShowAllDemos);
    for (const int id : {IDC_labDemo1, IDC_labDemo2, IDC_optTextYes, IDC_optTextNo,
                         IDC_txtDemoFilter, IDC_lstDemoFilter, IDC_cmdFilter}) {
        EXPECT_SOON(zentar.Usable(id), true) << id;
    }
    EXPECT_TRUE(zentar.GetsFocus(IDC_cmdFilter));
}

TEST_F(Demos, APhraseFindsTheDemosThatHoldItToTheLetter) {
    const ZentarDriver& zentar =
        Open({"AutoShowAll=0", "DemosAll=0", "DemosText=True", "DemosFilter=Fred"});
    EXPECT_SOON(zentar.Items(IDC_lstDemos), (Lines{"edge final", "дуэль"}));
    EXPECT_SOON(zentar.Text(IDC_labNumDemos), "Total listed: 2 of 8.");
    zentar.ClickOn(IDC_optTextNo);
    zentar.ClickOn(IDC_cmdFilter);
    EXPECT_SOON(zentar.Items(IDC_lstDemos), (Lines{"[q2dm3] warm-up", "campaign", "empty",
                                                   "Größe [q2dm1]", "shopping list", "untitled"}));
    EXPECT_SOON(zentar.Text(IDC_labNumDemos), "Total listed: 6 of 8.");
}

TEST_F(Demos, EnterInThePhraseBoxFilters) {
    const ZentarDriver& zentar =
        Open({"AutoShowAll=0", "DemosAll=0", "DemosText=True", "DemosFilter=Fred"});
    zentar.ClickOn(IDC_txtDemoFilter);
    EXPECT_TRUE(zentar.GetsFocus(IDC_txtDemoFilter));
    // The old phrase is selected, so typing replaces it.
    zentar.TypeText("q2dm1");
    zentar.PressKey(VK_RETURN);
    EXPECT_SOON(zentar.Text(IDC_txtDemoFilter), "q2dm1");
    EXPECT_SOON(zentar.Items(IDC_lstDemos), (Lines{"edge final", "Größe [q2dm1]"}));
}

TEST_F(Demos, AnEmptyPhraseListsAll) {
    const ZentarDriver& zentar =
        Open({"AutoShowAll=0", "DemosAll=0", "DemosText=True", "DemosFilter="});
    EXPECT_SOON(zentar.Text(IDC_labNumDemos), "Total listed: 8 of 8.");
}

TEST_F(Demos, ADoubleClickOnAPhraseFilters) {
    const ZentarDriver& zentar =
        Open({"AutoShowAll=0", "DemosAll=0", "DemosText=True", "DemosFilter=Fred"});
    DoubleClick(CentreOfItem(zentar.Control(IDC_lstDemoFilter), 0));
    EXPECT_SOON(zentar.Text(IDC_txtDemoFilter), "base1");
    EXPECT_SOON(zentar.Items(IDC_lstDemos), Lines{"campaign"});
}

TEST_F(Demos, EnterOnAPhraseFilters) {
    const ZentarDriver& zentar =
        Open({"AutoShowAll=0", "DemosAll=0", "DemosText=True", "DemosFilter=Fred"});
    zentar.ClickItem(IDC_lstDemoFilter, "base1");
    zentar.PressKey(VK_RETURN);
    EXPECT_SOON(zentar.Text(IDC_txtDemoFilter), "base1");
    EXPECT_SOON(zentar.Items(IDC_lstDemos), Lines{"campaign"});
}

TEST_F(Demos, AThousandDemosAreListed) {
    const ZentarHome home(1000);
    home.WriteIni({"AutoShowAll=0", "DemosAll=0", "DemosText=True", "DemosFilter=Player77: "});
    const ZentarDriver zentar(home);
    zentar.ShowTab(kDemosTab);
    EXPECT_SOON(zentar.Items(IDC_lstDemos), Lines{"match 77"});
    EXPECT_SOON(zentar.Text(IDC_labNumDemos), "Total listed: 1 of 1008.");
}

TEST_F(Demos, F5FindsNewDemos) {
    const ZentarDriver& zentar = Open();
    zentar.ClickItem(IDC_lstDemos, "campaign");
    std::filesystem::remove(home_.Games() / "Quake2" / "baseq2" / "demos" / "untitled.dm2");
    zentar.PressKey(VK_F5);
    EXPECT_SOON(zentar.Text(IDC_labNumDemos), "Total listed: 7 of 7.");
    EXPECT_SOON(zentar.Text(IDC_labDemoName), "Name: (n/a)");
}

// The file changes behind the program's back: whoever reads it again shows that.
TEST_F(Demos, ASecondClickOnTheSelectedDemoReadsNothing) {
    const ZentarDriver& zentar = Open();
    zentar.ClickItem(IDC_lstDemos, "edge final");
    EXPECT_SOON(zentar.Text(IDC_labDemoName), "Name: The Edge");
    WriteBytes(home_.Games() / "Quake2" / "baseq2" / "demos" / "edge final.dm2", "changed");
    zentar.ClickItem(IDC_lstDemos, "edge final");
    zentar.Settle();
    EXPECT_FALSE(zentar.HasBox());
    EXPECT_SOON(zentar.Text(IDC_labDemoName), "Name: The Edge");
}

TEST_F(Demos, ADemoThatVanishedShowsNothingAndAsksNothing) {
    const ZentarDriver& zentar = Open();
    std::filesystem::remove(home_.Games() / "Quake2" / "baseq2" / "demos" / "edge final.dm2");
    zentar.ClickItem(IDC_lstDemos, "edge final");
    zentar.Settle();
    EXPECT_FALSE(zentar.HasBox());
    EXPECT_SOON(zentar.Text(IDC_labDemoMap), "Map: (n/a)");
    EXPECT_SOON(zentar.Text(IDC_labDemoSize), "File size: (n/a)");
}

TEST_F(Demos, SelectingACompressedDemoInAFilteredListShowsAllAndKeepsItSelected) {
    const ZentarDriver& zentar =
        Open({"Game=Quake3", "AutoShowAll=0", "DemosAll=0", "DemosText=False", "DemosFilter=Fred"});
    EXPECT_SOON(zentar.Checked(IDC_chkShowAllDemos), false);
    zentar.ClickItem(IDC_lstDemos, "duel  ");
    EXPECT_SOON(zentar.Checked(IDC_chkShowAllDemos), true);
    EXPECT_SOON(zentar.Text(IDC_labNumDemos), "Total listed: 7 of 7.");
    EXPECT_SOON(zentar.Selected(IDC_lstDemos), "duel  ");
    EXPECT_SOON(zentar.Text(IDC_labDemoVersion), "Q3 Version: 1.29f or higher");
    EXPECT_SOON(zentar.Usable(IDC_txtDemoFilter), false);
}

}  // namespace
}  // namespace zentar::window_tests
