#pragma once

#include <cstdint>

/// Coefficients of a biquad, divided by a0:
///     y[n] = b0 x[n] + b1 x[n-1] + b2 x[n-2] - a1 y[n-1] - a2 y[n-2]
///     H(z) = (b0 + b1 z^-1 + b2 z^-2) / (1 + a1 z^-1 + a2 z^-2)
struct SBiquadCoefficients {
    double b0, b1, b2, a1, a2;
};

enum class EBiquadKind : std::int32_t {
    LowPass,
    HighPass,
    BandPassSkirt,  // constant gain of the skirts, Q at the peak
    BandPassPeak,   // 0 dB at the peak
    Notch,
    AllPass,
    Peaking,
    LowShelf,
    HighShelf,
};

struct SBiquadDesign {
    EBiquadKind kind;
    double frequency;   // Hz, above 0 and below half the sample rate; not checked
    double gainDb;      // of the peak or the shelf; the other kinds ignore it
    double bandwidth;   // octaves or the Q, above 0; not checked
    bool isInOctaves;   // whether bandwidth is in octaves; if not, it is the Q
    double sampleTime;  // 1 / sample rate, seconds
};

/// Each kind is an analogue filter H(s) (given beside each formula in the .cpp), made digital by
/// the bilinear transform, which is exact at the filter's frequency. A bandwidth in octaves is the
/// distance between the -3 dB points of a band-pass or a notch, or between the points of a peak
/// that have half its gain in dB.
///
/// [any thread] Cannot fail. Costs a sine, a cosine, a sinh and, with a gain, a power.
/// Source: R. Bristow-Johnson, Cookbook formulae for audio EQ biquad filter coefficients.
SBiquadCoefficients biquadCoefficients(const SBiquadDesign &design);
