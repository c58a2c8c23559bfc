#include "dspclasses/kernels/SingleMath.h"

#include "dspclasses/kernels/SingleMathLanes.h"
#include "dspclasses/kernels/WideLoop.h"
#include "dspclasses/support/Signals.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <utility>
#include <vector>

namespace {

constexpr float infinity = std::numeric_limits<float>::infinity();

/// Floats spread over the range from `low` to `high`, which have the same sign, denormals included.
std::vector<float> spread(float low, float high) {
    constexpr std::uint32_t stride = 20011;
    std::vector<float> values;
    const auto last = std::bit_cast<std::uint32_t>(high);
    for (auto bits = std::bit_cast<std::uint32_t>(low); bits <= last; bits += stride)
        values.push_back(std::bit_cast<float>(bits));
    return values;
}

std::vector<float> ofBothSigns(std::vector<float> values) {
    const std::size_t count = values.size();
    for (std::size_t i = 0; i < count; ++i)
        values.push_back(-values[i]);
    return values;
}

/// A hash of the bits of all results, to compare one system with another.
std::uint64_t digest(const std::vector<float> &arguments, const std::function<float(float)> &f) {
    std::uint64_t hash = 0xcbf29ce484222325u;
    for (const float x : arguments)
        hash = (hash ^ std::bit_cast<std::uint32_t>(f(x))) * 0x100000001b3u;
    return hash;
}

template <typename FourLanes, typename One>
void expectLanesLikeScalars(std::vector<float> arguments, FourLanes onFourLanes, One one) {
    arguments.resize(arguments.size() / 4 * 4);
    std::vector<float> results(arguments.size());
    const auto compare = [&](const char *width) {
        for (std::size_t i = 0; i < arguments.size(); ++i) {
            ASSERT_TRUE(sameBits(results[i], one(arguments[i])))
                << width << ", of " << std::hexfloat << arguments[i];
        }
    };
    const auto loop = [from = arguments.data(), to = results.data(), count = arguments.size(),
                       onFourLanes](auto processor) {
        for (std::size_t i = 0; i < count; i += 4)
            storeFour(to + i, onFourLanes(processor, loadFour(from + i)));
    };
    loop(SNarrowLanes());
    compare("SSE2");
    runWide(loop);
    compare("as wide as the processor allows");
}

}  // namespace

TEST(SingleMath, LanesReturnTheBitsOfTheScalarForm) {
    std::vector<float> exponents = ofBothSigns(spread(0.0f, infinity));
    exponents.insert(exponents.end(), {infinity, -infinity, NAN, 0.0f, -0.0f});
    expectLanesLikeScalars(
        exponents, [](auto processor, SFloats4 x) { return expSingle<decltype(processor)>(x); },
        [](float x) { return expSingle(x); });
    expectLanesLikeScalars(
        spread(std::numeric_limits<float>::denorm_min(), std::numeric_limits<float>::max()),
        [](auto processor, SFloats4 x) { return logSingle<decltype(processor)>(x); },
        [](float x) { return logSingle(x); });
}

// The digests were computed on Linux with GCC, where the tests against the reference also run.
TEST(SingleMath, ReturnsTheSameBitsOnEverySystem) {
    const auto power = [](float base) {
        return [base](float exponent) { return powSingle(base, exponent); };
    };
    const auto any = ofBothSigns(spread(0.0f, infinity));
    const auto positive =
        spread(std::numeric_limits<float>::denorm_min(), std::numeric_limits<float>::max());
    EXPECT_EQ(digest(any, [](float x) { return expSingle(x); }), 0xd10260df2abe2e30u);
    EXPECT_EQ(digest(positive, [](float x) { return logSingle(x); }), 0xd83b616fa652b17fu);
    EXPECT_EQ(digest(any, power(2.0f)), 0x9a6f528b528cc8e9u);
    EXPECT_EQ(digest(any, power(5.0f)), 0x5816bb6be0ba46d3u);
    EXPECT_EQ(digest(spread(1.0f, 20000.0f), power(0.9998f)), 0x9356c3790dba2c28u);
}

TEST(SingleMath, ExponentialUnderflowsToZeroAndOverflowsToInfinity) {
    EXPECT_EQ(expSingle(0.0f), 1.0f);
    EXPECT_EQ(expSingle(-0.0f), 1.0f);
    EXPECT_EQ(expSingle(1e-30f), 1.0f);
    EXPECT_EQ(expSingle(infinity), infinity);
    EXPECT_EQ(expSingle(-infinity), 0.0f);
    EXPECT_EQ(expSingle(std::numeric_limits<float>::max()), infinity);
    EXPECT_TRUE(std::isnan(expSingle(NAN)));
    // The last finite result and the first one above; the smallest denormal and the first zero.
    EXPECT_EQ(expSingle(0x1.62e42ep6f), 0x1.ffff08p127f);
    EXPECT_EQ(expSingle(0x1.62e43p6f), infinity);
    EXPECT_EQ(expSingle(-0x1.9fe368p6f), 0x1p-149f);
    EXPECT_EQ(expSingle(-0x1.9fe36ap6f), 0.0f);
}

