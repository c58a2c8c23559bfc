#include "dspclasses/modules/CDSPPresence.h"

void CDSPPresence::setParameter(int index, float value) {
    if (index == kFrequency && value != frequency) {
        frequency = value;
        filter.setFrequency(value);
    } else if (index == kGain && value != gainDb) {
        gainDb = value;
        filter.setGain(value);
    }
}

float CDSPPresence::getParameter(int index) {
    switch (index) {
    case kFrequency:
        return frequency;
    case kGain:
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
