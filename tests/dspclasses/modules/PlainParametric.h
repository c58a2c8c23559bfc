#pragma once

#include "dspclasses/modules/PlainRBJFilter.h"

class CPlainParametric : public CDSPBase {
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
            if (value == bandwidth)
                return;
            bandwidth = value;
            filter.setBandwidth(value);
            break;
        case 2:
            if (value == gainDb)
                return;
            gainDb = value;
            filter.setGain(value);
            break;
        }
    }
    float getParameter(int index) override {
        return index == 0 ? frequency : index == 1 ? bandwidth : gainDb;
    }
    void processReplacing(float **in, float **out, int frames) override {
        filter.processReplacing(in, out, frames);
    }
    void processDoubleReplacing(double **in, double **out, int frames) override {
        filter.processDoubleReplacing(in, out, frames);
    }
    void reset() override { filter.reset(); }

private:
    float frequency = 440.0f;
    float bandwidth = 0.5f;
    float gainDb = 0.0f;
    CPlainRBJFilter filter{6, 440.0f, 0.0f, 0.5f, true};
};
