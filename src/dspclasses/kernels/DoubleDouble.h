#pragma once

/// A number as the sum of two doubles that do not overlap: some 104 bits of precision, for the few
/// results that double precision cannot round to float with certainty. The error terms are exact
/// because nothing here is contracted or reordered.
/// Source: T. J. Dekker, A floating-point technique for extending the available precision.
struct SDoubleDouble {
    double high, low;
};

/// high must not be smaller in magnitude than low.
inline SDoubleDouble normalised(double high, double low) {
    const double sum = high + low;
    return {sum, low - (sum - high)};
}

inline SDoubleDouble exactSum(double a, double b) {
    const double sum = a + b, partOfB = sum - a;
    return {sum, (a - (sum - partOfB)) + (b - partOfB)};
}

inline SDoubleDouble exactProduct(double a, double b) {
    constexpr double halves = 0x1p27 + 1.0;
    const double scaledA = a * halves, highA = scaledA - (scaledA - a), lowA = a - highA;
    const double scaledB = b * halves, highB = scaledB - (scaledB - b), lowB = b - highB;
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
