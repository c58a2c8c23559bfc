#pragma once

/// A number as the sum of two doubles that do not overlap: some 104 bits of precision, for the few
/// results too close to the midpoint between two floats to be rounded from one double. The error
/// terms are exact only if the compiler neither contracts nor reorders these operations.
/// Source: T. J. Dekker, A floating-point technique for extending the available precision.
struct SDoubleDouble {
    double high, low;
};

/// @param high  not smaller in magnitude than low, so that the error of the sum is exact.
inline SDoubleDouble normalised(double high, double low) {
    const double sum = high + low;
    return {sum, low - (sum - high)};
}

/// @return the rounded sum and its rounding error, for operands of any order.
inline SDoubleDouble exactSum(double a, double b) {
    const double sum = a + b, partOfB = sum - a;
    return {sum, (a - (sum - partOfB)) + (b - partOfB)};
}

/// @return the rounded product and its rounding error, from halves of 26 bits whose products are
///         exact.
inline SDoubleDouble exactProduct(double a, double b) {
    constexpr double splitter = 0x1p27 + 1.0;
    const double scaledA = a * splitter, highA = scaledA - (scaledA - a), lowA = a - highA;
    const double scaledB = b * splitter, highB = scaledB - (scaledB - b), lowB = b - highB;
    const double product = a * b;
    return {product, ((highA * highB - product) + highA * lowB + lowA * highB) + lowA * lowB};
}

inline SDoubleDouble operator+(SDoubleDouble a, SDoubleDouble b) {
    const SDoubleDouble high = exactSum(a.high, b.high), low = exactSum(a.low, b.low);
    const SDoubleDouble sum = normalised(high.high, high.low + low.high);
    return normalised(sum.high, sum.low + low.low);
}

inline SDoubleDouble operator*(SDoubleDouble a, SDoubleDouble b) {
    const SDoubleDouble product = exactProduct(a.high, b.high);
    return normalised(product.high, product.low + (a.high * b.low + a.low * b.high));
}

inline SDoubleDouble operator/(SDoubleDouble a, double divisor) {
    const double quotient = a.high / divisor;
    const SDoubleDouble product = exactProduct(quotient, divisor);
    return normalised(quotient, ((a.high - product.high) - product.low + a.low) / divisor);
}
