#pragma once

#include "dspclasses/modules/CDSPBase.h"
#include "dspclasses/support/PlainBits.h"

#include <cmath>

/// The plain version of the biquad: kinds by number, one formula per coefficient, one channel after
/// the other, sample by sample.
class CPlainRBJFilter : public CDSPBase {
public:
    CPlainRBJFilter(int filterKind, float hz, float db, float width, bool widthInOctaves)
        : frequency(hz), gainDb(db), bandwidth(width), useBandwidth(widthInOctaves),
          kind(filterKind) {
        computeCoefficients();
    }

    void setFrequency(float hz) {
        if (hz == frequency)
            return;
        frequency = hz;
        computeCoefficients();
    }
    void setGain(float db) {
        if (db == gainDb)
            return;
        gainDb = db;
        computeCoefficients();
    }
    void setBandwidth(float value) {
        if (value == bandwidth)
            return;
        bandwidth = value;
        computeCoefficients();
    }
    void processReplacing(float **in, float **out, int frames) override { run(in, out, frames); }
    void processDoubleReplacing(double **in, double **out, int frames) override {
        run(in, out, frames);
    }
    void reset() override {
        for (SState &state : states)
            state = {0.0, 0.0, 0.0, 0.0};
    }

    double b0, b1, b2, a1, a2;

private:
    struct SState {
        double y1, y2, x1, x2;
    };

    void computeAngle() {
        w0 = 6.283185307179586 * frequency * invSampleRate;
        sn = std::sin(w0);
        cs = std::cos(w0);
    }

    void computeAlpha() {
        if (useBandwidth)
            alpha = sn * std::sinh(std::log(2.0) * 0.5 * bandwidth * w0 / sn);
        else
            alpha = sn / (2.0 * bandwidth);
    }

    void computeGainTerms() {
        A = std::pow(10.0, gainDb / 40.0);
        beta = 2.0 * std::sqrt(A) * alpha;
    }

    void setRaw(double newB0, double newB1, double newB2, double newA0, double newA1,
                double newA2) {
        raw[0] = newB0;
        raw[1] = newB1;
        raw[2] = newB2;
        raw[3] = newA0;
        raw[4] = newA1;
        raw[5] = newA2;
    }

    void computeRawCoefficients() {
        switch (kind) {
        case 0:
            setRaw((1 - cs) / 2, 1 - cs, (1 - cs) / 2, 1 + alpha, -2 * cs, 1 - alpha);
            break;
        case 1:
            setRaw((1 + cs) / 2, -(1 + cs), (1 + cs) / 2, 1 + alpha, -2 * cs, 1 - alpha);
            break;
        case 2:
            setRaw(sn / 2, 0, -sn / 2, 1 + alpha, -2 * cs, 1 - alpha);
            break;
        case 3:
            setRaw(alpha, 0, -alpha, 1 + alpha, -2 * cs, 1 - alpha);
            break;
        case 4:
            setRaw(1, -2 * cs, 1, 1 + alpha, -2 * cs, 1 - alpha);
            break;
        case 5:
            setRaw(1 - alpha, -2 * cs, 1 + alpha, 1 + alpha, -2 * cs, 1 - alpha);
            break;
        case 6:
            setRaw(1 + alpha * A, -2 * cs, 1 - alpha * A, 1 + alpha / A, -2 * cs, 1 - alpha / A);
            break;
        case 7:
            setRaw(A * ((A + 1) - (A - 1) * cs + beta), 2 * A * ((A - 1) - (A + 1) * cs),
                   A * ((A + 1) - (A - 1) * cs - beta), (A + 1) + (A - 1) * cs + beta,
                   -2 * ((A - 1) + (A + 1) * cs), (A + 1) + (A - 1) * cs - beta);
            break;
        case 8:
            setRaw(A * ((A + 1) + (A - 1) * cs + beta), -2 * A * ((A - 1) + (A + 1) * cs),
                   A * ((A + 1) + (A - 1) * cs - beta), (A + 1) - (A - 1) * cs + beta,
                   2 * ((A - 1) - (A + 1) * cs), (A + 1) - (A - 1) * cs - beta);
            break;
        }
    }

    void roundRawCoefficients() {
        for (double &coefficient : raw)
            coefficient = static_cast<float>(coefficient);
    }

    void storeCoefficients() {
        b0 = raw[0] / raw[3];
        b1 = raw[1] / raw[3];
        b2 = raw[2] / raw[3];
        a1 = raw[4] / raw[3];
        a2 = raw[5] / raw[3];
    }

    void computeCoefficients() {
        const bool hasGain = kind == 6 || kind == 7 || kind == 8;
        computeAngle();
        computeAlpha();
        if (hasGain)
            computeGainTerms();
        computeRawCoefficients();
        if (hasGain)
            roundRawCoefficients();
        storeCoefficients();
    }

    static double contained(double y) {
        if (exponentIsZero(y))
            return 0.0;
        if (y < -5.0 || y > 5.0)
            return std::copysign(1.0, y);
        return y;
    }

    template <typename Sample>
    Sample tick(SState &state, Sample &sample) {
        if (exponentIsZero(sample))
            sample = 0;
        const double x = sample;
        double y = b0 * x + b1 * state.x1 + b2 * state.x2 - a1 * state.y1 - a2 * state.y2;
        state.x2 = state.x1;
        state.x1 = x;
        y = contained(y);
        state.y2 = state.y1;
        state.y1 = y;
        return static_cast<Sample>(y);
    }

    template <typename Sample>
    void run(Sample **in, Sample **out, int frames) {
        for (int channel = 0; channel < 2; ++channel)
            for (int i = 0; i < frames; ++i)
                out[channel][i] = tick(states[channel], in[channel][i]);
    }

    SState states[2] = {};
    double frequency, gainDb, bandwidth;
    bool useBandwidth;
    int kind;
    double w0, sn, cs, alpha, A, beta;
    double raw[6];  // b0 b1 b2 a0 a1 a2
};
