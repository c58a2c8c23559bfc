#include "dspclasses/modules/CDSPParametric.h"

void CDSPParametric::setParameter(int index, float value) {
    if (index == 0 && value != frequency) {
        frequency = value;
        filter.setFrequency(value);
    } else if (index == 1 && value != bandwidth) {
        bandwidth = value;
        filter.setBandwidth(value);
    } else if (index == 2 && value != gainDb) {
        gainDb = value;
        filter.setGain(value);
    }
}

float CDSPParametric::getParameter(int index) {
    switch (index) {
    case 0:
        return frequency;
    case 1:
        return bandwidth;
    case 2:
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
