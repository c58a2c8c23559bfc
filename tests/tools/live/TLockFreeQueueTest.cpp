#include "corvel/live/TLockFreeQueue.h"

#include <gtest/gtest.h>
#include <thread>

using Tessitor::Tool::TLockFreeQueue;

TEST(TLockFreeQueue, KeepsTheOrder) {
    TLockFreeQueue<int, 4> queue;
    EXPECT_EQ(queue.peek(), nullptr);
    for (int round = 0; round < 10; ++round) {
        EXPECT_TRUE(queue.push(3 * round));
        EXPECT_TRUE(queue.push(3 * round + 1));
        for (const int expected : {3 * round, 3 * round + 1}) {
            ASSERT_NE(queue.peek(), nullptr);
            EXPECT_EQ(*queue.peek(), expected);
            EXPECT_FALSE(queue.isEmpty());
            queue.pop();
        }
        EXPECT_TRUE(queue.isEmpty());
    }
}

TEST(TLockFreeQueue, RefusesWhatDoesNotFit) {
    TLockFreeQueue<int, 2> queue;
    EXPECT_TRUE(queue.push(1));
    EXPECT_TRUE(queue.push(2));
    EXPECT_FALSE(queue.push(3));
    queue.pop();
    EXPECT_TRUE(queue.push(4));
    EXPECT_EQ(*queue.peek(), 2);
}

TEST(TLockFreeQueue, HandsEverythingFromOneThreadToAnother) {
    constexpr int count = 100000;
    TLockFreeQueue<int, 64> queue;
    std::thread pusher([&] {
        for (int i = 0; i < count;)
            if (queue.push(i))
                ++i;
            else
                std::this_thread::yield();
    });
    int wrong = 0;
    for (int i = 0; i < count;) {
        const int *item = queue.peek();
        if (item == nullptr) {
            std::this_thread::yield();
            continue;
        }
        wrong += *item == i++ ? 0 : 1;
        queue.pop();
    }
    pusher.join();
    EXPECT_EQ(wrong, 0);
    EXPECT_TRUE(queue.isEmpty());
}
