#include "ui/layout.h"

#include <gtest/gtest.h>

namespace zentar {
namespace {

constexpr int kTab = 10;
constexpr int kPage = 11;

FormTable Table(std::span<const ControlRow> rows) {
    FormTable table;
    table.clientSize = {400, 300};
    table.controls = rows;
    return table;
}

Rect PlaceOne(std::uint8_t anchors, Size client, int dpi) {
    const ControlRow rows[] = {{.id = 1, .rect = {10, 20, 100, 40}, .anchors = anchors}};
    return LayoutControls(Table(rows), rows, client, dpi)[0];
}

TEST(LayoutTest, AtTheDesignedSizeEverythingStandsAsDesigned) {
    EXPECT_EQ(PlaceOne(AnchorAll, {400, 300}, 96), (Rect{10, 20, 100, 40}));
    EXPECT_EQ(PlaceOne(AnchorTopLeft, {400, 300}, 96), (Rect{10, 20, 100, 40}));
    EXPECT_EQ(PlaceOne(AnchorAll, {600, 450}, 144), (Rect{15, 30, 150, 60}));
    EXPECT_EQ(PlaceOne(AnchorRight, {800, 600}, 192), (Rect{20, 40, 200, 80}));
}

TEST(LayoutTest, AnchorsDecideWhoGrowsAndWhoMoves) {
    EXPECT_EQ(PlaceOne(AnchorTopLeft, {500, 350}, 96), (Rect{10, 20, 100, 40}));
    EXPECT_EQ(PlaceOne(AnchorAll, {500, 350}, 96), (Rect{10, 20, 200, 90}));
    EXPECT_EQ(PlaceOne(AnchorRight | AnchorBottom, {500, 350}, 96), (Rect{110, 70, 100, 40}));
    EXPECT_EQ(PlaceOne(AnchorLeft | AnchorRight | AnchorBottom, {500, 350}, 96),
              (Rect{10, 70, 200, 40}));
}

TEST(LayoutTest, AWindowTooSmallGivesNoNegativeSizes) {
    EXPECT_EQ(PlaceOne(AnchorAll, {100, 50}, 96), (Rect{10, 20, 0, 0}));
}

TEST(LayoutTest, APageFillsItsTabControlAndPassesItsGrowthOn) {
    const ControlRow rows[] = {
        {.id = kTab, .kind = ControlKind::Tab, .rect = {0, 0, 400, 300}, .anchors = AnchorAll},
        {.id = kPage, .kind = ControlKind::TabPage, .parent = kTab},
        {.id = 12, .parent = kPage, .rect = {5, 5, 100, 100}, .anchors = AnchorAll},
    };
    const auto places = LayoutControls(Table(rows), rows, {450, 320}, 96);
    EXPECT_EQ(places[1],
              (Rect{kTabInset, kTabHeader, 450 - 2 * kTabInset, 320 - kTabHeader - kTabInset}));
    EXPECT_EQ(places[2], (Rect{5, 5, 150, 120}));
}

TEST(LayoutTest, ATimerHasNoPlace) {
    const ControlRow rows[] = {{.id = 1, .kind = ControlKind::Timer, .rect = {1, 2, 3, 4}}};
    EXPECT_EQ(LayoutControls(Table(rows), rows, {400, 300}, 96)[0], Rect{});
}

}  // namespace
}  // namespace zentar
