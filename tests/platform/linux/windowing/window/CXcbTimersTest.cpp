#include "platform/linux/windowing/window/CXcbTimers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

CXcbTimers::Time at(int milliseconds) {
    return CXcbTimers::Time(std::chrono::milliseconds(milliseconds));
}

TEST(CXcbTimers, AreDueAfterTheirTime) {
    CXcbTimers timers;
    EXPECT_TRUE(timers.start(7, 10, at(100)));
    EXPECT_THAT(timers.getDue(at(109)), IsEmpty());
    EXPECT_THAT(timers.getDue(at(110)), ElementsAre(7));
    EXPECT_FALSE(timers.takeDue(7, at(109)));
    EXPECT_TRUE(timers.takeDue(7, at(110)));
    EXPECT_FALSE(timers.takeDue(7, at(110)));
}

TEST(CXcbTimers, KeepTheirPace) {
    CXcbTimers timers;
    timers.start(7, 10, at(100));
    EXPECT_TRUE(timers.takeDue(7, at(114)));
    EXPECT_FALSE(timers.takeDue(7, at(119)));
    EXPECT_TRUE(timers.takeDue(7, at(120)));
}

TEST(CXcbTimers, ALateOneIsDueOnce) {
    CXcbTimers timers;
    timers.start(7, 10, at(100));
    EXPECT_TRUE(timers.takeDue(7, at(1005)));
    EXPECT_THAT(timers.getDue(at(1005)), IsEmpty());
    EXPECT_EQ(timers.millisecondsToNext(at(1005)), 10);
}

TEST(CXcbTimers, ARunningOneStartsAnew) {
    CXcbTimers timers;
    timers.start(7, 10, at(100));
    timers.start(7, 30, at(105));
    EXPECT_FALSE(timers.takeDue(7, at(134)));
    EXPECT_TRUE(timers.takeDue(7, at(135)));
}

TEST(CXcbTimers, MayBeStoppedAndStartedWhileTheDueOnesRun) {
    CXcbTimers timers;
    for (int id = 1; id <= 4; ++id)
        timers.start(id, 10, at(100));
    EXPECT_THAT(timers.getDue(at(110)), ElementsAre(1, 2, 3, 4));
    EXPECT_TRUE(timers.takeDue(1, at(110)));
    timers.stop(1);
    timers.stop(2);
    timers.start(3, 10, at(110));
    EXPECT_FALSE(timers.takeDue(2, at(110)));
    EXPECT_FALSE(timers.takeDue(3, at(110)));
    EXPECT_TRUE(timers.takeDue(4, at(110)));
    timers.stopAll();
    EXPECT_THAT(timers.getDue(at(10000)), IsEmpty());
}

TEST(CXcbTimers, NeedAnIdAndATime) {
    CXcbTimers timers;
    EXPECT_FALSE(timers.start(0, 10, at(0)));
    EXPECT_FALSE(timers.start(-1, 10, at(0)));
    EXPECT_FALSE(timers.start(1, 0, at(0)));
    timers.stop(1);
    EXPECT_EQ(timers.millisecondsToNext(at(1)), -1);
}

TEST(CXcbTimers, KnowHowLongNothingIsDue) {
    CXcbTimers timers;
    timers.start(1, 50, at(100));
    timers.start(2, 30, at(100));
    EXPECT_EQ(timers.millisecondsToNext(at(101)), 29);
    EXPECT_EQ(timers.millisecondsToNext(at(101) + std::chrono::microseconds(1)), 29)
        << "not a moment too early";
    EXPECT_EQ(timers.millisecondsToNext(at(200)), 0);
}

}  // namespace
