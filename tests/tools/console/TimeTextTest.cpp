#include "corvel/console/TimeText.h"

#include <gtest/gtest.h>

using Tessitor::Tool::secondsFromText;

TEST(TimeText, IsReadInItsUsualForms) {
    EXPECT_EQ(secondsFromText("90"), 90.0);
    EXPECT_EQ(secondsFromText("0"), 0.0);
    EXPECT_EQ(secondsFromText("1.5s"), 1.5);
    EXPECT_EQ(secondsFromText("1,5 s"), 1.5);
    EXPECT_EQ(secondsFromText("250ms"), 0.25);
    EXPECT_EQ(secondsFromText(" 0.5 ms "), 0.0005);
    EXPECT_EQ(secondsFromText("1:30"), 90.0);
    EXPECT_EQ(secondsFromText("0:05.25"), 5.25);
    EXPECT_EQ(secondsFromText("90:00"), 5400.0);
    EXPECT_EQ(secondsFromText("1:02:03.5"), 3723.5);
    EXPECT_EQ(secondsFromText("100:00:00"), 360000.0);
}

TEST(TimeText, OtherTextsAreRefused) {
    for (const char *text : {"",           " ",       "s",       "ms",     "x",     "1x",
                             "-1",         "+1",      "1e3",     "inf",    "nan",   "0x10",
                             ".5",         "1.2.3",   "1,000.5", "1:5",    "1:60",  "1:005",
                             "1:-5",       ":30",     "1:",      "1.5:30", "1:30s", "1::30",
                             "1:02:03:04", "1:60:00", "1:2:03",  "1 2"})
        EXPECT_EQ(secondsFromText(text), std::nullopt) << text;
}
