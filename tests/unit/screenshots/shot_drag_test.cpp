// Where a dragged shot stands, step by step.

#include "screenshots/shot_drag.h"

#include <gtest/gtest.h>

#include <vector>

namespace zentar {
namespace {

constexpr Size kScreen = {1000, 800};
constexpr Size kShot = {3000, 2000};

// A drag that began at a place with the mouse somewhere.
Drag Begin(Point place, Point mouse) { return {.place = place, .origin = mouse, .mouse = mouse}; }

// One that follows the mouse along a path.
Drag Along(Drag drag, const std::vector<Point>& path, Size shot = kShot) {
    for (const Point to : path) {
        drag = DragTo(drag, to, shot, kScreen);
    }
    return drag;
}

TEST(ShotDragTest, TheCentreIsAsFarFromEachEdge) {
    EXPECT_EQ(CentredPlace({640, 480}, {1024, 768}), (Point{192, 144}));
    EXPECT_EQ(CentredPlace({1024, 768}, {1024, 768}), (Point{0, 0}));
    EXPECT_EQ(CentredPlace(kShot, kScreen), (Point{-1000, -600}));
}

TEST(ShotDragTest, OneDimensionIsEnoughToBeLarger) {
    EXPECT_FALSE(IsLargerThanScreen({1000, 800}, kScreen));
    EXPECT_TRUE(IsLargerThanScreen({1001, 1}, kScreen));
    EXPECT_TRUE(IsLargerThanScreen({1, 801}, kScreen));
}

TEST(ShotDragTest, TheShotFollowsTheMouseInBothDimensions) {
    const Drag drag = Along(Begin({-1000, -600}, {500, 400}), {{510, 390}, {490, 420}});
    EXPECT_EQ(drag.place, (Point{-1010, -580}));
    EXPECT_EQ(drag.origin, (Point{490, 420}));
}

TEST(ShotDragTest, ItMayReachEachEdgeExactly) {
    const Drag left = Along(Begin({-1990, -600}, {500, 400}), {{490, 400}});
    EXPECT_EQ(left.place.x, -2000);
    EXPECT_EQ(left.origin.x, 490);
    const Drag right = Along(Begin({-10, -600}, {500, 400}), {{510, 400}});
    EXPECT_EQ(right.place.x, 0);
    EXPECT_EQ(right.origin.x, 510);
}

struct Push {
    const char* name;
    Point step;  // one unit of the way towards the edge
    Point edge;  // where the shot then stands
};

class ShotDragEdges : public ::testing::TestWithParam<Push> {
  protected:
    static Point At(int distance) {
        return {500 + GetParam().step.x * distance, 400 + GetParam().step.y * distance};
    }
    static Point Inside(int distance) {
        return {GetParam().edge.x - GetParam().step.x * distance,
                GetParam().edge.y - GetParam().step.y * distance};
    }
};

TEST_P(ShotDragEdges, BeyondTheEdgeTheOriginIsThreePixelsAhead) {
    const Drag drag = Along(Begin(Inside(5), At(0)), {At(20)});
    EXPECT_EQ(drag.place, GetParam().edge);
    EXPECT_EQ(drag.origin, At(23));
}

TEST_P(ShotDragEdges, ADragThatTurnsBackIsAnsweredAtOnce) {
    const Drag drag = Along(Begin(Inside(5), At(0)), {At(20), At(200), At(199)});
    EXPECT_EQ(drag.place, Inside(4));
    EXPECT_EQ(Along(drag, {At(190)}).place, Inside(13));
}

TEST_P(ShotDragEdges, ASlowPushDoesNotMakeItTremble) {
    Drag drag = Along(Begin(Inside(5), At(0)), {At(20)});
    for (int distance = 21; distance < 40; ++distance) {
        drag = Along(drag, {At(distance)});
        EXPECT_EQ(drag.place, GetParam().edge) << distance;
        EXPECT_EQ(drag.origin, At(distance + 3)) << distance;
    }
}

TEST_P(ShotDragEdges, AMouseThatRestsMovesNothing) {
    const Drag drag = Along(Begin(Inside(5), At(0)), {At(20), At(20), At(20)});
    EXPECT_EQ(drag.place, GetParam().edge);
}

TEST_P(ShotDragEdges, AlongTheEdgeTheShotStaysAtIt) {
    const Drag drag = Along(Begin(Inside(5), At(0)), {At(20)});
    const Point aside = {At(20).x + 7 * GetParam().step.y, At(20).y + 7 * GetParam().step.x};
    const Drag after = Along(drag, {aside});
    if (GetParam().step.x != 0) {
        EXPECT_EQ(after.place.x, GetParam().edge.x);
        EXPECT_EQ(after.place.y, GetParam().edge.y + 7 * GetParam().step.x);
    } else {
        EXPECT_EQ(after.place.y, GetParam().edge.y);
        EXPECT_EQ(after.place.x, GetParam().edge.x + 7 * GetParam().step.y);
    }
}

INSTANTIATE_TEST_SUITE_P(Directions, ShotDragEdges,
                         ::testing::Values(Push{"Left", {-1, 0}, {-2000, -600}},
                                           Push{"Right", {1, 0}, {0, -600}},
                                           Push{"Up", {0, -1}, {-1000, -1200}},
                                           Push{"Down", {0, 1}, {-1000, 0}}),
                         [](const auto& push) { return std::string(push.param.name); });

TEST(ShotDragTest, WhereTheShotIsSmallerADragTakesItToTheEdge) {
    constexpr Size kWide = {3000, 400};
    const Drag start = Begin({-1000, 200}, {500, 400});
    EXPECT_EQ(Along(start, {{490, 400}}, kWide).place, (Point{-1010, 200}));
    EXPECT_EQ(Along(start, {{500, 399}}, kWide).place, (Point{-1000, 400}));
    EXPECT_EQ(Along(start, {{500, 401}}, kWide).place, (Point{-1000, 0}));
    constexpr Size kHigh = {400, 2000};
    const Drag high = Begin({300, -600}, {500, 400});
    EXPECT_EQ(Along(high, {{499, 390}}, kHigh).place, (Point{600, -610}));
    EXPECT_EQ(Along(high, {{501, 390}}, kHigh).place, (Point{0, -610}));
}

}  // namespace
}  // namespace zentar
