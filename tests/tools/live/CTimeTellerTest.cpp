#include "corvel/live/CTimeTeller.h"

#include <gtest/gtest.h>

using namespace Tessitor::Tool;

TEST(CTimeTeller, TellsItsOwnTempoIfNobodyKeepsTheTime) {
    CTimeTeller teller(90.0);
    const VstTimeInfo time = teller.timeOf({96000, true, {}}, 48000.0, 256);
    EXPECT_EQ(time.tempo, 90.0);
    EXPECT_EQ(time.samplePos, 96000.0);
    EXPECT_EQ(time.sampleRate, 48000.0);
    EXPECT_EQ(time.ppqPos, 3.0);
    EXPECT_TRUE(time.flags & kVstTempoValid);
    EXPECT_TRUE(time.flags & kVstPpqPosValid);
    EXPECT_FALSE(time.flags & kVstBarsValid);
}

TEST(CTimeTeller, TellsTheTempoAndTheBarOfTheServer) {
    CTimeTeller teller(90.0);
    const STransport::SBeat beat{120.0, 6.0, 8.0, 3, 1.5};  // in eighths
    const VstTimeInfo time = teller.timeOf({0, true, beat}, 48000.0, 256);
    EXPECT_EQ(time.tempo, 60.0);
    EXPECT_EQ(time.barStartPos, 6.0);
    EXPECT_EQ(time.ppqPos, 6.75);
    EXPECT_EQ(time.timeSigNumerator, 6);
    EXPECT_EQ(time.timeSigDenominator, 8);
    EXPECT_TRUE(time.flags & kVstBarsValid);
    EXPECT_TRUE(time.flags & kVstTimeSigValid);
}

TEST(CTimeTeller, TellsWhetherTheTransportRollsAndJumps) {
    CTimeTeller teller(120.0);
    const auto flagsAt = [&](std::uint64_t frame, bool isRolling) {
        return teller.timeOf({frame, isRolling, {}}, 48000.0, 100).flags &
               (kVstTransportPlaying | kVstTransportChanged);
    };
    EXPECT_EQ(flagsAt(0, false), kVstTransportChanged);  // the first block
    EXPECT_EQ(flagsAt(0, false), 0);
    EXPECT_EQ(flagsAt(0, true), kVstTransportPlaying | kVstTransportChanged);
    EXPECT_EQ(flagsAt(100, true), kVstTransportPlaying);
    EXPECT_EQ(flagsAt(500, true), kVstTransportPlaying | kVstTransportChanged);
    EXPECT_EQ(flagsAt(600, false), kVstTransportChanged);
    EXPECT_EQ(flagsAt(600, false), 0);
    EXPECT_EQ(flagsAt(0, false), kVstTransportChanged);
}
