#include "core/neighbour.h"

#include <gtest/gtest.h>

namespace zentar {
namespace {

TEST(NeighbourTest, IsTheNextEntryAndOfTheLastTheOneBefore) {
    const std::vector<std::string> entries = {"a", "b", "c"};
    EXPECT_EQ(NeighbourOf("a", entries), "b");
    EXPECT_EQ(NeighbourOf("b", entries), "c");
    EXPECT_EQ(NeighbourOf("c", entries), "b");
}

TEST(NeighbourTest, TheOnlyEntryAndOneThatIsNotListedHaveNone) {
    EXPECT_EQ(NeighbourOf("a", {"a"}), "");
    EXPECT_EQ(NeighbourOf("x", {"a", "b"}), "");
    EXPECT_EQ(NeighbourOf("x", {}), "");
}

}  // namespace
}  // namespace zentar
