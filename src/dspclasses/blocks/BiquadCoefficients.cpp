#include "dspclasses/blocks/BiquadCoefficients.h"

#include <cmath>

namespace {

/// Before the division by a0.
struct SRawCoefficients {
    double b0, b1, b2, a0, a1, a2;
};

/// The terms that the formulas share, named as in the publication.
struct SAngle {
    double sn, cs;  // sine and cosine of w0, the frequency in radians per sample
    double alpha;   // sn / (2 Q)
};

SAngle angleOf(const SBiquadDesign &design) {
    const double w0 = 6.283185307179586 * design.frequency * design.sampleTime;
    const double sn = std::sin(w0);
    constexpr double ln2 = 0.6931471805599453;
    const double alpha = design.isInOctaves ? sn * std::sinh(ln2 * 0.5 * design.bandwidth * w0 / sn)
                                            : sn / (2.0 * design.bandwidth);
    return {sn, std::cos(w0), alpha};
}

/// The kinds without a gain. In the comments, s is relative to the frequency.
SRawCoefficients rawWithoutGain(EBiquadKind kind, const SAngle &angle) {
    const auto [sn, cs, alpha] = angle;
    // All of them have the poles of s^2 + s/Q + 1.
    const double a0 = 1.0 + alpha, a1 = -2.0 * cs, a2 = 1.0 - alpha;
    switch (kind) {
    case EBiquadKind::LowPass:  // H(s) = 1 / (s^2 + s/Q + 1)
        return {(1.0 - cs) / 2.0, 1.0 - cs, (1.0 - cs) / 2.0, a0, a1, a2};
    case EBiquadKind::HighPass:  // H(s) = s^2 / (s^2 + s/Q + 1)
        return {(1.0 + cs) / 2.0, -(1.0 + cs), (1.0 + cs) / 2.0, a0, a1, a2};
    case EBiquadKind::BandPassSkirt:  // H(s) = s / (s^2 + s/Q + 1)
        return {sn / 2.0, 0.0, -sn / 2.0, a0, a1, a2};
    case EBiquadKind::BandPassPeak:  // H(s) = s/Q / (s^2 + s/Q + 1)
        return {alpha, 0.0, -alpha, a0, a1, a2};
    case EBiquadKind::Notch:  // H(s) = (s^2 + 1) / (s^2 + s/Q + 1)
        return {1.0, -2.0 * cs, 1.0, a0, a1, a2};
    default:  // all-pass, H(s) = (s^2 - s/Q + 1) / (s^2 + s/Q + 1)
        return {1.0 - alpha, -2.0 * cs, 1.0 + alpha, a0, a1, a2};
    }
}

/// The kinds with a gain; as a factor it is A^2.
SRawCoefficients rawWithGain(EBiquadKind kind, const SAngle &angle, double gainDb) {
    const auto [sn, cs, alpha] = angle;
    const double A = std::pow(10.0, gainDb / 40.0);
    const double beta = 2.0 * std::sqrt(A) * alpha;
    const double up = A + 1.0, down = A - 1.0;
    switch (kind) {
    case EBiquadKind::LowShelf:  // H(s) = A (s^2 + sqrt(A)/Q s + A) / (A s^2 + sqrt(A)/Q s + 1)
        return {A * (up - down * cs + beta), 2.0 * A * (down - up * cs),
                A * (up - down * cs - beta), up + down * cs + beta,
                -2.0 * (down + up * cs),     up + down * cs - beta};
    case EBiquadKind::HighShelf:  // H(s) = A (A s^2 + sqrt(A)/Q s + 1) / (s^2 + sqrt(A)/Q s + A)
        return {A * (up + down * cs + beta), -2.0 * A * (down + up * cs),
                A * (up + down * cs - beta), up - down * cs + beta,
                2.0 * (down - up * cs),      up - down * cs - beta};
    default:  // peaking, H(s) = (s^2 + s A/Q + 1) / (s^2 + s/(A Q) + 1)
        return {1.0 + alpha * A, -2.0 * cs, 1.0 - alpha * A,
                1.0 + alpha / A, -2.0 * cs, 1.0 - alpha / A};
    }
}

/// Never inlined: at -O3, GCC 12.2 vectorises two neighbouring calls and drops their rounding.
[[gnu::noinline]] double throughFloat(double value) {
    return double{static_cast<float>(value)};
}

SRawCoefficients throughFloat(const SRawCoefficients &raw) {
    return {throughFloat(raw.b0), throughFloat(raw.b1), throughFloat(raw.b2),
            throughFloat(raw.a0), throughFloat(raw.a1), throughFloat(raw.a2)};
}

}  // namespace

SBiquadCoefficients biquadCoefficients(const SBiquadDesign &design) {
    const SAngle angle = angleOf(design);
    // Kept: only the kinds with a gain pass through single precision.
    const auto [b0, b1, b2, a0, a1, a2] =
        design.kind < EBiquadKind::Peaking
            ? rawWithoutGain(design.kind, angle)
            : throughFloat(rawWithGain(design.kind, angle, design.gainDb));
    return {b0 / a0, b1 / a0, b2 / a0, a1 / a0, a2 / a0};
}
