#include "dspclasses/modules/SweepOscillator.h"

#include <gtest/gtest.h>

TEST(SweepOscillator, ItsWaveRunsFromZeroToOne) {
    EXPECT_EQ(sweepWave(-1.0f), 0.5f);
    EXPECT_EQ(sweepWave(-0.5f), 0.0f);
    EXPECT_EQ(sweepWave(-0.25f), 0.125f);
    EXPECT_EQ(sweepWave(0.0f), 0.5f);
    EXPECT_EQ(sweepWave(0.5f), 1.0f);
    EXPECT_EQ(sweepWave(1.0f), 0.5f);
}

TEST(SweepOscillator, CompletesAsManyCyclesASecondAsItsSpeedInHertz) {
    const float increment = sweepIncrement(2.0f, 1.0f / 1024.0f);
    float phase = -0.75f;
    int cycles = 0;
    for (int n = 0; n < 10 * 1024; ++n) {
        const float next = nextSweepPhase(phase, increment);
        cycles += next < phase ? 1 : 0;
        phase = next;
    }
    EXPECT_EQ(cycles, 20);
    EXPECT_EQ(phase, -0.75f);
}

TEST(SweepOscillator, WrapsAboveOneOnly) {
    EXPECT_EQ(nextSweepPhase(0.75f, 0.25f), 1.0f);
    EXPECT_EQ(nextSweepPhase(0.75f, 0.5f), -0.75f);
    EXPECT_EQ(shiftedSweepPhase(0.75f, 1.0f), -0.75f);
    EXPECT_EQ(shiftedSweepPhase(0.5f, 1.0f), 1.0f);
    EXPECT_EQ(shiftedSweepPhase(-0.75f, -1.0f), -1.25f);
}
