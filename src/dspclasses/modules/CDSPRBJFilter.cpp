#include "dspclasses/modules/CDSPRBJFilter.h"

#include "dspclasses/kernels/GuardedRecursion.h"

CDSPRBJFilter::CDSPRBJFilter() {
    updateCoefficients();
}

CDSPRBJFilter::CDSPRBJFilter(EKind filterKind, float hz, float db, float width, bool widthInOctaves)
    : frequency(hz), gainDb(db), bandwidth(width), useBandwidth(widthInOctaves), kind(filterKind) {
    updateCoefficients();
}

void CDSPRBJFilter::setFrequency(float hz) {
    if (hz == frequency)
        return;
    frequency = hz;
    updateCoefficients();
}

void CDSPRBJFilter::setGain(float db) {
    if (db == gainDb)
        return;
    gainDb = db;
    updateCoefficients();
}

void CDSPRBJFilter::setBandwidth(float value) {
    if (value == bandwidth)
        return;
    bandwidth = value;
    updateCoefficients();
}

void CDSPRBJFilter::setSampleRate(float rate) {
    CDSPBase::setSampleRate(rate);
    updateCoefficients();
    reset();
}

void CDSPRBJFilter::reset() {
    resetRequest.ask();
}

void CDSPRBJFilter::updateCoefficients() {
    const SCoefficients now = biquadCoefficients(
        {kind, frequency, gainDb, bandwidth, useBandwidth, double{invSampleRate}});
    b0 = now.b0;
    b1 = now.b1;
    b2 = now.b2;
    a1 = now.a1;
    a2 = now.a2;
}

template <typename Sample>
void CDSPRBJFilter::run(Sample *const *in, Sample *const *out, int frames) {
    runGuarded<EInput::Flush>(biquad, in, out, frames, [this](SBiquadLanes &now) { refresh(now); });
}

void CDSPRBJFilter::processReplacing(float **in, float **out, int frames) {
    run(in, out, frames);
}

void CDSPRBJFilter::processDoubleReplacing(double **in, double **out, int frames) {
    run(in, out, frames);
}
