#include "dspclasses/modules/CDSP3EQ.h"

#include "dspclasses/kernels/GuardedRecursion.h"

#include <cmath>

namespace {

struct SThreeBandLanes {
    SDoubles2 lowCoef, highCoef;
    SDoubles2 lowGain, midGain, highGain;
    SDoubles2 low, high;

    template <typename Guard>
    SDoubles2 step(SDoubles2 x, Guard &guard) {
        low = guard.flush(low + (x - low) * lowCoef);
        high = guard.flush(high + (x - high) * highCoef);
        return (x - high) * highGain + (high - low) * midGain + low * lowGain;
    }
};

}  // namespace

/// Rounded to single precision half-way, and without a floor: -60 dB is not silence here.
static double gainFromDb(float decibels) {
    constexpr float ln10 = 2.30258512f;
    return std::exp(double{ln10 * decibels} * 0.05);
}

// Kept: t is twice the cosine, so the factor is not the usual one and hardly follows the frequency.
double CDSP3EQ::smoothingFactor(float crossover) const {
    // Rounded from double precision: cosf is not the same in every library.
    const double angle = crossover * 6.2831855f * invSampleRate;
    const float t = static_cast<float>(std::cos(angle)) * 2.0f;
    return double{1.0f - (t - std::sqrt(t * t - 1.0f))};
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
    coefficient = smoothingFactor(value);
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
    SThreeBandLanes lanes;
    lanes.low = frameOf(lowStateLeft, lowStateRight);
    lanes.high = frameOf(highStateLeft, highStateRight);
    runGuarded<EInput::Read>(lanes, in, out, frames, [this](SThreeBandLanes &filter) {
        filter.lowCoef = inBothChannels(lowCoef);
        filter.highCoef = inBothChannels(highCoef);
        filter.lowGain = inBothChannels(lowGain);
        filter.midGain = inBothChannels(midGain);
        filter.highGain = inBothChannels(highGain);
        if (resetRequest.take())
            filter.low = filter.high = inBothChannels(0.0);
    });
    lowStateLeft = leftOf(lanes.low);
    lowStateRight = rightOf(lanes.low);
    highStateLeft = leftOf(lanes.high);
    highStateRight = rightOf(lanes.high);
}

void CDSP3EQ::processReplacing(float **in, float **out, int frames) {
    run(in, out, frames);
}

void CDSP3EQ::processDoubleReplacing(double **in, double **out, int frames) {
    run(in, out, frames);
}
