#include "platform/linux/windowing/connection/CNoPipeSignal.h"

#include <gtest/gtest.h>
#include <unistd.h>

namespace {

void writeToNobody() {
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    close(ends[0]);
    EXPECT_EQ(write(ends[1], "x", 1), -1);
    close(ends[1]);
}

bool isBlocked() {
    sigset_t blocked;
    pthread_sigmask(SIG_BLOCK, nullptr, &blocked);
    return sigismember(&blocked, SIGPIPE) == 1;
}

bool isPending() {
    sigset_t pending;
    sigpending(&pending);
    return sigismember(&pending, SIGPIPE) == 1;
}

TEST(CNoPipeSignal, TakesTheSignalAway) {
    {
        const CNoPipeSignal guard;
        writeToNobody();
        EXPECT_TRUE(isPending());
    }
    EXPECT_FALSE(isPending());
    EXPECT_FALSE(isBlocked());
}

TEST(CNoPipeSignal, LeavesASignalThatWasPendingBefore) {
    const CNoPipeSignal hosts;  // acts as a host that blocks the signal
    writeToNobody();
    {
        const CNoPipeSignal guard;
        writeToNobody();
    }
    EXPECT_TRUE(isPending());
    EXPECT_TRUE(isBlocked());
}

}  // namespace
