#include "corvel/plot/PinkNoise.h"

#include "corvel/plot/Fourier.h"
#include "corvel/plot/StereoSound.h"

#include <gtest/gtest.h>

using namespace Tessitor::Tool;

namespace {

constexpr std::size_t period = 8192;

// The power between two frequencies, relative to a sine of amplitude 1
double power(const std::vector<float> &samples, double from, double to) {
    std::vector<std::complex<double>> values(samples.begin(), samples.end());
    transform(values);
    double sum = 0.0;
    for (std::size_t k = 1; k < period / 2; ++k)
        if (const double frequency = static_cast<double>(k * probeRate) / period;
            frequency >= from && frequency < to)
            sum += std::norm(values[k]);
    return sum;
}

}  // namespace

TEST(PinkNoise, HasTheLevelThatIsAskedFor) {
    for (const double level : {-60.0, -20.0, 0.0})
        EXPECT_NEAR(decibelsOfPower(meanPower(pinkNoise(period, 20.0, 20000.0, level))), level,
                    0.001);
}

TEST(PinkNoise, HasTheSamePowerInEachOctaveAndNoneOutside) {
    const std::vector<float> noise = pinkNoise(period, 100.0, 16000.0, -20.0);
    const double octave = power(noise, 1000.0, 2000.0);
    for (const double from : {500.0, 2000.0, 4000.0, 8000.0})
        EXPECT_NEAR(power(noise, from, 2.0 * from) / octave, 1.0, 0.03) << from;
    EXPECT_LT(power(noise, 0.0, 99.0) / octave, 1e-9);
    EXPECT_LT(power(noise, 16006.0, 22050.0) / octave, 1e-9);
}

TEST(PinkNoise, IsTheSameEveryTimeAndHasNoSingleTallPeak) {
    const std::vector<float> noise = pinkNoise(period, 20.0, 20000.0, 0.0);
    EXPECT_EQ(noise, pinkNoise(period, 20.0, 20000.0, 0.0));
    for (const float sample : noise)
        EXPECT_LT(std::abs(sample), 5.0f);
}
