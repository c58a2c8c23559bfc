#include "dspclasses/modules/CDSPGate.h"

#include "dspclasses/blocks/DynamicsMath.h"
#include "dspclasses/blocks/Followers.h"
#include "dspclasses/kernels/Denormals.h"
#include "dspclasses/kernels/SingleMathLanes.h"
#include "dspclasses/kernels/StagedLoop.h"
#include "dspclasses/kernels/WideLoop.h"

#include <limits>

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

namespace {

constexpr float closedDb = -60.0f;  // below, the gain falls to 0
constexpr float openDb = -0.5f;     // above, it jumps to 1

/// Where the gain rests when it is 1. Kept: in double precision that is 0 dB, which no factor moves
/// away, so a gate that has opened fully never closes again until it is reset.
template <typename Sample>
constexpr float restDb = openDb;
template <>
constexpr float restDb<double> = 0.0f;

/// The gain on its way, as the exponent that makes it. At rest that gives exactly 1 or exactly 0.
struct SMovingGain {
    static constexpr float ofOne = 0.0f;
    static constexpr float ofZero = -std::numeric_limits<float>::infinity();

    float attackFactor, releaseFactor, restDb;
    float decibels;
    float exponent;

    bool isBelowOne() const { return exponent < -0x1p-25f; }        // else it rounds to 1
    bool isAboveZero() const { return exponent > -0x1.9fe36ap6f; }  // else it rounds to 0

    /// @return whether the frames of a step, one bit each, leave the gain where it is.
    bool rests(int openFrames, int allFrames) const {
        if (openFrames == allFrames)
            return !isBelowOne();
        return openFrames == 0 && (!isAboveZero() || decibels == 0.0f);
    }

    /// Moves on by one frame.
    void move(bool isOpen) {
        if (isOpen && isBelowOne()) {
            decibels = attackFactor * decibels;
            exponent = decibels * exponentPerDecibel;
            if (decibels > openDb) {
                decibels = restDb;
                exponent = ofOne;
            }
        } else if (!isOpen && isAboveZero()) {
            decibels = releaseFactor * decibels;
            exponent = decibels * exponentPerDecibel;
            if (decibels < closedDb) {
                decibels = closedDb;
                exponent = ofZero;
            }
        }
    }
};

[[gnu::always_inline]] inline Floats4 gainsOf(const Floats4 &exponents) {
    const Mask4 areOne = exponents == SMovingGain::ofOne;
    if (areAllSet(areOne | (exponents == SMovingGain::ofZero)))
        return areOne ? splat(1.0f) : splat(0.0f);
    return expSingle(SFloats4{exponents}).values;
}

/// Silence ends in a denormal that rounding keeps from falling further. It must stay: while the
/// threshold is still 0 it holds the gate open. But arithmetic on it is slow on some processors.
template <typename Sample>
[[gnu::always_inline]] inline bool standsStill(float peak, const TFour<Sample> &levels) {
    const auto &a = levels.values;
    return isDenormalOrZero(peak) && a[0] + a[1] + a[2] + a[3] == 0 &&
           peakFollower.next(peak, Sample{0}) == peak;
}

}  // namespace

template <typename Sample>
void CDSPGate::run(const Sample *const *in, Sample *const *out, int frames) {
    if (resetRequest.take()) {
        gainDb = closedDb;
        peak = 0.0f;
        gain = 0.0f;
    }
    if (frames > 0)
        runWide([=, this] { runSteps(in[0], in[1], out[0], out[1], frames); });
}

template <typename Sample>
void CDSPGate::runSteps(const Sample *inL, const Sample *inR, Sample *outL, Sample *outR,
                        int frames) {
    Floats4 peaks{};
    float lastPeak = peak;
    const auto followPeaks = [&](const SStep &step) {
        const TFour<Sample> levels = larger(magnitude(step.load(inL)), magnitude(step.load(inR)));
        peaks = standsStill(lastPeak, levels) ? splat(lastPeak)
                                              : followFour(peakFollower, lastPeak, levels);
    };

    float threshold = 0.0f;
    Mask4 isOpen{};
    const auto detect = [&](const SStep &) { isOpen = peaks - threshold > 0.0f; };

    const float startExponent = gain == 0.0f   ? SMovingGain::ofZero
                                : gain == 1.0f ? SMovingGain::ofOne
                                               : gainDb * exponentPerDecibel;
    SMovingGain moving{0.0f, 0.0f, restDb<Sample>, gainDb, startExponent};
    Floats4 exponents{};
    const auto moveGain = [&](const SStep &step) {
        const int allFrames = (1 << step.count) - 1;
        const int openFrames = laneBits(isOpen) & allFrames;
        exponents = splat(moving.exponent);
        if (moving.rests(openFrames, allFrames))
            return;
        for (int i = 0; i < step.count; ++i) {
            moving.move((openFrames >> i & 1) != 0);
            exponents[i] = moving.exponent;
        }
    };

    const auto applyGain = [&](const SStep &step) {
        const auto gains =
            __builtin_convertvector(gainsOf(exponents), typename TFour<Sample>::Values);
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
    open = last.lastOf(isOpen) != 0;
    gainDb = moving.decibels;
    gain = expSingle(moving.exponent);
}

void CDSPGate::processReplacing(float **in, float **out, int frames) {
    run(in, out, frames);
}

void CDSPGate::processDoubleReplacing(double **in, double **out, int frames) {
    run(in, out, frames);
}
