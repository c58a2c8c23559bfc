#include "corvel/console/ProgressLine.h"

#include "corvel/console/Columns.h"

#include <gmock/gmock.h>

using namespace Tessitor::Tool;
using testing::HasSubstr;
using testing::Not;

namespace {

const SProgress halfDone{0.5, 3, 20, 75.0, "voice.wav"};

}  // namespace

TEST(ProgressLine, AWideLineShowsEverything) {
    EXPECT_EQ(progressLine(halfDone, 79),
              "[############------------]  50%  3 of 20  1:15 left  voice.wav");
}

TEST(ProgressLine, OneJobIsNotCounted) {
    EXPECT_EQ(progressLine({0.25, 0, 1, {}, "a.wav"}, 40), "[###------------]  25%  a.wav");
}

TEST(ProgressLine, ANarrowLineDropsTheBarAndThenTheRest) {
    EXPECT_EQ(progressLine(halfDone, 40), "[##---]  50%  3 of 20  1:15 left");
    EXPECT_EQ(progressLine(halfDone, 39), " 50%  3 of 20  1:15 left  voice.wav");
    EXPECT_EQ(progressLine(halfDone, 33), " 50%  3 of 20  1:15 left");
    EXPECT_EQ(progressLine(halfDone, 23), " 50%  3 of 20  ...e.wav");
    EXPECT_EQ(progressLine(halfDone, 22), " 50%  3 of 20");
    EXPECT_EQ(progressLine(halfDone, 12), " 50%");
    EXPECT_EQ(progressLine(halfDone, 4), " 50%");
    EXPECT_EQ(progressLine(halfDone, 3), "");
    EXPECT_EQ(progressLine(halfDone, 0), "");
}

TEST(ProgressLine, NoLineIsWiderThanAsked) {
    SProgress progress = halfDone;
    for (const char *name : {"", "a", "a long name that does not fit anywhere at all in here.wav",
                             "\u6B4C\u58F0\u6B4C\u58F0\u6B4C\u58F0\u6B4C\u58F0\u6B4C\u58F0.wav",
                             "\n\t\r\x1b[31m\xFF\xFE\n\n\n\n\n\n\n"}) {
        progress.name = name;
        for (const double share : {0.0, 0.001, 0.999, 1.0, 7.0, -1.0}) {
            progress.share = share;
            for (std::size_t columns = 0; columns < 300; ++columns) {
                const std::string line = progressLine(progress, columns);
                ASSERT_LE(columnsOf(line), columns);
                ASSERT_THAT(line, Not(HasSubstr("\n")));
                ASSERT_THAT(line, Not(HasSubstr("\x1b")));
            }
        }
    }
}

TEST(ProgressLine, ALongNameKeepsItsEnd) {
    SProgress progress = halfDone;
    progress.name = "the second take of the third verse, day 2 (17).wav";
    EXPECT_THAT(progressLine(progress, 79), testing::EndsWith("  ...d verse, day 2 (17).wav"));
}

TEST(ProgressLine, TimesAboveAnHourHaveThreeParts) {
    const auto left = [](double seconds) { return progressLine({0.5, 0, 1, seconds, ""}, 79); };
    EXPECT_THAT(left(0.2), HasSubstr("  0:00 left"));
    EXPECT_THAT(left(3599.4), HasSubstr("  59:59 left"));
    EXPECT_THAT(left(3661.0), HasSubstr("  1:01:01 left"));
    EXPECT_THAT(left(1e300), Not(HasSubstr("left")));
}
