#include "dspclasses/blocks/DSPAllPass.h"

#include "dspclasses/blocks/PlainAllPass.h"
#include "dspclasses/support/Signals.h"

#include <complex>
#include <gtest/gtest.h>
#include <vector>

namespace {

/// @return the response to one full-scale sample.
std::vector<float> impulseResponse(DSPAllPass &allPass, int frames) {
    std::vector<float> samples(static_cast<std::size_t>(frames), 0.0f);
    samples[0] = 1.0f;
    allPass.run(samples.data(), frames);
    return samples;
}

DSPAllPass withHalf(int length) {
    DSPAllPass allPass;
    allPass.setCoefficient(0.5f);
    allPass.setDelayLength(length);
    return allPass;
}

}  // namespace

TEST(DSPAllPass, RespondsToAnImpulseAtEachMultipleOfItsLength) {
    DSPAllPass allPass = withHalf(3);
    EXPECT_EQ(impulseResponse(allPass, 10),
              (std::vector<float>{0.5f, 0, 0, 0.75f, 0, 0, -0.375f, 0, 0, 0.1875f}));
}

TEST(DSPAllPass, KeepsTheLevelOfEveryFrequency) {
    DSPAllPass allPass;
    allPass.setDelayLength(7);
    allPass.setCoefficient(0.625f);
    const std::vector<float> response = impulseResponse(allPass, 700);
    for (int step = 0; step <= 50; ++step) {
        const double radians = 3.141592653589793 * step / 50.0;  // per sample
        std::complex<double> sum = 0.0;
        for (std::size_t n = 0; n < response.size(); ++n)
            sum += double{response[n]} * std::polar(1.0, -radians * static_cast<double>(n));
        EXPECT_NEAR(std::abs(sum), 1.0, 1e-6) << step;
    }
}

TEST(DSPAllPass, StartsWithADelayOfEight) {
    DSPAllPass allPass;
    allPass.setCoefficient(0.5f);
    const std::vector<float> response = impulseResponse(allPass, 9);
    EXPECT_EQ(response[8], 0.75f);
    EXPECT_EQ(response[7], 0.0f);
}

TEST(DSPAllPass, EveryNewLengthClearsIt) {
    for (const int length : {3, 5, 12, 2}) {  // the same, longer, grown, shorter
        DSPAllPass allPass = withHalf(3);
        for (int n = 0; n < 20; ++n)
            allPass.tick(1.0f);
        allPass.setDelayLength(length);
        DSPAllPass fresh = withHalf(length);
        EXPECT_EQ(impulseResponse(allPass, 40), impulseResponse(fresh, 40)) << length;
    }
}

TEST(DSPAllPass, ClearSilencesItAndResetsItsPosition) {
    DSPAllPass allPass = withHalf(5);
    for (int n = 0; n < 7; ++n)
        allPass.tick(1.0f);
    allPass.clear();
    DSPAllPass fresh = withHalf(5);
    EXPECT_EQ(impulseResponse(allPass, 40), impulseResponse(fresh, 40));
}

TEST(DSPAllPass, StoresADenormalAsZero) {
    DSPAllPass allPass = withHalf(1);
    allPass.tick(1.5e-38f);  // a normal number, half of which is denormal
    EXPECT_EQ(allPass.tick(0.0f), 1.5e-38f);
    EXPECT_EQ(allPass.tick(0.0f), 0.0f);
}

TEST(DSPAllPass, ANegativeLengthActsAsOne) {
    DSPAllPass one = withHalf(1), negative = withHalf(-7);
    EXPECT_EQ(impulseResponse(negative, 10), impulseResponse(one, 10));
}

TEST(DSPAllPassDeathTest, StopsAtALengthOfZero) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    DSPAllPass allPass;
    EXPECT_DEATH(allPass.setDelayLength(0),
                 "Assertion failed: newDelayLength!=0, file dspclasses/DSPAllPass, line 46");
}

TEST(DSPAllPass, RunsEqualThePlainVersionTickByTick) {
    for (std::uint64_t seed = 1; seed <= 300; ++seed) {
        CRandom random(seed);
        DSPAllPass allPass;
        CPlainAllPass plain;
        const auto coefficient = static_cast<float>(random.real(0.0, 0.9));
        allPass.setCoefficient(coefficient);
        plain.coefficient = coefficient;
        for (int round = 0; round < 10; ++round) {
            if (random.chance(0.3)) {
                const int length = random.whole(1, random.chance(0.5) ? 20 : 400);
                allPass.setDelayLength(length);
                plain.setDelayLength(length);
            }
            const auto kind = static_cast<ESignal>(random.whole(0, signalCount - 1));
            const std::vector<double> signal =
                makeChannel(kind, random.bits(), random.whole(1, 300));
            std::vector<float> samples(signal.begin(), signal.end());
            allPass.run(samples.data(), static_cast<int>(samples.size()));
            for (std::size_t i = 0; i < samples.size(); ++i)
                ASSERT_TRUE(sameBits(samples[i], plain.tick(static_cast<float>(signal[i]))))
                    << "seed " << seed;
        }
    }
}
