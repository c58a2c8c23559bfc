#include "corvel/live/CGate.h"

#include <gtest/gtest.h>
#include <thread>

using Tessitor::Tool::CGate;

TEST(CGate, IsClosedAtFirst) {
    CGate gate;
    EXPECT_FALSE(gate.enter());
    gate.open();
    EXPECT_TRUE(gate.enter());
    gate.leave();
    gate.close();
    EXPECT_FALSE(gate.enter());
}

TEST(CGate, ClosesOnlyWhenTheAudioThreadIsOutside) {
    CGate gate;
    int shared = 0;  // what the gate protects
    std::atomic<bool> hasEnded = false;
    std::thread audio([&] {
        while (!hasEnded) {
            if (!gate.enter())
                continue;
            EXPECT_EQ(shared, 0);
            gate.leave();
        }
    });
    for (int round = 0; round < 200; ++round) {
        gate.open();
        std::this_thread::yield();
        gate.close();
        shared = 1;
        std::this_thread::yield();
        shared = 0;
    }
    hasEnded = true;
    audio.join();
}
