// What can be said of the windows' tables without building a window.

#include "ui/form_tables.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

#include "ui/layout.h"
#include "ui/resource.h"

namespace zentar {
namespace {

struct TableCase {
    const char* name;
    const FormTable& (*table)();
};

class FormTablesTest : public ::testing::TestWithParam<TableCase> {
  protected:
    const FormTable& table_ = GetParam().table();

    std::vector<Rect> Layout(Size client, int dpi) const {
        return LayoutControls(table_, table_.controls, client, dpi);
    }

    Size Designed(int dpi) const {
        return {ScaleToDpi(table_.clientSize.width, dpi),
                ScaleToDpi(table_.clientSize.height, dpi)};
    }
};

bool Overlap(const Rect& a, const Rect& b) {
    return a.left < b.left + b.width && b.left < a.left + a.width && a.top < b.top + b.height &&
           b.top < a.top + a.height;
}

// A control that starts hidden may take turns with another in one place.
bool TakeTurns(const ControlRow& a, const ControlRow& b) {
    return a.rect == b.rect && ((a.flags ^ b.flags) & StartsHidden) != 0;
}

// Where two of one parent's controls overlap, neither can be used well. Tab pages share their
// place.
void ExpectApart(const FormTable& table, const std::vector<Rect>& places) {
    for (std::size_t i = 0; i < table.controls.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            const ControlRow& a = table.controls[i];
            const ControlRow& b = table.controls[j];
            if (a.parent == b.parent && a.kind != ControlKind::TabPage && !TakeTurns(a, b)) {
                EXPECT_FALSE(Overlap(places[i], places[j])) << a.id << " over " << b.id;
            }
        }
    }
}

void ExpectInsideParents(const FormTable& table, const std::vector<Rect>& places, Size client) {
    std::map<int, Size> sizes{{0, client}};
    for (std::size_t i = 0; i < table.controls.size(); ++i) {
        const Size parent = sizes.at(table.controls[i].parent);
        EXPECT_GE(places[i].left, 0);
        EXPECT_GE(places[i].top, 0);
        EXPECT_LE(places[i].left + places[i].width, parent.width) << table.controls[i].id;
        EXPECT_LE(places[i].top + places[i].height, parent.height) << table.controls[i].id;
        sizes[table.controls[i].id] = {places[i].width, places[i].height};
    }
}

TEST_P(FormTablesTest, NothingOverlapsOrLeavesItsParentAtAnyResolutionOrSize) {
    for (const int dpi : {96, 120, 144, 192}) {
        const Size designed = Designed(dpi);
        for (const Size client : {designed, Size{designed.width + 437, designed.height},
                                  Size{designed.width, designed.height + 311}, Size{2560, 1440}}) {
            if (client.width < designed.width || client.height < designed.height) {
                continue;
            }
            const std::vector<Rect> places = Layout(client, dpi);
            ExpectApart(table_, places);
            ExpectInsideParents(table_, places, client);
        }
    }
}

TEST_P(FormTablesTest, WhatHasNoCaptionHasANameForScreenReaders) {
    const std::set<ControlKind> without = {
        ControlKind::TextBox,  ControlKind::ListBox,    ControlKind::RichTextBox, ControlKind::Tab,
        ControlKind::ImageBox, ControlKind::PictureBox, ControlKind::ColourButton};
    for (const ControlRow& row : table_.controls) {
        const bool frame = row.kind == ControlKind::Frame && row.caption[0] == '\0';
        if (without.contains(row.kind) || frame) {
            EXPECT_STRNE(row.name, "") << row.id;
        }
    }
}

TEST_P(FormTablesTest, ParentsStandBeforeTheirChildren) {
    std::set<int> seen{0};
    for (const ControlRow& row : table_.controls) {
        EXPECT_TRUE(seen.contains(row.parent)) << row.id;
        EXPECT_TRUE(seen.insert(row.id).second) << "twice: " << row.id;
    }
}

INSTANTIATE_TEST_SUITE_P(Windows, FormTablesTest,
                         ::testing::Values(TableCase{"Form1", SplashTable},
                                           TableCase{"Form2", MainWindowTable},
                                           TableCase{"Form3", FullViewTable},
                                           TableCase{"Form4", PreferencesTable},
                                           TableCase{"Form9", HelpTable}),
                         [](const auto& window) { return std::string(window.param.name); });

TEST(MainWindowTableTest, TheFramesThatOnlyHoldOptionsHaveNoBorders) {
    for (const ControlRow& row : MainWindowTable().controls) {
        if (row.kind == ControlKind::Frame) {
            const bool plain = row.id == IDC_fraQ3Text || row.id == IDC_fraTextContain ||
                               row.id == IDC_fraPreviewMode;
            EXPECT_EQ((row.flags & Borderless) != 0, plain) << row.id;
        }
    }
}

TEST(MainWindowTableTest, TheCodeStandsInAFixedPitchOnAsManyLinesAsItNeeds) {
    int count = 0;
    for (const ControlRow& row : MainWindowTable().controls) {
        if (row.id == IDC_txtQ3TextCode) {
            ++count;
            EXPECT_EQ(row.flags, ReadOnly | ManyLines | Monospaced);
        }
    }
    EXPECT_EQ(count, 1);
}

TEST(FormTablesTogetherTest, NoNumberIsUsedTwiceInTheProgram) {
    std::set<int> seen;
    for (const FormTable* table : {&SplashTable(), &MainWindowTable(), &FullViewTable(),
                                   &PreferencesTable(), &HelpTable()}) {
        EXPECT_TRUE(seen.insert(table->id).second) << table->id;
        for (const ControlRow& row : table->controls) {
            EXPECT_TRUE(seen.insert(row.id).second) << row.id;
        }
        for (const MenuRow& row : table->menus) {
            if (row.kind != MenuKind::Separator) {
                EXPECT_TRUE(seen.insert(row.id).second) << row.id;
            }
        }
    }
}

// A mnemonic that stands for two entries of one menu takes two keystrokes instead of one. Two
// entries share that of what they do to a single screenshot.
TEST(FormTablesTogetherTest, HardlyTwoEntriesOfAMenuShareAMnemonic) {
    std::set<std::pair<int, char>> seen;
    std::vector<std::string> sharing;
    for (const MenuRow& row : MainWindowTable().menus) {
        const std::string caption = row.caption;
        const std::size_t mark = caption.find('&');
        if (mark != std::string::npos) {
            const char letter = static_cast<char>(std::tolower(caption[mark + 1]));
            if (!seen.emplace(row.parent, letter).second) {
                sharing.push_back(caption);
            }
        }
    }
    EXPECT_EQ(sharing,
              (std::vector<std::string>{"Delete Wallpaper &Images", "Delete All &JPG Images"}));
}

TEST(FormTablesTogetherTest, AGameIsLookedAfterEveryThreeSeconds) {
    int count = 0;
    for (const ControlRow& row : MainWindowTable().controls) {
        if (row.kind == ControlKind::Timer) {
            ++count;
            EXPECT_EQ(row.id, IDC_tmrQ3Game);
            EXPECT_EQ(row.interval, 3000);
        }
    }
    EXPECT_EQ(count, 1);
}

}  // namespace
}  // namespace zentar
