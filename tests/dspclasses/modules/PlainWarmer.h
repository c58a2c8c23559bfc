#pragma once

#include "dspclasses/modules/CDSPBase.h"

class CPlainWarmer : public CDSPBase {
public:
    void setParameter(int, float value) override {
        if (value == warmth)
            return;
        warmth = value;
        bias = value * 0.2f + 0.5f;
        curve = 1.0f - 1.0f / bias;
    }
    float getParameter(int) override { return warmth; }
    void processReplacing(float **in, float **out, int frames) override { run(in, out, frames); }
    void processDoubleReplacing(double **in, double **out, int frames) override {
        run(in, out, frames);
    }

private:
    template <typename Sample>
    Sample bend(Sample x) const {
        const Sample k = curve;
        return x / ((x - 1) * k + x);
    }

    template <typename Sample>
    void run(Sample **in, Sample **out, int frames) const {
        for (int i = 0; i < frames; ++i) {
            out[0][i] = bend(in[0][i]);
            out[1][i] = bend(in[1][i]);
        }
    }

    float curve = -1.0f;
    float bias = 0.5f;
    float warmth = 0.0f;
};
