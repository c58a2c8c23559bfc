#pragma once

#include "dspclasses/kernels/Lanes.h"
#include "dspclasses/kernels/WideLoop.h"

/// SingleMath for one or four lanes. Four doubles fill one register of AVX2 or two of SSE2, so call
/// the four-lane forms inside runWide. Everything is inlined.
///
/// Each function is computed in double precision and then rounded to float. The result is the
/// nearest float unless the small error of the double crosses the midpoint between two floats.
/// docs/kernels.md explains how the midpoints are handled and how every float was checked.
///
/// With SWideLanes as the processor, all but the long logarithm use fused multiply-add. Their
/// doubles then differ in the last bits; the floats do not.

template <int lanes>
using TDoubles = TLanes<double, lanes>;

/// A double-precision result whose last addition is still to be done, so that it can be rounded
/// once, straight to float.
template <int lanes>
struct TDoubleSums {
    typename TDoubles<lanes>::Values high, low;
};

// ln(2) in two pieces: the first has so few bits that its product with an exponent is exact.
inline constexpr double ln2High = 0x1.62e42fefap-1;
inline constexpr double ln2Low = 0x1.cf79abc9e3b3ap-40;

/// @return a * b + c, rounded once if the processor can.
template <typename Processor, int lanes>
[[gnu::always_inline]] inline TDoubles<lanes>
multiplyAdd(const TDoubles<lanes> &a, const TDoubles<lanes> &b, const TDoubles<lanes> &c) {
    if constexpr (Processor::fusesMultiplyAdd) {
        static_assert(lanes == 4);
        // Written lane by lane; the compiler makes one instruction of it.
        const auto lane = [&](int i) {
            return __builtin_fma(a.values[i], b.values[i], c.values[i]);
        };
        return {typename TDoubles<lanes>::Values{lane(0), lane(1), lane(2), lane(3)}};
    } else {
        return {a.values * b.values + c.values};
    }
}

/// The same constant in every lane.
template <int lanes>
[[gnu::always_inline]] inline TDoubles<lanes> inEveryLane(double value) {
    return {typename TDoubles<lanes>::Values{} + value};
}

/// @return c0 + c1 x. The polynomials begin with such pairs, which do not wait for each other.
template <typename Processor, int lanes>
[[gnu::always_inline]] inline TDoubles<lanes> linear(const TDoubles<lanes> &x, double c0,
                                                     double c1) {
    return multiplyAdd<Processor>(x, inEveryLane<lanes>(c1), inEveryLane<lanes>(c0));
}

// Each function also comes in two halves, so that a staged loop can do other work between them.

/// e to the power x as 2^k e^r, |r| up to ln(2) / 2.
template <int lanes>
struct TExpParts {
    typename TDoubles<lanes>::Values r;
    typename TDoubles<lanes>::Bits twoToK;
};

/// @param exponent  from -700 to 700.
template <typename Processor, int lanes>
[[gnu::always_inline]] inline TExpParts<lanes> startExp(const TDoubles<lanes> &exponent) {
    // Adding 1.5 * 2^52 rounds to an integer k and leaves it in the low bits. With 1023 added as
    // well, the low bits are the exponent bits of 2^k.
    const auto rounding = inEveryLane<lanes>(0x1.8p52 + 1023.0);
    const auto shifted =
        multiplyAdd<Processor>(exponent, inEveryLane<lanes>(0x1.71547652b82fep+0), rounding);
    const auto k = shifted - rounding;
    const auto rough = multiplyAdd<Processor>(k, inEveryLane<lanes>(-ln2High), exponent);
    const auto r = multiplyAdd<Processor>(k, inEveryLane<lanes>(-ln2Low), rough);
    return {r.values, reinterpret_cast<typename TDoubles<lanes>::Bits>(shifted.values) << 52};
}

