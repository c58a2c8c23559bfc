#include "dspclasses/modules/CDSPGate.h"

#include "dspclasses/blocks/DynamicsMath.h"
#include "dspclasses/blocks/Followers.h"
#include "dspclasses/kernels/Denormals.h"
#include "dspclasses/kernels/SingleMathLanes.h"
#include "dspclasses/kernels/StagedLoop.h"
#include "dspclasses/kernels/WideLoop.h"

void CDSPGate::setParameter(int index, float value) {
    if (index == kThreshold && thresholdDb.storeIfNew(value))
        thresholdLinear = linearFromDecibels(value);
    else if (index == kAttack && attackMs.storeIfNew(value))
        attackFactor = smoothingCoefficient(value, sampleRate);
    else if (index == kRelease && releaseMs.storeIfNew(value))
        releaseFactor = 1.0f / smoothingCoefficient(value, sampleRate);
}

float CDSPGate::getParameter(int index) {
    switch (index) {
    case kThreshold:
        return thresholdDb;
    case kAttack:
        return attackMs;
    case kRelease:
        return releaseMs;
    default:
        return 0.0f;
    }
}

void CDSPGate::reset() {
    resetRequest.ask();
}

//     |L| --+
//           +--> larger --> peak follower --> above threshold? --> gain moves --> exp --+
//     |R| --+                2 ms, 15 ms                           up or down           |
//                                                                                       v
//     L, R ---------------------------------------------------------------------------> * --> out
//
// A staged loop of four stages: follow, detect, move the gain, exp and multiply.

namespace {

template <typename Processor>
[[gnu::always_inline]] inline Floats4 gainsFromExponents(const Floats4 &exponents) {
    const Mask4 areOne = exponents == TGateGain<float>::exponentOfOne;
    if (areAllSet(areOne | (exponents == TGateGain<float>::exponentOfZero)))
        return areOne ? splat(1.0f) : splat(0.0f);
    return expSingle<Processor>(SFloats4{exponents}).values;
}

/// Kept: the peak is not flushed. In silence it decays to a denormal so small that rounding keeps
/// it there, which keeps the gate open while the threshold is still 0.
/// @return whether the peak is at that point, so that the follower need not run. Arithmetic on
///         denormals is slow on some processors.
template <typename Sample>
[[gnu::always_inline]] inline bool restsInSilence(float peak, const TFour<Sample> &levels) {
    const auto &a = levels.values;
    return isDenormalOrZero(peak) && a[0] + a[1] + a[2] + a[3] == 0 &&
           peakFollower.next(peak, Sample{0}) == peak;
}

}  // namespace

template <typename Sample>
void CDSPGate::run(const Sample *const *in, Sample *const *out, int frames) {
    if (resetRequest.take()) {
        peak = 0.0f;
        gain = closed;
    }
    if (frames <= 0)
        return;
    runWide([=, this](auto processor) {
        runSteps<decltype(processor)>(in[0], in[1], out[0], out[1], frames);
    });
}

template <typename Processor, typename Sample>
void CDSPGate::runSteps(const Sample *inL, const Sample *inR, Sample *outL, Sample *outR,
                        int frames) {
    Floats4 peaks{};
    float lastPeak = peak;
    const auto followPeaks = [&](const SStep &step) {
        const TFour<Sample> levels = larger(magnitude(step.load(inL)), magnitude(step.load(inR)));
        peaks = restsInSilence(lastPeak, levels) ? splat(lastPeak)
                                                 : followFour(peakFollower, lastPeak, levels);
    };

    float threshold = 0.0f;
    Mask4 areOpen{};
    const auto detect = [&](const SStep &) { areOpen = peaks - threshold > 0.0f; };

    TGateGain<Sample> moving(gain.decibels, gain.linear);
    Floats4 exponents{};
    const auto moveGain = [&](const SStep &step) {
        const int allFrames = (1 << step.count) - 1;
        const int openFrames = laneBits(areOpen) & allFrames;
        exponents = splat(moving.exponent());
        if (moving.rests(openFrames, allFrames))
            return;
        for (int i = 0; i < step.count; ++i) {
            moving.move((openFrames >> i & 1) != 0);
            exponents[i] = moving.exponent();
        }
    };

    const auto applyGain = [&](const SStep &step) {
        const auto gains = __builtin_convertvector(gainsFromExponents<Processor>(exponents),
                                                   typename TFour<Sample>::Values);
        step.store(outL, TFour<Sample>{step.load(inL).values * gains});
        step.store(outR, TFour<Sample>{step.load(inR).values * gains});
    };

    const auto refresh = [&] {
        moving.attackFactor = attackFactor;
        moving.releaseFactor = releaseFactor;
        threshold = thresholdLinear;
    };
    runStaged(frames, refresh, followPeaks, detect, moveGain, applyGain);

    const SStep last = SStep::last(frames);
    peak = last.lastOf(peaks);
    open = last.lastOf(areOpen) != 0;
    gain = {moving.decibels(), expSingle(moving.exponent())};
}

void CDSPGate::processReplacing(float **in, float **out, int frames) {
    run(in, out, frames);
}

void CDSPGate::processDoubleReplacing(double **in, double **out, int frames) {
    run(in, out, frames);
}
