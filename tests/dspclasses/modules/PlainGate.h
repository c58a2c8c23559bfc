#pragma once

#include "dspclasses/kernels/SingleMath.h"
#include "dspclasses/modules/CDSPBase.h"

#include <cmath>

/// The plain version of the gate: each frame goes through the steps, with all running state in the
/// fields.
class CPlainGate : public CDSPBase {
public:
    void setParameter(int index, float value) override {
        if (index == 0 && value != thresholdDb) {
            thresholdDb = value;
            thresholdLinear = expSingle(value * K);
        }
        if (index == 1 && value != attackMs) {
            attackMs = value;
            attackFactor = 1.0f - 1.0f / (attackMs * sampleRate * 0.001f);
        }
        if (index == 2 && value != releaseMs) {
            releaseMs = value;
            releaseFactor = 1.0f / (1.0f - 1.0f / (releaseMs * sampleRate * 0.001f));
        }
    }

    float getParameter(int index) override {
        if (index == 0)
            return thresholdDb;
        if (index == 1)
            return attackMs;
        if (index == 2)
            return releaseMs;
        return 0.0f;
    }

    void processReplacing(float **in, float **out, int frames) override {
        for (int i = 0; i < frames; ++i) {
            const float a = larger(std::fabs(in[0][i]), std::fabs(in[1][i]));
            const float c = a > peak ? peakAttackCoef : peakReleaseCoef;
            peak = (peak - a) * c + a;
            open = peak - thresholdLinear > 0.0f;
            moveGain(-0.5f);
            out[0][i] = in[0][i] * gain;
            out[1][i] = in[1][i] * gain;
        }
    }

    void processDoubleReplacing(double **in, double **out, int frames) override {
        for (int i = 0; i < frames; ++i) {
            const double a = larger(std::fabs(in[0][i]), std::fabs(in[1][i]));
            const double c = a > double{peak} ? double{peakAttackCoef} : double{peakReleaseCoef};
            peak = static_cast<float>((double{peak} - a) * c + a);
            open = peak - thresholdLinear > 0.0f;
            moveGain(0.0f);
            out[0][i] = in[0][i] * double{gain};
            out[1][i] = in[1][i] * double{gain};
        }
    }

    void reset() override {
        gainDb = -60.0f;
        peak = 0.0f;
        gain = 0.0f;
    }

private:
    static constexpr float K = 0.115129255f;

    template <typename Sample>
    static Sample larger(Sample left, Sample right) {
        return left > right ? left : right;
    }

    void moveGain(float topDb) {
        if (open && gain < 1.0f) {
            gainDb = attackFactor * gainDb;
            if (gainDb > -0.5f) {
                gainDb = topDb;
                gain = 1.0f;
            } else {
                gain = expSingle(gainDb * K);
            }
        }
        if (!open && gain > 0.0f) {
            gainDb = releaseFactor * gainDb;
            if (gainDb < -60.0f) {
                gainDb = -60.0f;
                gain = 0.0f;
            } else {
                gain = expSingle(gainDb * K);
            }
        }
    }

    float attackMs = 10.0f;
    float releaseMs = 100.0f;
    float attackFactor = 0.9977324f;
    float releaseFactor = 1.0002267f;
    float gainDb = -60.0f;
    float thresholdDb = -20.0f;
    float thresholdLinear = 0.0f;
    float peakAttackCoef = 0.9886621f;
    float peakReleaseCoef = 0.9984883f;
    float peak = 0.0f;
    float gain = 0.0f;
    bool open = false;
};