/// e to the power x, within one unit in the last place.
template <typename Processor, int lanes>
[[gnu::always_inline]] inline TDoubles<lanes> finishExp(const TExpParts<lanes> &parts) {
    using Values = typename TDoubles<lanes>::Values;

    // e^r = 1 + r + r^2 q(r), where q is a minimax polynomial for |r| up to ln(2) / 2; the relative
    // error of the sum is 2^-56.3.
    const TDoubles<lanes> r{parts.r}, r2 = r * r, r4 = r2 * r2;
    const auto q01 = linear<Processor>(r, 0x1.000000000000ap-1, 0x1.55555555554fap-3);
    const auto q23 = linear<Processor>(r, 0x1.555555555087dp-5, 0x1.1111111127be6p-7);
    const auto q45 = linear<Processor>(r, 0x1.6c16c1842a09fp-10, 0x1.a01a012a57064p-13);
    const auto q67 = linear<Processor>(r, 0x1.a0199a0c78972p-16, 0x1.71df255430ed3p-19);
    const auto q89 = linear<Processor>(r, 0x1.28ad72bf7e407p-22, 0x1.ad7f6b5dc2ef6p-26);
    const auto q0to3 = multiplyAdd<Processor>(r2, q23, q01);
    const auto q4to7 = multiplyAdd<Processor>(r2, q67, q45);
    const auto q = multiplyAdd<Processor>(r4, multiplyAdd<Processor>(r4, q89, q4to7), q0to3);
    const auto result = inEveryLane<lanes>(1.0) + multiplyAdd<Processor>(r2, q, r);
    return {result.values * reinterpret_cast<Values>(parts.twoToK)};
}

/// e to the power x, for x from -700 to 700, within one unit in the last place.
template <typename Processor, int lanes>
[[gnu::always_inline]] inline TDoubles<lanes> expDoubles(const TDoubles<lanes> &exponent) {
    return finishExp<Processor>(startExp<Processor>(exponent));
}

/// The natural logarithm of x = 2^k (1 + f), with 1 + f from sqrt(1/2) to sqrt(2).
template <int lanes>
struct TLogParts {
    typename TDoubles<lanes>::Values k, f;
    typename TDoubles<lanes>::Values s;  // f / (2 + f)
};

/// @param x  above 0, finite and normal.
template <int lanes>
[[gnu::always_inline]] inline TLogParts<lanes> startLog(const TDoubles<lanes> &x) {
    using Values = typename TDoubles<lanes>::Values;
    using Bits = typename TDoubles<lanes>::Bits;
    const Bits bits = reinterpret_cast<Bits>(x.values);
    const Bits aboveRoot = bits - 0x3fe6a09e667f3bcdu;
    const Bits mantissa = bits - (aboveRoot & 0xfff0000000000000u);
    const Bits biasedK = (aboveRoot >> 52) ^ 0x4330000000000800u;
    const Values onePlusF = reinterpret_cast<Values>(mantissa), f = onePlusF - 1.0;
    const Values k = reinterpret_cast<Values>(biasedK) - (0x1p52 + 0x800);
    return {k, f, f / (onePlusF + 1.0)};
}

/// The logarithm; the sum is within one unit in the last place.
template <int lanes>
[[gnu::always_inline]] inline TDoubleSums<lanes> finishLog(const TLogParts<lanes> &parts) {
    using Values = typename TDoubles<lanes>::Values;
    const auto &[k, f, s] = parts;

    // ln(1 + f) = 2 atanh(s) = f - (f^2/2 - s (f^2/2 + z p(z))) with z = s^2. In this form f, the
    // largest term, enters unrounded. p is a minimax polynomial; the relative error of the sum is
    // 2^-58.8.
    const Values z = s * s, z2 = z * z;
    const Values p01 = 0x1.5555555555593p-1 + z * 0x1.999999997fc75p-2;
    const Values p23 = 0x1.249249420458dp-2 + z * 0x1.c71c51f8b354cp-3;
    const Values p45 = 0x1.74664288998aap-3 + z * 0x1.39a1580c1d977p-3;
    const Values p = p01 + z2 * (p23 + z2 * (p45 + z2 * 0x1.2f0977519e44dp-3));
    const Values half = 0.5 * f * f;
    return {k * ln2High, f - (half - (s * (half + z * p) + k * ln2Low))};
}

/// The natural logarithm, for x above 0, finite and normal; the sum is within one unit in the last
/// place.
template <int lanes>
[[gnu::always_inline]] inline TDoubleSums<lanes> logDoubles(const TDoubles<lanes> &x) {
    return finishLog(startLog(x));
}

