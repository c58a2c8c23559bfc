#include "corvel/audio/CDither.h"

#include "corvel/audio/Quantise.h"

#include <cmath>
#include <gtest/gtest.h>
#include <vector>

using namespace Tessitor::Tool;

namespace {

constexpr std::size_t count = 200000;
constexpr double tolerance = 0.005;  // several standard deviations

std::vector<double> dithered(const std::vector<double> &samples, int bits) {
    std::vector<double> result(samples.size());
    CDither(bits).add(samples.data(), samples.size(), result.data());
    return result;
}

/// @return the errors of dither and rounding, in steps.
std::vector<double> errorsOf(const std::vector<double> &samples, int bits) {
    std::vector<std::int32_t> integers(samples.size());
    const std::vector<double> noisy = dithered(samples, bits);
    quantise(noisy.data(), noisy.size(), bits, integers.data());
    std::vector<double> errors;
    for (std::size_t i = 0; i < samples.size(); ++i)
        errors.push_back(std::ldexp(integers[i], bits - 32) - std::ldexp(samples[i], bits - 1));
    return errors;
}

double meanProduct(const std::vector<double> &a, const std::vector<double> &b) {
    double sum = 0.0;
    for (std::size_t i = 0; i < a.size(); ++i)
        sum += a[i] * b[i];
    return sum / static_cast<double>(a.size());
}

double mean(const std::vector<double> &numbers) {
    return meanProduct(numbers, std::vector<double>(numbers.size(), 1.0));
}

}  // namespace

class CDitherBits : public testing::TestWithParam<int> {};

TEST_P(CDitherBits, TheErrorHasNoMeanAndAQuarterStepOfPowerAtAnyLevel) {
    for (const double level : {0.0, 0.1, 0.25, 0.5, 0.75, -0.4, 20.6}) {
        const std::vector<double> errors =
            errorsOf(std::vector<double>(count, std::ldexp(level, 1 - GetParam())), GetParam());
        EXPECT_NEAR(mean(errors), 0.0, tolerance) << level;
        EXPECT_NEAR(meanProduct(errors, errors), 0.25, tolerance) << level;
    }
}
INSTANTIATE_TEST_SUITE_P(Depths, CDitherBits, testing::Values(8, 16));

TEST(CDither, TheErrorIsIndependentOfTheSignal) {
    std::vector<double> sine, squares;
    for (std::size_t i = 0; i < count; ++i) {
        sine.push_back(std::sin(0.05 * static_cast<double>(i)));
        squares.push_back(sine[i] * sine[i] - 0.5);
    }
    std::vector<double> quiet = sine;
    for (double &sample : quiet)
        sample = std::ldexp(1.3 * sample, -15);  // without dither, steps would be heard
    const std::vector<double> errors = errorsOf(quiet, 16);
    std::vector<double> power;
    for (const double error : errors)
        power.push_back(error * error);
    EXPECT_NEAR(meanProduct(errors, sine), 0.0, tolerance);
    EXPECT_NEAR(meanProduct(errors, squares), 0.0, tolerance);
    EXPECT_NEAR(meanProduct(power, sine), 0.0, tolerance);
    EXPECT_NEAR(meanProduct(power, squares), 0.0, tolerance);
}

TEST(CDither, TheNoiseIsTriangularWithinOneStep) {
    const std::vector<double> noise = dithered(std::vector<double>(count, 0.0), 16);
    std::vector<double> parts(8);
    for (const double sample : noise) {
        const double steps = std::ldexp(sample, 15);
        ASSERT_LT(std::abs(steps), 1.0);
        parts[static_cast<std::size_t>((steps + 1.0) * 4.0)] += 1.0 / count;
    }
    const double expected[] = {1.0, 3.0, 5.0, 7.0, 7.0, 5.0, 3.0, 1.0};
    for (std::size_t i = 0; i < parts.size(); ++i)
        EXPECT_NEAR(parts[i], expected[i] / 32.0, tolerance) << i;
}

TEST(CDither, TheNoiseIsWhiteAndDiffersBetweenChannels) {
    const std::vector<double> errors = errorsOf(std::vector<double>(count, 0.0), 16);
    for (const std::ptrdiff_t lag : {1, 2, 3, 4, 7, 100}) {
        const std::vector<double> later(errors.begin() + lag, errors.end());
        EXPECT_NEAR(meanProduct(later, errors), 0.0, tolerance) << lag;
    }
}

TEST(CDither, TheNoiseIsAlwaysTheSame) {
    const std::vector<double> silence(1000, 0.0);
    const std::vector<double> first = dithered(silence, 16);
    EXPECT_EQ(first, dithered(silence, 16));
    EXPECT_EQ(std::ldexp(first[0], 15), std::ldexp(dithered(silence, 8)[0], 7));

    CDither dither(16);
    const std::vector<float> singles(1000, 0.0f);
    std::vector<double> parts(1000);
    dither.add(singles.data(), 300, parts.data());
    dither.add(silence.data(), 700, parts.data() + 300);
    EXPECT_EQ(parts, first);
}

// Files made years ago can be made again. The numbers are of SplitMix64, from its published form.
TEST(CDither, TheNoiseFollowsFromTheDocumentedSeed) {
    std::uint64_t state = 0x436f7276656c2131;
    for (const double sample : dithered(std::vector<double>(50, 0.0), 16)) {
        std::uint64_t z = (state += 0x9e3779b97f4a7c15);
        z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9;
        z = (z ^ (z >> 27)) * 0x94d049bb133111eb;
        z ^= z >> 31;
        const double difference =
            static_cast<double>(z >> 32) - static_cast<double>(z & 0xffffffffu);
        EXPECT_EQ(sample, std::ldexp(difference, -32 - 15));
    }
}
