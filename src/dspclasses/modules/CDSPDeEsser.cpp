#include "dspclasses/modules/CDSPDeEsser.h"

#include "dspclasses/blocks/DynamicsMath.h"
#include "dspclasses/blocks/TDetector.h"
#include "dspclasses/kernels/BiquadLanes.h"
#include "dspclasses/kernels/GuardedRecursion.h"
#include "dspclasses/kernels/WideLoop.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

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
    gain = 1.0f;
    over = peak = gainDb = 0.0f;
}

template <typename Sample>
void CDSPDeEsser::SSideChain<Sample>::grow(int frames) {
    const auto needed = static_cast<std::size_t>(frames);
    if (needed <= right.size())  // the last one to grow
        return;
    left.assign(needed, 0);
    right.assign(needed, 0);
}

static void process(CDSPRBJFilter &filter, float **in, float **out, int frames) {
    filter.processReplacing(in, out, frames);
}
static void process(CDSPRBJFilter &filter, double **in, double **out, int frames) {
    filter.processDoubleReplacing(in, out, frames);
}

template <typename Sample>
void CDSPDeEsser::run(Sample **in, Sample **out, int frames, SSideChain<Sample> &chain) {
    if (resetRequest.take())
        clear();
    if (frames <= 0)
        return;
    chain.grow(frames);
    if (listen) {
        Sample *sides[] = {chain.left.data(), chain.right.data()};
        process(filter, in, sides, frames);
        std::copy_n(sides[0], frames, out[0]);
        std::copy_n(sides[1], frames, out[1]);
    } else {
        detect(in, out, frames);
    }
}

void CDSPDeEsser::processReplacing(float **in, float **out, int frames) {
    run(in, out, frames, side);
}

void CDSPDeEsser::processDoubleReplacing(double **in, double **out, int frames) {
    run(in, out, frames, doubleSide);
}

SDetectorSettings CDSPDeEsser::settings() const {
    return {thresholdDb, thresholdLinear, {attackCoef, releaseCoef}, {slope, floorDb, floorLinear}};
}

/// @param isNarrow  whether only what the filter passed is attenuated.
/// @return what comes out for one sample or four.
template <typename Samples>
[[gnu::always_inline]] static inline Samples attenuated(const Samples &x, const Samples &s,
                                                        const Samples &gain, bool isNarrow) {
    return isNarrow ? (x - s) + s * gain : x * gain;
}

/// The filter runs in the detector's loop: one recursion more in the time that they all wait.
void CDSPDeEsser::detect(float **in, float **out, int frames) {
    float *inL = in[0], *inR = in[1], *sideL = side.left.data(), *sideR = side.right.data();
    float *outL = out[0], *outR = out[1];
    const bool isNarrow = narrow;
    bool isActive = false;
    SDetectorState state{.peak = peak, .smoothedExcessDb = over};
    runWide([=, this, &state, &isActive] {
        SBiquadLanes lanes = filter.takeOut();
        const auto refresh = [this, &lanes] {
            filter.refresh(lanes);
            return settings();
        };
        const auto levels = [=, &lanes](const SStep &step) {
            const int i = step.first;
            runUpToFour<EInput::Flush>(lanes, inL + i, inR + i, sideL + i, sideR + i, step.count);
            // Kept: in narrow mode the left side sample is compared with itself and never wins.
            const TFour<float> right = magnitude(step.load(sideR));
            return isNarrow ? right : larger(magnitude(step.load(sideL)), right);
        };
        const auto apply = [=](const SStep &step, const Floats4 &linear) {
            const SFloats4 gains{linear};
            step.store(outL, attenuated(step.load(inL), step.load(sideL), gains, isNarrow));
            step.store(outR, attenuated(step.load(inR), step.load(sideR), gains, isNarrow));
        };
        isActive = TDetector<float>::run(state, SFlushedFields{}, frames, refresh, levels,
                                         CGainsByLaw(), apply);
        filter.putBack(lanes);
    });

    peak = state.peak;
    over = state.smoothedExcessDb;
    moveGain(settings().law.gain(isActive, over));
}