/// The sum rounded to odd: if the addition is inexact, the last bit of the result is 1. Such a
/// double is never the midpoint between two floats, so rounding it to float has the same result as
/// rounding the exact sum.
template <int lanes>
[[gnu::always_inline]] inline TDoubles<lanes> roundedToOdd(const TDoubleSums<lanes> &sum) {
    using Values = typename TDoubles<lanes>::Values;
    using Bits = typename TDoubles<lanes>::Bits;
    const Values total = sum.high + sum.low;
    const Values lost = sum.low - (total - sum.high);
    const Bits bits = reinterpret_cast<Bits>(total);
    const Bits roundedAway = (bits ^ reinterpret_cast<Bits>(lost)) >> 63;
    return {reinterpret_cast<Values>((bits - roundedAway) | 1u)};
}

/// Conversion to double, which is exact. Written lane by lane: the compiler turns this into one
/// AVX2 instruction, but splits a __builtin_convertvector in two.
[[gnu::always_inline]] inline TDoubles<4> widened(const SFloats4 &x) {
    const Floats4 &v = x.values;
    return {TDoubles<4>::Values{v[0], v[1], v[2], v[3]}};
}

/// Conversion to float, rounded to nearest.
[[gnu::always_inline]] inline SFloats4 narrowed(const TDoubles<4> &x) {
    return {__builtin_convertvector(x.values, Floats4)};
}

/// The float nearest to each logarithm. A short polynomial comes first. If the doubles on both
/// sides of its result, at the bounds of the error, convert to the same float, so does the exact
/// logarithm. If not, which happens to at most one in 2^18 values, all lanes take the long way.
template <typename Processor>
[[gnu::always_inline]] inline SFloats4 nearestLogs(const TLogParts<4> &parts) {
    using Four = TDoubles<4>;

    // ln(1 + f) = 2 atanh(s) = s (2 + z p(z)) with z = s^2. p is a minimax polynomial; the relative
    // error of the sum is 2^-44.1.
    const Four s{parts.s}, k{parts.k}, z = s * s, z2 = z * z;
    const Four p01 = linear<Processor>(z, 0x1.55555555f33a0p-1, 0x1.999996d25f45cp-2);
    const Four p23 = linear<Processor>(z, 0x1.2494154752006p-2, 0x1.c6255a329300fp-3);
    const Four p4 = inEveryLane<4>(0x1.9197e22a80712p-3);
    const Four p = multiplyAdd<Processor>(z2, multiplyAdd<Processor>(z2, p4, p23), p01);
    const Four quotient = multiplyAdd<Processor>(z, p, inEveryLane<4>(2.0));
    const Four log = multiplyAdd<Processor>(s, quotient, k * inEveryLane<4>(0x1.62e42fefa39efp-1));

    constexpr double error = 0x1p-43;
    const SFloats4 inner = narrowed(log * inEveryLane<4>(1.0 - error));
    const SFloats4 outer = narrowed(log * inEveryLane<4>(1.0 + error));
    if (isAnySet(inner.values != outer.values)) [[unlikely]]
        return narrowed(roundedToOdd(finishLog(parts)));
    return inner;
}

/// The exponents beyond which e^x is 0 or infinity as a float.
inline constexpr float lowestExponent = -110.0f, highestExponent = 100.0f;

/// @return x clamped to those exponents; NaN for NaN.
[[gnu::always_inline]] inline TDoubles<4> clampedExponents(const SFloats4 &x) {
    // x goes second: smaller and larger return their second argument if one of the two is NaN.
    const SFloats4 capped = smaller(SFloats4{splat(highestExponent)}, x);
    return widened(larger(SFloats4{splat(lowestExponent)}, capped));
}

/// expSingle in every lane. A plain conversion is enough: the sweep finds no float whose result
/// lies on the wrong side of a midpoint.
template <typename Processor>
[[gnu::always_inline]] inline SFloats4 expSingle(const SFloats4 &x) {
    return narrowed(expDoubles<Processor>(clampedExponents(x)));
}

/// logSingle in every lane.
template <typename Processor>
[[gnu::always_inline]] inline SFloats4 logSingle(const SFloats4 &x) {
    return nearestLogs<Processor>(startLog(widened(x)));
}