TEST(SingleMath, LogarithmAcceptsDenormals) {
    EXPECT_EQ(logSingle(1.0f), 0.0f);
    EXPECT_EQ(logSingle(0x1p-149f), -0x1.9d1dap6f);
    EXPECT_EQ(logSingle(std::numeric_limits<float>::max()), 0x1.62e43p6f);
}

// The double nearest to each of these logarithms is the midpoint between two floats.
TEST(SingleMath, LogarithmIsRoundedOnce) {
    const std::pair<float, float> logarithms[] = {
        {0x1.22d57p-65f, -0x1.676a7cp+5f}, {0x1.827a74p-7f, -0x1.1c2b1ep+2f},
        {0x1.2f1fd6p+3f, 0x1.1fcbcep+1f},  {0x1.bacb4ap+25f, 0x1.1e0696p+4f},
        {0x1.b121a6p+76f, 0x1.a9a3f2p+5f}, {0x1.6351d8p+95f, 0x1.08b512p+6f},
    };
    std::vector<float> arguments;
    for (const auto &[x, logarithm] : logarithms) {
        EXPECT_EQ(logSingle(x), logarithm);
        for (std::size_t lane = 0; lane < 4; ++lane) {
            arguments.insert(arguments.end(), 4, 3.0f);
            arguments[arguments.size() - 4 + lane] = x;
        }
    }
    expectLanesLikeScalars(
        arguments, [](auto processor, SFloats4 x) { return logSingle<decltype(processor)>(x); },
        [](float x) { return logSingle(x); });
}

// Of all floats, this one takes the short polynomial of the lanes furthest past a midpoint.
TEST(SingleMath, LogarithmInLanesKnowsItsErrorNearAMidpoint) {
    EXPECT_EQ(logSingle(0x1.455342p+0f), 0x1.eacc88p-3f);
    expectLanesLikeScalars(
        {3.0f, 0x1.455342p+0f, 3.0f, 3.0f},
        [](auto processor, SFloats4 x) { return logSingle<decltype(processor)>(x); },
        [](float x) { return logSingle(x); });
}

TEST(SingleMath, PowerReturnsExactPowers) {
    EXPECT_EQ(powSingle(2.0f, 10.0f), 1024.0f);
    EXPECT_EQ(powSingle(2.0f, -149.0f), 0x1p-149f);
    EXPECT_EQ(powSingle(5.0f, 3.0f), 125.0f);
    EXPECT_EQ(powSingle(0.25f, 0.5f), 0.5f);
    EXPECT_EQ(powSingle(1.0f, 1e30f), 1.0f);
    EXPECT_EQ(powSingle(7.0f, 0.0f), 1.0f);
}

TEST(SingleMath, PowerAtAMidpointRoundsToTheEvenFloat) {
    EXPECT_EQ(powSingle(4097.0f, 2.0f), 16785408.0f);  // 16785409
    EXPECT_EQ(powSingle(4099.0f, 2.0f), 16801800.0f);  // 16801801
    EXPECT_EQ(powSingle(4101.0f, 2.0f), 16818200.0f);  // 16818201
    EXPECT_EQ(powSingle(4103.0f, 2.0f), 16834608.0f);  // 16834609
}

// Rounded from the nearest double this would be 0x1.008708p+0.
TEST(SingleMath, PowerIsRoundedOnce) {
    EXPECT_EQ(powSingle(2.0f, 0x1.853a6ep-9f), 0x1.00870ap+0f);
}

TEST(SingleMath, PowerUnderflowsToZeroAndOverflowsToInfinity) {
    EXPECT_EQ(powSingle(2.0f, 128.0f), infinity);
    EXPECT_EQ(powSingle(2.0f, infinity), infinity);
    EXPECT_EQ(powSingle(2.0f, -151.0f), 0.0f);
    EXPECT_EQ(powSingle(0.5f, infinity), 0.0f);
    EXPECT_TRUE(std::isnan(powSingle(2.0f, NAN)));
}

TEST(SingleMath, LogarithmInDoublePrecisionIsWithinOneUnitInTheLastPlace) {
    CRandom random(11);
    for (int i = 0; i < 100000; ++i) {
        const double x =
            random.chance(0.5) ? random.real(0.5, 2.0) : std::exp2(random.real(-100.0, 100.0));
        const double nearest = std::log(x);
        const double place = std::nextafter(std::abs(nearest), INFINITY) - std::abs(nearest);
        ASSERT_NEAR(logDouble(x), nearest, place) << std::hexfloat << x;
    }
}
