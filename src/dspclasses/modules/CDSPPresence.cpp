#include "dspclasses/modules/CDSPPresence.h"

void CDSPPresence::setParameter(int index, float value) {
    if (index == 0 && value != frequency) {
        frequency = value;
        filter.setFrequency(value);
    } else if (index == 1 && value != gainDb) {
        gainDb = value;
        filter.setGain(value);
    }
}

float CDSPPresence::getParameter(int index) {
    switch (index) {
    case 0:
        return frequency;
    case 1:
        return gainDb;
    default:
        return 0.0f;
    }
}

void CDSPPresence::processReplacing(float **in, float **out, int frames) {
    filter.processReplacing(in, out, frames);
}

void CDSPPresence::processDoubleReplacing(double **in, double **out, int frames) {
    filter.processDoubleReplacing(in, out, frames);
}

void CDSPPresence::reset() {
    filter.reset();
}