void CDSPDeEsser::moveGain(const SGain &next) {
    gainDb = next.decibels;
    gain = next.linear;
}

// Double precision

/// Kept: the peak is cleared while the last gain is 0 dB, see isFlushedByNeighbour, and only a peak
/// can move the gain from there. So once the gain has come to rest, the detector is asleep until
/// single precision wakes it up.
void CDSPDeEsser::detect(double **in, double **out, int frames) {
    double *sides[] = {doubleSide.left.data(), doubleSide.right.data()};
    process(filter, in, sides, frames);
    const SDetectorSettings now = settings();
    const bool isNarrow = narrow;
    int awake = 0;
    for (; awake < frames && !isAsleep(now); ++awake) {
        detectFrame(levelAt(awake, isNarrow), now);
        write(in, out, awake, 1, isNarrow);
    }
    if (awake < frames) {
        sleep(frames - awake, now);
        write(in, out, awake, frames - awake, isNarrow);
    }
}

double CDSPDeEsser::levelAt(int frame, bool isNarrow) const {
    const auto i = static_cast<std::size_t>(frame);
    const double sideL = std::abs(doubleSide.left[i]), sideR = std::abs(doubleSide.right[i]);
    // Kept: in narrow mode the left candidate is what the last block in single precision left in
    // its own buffer, of which there is nothing behind the end.
    const float other = i < side.left.size() ? side.left[i] : 0.0f;
    const double candidate = isNarrow ? double{std::abs(other)} : sideL;
    return candidate > sideR ? sideL : sideR;
}

void CDSPDeEsser::detectFrame(double level, const SDetectorSettings &now) {
    peak = isFlushedByNeighbour<double>(gainDb) ? 0.0f : peakFollower.next(peak, level);
    const bool isAbove = peak - now.thresholdLinear > 0.0f;
    const double amount =
        isAbove ? logDouble(level + double{smoothingBias}) * double{exponentPerDecibel} -
                      double{now.thresholdDb}
                : 0.0;
    over = now.smoother.next(over + smoothingBias, amount) - smoothingBias;
    if (isFlushedByNeighbour<double>(now.thresholdDb))
        over = 0.0f;
    const bool isActive = isAbove || over > leastActiveExcessDb;
    moveGain(now.law.gain(isActive, over));
}

/// @return whether the detector stays inactive whatever the signal is.
bool CDSPDeEsser::isAsleep(const SDetectorSettings &now) const {
    const float release = now.smoother.releaseCoef;
    return isFlushedByNeighbour<double>(gainDb) && over >= -smoothingBias &&
           over <= leastActiveExcessDb && release >= 0.0f && release <= 1.0f;
}

/// What remains of detectFrame while asleep.
void CDSPDeEsser::sleep(int frames, const SDetectorSettings &now) {
    peak = 0.0f;
    gainDb = now.law.offsetDb;
    gain = now.law.offsetLinear;
    if (isFlushedByNeighbour<double>(now.thresholdDb)) {
        over = 0.0f;
        return;
    }
    const float release = now.smoother.releaseCoef;
    for (int i = 0; i < frames; ++i) {
        const float before = over;
        over = (over + smoothingBias) * release - smoothingBias;
        if (over == before)  // at rest
            return;
    }
}

/// Frames of one gain.
void CDSPDeEsser::write(const double *const *in, double *const *out, int first, int count,
                        bool isNarrow) const {
    const double *sides[] = {doubleSide.left.data(), doubleSide.right.data()};
    const double factor = gain;
    for (int channel = 0; channel < 2; ++channel) {
        const double *x = in[channel] + first, *s = sides[channel] + first;
        double *y = out[channel] + first;
        for (int i = 0; i < count; ++i)
            y[i] = attenuated(x[i], s[i], factor, isNarrow);
    }
}
