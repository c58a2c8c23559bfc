#include "corvel/settings/StripSteps.h"

#include "dspclasses/parameters/ParameterIds.h"

#include <gtest/gtest.h>

using namespace Tessitor::Tool;

namespace {

using Steps = std::vector<SStep>;

constexpr bool synchronised = true, isFree = false;

}  // namespace

TEST(StripSteps, AreInTheOrderOfTheParameters) {
    EXPECT_EQ(stepsToHear({{kWarmer, 0.1f}, {kGain, 0.2f}}, isFree),
              (Steps{{kGain, 0.2f}, {kWarmer, 0.1f}}));
}

TEST(StripSteps, APanIsReachedThroughAnotherPositionOnItsSide) {
    EXPECT_EQ(stepsToHear({{kPan, 0.0f}}, isFree), (Steps{{kPan, 0.25f}, {kPan, 0.0f}}));
    EXPECT_EQ(stepsToHear({{kPan, 0.25f}}, isFree), (Steps{{kPan, 0.375f}, {kPan, 0.25f}}));
    EXPECT_EQ(stepsToHear({{kPan, 0.75f}}, isFree), (Steps{{kPan, 0.625f}, {kPan, 0.75f}}));
    EXPECT_EQ(stepsToHear({{kPan, 1.0f}}, isFree), (Steps{{kPan, 0.75f}, {kPan, 1.0f}}));
    EXPECT_EQ(stepsToHear({{kPan, 0.5f}}, isFree), (Steps{{kPan, 0.5f}}));
}

TEST(StripSteps, SynchronisationComesAfterTheTimeAndStartsAnew) {
    const Steps expected = {{kDlyTime, 0.3f}, {kDlySync, 0.0f}, {kDlySync, 1.0f}};
    for (const bool before : {synchronised, isFree}) {
        EXPECT_EQ(stepsToHear({{kDlyTime, 0.3f}, {kDlySync, 1.0f}}, before), expected);
        EXPECT_EQ(stepsToHear({{kDlySync, 1.0f}, {kDlyTime, 0.3f}}, before), expected);
    }
}

TEST(StripSteps, AFreeTimeComesLast) {
    EXPECT_EQ(stepsToHear({{kDlyTime, 0.3f}, {kDlySync, 0.2f}}, synchronised),
              (Steps{{kDlySync, 0.2f}, {kDlyTime, 0.3f}}));
    EXPECT_EQ(stepsToHear({{kDlyTime, 0.3f}}, synchronised),
              (Steps{{kDlySync, 0.0f}, {kDlyTime, 0.3f}}));
    EXPECT_EQ(stepsToHear({{kDlyTime, 0.3f}}, isFree), (Steps{{kDlyTime, 0.3f}}));
}

TEST(StripSteps, TimeAndSynchronisationThatExcludeEachOtherAreNoted) {
    EXPECT_NE(noteOnDelay({{kDlyTime, 0.3f}, {kDlySync, 1.0f}}, isFree), "");
    EXPECT_NE(noteOnDelay({{kDlyTime, 0.3f}}, synchronised), "");
    EXPECT_EQ(noteOnDelay({{kDlyTime, 0.3f}}, isFree), "");
    EXPECT_EQ(noteOnDelay({{kDlyTime, 0.3f}, {kDlySync, 0.0f}}, synchronised), "");
    EXPECT_EQ(noteOnDelay({{kDlySync, 1.0f}}, synchronised), "");
}
