#include "dspclasses/kernels/SingleMath.h"
#include "dspclasses/kernels/SingleReference.h"
#include "dspclasses/support/Signals.h"

#include <bit>
#include <cstdint>
#include <gtest/gtest.h>
#include <ios>

// A random sample of the arguments that SingleMathSweep.cpp checks in full.

namespace {

/// Any float, every exponent as likely as any other.
float anyFloat(CRandom &random) {
    return std::bit_cast<float>(static_cast<std::uint32_t>(random.bits() >> 32));
}

}  // namespace

TEST(SingleMathReference, ExponentialIsTheNearestFloat) {
    CRandom random(1);
    for (int i = 0; i < 300000; ++i) {
        const float x = anyFloat(random);
        ASSERT_TRUE(sameBits(expSingle(x), SingleReference::exponential(x))) << std::hexfloat << x;
    }
    for (int i = 0; i < 300000; ++i) {
        const auto x = static_cast<float>(random.real(-105.0, 90.0));
        ASSERT_EQ(expSingle(x), SingleReference::exponential(x)) << std::hexfloat << x;
    }
}

TEST(SingleMathReference, LogarithmIsTheNearestFloat) {
    CRandom random(2);
    for (int i = 0; i < 600000; ++i) {
        const float x = std::abs(anyFloat(random));
        if (x == 0.0f || !std::isfinite(x))
            continue;
        ASSERT_EQ(logSingle(x), SingleReference::logarithm(x)) << std::hexfloat << x;
    }
}

// The bases of the parameter laws, bases of a reverb's decay, and any others.
TEST(SingleMathReference, PowerIsTheNearestFloat) {
    CRandom random(3);
    const auto check = [](float base, float exponent) {
        ASSERT_EQ(powSingle(base, exponent), SingleReference::power(base, exponent))
            << std::hexfloat << base << " to the power " << exponent;
    };
    for (int i = 0; i < 200000; ++i) {
        check(2.0f, static_cast<float>(random.real(-4.0, 6.0)));
        check(5.0f, static_cast<float>(random.real(0.0, 3.0)));
        check(static_cast<float>(random.real(0.999, 1.0)),
              static_cast<float>(random.real(1.0, 20000.0)));
        check(static_cast<float>(random.real(0.01, 100.0)),
              static_cast<float>(random.real(-20.0, 20.0)));
    }
}
