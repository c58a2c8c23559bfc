#pragma once

#include "dspclasses/modules/PlainRBJFilter.h"

class CPlainPresence : public CDSPBase {
public:
    void setParameter(int index, float value) override {
        switch (index) {
        case 0:
            if (value == frequency)
                return;
            frequency = value;
            filter.setFrequency(value);
            break;
        case 1:
            if (value == gainDb)
                return;
            gainDb = value;
            filter.setGain(value);
            break;
        }
    }
    float getParameter(int index) override { return index == 0 ? frequency : gainDb; }
    void processReplacing(float **in, float **out, int frames) override {
        filter.processReplacing(in, out, frames);
    }
    void processDoubleReplacing(double **in, double **out, int frames) override {
        filter.processDoubleReplacing(in, out, frames);
    }
    void reset() override { filter.reset(); }

private:
    float frequency = 2000.0f;
    float gainDb = 0.0f;
    CPlainRBJFilter filter{6, 2000.0f, 0.0f, 0.5f, true};
};
