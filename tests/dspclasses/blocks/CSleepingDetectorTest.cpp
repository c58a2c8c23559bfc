#include "dspclasses/blocks/CSleepingDetector.h"

#include "dspclasses/blocks/PlainDetector.h"
#include "dspclasses/support/Signals.h"

#include <gtest/gtest.h>

namespace {

constexpr SGainLaw halving{-0.5f, 0.0f, 1.0f};

SDetectorSettings settingsAt(float thresholdDb) {
    return {thresholdDb, linearFromDecibels(thresholdDb), {0.99f, 0.999f}, halving};
}

/// A detector in the middle of a gain reduction.
struct SAwake {
    SDetectorState state{.peak = 0.9f, .smoothedExcessDb = 15.0f};
    SGain gain{.decibels = -7.5f, .linear = linearFromDecibels(-7.5f)};
};

/// The number of frames until the detector falls asleep at this level.
int framesUntilAsleep(CSleepingDetector &detector, double level) {
    int frames = 0;
    for (; !detector.isAsleep() && frames < 100000; ++frames)
        detector.detect(level);
    return frames;
}

}  // namespace

TEST(CSleepingDetector, SleepsFromTheStart) {
    SDetectorState state;
    SGain gain;
    EXPECT_TRUE(CSleepingDetector(state, gain, settingsAt(-20.0f)).isAsleep());
}

TEST(CSleepingDetector, StaysAwakeWhileTheSignalIsLoud) {
    SAwake awake;
    CSleepingDetector detector(awake.state, awake.gain, settingsAt(-20.0f));
    EXPECT_EQ(framesUntilAsleep(detector, 0.9), 100000);
    EXPECT_LT(awake.gain.decibels, -5.0f);
}

TEST(CSleepingDetector, EqualsThePlainVersionUntilItFallsAsleep) {
    for (std::uint64_t seed = 1; seed < 50; ++seed) {
        SCOPED_TRACE(seed);
        CRandom random(seed);
        const SDetectorSettings settings = settingsAt(-30.0f);
        SPlainDetector plain{.attackCoef = settings.smoother.attackCoef,
                             .releaseCoef = settings.smoother.releaseCoef};
        plain.setThreshold(settings.thresholdDb);
        SAwake awake;
        SDetectorState expected = awake.state;
        CSleepingDetector detector(awake.state, awake.gain, settings);
        for (int i = 0; i < 3000 && !detector.isAsleep(); ++i) {
            const double level = random.chance(0.5) ? 0.0 : random.real(0.0, 0.1);
            plain.follow(expected.peak, awake.gain.decibels, level);
            plain.smooth(expected.smoothedExcessDb, plain.thresholdDb, plain.isAbove(expected.peak),
                         level);
            detector.detect(level);
            ASSERT_TRUE(sameBits(awake.state.peak, expected.peak)) << i;
            ASSERT_TRUE(sameBits(awake.state.smoothedExcessDb, expected.smoothedExcessDb)) << i;
        }
    }
}

TEST(CSleepingDetector, FallsAsleepAfterTheSignalAndNoLevelWakesIt) {
    SAwake awake;
    CSleepingDetector detector(awake.state, awake.gain, settingsAt(-20.0f));
    const int frames = framesUntilAsleep(detector, 0.0);
    EXPECT_GT(frames, 1000);
    EXPECT_LT(frames, 20000);
    for (int i = 0; i < 1000; ++i) {
        detector.detect(1.0);
        EXPECT_TRUE(detector.isAsleep());
    }
    EXPECT_EQ(awake.gain.linear, 1.0f);
    EXPECT_EQ(awake.state.peak, 0.0f);
}

TEST(CSleepingDetector, SleepingForManyFramesEqualsDetectingEach) {
    for (const float thresholdDb : {-20.0f, 0.0f}) {
        for (const int frames : {1, 2, 100, 5000, 100000}) {
            SDetectorState slept{.peak = 0.5f, .smoothedExcessDb = 0.009f}, detected = slept;
            SGain sleptGain, detectedGain;
            CSleepingDetector sleeper(slept, sleptGain, settingsAt(thresholdDb));
            CSleepingDetector detector(detected, detectedGain, settingsAt(thresholdDb));
            ASSERT_TRUE(sleeper.isAsleep());
            sleeper.sleep(frames);
            for (int i = 0; i < frames; ++i)
                detector.detect(1.0);
            EXPECT_TRUE(sameBits(slept.peak, detected.peak));
            EXPECT_TRUE(sameBits(slept.smoothedExcessDb, detected.smoothedExcessDb)) << frames;
            EXPECT_TRUE(sameBits(sleptGain.decibels, detectedGain.decibels));
            EXPECT_TRUE(sameBits(sleptGain.linear, detectedGain.linear));
        }
    }
}
