#include "core/hourglass.h"

#include <gtest/gtest.h>

#include "tests/doubles/scripted_services.h"

namespace zentar {
namespace {

TEST(HourglassTest, StaysUntilTheOutermostPieceOfWorkIsDone) {
    ScriptedWindows windows;
    {
        const Hourglass outer(windows);
        {
            const Hourglass inner(windows);
            EXPECT_EQ(windows.CurrentPointer(), Pointer::Hourglass);
        }
        EXPECT_EQ(windows.CurrentPointer(), Pointer::Hourglass);
    }
    EXPECT_EQ(windows.CurrentPointer(), Pointer::Default);
}

}  // namespace
}  // namespace zentar
