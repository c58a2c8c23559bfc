#include "dspclasses/modules/CDSPRBJFilter.h"

#include "dspclasses/kernels/GuardedRecursion.h"

#include <cmath>

namespace {

using EKind = CDSPRBJFilter::EKind;

struct SRawCoefficients {
    double b0, b1, b2, a0, a1, a2;
};

/// What the formulas of all kinds are made of.
struct SDesign {
    double sn, cs;  // sine and cosine of the angular frequency
    double alpha;   // from the bandwidth
};

SDesign design(double frequency, double inverseRate, double bandwidth, bool useBandwidth) {
    const double w0 = 6.283185307179586 * frequency * inverseRate;
    const double sn = std::sin(w0);
    const double alpha = useBandwidth
                             ? sn * std::sinh(0.6931471805599453 * 0.5 * bandwidth * w0 / sn)
                             : sn / (2.0 * bandwidth);
    return {sn, std::cos(w0), alpha};
}

/// The kinds without a gain.
SRawCoefficients passCoefficients(EKind kind, const SDesign &d) {
    const auto [sn, cs, alpha] = d;
    SRawCoefficients raw{0.0, 0.0, 0.0, 1.0 + alpha, -2.0 * cs, 1.0 - alpha};
    const auto setNumerator = [&raw](double b0, double b1, double b2) {
        raw.b0 = b0;
        raw.b1 = b1;
        raw.b2 = b2;
    };
    switch (kind) {
    case EKind::LowPass:
        setNumerator((1.0 - cs) / 2.0, 1.0 - cs, (1.0 - cs) / 2.0);
        break;
    case EKind::HighPass:
        setNumerator((1.0 + cs) / 2.0, -(1.0 + cs), (1.0 + cs) / 2.0);
        break;
    case EKind::BandPassSkirt:
        setNumerator(sn / 2.0, 0.0, -sn / 2.0);
        break;
    case EKind::BandPassPeak:
        setNumerator(alpha, 0.0, -alpha);
        break;
    case EKind::Notch:
        setNumerator(1.0, -2.0 * cs, 1.0);
        break;
    default:  // all-pass
        setNumerator(1.0 - alpha, -2.0 * cs, 1.0 + alpha);
        break;
    }
    return raw;
}

SRawCoefficients roundedToSingle(const SRawCoefficients &raw) {
    const auto rounded = [](double value) { return double{static_cast<float>(value)}; };
    return {rounded(raw.b0), rounded(raw.b1), rounded(raw.b2),
            rounded(raw.a0), rounded(raw.a1), rounded(raw.a2)};
}

/// The kinds with a gain. Kept: only these pass through single precision.
SRawCoefficients gainCoefficients(EKind kind, const SDesign &d, double gainDb) {
    const auto [sn, cs, alpha] = d;
    const double A = std::pow(10.0, gainDb / 40.0);
    const double beta = 2.0 * std::sqrt(A) * alpha;
    const double up = A + 1.0, down = A - 1.0;
    switch (kind) {
    case EKind::LowShelf:
        return roundedToSingle({A * (up - down * cs + beta), 2.0 * A * (down - up * cs),
                                A * (up - down * cs - beta), up + down * cs + beta,
                                -2.0 * (down + up * cs), up + down * cs - beta});
    case EKind::HighShelf:
        return roundedToSingle({A * (up + down * cs + beta), -2.0 * A * (down + up * cs),
                                A * (up + down * cs - beta), up - down * cs + beta,
                                2.0 * (down - up * cs), up - down * cs - beta});
    default:  // peaking
        return roundedToSingle({1.0 + alpha * A, -2.0 * cs, 1.0 - alpha * A, 1.0 + alpha / A,
                                -2.0 * cs, 1.0 - alpha / A});
    }
}

}  // namespace

CDSPRBJFilter::CDSPRBJFilter() {
    updateCoefficients();
}

CDSPRBJFilter::CDSPRBJFilter(EKind filterKind, float hz, float db, float width, bool widthInOctaves)
    : frequency(hz), gainDb(db), bandwidth(width), useBandwidth(widthInOctaves), kind(filterKind) {
    updateCoefficients();
}

void CDSPRBJFilter::setFrequency(float hz) {
    if (hz == frequency)
        return;
    frequency = hz;
    updateCoefficients();
}

void CDSPRBJFilter::setGain(float db) {
    if (db == gainDb)
        return;
    gainDb = db;
    updateCoefficients();
}

void CDSPRBJFilter::setBandwidth(float value) {
    if (value == bandwidth)
        return;
    bandwidth = value;
    updateCoefficients();
}

void CDSPRBJFilter::setSampleRate(float rate) {
    CDSPBase::setSampleRate(rate);
    updateCoefficients();
    reset();
}

void CDSPRBJFilter::reset() {
    resetRequest.ask();
}

void CDSPRBJFilter::updateCoefficients() {
    const SDesign d = design(frequency, invSampleRate, bandwidth, useBandwidth);
    const SRawCoefficients raw =
        kind < EKind::Peaking ? passCoefficients(kind, d) : gainCoefficients(kind, d, gainDb);
    b0 = raw.b0 / raw.a0;
    b1 = raw.b1 / raw.a0;
    b2 = raw.b2 / raw.a0;
    a1 = raw.a1 / raw.a0;
    a2 = raw.a2 / raw.a0;
}

template <typename Sample>
void CDSPRBJFilter::run(Sample *const *in, Sample *const *out, int frames) {
    SBiquadLanes lanes = takeOut();
    runGuarded<EInput::Flush>(lanes, in, out, frames,
                              [this](SBiquadLanes &filter) { refresh(filter); });
    putBack(lanes);
}

void CDSPRBJFilter::processReplacing(float **in, float **out, int frames) {
    run(in, out, frames);
}

void CDSPRBJFilter::processDoubleReplacing(double **in, double **out, int frames) {
    run(in, out, frames);
}
