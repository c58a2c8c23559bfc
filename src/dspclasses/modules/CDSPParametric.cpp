#include "dspclasses/modules/CDSPParametric.h"

void CDSPParametric::setParameter(int index, float value) {
    if (index == kFrequency && value != frequency) {
        frequency = value;
        filter.setFrequency(value);
    } else if (index == kBandwidth && value != bandwidth) {
        bandwidth = value;
        filter.setBandwidth(value);
    } else if (index == kGain && value != gainDb) {
        gainDb = value;
        filter.setGain(value);
    }
}

float CDSPParametric::getParameter(int index) {
    switch (index) {
    case kFrequency:
        return frequency;
    case kBandwidth:
        return bandwidth;
    case kGain:
        return gainDb;
    default:
        return 0.0f;
    }
}

void CDSPParametric::processReplacing(float **in, float **out, int frames) {
    filter.processReplacing(in, out, frames);
}

void CDSPParametric::processDoubleReplacing(double **in, double **out, int frames) {
    filter.processDoubleReplacing(in, out, frames);
}

void CDSPParametric::reset() {
    filter.reset();
}
