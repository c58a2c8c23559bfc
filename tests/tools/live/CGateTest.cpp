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
    std::atomic<bool> isRestarting = false;  // what the gate keeps apart from the audio thread
    std::atomic<int> meetings = 0;
    std::atomic<bool> hasEnded = false;
    std::thread audio([&] {
        while (!hasEnded) {
            if (!gate.enter())
                continue;
            for (int step = 0; step < 10; ++step) {
                meetings += isRestarting ? 1 : 0;
                std::this_thread::yield();
            }
            gate.leave();
        }
    });
    for (int round = 0; round < 200; ++round) {
        gate.open();
        std::this_thread::yield();
        gate.close();
        isRestarting = true;
        std::this_thread::yield();
        isRestarting = false;
    }
    hasEnded = true;
    audio.join();
    EXPECT_EQ(meetings, 0);
}
