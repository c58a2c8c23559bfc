#pragma once

#include "dspclasses/kernels/SingleMath.h"
#include "dspclasses/support/PlainBits.h"

#include <cmath>
#include <cstdint>
#include <cstring>

/// The plain version of the detector of the compressor and the de-esser: one sample at a time, one
/// step after the other. `next` is the field that follows the stored one in memory;
/// NeighbourFlush.h shows why that matters in double precision.
struct SPlainDetector {
    static constexpr float K = 0.115129255f;

    float attackCoef;
    float releaseCoef;
    float thresholdDb = -20.0f;
    float thresholdLinear = 0.0f;
    float peakAttackCoef = 0.9886621f;
    float peakReleaseCoef = 0.9984883f;

    template <typename Sample>
    static Sample larger(Sample left, Sample right) {
        return left > right ? left : right;
    }

    static double doubleAt(float field, float next) {
        double joined;
        std::memcpy(reinterpret_cast<char *>(&joined), &field, sizeof field);
        std::memcpy(reinterpret_cast<char *>(&joined) + sizeof field, &next, sizeof next);
        return joined;
    }

    void setThreshold(float decibels) {
        if (decibels == thresholdDb)
            return;
        thresholdDb = decibels;
        thresholdLinear = expSingle(decibels * K);
    }

    void follow(float &peak, float a) const {
        const float c = a > peak ? peakAttackCoef : peakReleaseCoef;
        peak = (peak - a) * c + a;
        if (exponentIsZero(peak))
            peak = 0.0f;
    }
    void follow(float &peak, const float &next, double a) const {
        const double c = a > double{peak} ? double{peakAttackCoef} : double{peakReleaseCoef};
        peak = static_cast<float>((double{peak} - a) * c + a);
        if (exponentIsZero(doubleAt(peak, next)))
            peak = 0.0f;
    }

    bool isAbove(float peak) const { return peak - thresholdLinear > 0.0f; }

    void smooth(float &smoothedExcessDb, bool above, float a) const {
        float t = 0.0f;
        if (above)
            t = logSingle(a + 1e-20f) * K - thresholdDb;
        const float s = smoothedExcessDb + 1e-20f;
        const float c = t > s ? attackCoef : releaseCoef;
        smoothedExcessDb = (s - t) * c + t - 1e-20f;
        if (exponentIsZero(smoothedExcessDb))
            smoothedExcessDb = 0.0f;
    }
    void smooth(float &smoothedExcessDb, const float &next, bool above, double a) const {
        double t = 0.0;
        if (above)
            t = logDouble(a + 9.999999682655225e-21) * 0.115129254758358 - double{thresholdDb};
        const float s = smoothedExcessDb + 1e-20f;
        const double c = t > double{s} ? double{attackCoef} : double{releaseCoef};
        smoothedExcessDb = static_cast<float>((double{s} - t) * c + t);
        smoothedExcessDb = smoothedExcessDb - 1e-20f;
        if (exponentIsZero(doubleAt(smoothedExcessDb, next)))
            smoothedExcessDb = 0.0f;
    }
};
