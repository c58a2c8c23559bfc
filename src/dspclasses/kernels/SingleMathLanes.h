#pragma once

#include "dspclasses/kernels/Lanes.h"

/// SingleMath for one or for four lanes at a time. Four doubles are one register of AVX2, and two
/// of SSE2 stand in for it elsewhere: call the forms of four inside runWide. All is inlined.
///
/// Between two neighbouring floats lie 2^29 doubles. A result rounded from double precision is
/// wrong only if the error, some half a place, crosses the middle between two floats. With these
/// polynomials that happens to none: a tool beside the tests runs through every float.

template <int lanes>
using TDoubles = TLanes<double, lanes>;

/// A result in double precision before its last rounding.
template <int lanes>
struct TDoubleSums {
    typename TDoubles<lanes>::Values high, low;
};

// ln(2) in two pieces: the first has so few bits that its product with an exponent is exact.
inline constexpr double ln2High = 0x1.62e42fefap-1;
inline constexpr double ln2Low = 0x1.cf79abc9e3b3ap-40;

// Each function comes in two halves too, so that a loop can put other work between them.

/// e to the power x as 2^k e^r, |r| up to ln(2) / 2.
template <int lanes>
struct TExpParts {
    typename TDoubles<lanes>::Values r;
    typename TDoubles<lanes>::Bits twoToK;
};

/// @param exponent  from -700 to 700.
template <int lanes>
[[gnu::always_inline]] inline TExpParts<lanes> startExp(const TDoubles<lanes> &exponent) {
    using Values = typename TDoubles<lanes>::Values;
    using Bits = typename TDoubles<lanes>::Bits;
    const Values x = exponent.values;

    // Adding 1.5 * 2^52 rounds to the integer k and leaves it in the low bits; 1023 more, and these
    // are the exponent bits of 2^k.
    constexpr double rounding = 0x1.8p52 + 1023.0;
    const Values shifted = x * 0x1.71547652b82fep+0 + rounding;
    const Values k = shifted - rounding;
    return {(x - k * ln2High) - k * ln2Low, reinterpret_cast<Bits>(shifted) << 52};
}

/// The power, within one unit in the last place.
template <int lanes>
[[gnu::always_inline]] inline TDoubles<lanes> finishExp(const TExpParts<lanes> &parts) {
    using Values = typename TDoubles<lanes>::Values;
    const Values r = parts.r;

    // e^r = 1 + r + r^2 q(r), with the q of least relative error for |r| up to ln(2) / 2: 2^-57.9.
    const Values r2 = r * r, r4 = r2 * r2;
    const Values q01 = 0x1.000000000000ap-1 + r * 0x1.55555555554fap-3;
    const Values q23 = 0x1.555555555087dp-5 + r * 0x1.1111111127be6p-7;
    const Values q45 = 0x1.6c16c1842a09fp-10 + r * 0x1.a01a012a57064p-13;
    const Values q67 = 0x1.a0199a0c78972p-16 + r * 0x1.71df255430ed3p-19;
    const Values q89 = 0x1.28ad72bf7e407p-22 + r * 0x1.ad7f6b5dc2ef6p-26;
    const Values q = (q01 + r2 * q23) + r4 * ((q45 + r2 * q67) + r4 * q89);
    return {(1.0 + (r + r2 * q)) * reinterpret_cast<Values>(parts.twoToK)};
}

/// e to the power x, for x from -700 to 700, within one unit in the last place.
template <int lanes>
[[gnu::always_inline]] inline TDoubles<lanes> expDoubles(const TDoubles<lanes> &exponent) {
    return finishExp(startExp(exponent));
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

    // ln(1 + f) = 2 atanh(s), so written that f itself is not rounded:
    // f - (f^2/2 - s (f^2/2 + z p(z))), z = s^2, with the p of least relative error: 2^-59.5.
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

/// The sum rounded to odd: one that loses a part ends in an odd bit, and so never in the middle
/// between two floats. Rounding that to float gives what rounding the exact sum would.
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

/// Lane by lane, which becomes one instruction where there is one; a conversion of the vector is
/// split in two before the compiler knows where it will stand.
[[gnu::always_inline]] inline TDoubles<4> widened(const SFloats4 &x) {
    const Floats4 &v = x.values;
    return {TDoubles<4>::Values{v[0], v[1], v[2], v[3]}};
}
[[gnu::always_inline]] inline SFloats4 rounded(const TDoubles<4> &x) {
    return {__builtin_convertvector(x.values, Floats4)};
}

/// The float nearest to each sum. The sum as a double is off by less than one place; where both of
/// its neighbours come to the same float, so does the exact sum. Once in some 2^26 calls all
/// lanes take the long way.
[[gnu::always_inline]] inline SFloats4 rounded(const TDoubleSums<4> &sum) {
    const TDoubles<4>::Values total = sum.high + sum.low;
    const SFloats4 inner = rounded(TDoubles<4>{total * (1.0 - 0x1p-52)});
    const SFloats4 outer = rounded(TDoubles<4>{total * (1.0 + 0x1p-52)});
    if (isAnySet(inner.values != outer.values)) [[unlikely]]
        return rounded(roundedToOdd(sum));
    return inner;
}

/// What a float can be the exponent of: beyond, a float holds only 0 and infinity.
inline constexpr float lowestExponent = -110.0f, highestExponent = 100.0f;

[[gnu::always_inline]] inline TDoubles<4> withinFloat(const SFloats4 &x) {
    // The second operand is the one that a NaN in it survives.
    const __m128 capped = _mm_min_ps(_mm_set1_ps(highestExponent), x.values);
    return widened({_mm_max_ps(_mm_set1_ps(lowestExponent), capped)});
}

/// expSingle in every lane.
[[gnu::always_inline]] inline SFloats4 expSingle(const SFloats4 &x) {
    return rounded(expDoubles(withinFloat(x)));
}

/// logSingle in every lane.
[[gnu::always_inline]] inline SFloats4 logSingle(const SFloats4 &x) {
    return rounded(logDoubles(widened(x)));
}
