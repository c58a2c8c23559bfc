#include "dspclasses/blocks/DelayLine.h"

#include "dspclasses/blocks/PlainDelayLine.h"
#include "dspclasses/support/Signals.h"

#include <atomic>
#include <cmath>
#include <gtest/gtest.h>
#include <thread>
#include <vector>

namespace {

/// Writes 1, 2, 3 and so on.
template <typename Line>
void count(Line &line, int to) {
    for (int n = 1; n <= to; ++n)
        line.write(static_cast<float>(n));
}

std::vector<float> randomSamples(CRandom &random, int frames) {
    std::vector<float> samples(static_cast<std::size_t>(frames));
    for (float &sample : samples)
        sample = static_cast<float>(random.chance(0.1) ? denormalSample(random)
                                                       : random.real(-1.0, 1.0));
    return samples;
}

}  // namespace

TEST(DelayLine, KeepsItsContentsWhenAskedForLessThanItHas) {
    DelayLine line(1024);
    count(line, 100);
    line.resize(1024);
    line.resize(10);
    line.resize(0);
    EXPECT_EQ(line.getCapacity(), 1024u);
    EXPECT_EQ(line.read(0.0f), 100.0f);
    EXPECT_EQ(line.read(99.0f), 1.0f);
}

TEST(DelayLine, IsSilentAfterGrowing) {
    DelayLine line(8);
    count(line, 20);
    line.resize(9);
    EXPECT_EQ(line.getCapacity(), 16u);
    for (int n = 0; n < 16; ++n)
        EXPECT_EQ(line.read(static_cast<float>(n)), 0.0f) << n;
    line.write(5.0f);
    EXPECT_EQ(line.read(0.0f), 5.0f);
    EXPECT_EQ(line.read(15.0f), 0.0f);
}

TEST(DelayLine, ReadsBackFromTheNewestSample) {
    DelayLine line(8);
    count(line, 11);
    for (int n = 0; n < 8; ++n)
        EXPECT_EQ(line.read(static_cast<float>(n)), static_cast<float>(11 - n));
}

TEST(DelayLine, CopiesTheNewestSamplesWithoutInterpolation) {
    DelayLine line(4);
    count(line, 6);
    std::vector<float> newest(4);
    line.copyNewest(newest.data(), 4);
    EXPECT_EQ(newest, (std::vector<float>{3.0f, 4.0f, 5.0f, 6.0f}));
    line.write(INFINITY);
    line.copyNewest(newest.data(), 2);
    EXPECT_EQ(newest[0], 6.0f) << "no interpolation towards a neighbour";
}

TEST(DelayLine, InterpolatesTowardsTheOlderNeighbour) {
    DelayLine line(8);
    line.write(4.0f);
    line.write(1.0f);
    EXPECT_EQ(line.read(0.25f), 1.75f);
    EXPECT_EQ(line.read(0.5f), 2.5f);
    EXPECT_EQ(line.read(1.5f), 2.0f);
}

TEST(DelayLine, WrapsAnOffsetBeyondItsCapacity) {
    DelayLine line(4);
    count(line, 4);
    EXPECT_EQ(line.read(5.0f), 3.0f);
    EXPECT_EQ(line.read(5320.0f), 4.0f);
    // The older neighbour of the oldest sample is the newest one.
    EXPECT_EQ(line.read(3.5f), 2.5f);
}

TEST(DelayLine, StoresADenormalAsZero) {
    DelayLine line(4);
    for (const float sample : {1e-39f, -1e-39f, -0.0f, 0.0f}) {
        line.write(1.0f);
        line.write(sample);
        EXPECT_TRUE(sameBits(line.read(0.0f), 0.0f)) << sample;
    }
    line.write(-1.17549435e-38f);  // the smallest normal number
    EXPECT_EQ(line.read(0.0f), -1.17549435e-38f);
}

