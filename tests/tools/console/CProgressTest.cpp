#include "corvel/console/CProgress.h"

#include <gtest/gtest.h>

using namespace Tessitor::Tool;

TEST(CProgress, TheShareWeighsTheJobs) {
    CProgress progress({{"a", 1.0}, {"b", 3.0}});
    EXPECT_EQ(progress.after(9.0).share, 0.0);
    progress.report(1, 0.5);
    EXPECT_EQ(progress.after(9.0).share, 0.375);
    progress.finish(0, true);
    EXPECT_EQ(progress.after(9.0).share, 0.625);
    EXPECT_EQ(progress.after(9.0).done, 1u);
    EXPECT_EQ(progress.after(9.0).jobs, 2u);
}

TEST(CProgress, TheTimeLeftFollowsFromTheTimeUsed) {
    CProgress progress({{"a", 1.0}, {"b", 3.0}});
    EXPECT_EQ(progress.after(9.0).secondsLeft, std::nullopt);
    progress.finish(0, true);
    EXPECT_EQ(progress.after(0.9).secondsLeft, std::nullopt);
    EXPECT_EQ(progress.after(10.0).secondsLeft, 30.0);
    progress.finish(1, true);
    EXPECT_EQ(progress.after(40.0).secondsLeft, 0.0);
}

TEST(CProgress, SkippedJobsDoNotShortenTheTimeLeft) {
    CProgress progress({{"a"}, {"b"}, {"c"}, {"d"}});
    progress.finish(0, false);
    progress.finish(1, false);
    EXPECT_EQ(progress.after(10.0).secondsLeft, std::nullopt);
    progress.finish(2, true);
    EXPECT_EQ(progress.after(10.0).secondsLeft, 10.0);
    EXPECT_EQ(progress.after(10.0).share, 0.75);
}

TEST(CProgress, TheNameIsThatOfTheFirstJobUnderWay) {
    CProgress progress({{"a"}, {"b"}, {"c"}});
    EXPECT_EQ(progress.after(1.0).name, "");
    progress.report(2, 0.1);
    EXPECT_EQ(progress.after(1.0).name, "c");
    progress.report(1, 0.1);
    EXPECT_EQ(progress.after(1.0).name, "b");
    progress.finish(1, true);
    EXPECT_EQ(progress.after(1.0).name, "c");
}

TEST(CProgress, AnUnknownLengthCountsAsNothingDone) {
    CProgress progress({{"a"}});
    progress.report(0, -1.0);
    EXPECT_EQ(progress.after(5.0).share, 0.0);
    progress.report(0, 7.0);
    EXPECT_EQ(progress.after(5.0).share, 1.0);
}
