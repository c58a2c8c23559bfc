#include "corvel/console/Text.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace Tessitor::Tool;

TEST(Text, TrimmingRemovesOnlyLeadingAndTrailingSpaces) {
    EXPECT_EQ(trimmed("  Rumble Filter\t"), "Rumble Filter");
    EXPECT_EQ(trimmed(" \t "), "");
    EXPECT_EQ(trimmed(""), "");
}

TEST(Text, SplittingGivesOneMorePartThanSeparators) {
    EXPECT_EQ(split("a,,b,", ','), (std::vector<std::string_view>{"a", "", "b", ""}));
    EXPECT_EQ(split("", ','), std::vector<std::string_view>{""});
}

TEST(Text, CaseDoesNotMatterButLengthDoes) {
    EXPECT_TRUE(equalInAnyCapitals("CmpThresh", "cmptHRESH"));
    EXPECT_FALSE(equalInAnyCapitals("CmpThresh", "CmpThres"));
    EXPECT_FALSE(equalInAnyCapitals("Gate", "Gain"));
}

TEST(Text, NumbersAreWrittenPlainly) {
    EXPECT_EQ(decimal(-3.14159, 2), "-3.14");
    EXPECT_EQ(decimal(-INFINITY, 2), "-inf");
    EXPECT_EQ(shortest(0.052632f), "0.052632");
    EXPECT_EQ(shortest(0.5f), "0.5");
}

TEST(Text, ColumnsAreAsWideAsTheirWidestCell) {
    EXPECT_EQ(inColumns({{"#", "Name"}, {"10", "x", "y"}, {"1"}}), "#   Name\n"
                                                                   "10  x     y\n"
                                                                   "1\n");
    EXPECT_EQ(inColumns({}), "");
}
