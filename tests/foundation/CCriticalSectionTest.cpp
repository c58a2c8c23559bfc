#include "foundation/CCriticalSection.h"

#include <atomic>
#include <gtest/gtest.h>
#include <thread>

using Tessitor::Threading::CCriticalSection;

namespace {

bool canBeTakenElsewhere(CCriticalSection &section) {
    bool taken = false;
    std::thread([&] {
        taken = section.tryLock(1);
        if (taken)
            section.unlock();
    }).join();
    return taken;
}

TEST(CCriticalSection, KeepsOtherThreadsOut) {
    CCriticalSection section;
    section.lock();
    EXPECT_FALSE(canBeTakenElsewhere(section));
    section.unlock();
    EXPECT_TRUE(canBeTakenElsewhere(section));
}

TEST(CCriticalSection, CanBeLockedAgainByItsHolder) {
    CCriticalSection section;
    section.lock();
    section.lock();
    EXPECT_TRUE(section.tryLock(1));
    section.unlock();
    section.unlock();
    EXPECT_FALSE(canBeTakenElsewhere(section));
    section.unlock();
    EXPECT_TRUE(canBeTakenElsewhere(section));
}

TEST(CCriticalSection, TryingTakesAFreeLock) {
    CCriticalSection section;
    EXPECT_TRUE(section.tryLock(12));
    EXPECT_FALSE(canBeTakenElsewhere(section));
    section.unlock();
}

TEST(CCriticalSection, TryingGivesUp) {
    CCriticalSection section;
    section.lock();
    bool taken = true;
    std::thread([&] { taken = section.tryLock(12); }).join();
    EXPECT_FALSE(taken);
    section.unlock();
}

class CCriticalSectionWait : public testing::TestWithParam<long> {};

TEST_P(CCriticalSectionWait, TryingLongEnoughGetsALockThatIsFreedMeanwhile) {
    CCriticalSection section;
    std::atomic<bool> trying = false, returned = false;
    section.lock();
    std::thread waiting([&] {
        trying = true;
        EXPECT_TRUE(section.tryLock(GetParam()));
        returned = true;
        section.unlock();
    });
    while (!trying)
        std::this_thread::yield();
    for (int looks = 0; looks < 1000; ++looks) {
        EXPECT_FALSE(returned);
        std::this_thread::yield();
    }
    section.unlock();
    waiting.join();
}
INSTANTIATE_TEST_SUITE_P(Times, CCriticalSectionWait, testing::Values(0, -1, 600000));

TEST(CCriticalSection, CountsItself) {
    const CCriticalSection section;
    EXPECT_TRUE(section.getClass() == "CCriticalSection");
    const auto instances = section.getClass().getInstanceCount();
    {
        const CCriticalSection another;
        EXPECT_EQ(section.getClass().getInstanceCount(), instances + 1);
    }
    EXPECT_EQ(section.getClass().getInstanceCount(), instances);
}

}  // namespace
