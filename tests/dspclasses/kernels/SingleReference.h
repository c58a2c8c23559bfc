#pragma once

#include <cmath>
#include <quadmath.h>

/// The true values of the functions of SingleMath, rounded to float. The 64 bits of a long double
/// decide nearly all of them. A value too close to the midpoint between two floats is computed
/// again in the compiler's quad format, which has 113 bits.
namespace SingleReference {

__extension__ using Quad = __float128;

/// @param value  with a relative error below 2^-61.
/// @param exact  called if that does not decide which float is nearest.
template <typename Exact>
float nearest(long double value, Exact exact) {
    constexpr long double doubt = 0x1p-61L;
    const auto low = static_cast<float>(value * (1.0L - doubt));
    const auto high = static_cast<float>(value * (1.0L + doubt));
    return low == high ? low : static_cast<float>(exact());
}

inline float exponential(float x) {
    return nearest(std::exp(static_cast<long double>(x)), [x] { return expq(Quad{x}); });
}

inline float logarithm(float x) {
    return nearest(std::log(static_cast<long double>(x)), [x] { return logq(Quad{x}); });
}

inline float power(float base, float exponent) {
    const long double value =
        std::pow(static_cast<long double>(base), static_cast<long double>(exponent));
    return nearest(value, [=] { return powq(Quad{base}, Quad{exponent}); });
}

}  // namespace SingleReference
