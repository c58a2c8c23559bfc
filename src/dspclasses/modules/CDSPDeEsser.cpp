#include "dspclasses/modules/CDSPDeEsser.h"

#include "dspclasses/blocks/CSleepingDetector.h"
#include "dspclasses/blocks/DynamicsMath.h"
#include "dspclasses/blocks/TDetector.h"
#include "dspclasses/kernels/BiquadLanes.h"
#include "dspclasses/kernels/GuardedSteps.h"
#include "dspclasses/kernels/WideLoop.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

//     x ----+---------------------------------------------> wide: x * gain -----------+--> out
//           |                                               narrow: (x - s) + s * gain  |
//           |                                                          ^                |
//           +--> high-pass --> s --> detector, gain law --> gain ------+                |
//                              |                                                        |
//                              +--> listening: s ---------------------------------------+

void CDSPDeEsser::setParameter(int index, float value) {
    if (index == kThreshold && thresholdDb.storeIfNew(value)) {
        thresholdLinear = linearFromDecibels(value);
    } else if (index == kSpeed && speed.storeIfNew(value)) {
        attackMs = 2.0f + 48.0f * value;
        releaseMs = 100.0f + 400.0f * value;
        attackCoef = smoothingCoefficient(attackMs, sampleRate);
        releaseCoef = smoothingCoefficient(releaseMs, sampleRate);
    } else if (index == kRatio && ratio.storeIfNew(value)) {
        slope = 1.0f / value - 1.0f;
    } else if (index == kFrequency && frequency.storeIfNew(value)) {
        filter.setFrequency(value);
    } else if (index == kBand) {
        narrow = value >= 0.5f;
    } else if (index == kListen) {
        listen = value >= 0.5f;
    }
}

float CDSPDeEsser::getParameter(int index) {
    switch (index) {
    case kThreshold:
        return thresholdDb;
    case kSpeed:
        return speed;
    case kRatio:
        return ratio;
    case kFrequency:
        return frequency;
    case kBand:
        return narrow ? 1.0f : 0.0f;
    case kListen:
        return listen ? 1.0f : 0.0f;
    default:
        return 0.0f;
    }
}

void CDSPDeEsser::reset() {
    resetRequest.ask();
    filter.reset();
}

void CDSPDeEsser::clear() {
    detector = {};
    gain = {};
}

static void process(CDSPRBJFilter &filter, float **in, float **out, int frames) {
    filter.processReplacing(in, out, frames);
}
static void process(CDSPRBJFilter &filter, double **in, double **out, int frames) {
    filter.processDoubleReplacing(in, out, frames);
}

template <typename Sample>
void CDSPDeEsser::run(Sample **in, Sample **out, int frames, TSideChain<Sample> &side) {
    if (resetRequest.take())
        clear();
    if (frames <= 0)
        return;
    side.grow(frames);
    if (listen) {
        process(filter, in, side.channels().data(), frames);
        std::copy_n(side.left(), frames, out[0]);
        std::copy_n(side.right(), frames, out[1]);
    } else {
        attenuate(in, out, frames);
    }
}

void CDSPDeEsser::processReplacing(float **in, float **out, int frames) {
    run(in, out, frames, singleSide);
}

void CDSPDeEsser::processDoubleReplacing(double **in, double **out, int frames) {
    run(in, out, frames, doubleSide);
}

SDetectorSettings CDSPDeEsser::settings() const {
    return {thresholdDb, thresholdLinear, {attackCoef, releaseCoef}, {slope, floorDb, floorLinear}};
}

/// @param x         input, one sample or four.
/// @param side      the part of it that the filter passes.
/// @param isNarrow  whether only that part is attenuated.
template <typename Samples>
[[gnu::always_inline]] static inline Samples attenuated(const Samples &x, const Samples &side,
                                                        const Samples &gain, bool isNarrow) {
    return isNarrow ? (x - side) + side * gain : x * gain;
}

/// The filter runs inside the detector's loop: the processor can work on one recursion while the
/// other waits for its last result.
void CDSPDeEsser::attenuate(float **in, float **out, int frames) {
    float *inL = in[0], *inR = in[1], *sideL = singleSide.left(), *sideR = singleSide.right();
    float *outL = out[0], *outR = out[1];
    const bool isNarrow = narrow;
    bool isActive = false;
    SDetectorState state = detector;
    runWide([=, this, &state, &isActive](auto processor) {
        using Processor = decltype(processor);
        SBiquadLanes lanes = filter.takeOut();
        const auto refresh = [this, &lanes] {
            filter.refresh(lanes);
            return settings();
        };
        const auto levels = [=, &lanes](const SStep &step) {
            const int i = step.first;
            runGuardedStep<EInput::Flush>(lanes, inL + i, inR + i, sideL + i, sideR + i,
                                          step.count);
            // Kept: in narrow mode the detector hears the right channel only.
            const TFour<float> right = magnitude(step.load(sideR));
            return isNarrow ? right : larger(magnitude(step.load(sideL)), right);
        };
        const auto apply = [=](const SStep &step, const Floats4 &linear) {
            const SFloats4 gains{linear};
            step.store(outL, attenuated(step.load(inL), step.load(sideL), gains, isNarrow));
            step.store(outR, attenuated(step.load(inR), step.load(sideR), gains, isNarrow));
        };
        isActive = TDetector<float, Processor>::run(state, SFlushedFields{}, frames, refresh,
                                                    levels, CGainsByLaw<Processor>(), apply);
        filter.putBack(lanes);
    });
    detector = state;
    gain = settings().law.gain(isActive, detector.smoothedExcessDb);
}

/// Runs frame by frame until the detector falls asleep, then applies one gain to the rest.
void CDSPDeEsser::attenuate(double **in, double **out, int frames) {
    process(filter, in, doubleSide.channels().data(), frames);
    const bool isNarrow = narrow;
    CSleepingDetector sleeping(detector, gain, settings());
    int done = 0;
    for (; done < frames && !sleeping.isAsleep(); ++done) {
        sleeping.detect(doubleLevelAt(done, isNarrow));
        applyGain(in, out, done, 1, isNarrow);
    }
    if (done < frames) {
        sleeping.sleep(frames - done);
        applyGain(in, out, done, frames - done, isNarrow);
    }
}

double CDSPDeEsser::doubleLevelAt(int frame, bool isNarrow) {
    const double sideL = std::abs(doubleSide.left()[frame]);
    const double sideR = std::abs(doubleSide.right()[frame]);
    // Kept: in narrow mode the left channel is judged by a sample of the single-precision buffer.
    // That sample dates from the last block in single precision, or is 0 past the end of the
    // buffer.
    const float stale = frame < singleSide.size() ? singleSide.left()[frame] : 0.0f;
    const double candidate = isNarrow ? double{std::abs(stale)} : sideL;
    return candidate > sideR ? sideL : sideR;
}

void CDSPDeEsser::applyGain(const double *const *in, double *const *out, int first, int count,
                            bool isNarrow) {
    const auto sides = doubleSide.channels();
    const double factor = gain.linear;
    for (std::size_t channel = 0; channel < 2; ++channel) {
        const double *x = in[channel] + first, *side = sides[channel] + first;
        double *y = out[channel] + first;
        for (int i = 0; i < count; ++i)
            y[i] = attenuated(x[i], side[i], factor, isNarrow);
    }
}
