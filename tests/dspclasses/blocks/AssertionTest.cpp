#include "dspclasses/blocks/Assertion.h"

#include <gtest/gtest.h>

TEST(AssertionDeathTest, ReportsExpressionSourceAndLineAndStops) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(assertAlways(false, "offset >= 0", "Line", 74),
                 "Assertion failed: offset >= 0, file Line, line 74");
}

TEST(AssertionDeathTest, DoesNothingIfTheConditionHolds) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        {
            assertAlways(true, "offset >= 0", "Line", 74);
            std::_Exit(7);
        },
        testing::ExitedWithCode(7), "");
}