TEST(DelayLine, ReadsAtTheStoredOffsetWithoutItsFraction) {
    DelayLine line(16);
    count(line, 10);
    EXPECT_EQ(line.readConstant(), 10.0f);
    line.setConstantOffset(3.9f);
    EXPECT_EQ(line.readConstant(), 7.0f);
}

TEST(DelayLine, GrowsForTheStoredOffset) {
    DelayLine line(8);
    line.setConstantOffset(7.5f);  // its whole part fits
    EXPECT_EQ(line.getCapacity(), 8u);
    line.setConstantOffset(8.0f);
    EXPECT_EQ(line.getCapacity(), 16u);
    line.setConstantOffset(100.0f);
    EXPECT_EQ(line.getCapacity(), 128u);
    count(line, 101);
    EXPECT_EQ(line.readConstant(), 1.0f);
}

TEST(DelayLine, ClearSilencesTheWholeCapacity) {
    DelayLine line(8);
    count(line, 13);
    line.clear();
    for (int n = 0; n < 8; ++n)
        EXPECT_EQ(line.read(static_cast<float>(n) + 0.5f), 0.0f) << n;
}

TEST(DelayLineDeathTest, StopsAtANegativeOffsetAndAtANaN) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    DelayLine line(8);
    const char *text = "Assertion failed: offset >= 0.0f, file dspclasses/DelayLine, line 74";
    EXPECT_DEATH(line.read(-0.5f), text);
    EXPECT_DEATH(line.read(NAN), text);
    EXPECT_DEATH(line.getRun(-1.0f), text);
    EXPECT_EQ(line.read(-0.0f), 0.0f);
}

TEST(DelayLineDeathTest, StopsAtANegativeStoredOffset) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    DelayLine line(8);
    const char *text =
        "Assertion failed: newconstantoffset >= 0.0f, file dspclasses/DelayLine, line 174";
    EXPECT_DEATH(line.setConstantOffset(-1.0f), text);
    EXPECT_DEATH(line.setConstantOffset(NAN), text);
}

TEST(DelayLine, ARunEndsBeforeAReadWouldNeedAWriteOfTheSameRun) {
    DelayLine line(16);
    count(line, 15);  // into the last place of the ring, so that no run passes its end
    EXPECT_EQ(line.getRun(0.0f).frames, 1);
    EXPECT_EQ(line.getRun(5.9f).frames, 6);
    EXPECT_EQ(line.getRun(14.0f).frames, 15);
    EXPECT_EQ(line.getRun(15.0f).frames, 1);
    EXPECT_EQ(line.getRun(16.0f + 5.0f).frames, 6);
    line.setConstantOffset(9.0f);
    EXPECT_EQ(line.getConstantRun().frames, 10);
}

TEST(DelayLine, ARunInTheMemoryOfTheLineEndsWithTheRing) {
    DelayLine line(16);
    count(line, 17);  // into the second place
    const DelayLine::SRun run = line.getRun(5.0f);
    EXPECT_EQ(run.frames, 4);
    EXPECT_EQ(run.newer[0], 12.0f);
    EXPECT_EQ(run.newer[3], 15.0f);
    count(line, 3);
    EXPECT_EQ(line.getRun(4.0f).newer[-1], 15.0f);  // before the first place, the last one repeats
}

TEST(DelayLine, SweptRunsKeepAwayFromTheirOwnWrites) {
    DelayLine line(16);
    const auto can = [&line](std::vector<float> offsets) {
        return line.canReadRun(offsets.data(), static_cast<int>(offsets.size()));
    };
    EXPECT_TRUE(can({3.0f, 14.0f, 7.5f}));
    EXPECT_FALSE(can({2.9f, 4.0f, 5.0f}));
    EXPECT_FALSE(can({4.0f, 5.0f, 14.1f}));
    EXPECT_FALSE(can({4.0f, NAN, 5.0f}));
    EXPECT_FALSE(can({4.0f, -1.0f, 5.0f}));
    EXPECT_FALSE(can({4.0f, INFINITY, 5.0f}));
}

