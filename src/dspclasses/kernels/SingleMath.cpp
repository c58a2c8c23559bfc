#include "dspclasses/kernels/SingleMath.h"

#include "dspclasses/kernels/DoubleDouble.h"
#include "dspclasses/kernels/SingleMathLanes.h"

#include <algorithm>
#include <cmath>

static double expClamped(double x) {
    const double clamped = std::clamp<double>(x, lowestExponent, highestExponent);
    return expDoubles<SNarrowLanes>(TDoubles<1>{{clamped}}).values[0];
}

float expSingle(float x) {
    return static_cast<float>(expClamped(x));
}

double logDouble(double x) {
    const TDoubleSums<1> sum = logDoubles(TDoubles<1>{{x}});
    return sum.high[0] + sum.low[0];
}

float logSingle(float x) {
    return static_cast<float>(roundedToOdd(logDoubles(TDoubles<1>{{x}})).values[0]);
}

// The power

/// e to the power x, precise to some 100 bits, for x from -700 to 700.
static SDoubleDouble expPrecisely(SDoubleDouble x) {
    constexpr double ln2Rest = -0x1.ff0342542fc33p-94;
    const double k = std::nearbyint(x.high * 0x1.71547652b82fep+0);
    const SDoubleDouble r = x + SDoubleDouble{-k * ln2High, 0.0} + exactProduct(-k, ln2Low) +
                            SDoubleDouble{-k * ln2Rest, 0.0};
    constexpr int terms = 24;  // the first omitted term is below 2^-115
    constexpr SDoubleDouble one{1.0, 0.0};
    SDoubleDouble sum = one;
    for (int n = terms; n > 0; --n)
        sum = one + r * sum / n;
    const double twoToK = std::ldexp(1.0, static_cast<int>(k));
    return {sum.high * twoToK, sum.low * twoToK};
}

/// The logarithm as a double, refined by one step of Newton's method.
static SDoubleDouble logPrecisely(double x) {
    const double rough = logDouble(x);
    const SDoubleDouble quotient = SDoubleDouble{x, 0.0} * expPrecisely({-rough, 0.0});
    return SDoubleDouble{rough, 0.0} + (quotient + SDoubleDouble{-1.0, 0.0});
}

/// The float nearest to the value. A power this close to a double equals it exactly; it may be a
/// midpoint between two floats, which the conversion rounds to even.
static float nearestFloat(SDoubleDouble value) {
    if (std::abs(value.low) < value.high * 0x1p-70)
        return static_cast<float>(value.high);
    return static_cast<float>(roundedToOdd(TDoubleSums<1>{{value.high}, {value.low}}).values[0]);
}

float powSingle(float base, float exponent) {
    // The relative error is below 2^-44. If both ends of four times that interval convert to the
    // same float, as they nearly always do, it is the nearest one.
    const double rough = expClamped(double{exponent} * logDouble(base));
    const auto low = static_cast<float>(rough * (1.0 - 0x1p-42));
    const auto high = static_cast<float>(rough * (1.0 + 0x1p-42));
    if (!(low < high))
        return low;
    return nearestFloat(expPrecisely(SDoubleDouble{double{exponent}, 0.0} * logPrecisely(base)));
}
