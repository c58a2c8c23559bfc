#pragma once

#include "dspclasses/modules/CDSPBase.h"
#include "dspclasses/support/PlainBits.h"

#include <cmath>

class CPlainHiPass : public CDSPBase {
public:
    void setParameter(int, float value) override {
        if (value == cutoff)
            return;
        cutoff = value;
        const float exponent = value * -6.283185f * invSampleRate;
        pole = static_cast<float>(std::exp(double{exponent}));
        reset();
    }
    float getParameter(int) override { return cutoff; }
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
        double x1 = 0.0, y1 = 0.0;
    };

    double tick(SState &state, double x) const {
        double y = pole * state.y1 + (x - state.x1);
        if (exponentIsZero(y))
            y = 0.0;
        state.x1 = x;
        state.y1 = y;
        return y;
    }

    template <typename Sample>
    void run(Sample **in, Sample **out, int frames) {
        for (int channel = 0; channel < 2; ++channel)
            for (int i = 0; i < frames; ++i)
                out[channel][i] = static_cast<Sample>(tick(states[channel], in[channel][i]));
    }

    SState states[2];
    float cutoff = 60.0f;
    float pole = static_cast<float>(std::exp(double{-0.00854855f}));
};
