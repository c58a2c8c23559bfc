#include "foundation/Polling.h"

#include <gtest/gtest.h>

using Tessitor::Threading::pollUntil;

namespace {

struct SPoll {
    int attempts = 0, pauses = 0;
    bool succeeded = false;
};

/// Polls until the attempt with this number, counted from 1, succeeds.
SPoll poll(long milliseconds, int successful) {
    SPoll result;
    result.succeeded = pollUntil(
        milliseconds, [&] { return ++result.attempts == successful; }, [&] { ++result.pauses; });
    return result;
}

TEST(Polling, MakesThreeAttemptsInTwelveMilliseconds) {
    const SPoll result = poll(12, 100);
    EXPECT_FALSE(result.succeeded);
    EXPECT_EQ(result.attempts, 3);
    EXPECT_EQ(result.pauses, 3);
}

TEST(Polling, EndsWhenTheTimeIsExactlyUsedUp) {
    EXPECT_EQ(poll(10, 100).attempts, 2);
    EXPECT_EQ(poll(11, 100).attempts, 3);
}

TEST(Polling, MakesOneAttemptInOneMillisecond) {
    EXPECT_EQ(poll(1, 100).attempts, 1);
}

TEST(Polling, DoesNotPauseAfterASuccess) {
    const SPoll result = poll(12, 2);
    EXPECT_TRUE(result.succeeded);
    EXPECT_EQ(result.attempts, 2);
    EXPECT_EQ(result.pauses, 1);
}

}  // namespace
