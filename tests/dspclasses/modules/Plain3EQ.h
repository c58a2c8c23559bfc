#pragma once

#include "dspclasses/modules/CDSPBase.h"
#include "dspclasses/support/PlainBits.h"

#include <cmath>

class CPlain3EQ : public CDSPBase {
public:
    void setParameter(int index, float value) override {
        if (index < 0 || index > 4 || value == parameters[index])
            return;
        parameters[index] = value;
        switch (index) {
        case 0:
            lowGain = gainOf(value);
            break;
        case 1:
            midGain = gainOf(value);
            break;
        case 2:
            highGain = gainOf(value);
            break;
        case 3:
            lowCoef = coefficientOf(value);
            reset();
            break;
        case 4:
            highCoef = coefficientOf(value);
            reset();
            break;
        }
    }
    float getParameter(int index) override { return parameters[index]; }
    void processReplacing(float **in, float **out, int frames) override { run(in, out, frames); }
    void processDoubleReplacing(double **in, double **out, int frames) override {
        run(in, out, frames);
    }
    void reset() override {
        for (SState &state : states)
            state = {0.0, 0.0};
    }

private:
    struct SState {
        double low = 0.0, high = 0.0;
    };

    static double gainOf(float decibels) {
        const float exponent = std::log(10.0f) * decibels;
        return std::exp(static_cast<double>(exponent) * 0.05);
    }

    double coefficientOf(float frequency) const {
        const float angle = frequency * 6.2831855f * invSampleRate;
        const float t = static_cast<float>(std::cos(double{angle})) * 2.0f;
        const float coefficient = 1.0f - (t - std::sqrt(t * t - 1.0f));
        return coefficient;
    }

    double tick(SState &state, double x) const {
        state.low += (x - state.low) * lowCoef;
        state.high += (x - state.high) * highCoef;
        if (exponentIsZero(state.low))
            state.low = 0.0;
        if (exponentIsZero(state.high))
            state.high = 0.0;
        return (x - state.high) * highGain + (state.high - state.low) * midGain +
               state.low * lowGain;
    }

    template <typename Sample>
    void run(Sample **in, Sample **out, int frames) {
        for (int channel = 0; channel < 2; ++channel)
            for (int i = 0; i < frames; ++i)
                out[channel][i] = static_cast<Sample>(tick(states[channel], in[channel][i]));
    }

    double lowCoef = coefficientOf(350.0f);
    double highCoef = coefficientOf(1500.0f);
    double lowGain = 1.0, midGain = 1.0, highGain = 1.0;
    SState states[2];
    float parameters[5] = {0.0f, 0.0f, 0.0f, 350.0f, 1500.0f};  // three dB, two Hz
};
