#include "dspclasses/modules/CDSP3EQ.h"

#include "dspclasses/kernels/GuardedRecursion.h"

#include <cmath>

/// Kept: the exponent is rounded to single precision. Unlike in CDSPGain, -60 dB is not silence.
static double gainFromDb(float decibels) {
    constexpr float ln10 = 2.30258509f;
    return std::exp(double{ln10 * decibels} * 0.05);
}

void CDSP3EQ::setGain(TRelaxed<float> &decibels, TRelaxed<double> &gain, float value) {
    if (value == decibels)
        return;
    decibels = value;
    gain = gainFromDb(value);
}

void CDSP3EQ::setCrossover(TRelaxed<float> &crossover, TRelaxed<double> &coefficient, float value) {
    if (value == crossover)
        return;
    crossover = value;
    coefficient = bandSplitCoefficient(value, invSampleRate);
    reset();
}

void CDSP3EQ::setParameter(int index, float value) {
    switch (index) {
    case kLowGain:
        setGain(lowDb, lowGain, value);
        break;
    case kMidGain:
        setGain(midDb, midGain, value);
        break;
    case kHighGain:
        setGain(highDb, highGain, value);
        break;
    case kLowCrossover:
        setCrossover(lowCrossover, lowCoef, value);
        break;
    case kHighCrossover:
        setCrossover(highCrossover, highCoef, value);
        break;
    default:
        break;
    }
}

float CDSP3EQ::getParameter(int index) {
    switch (index) {
    case kLowGain:
        return lowDb;
    case kMidGain:
        return midDb;
    case kHighGain:
        return highDb;
    case kLowCrossover:
        return lowCrossover;
    case kHighCrossover:
        return highCrossover;
    default:
        return 0.0f;
    }
}

void CDSP3EQ::reset() {
    resetRequest.ask();
}

template <typename Sample>
void CDSP3EQ::run(Sample *const *in, Sample *const *out, int frames) {
    runGuarded<EInput::Read>(filter, in, out, frames, [this](SFilter &now) {
        now.lowCoef = inBothChannels(lowCoef);
        now.highCoef = inBothChannels(highCoef);
        now.lowGain = inBothChannels(lowGain);
        now.midGain = inBothChannels(midGain);
        now.highGain = inBothChannels(highGain);
        if (resetRequest.take())
            now.low = now.high = inBothChannels(0.0);
    });
}

void CDSP3EQ::processReplacing(float **in, float **out, int frames) {
    run(in, out, frames);
}

void CDSP3EQ::processDoubleReplacing(double **in, double **out, int frames) {
    run(in, out, frames);
}