TEST(DelayLine, RunsEqualThePlainVersionFrameByFrame) {
    int sweeps = 0;
    for (std::uint64_t seed = 1; seed <= 300; ++seed) {
        CRandom random(seed);
        const auto capacity = std::uint32_t{1} << random.whole(0, 9);
        DelayLine line(capacity);
        CPlainDelayLine plain(capacity);
        for (int n = 0; n < 30; ++n) {
            const auto offset = static_cast<float>(
                random.chance(0.5) ? random.whole(0, static_cast<int>(2 * capacity))
                                   : random.real(0.0, capacity));
            line.setConstantOffset(std::min(offset, static_cast<float>(capacity - 1)));
            plain.setConstantOffset(std::min(offset, static_cast<float>(capacity - 1)));
            const DelayLine::SRun run = line.getRun(offset), constantRun = line.getConstantRun();
            const int frames = random.whole(1, std::min(run.frames, constantRun.frames));
            std::vector<float> swept(static_cast<std::size_t>(frames));
            const double nearest = random.chance(0.7) ? frames : 0.0;
            for (float &place : swept)
                place = static_cast<float>(random.real(nearest, std::max(nearest, capacity - 3.0)));
            std::vector<float> got(swept.size()), constant(swept.size()), gotSwept(swept.size());
            run.read(got.data(), frames);
            constantRun.read(constant.data(), frames);
            const bool canSweep = line.canReadRun(swept.data(), frames);
            sweeps += canSweep ? 1 : 0;
            if (canSweep)
                line.readRun(swept.data(), gotSwept.data(), frames);
            const std::vector<float> fresh = randomSamples(random, frames);
            line.write(fresh.data(), frames);
            for (std::size_t i = 0; i < swept.size(); ++i) {
                ASSERT_TRUE(sameBits(got[i], plain.read(offset))) << "seed " << seed;
                ASSERT_TRUE(sameBits(constant[i], plain.readConstant())) << "seed " << seed;
                if (canSweep) {
                    ASSERT_TRUE(sameBits(gotSwept[i], plain.read(swept[i]))) << "seed " << seed;
                }
                plain.write(fresh[i]);
            }
        }
    }
    EXPECT_GT(sweeps, 1000);
}

TEST(DelayLine, InterpolatesInfinitiesLikeAnyOtherSample) {
    // A fraction of 0 leaves a sample unchanged, except beside an infinity, where it yields a NaN.
    DelayLine line(8);
    CPlainDelayLine plain(8);
    for (const float sample : {1.0f, INFINITY, 2.0f, -INFINITY, NAN, 3.0f}) {
        line.write(sample);
        plain.write(sample);
    }
    line.setConstantOffset(5.0f);
    plain.setConstantOffset(5.0f);
    const DelayLine::SRun run = line.getConstantRun();
    ASSERT_EQ(run.frames, 6);
    std::vector<float> samples(6);
    run.read(samples.data(), 6);
    for (const float sample : samples) {
        EXPECT_TRUE(sameBits(sample, plain.readConstant())) << sample;
        plain.write(0.0f);
    }
}

TEST(DelayLine, MayGrowWhileABlockRuns) {
    // Each write wraps many times, always in the memory that was the newest when it began.
    DelayLine line(8);
    constexpr int growths = 12;
    std::atomic<int> writes = 0;
    std::thread audio([&line, &writes] {
        const std::vector<float> block(1 << 18, 1.0f);
        for (int n = 0; n < growths; ++n) {
            ++writes;
            line.write(block.data(), static_cast<int>(block.size()));
        }
    });
    for (int n = 1; n <= growths; ++n) {
        while (writes < n)
            std::this_thread::yield();
        line.resize(std::uint32_t{8} << n);
    }
    audio.join();
    EXPECT_EQ(line.getCapacity(), 32768u);
    count(line, 32768);
    EXPECT_EQ(line.read(32767.0f), 1.0f);
}
