#include "dspclasses/modules/CDSPComp.h"

#include "dspclasses/blocks/DynamicsMath.h"
#include "dspclasses/blocks/TDetector.h"
#include "dspclasses/blocks/TDetectorPair.h"
#include "dspclasses/kernels/WideLoop.h"

#include <array>
#include <type_traits>

void CDSPComp::setParameter(int index, float value) {
    if (index == kThreshold && thresholdDb.storeIfNew(value)) {
        thresholdLinear = linearFromDecibels(value);
    } else if (index == kAttack && attackMs.storeIfNew(value)) {
        attackCoef = smoothingCoefficient(value, sampleRate);
    } else if (index == kRelease && releaseMs.storeIfNew(value)) {
        releaseCoef = smoothingCoefficient(value, sampleRate);
    } else if (index == kRatio && ratio.storeIfNew(value)) {
        slope = 1.0f / value - 1.0f;
    } else if (index == kMakeUp && makeUpDb.storeIfNew(value)) {
        makeUpLinear = linearFromDecibels(value);
    } else if (index == kStereoMode) {
        linked = value >= 0.5f;
        reset();
    }
}

float CDSPComp::getParameter(int index) {
    switch (index) {
    case kThreshold:
        return thresholdDb;
    case kAttack:
        return attackMs;
    case kRelease:
        return releaseMs;
    case kRatio:
        return ratio;
    case kMakeUp:
        return makeUpDb;
    case kStereoMode:
        return linked ? 1.0f : 0.0f;
    default:
        return 0.0f;
    }
}

void CDSPComp::reset() {
    resetRequest.ask();
}

void CDSPComp::clear() {
    left = right = {};
    leftGain = {};
}

namespace {

/// In single precision denormals become 0.0, in the input as well.
[[gnu::always_inline]] inline TFour<float> read(const SStep &step, float *in) {
    const TFour<float> samples = flushDenormal(step.load(in));
    step.store(in, samples);
    return samples;
}
[[gnu::always_inline]] inline TFour<double> read(const SStep &step, const double *in) {
    return step.load(in);
}

template <typename Sample>
[[gnu::always_inline]] inline void apply(const SStep &step, const Floats4 &gains, const Sample *in,
                                         Sample *out) {
    const auto factors = __builtin_convertvector(gains, typename TFour<Sample>::Values);
    step.store(out, TFour<Sample>{step.load(in).values * factors});
}

/// In double precision hardly any exp and log is computed, and compiled for fused multiply-add the
/// loop takes a fifth longer.
template <typename Sample, typename Processor>
using MathOf = std::conditional_t<std::is_same_v<Sample, double>, SNarrowLanes, Processor>;

// Kept: the gain of the right channel does not follow its own detector. That detector only chooses
// between the last gain of the left channel, held for the whole block, and the make-up.

/// For the right channel of a block whose left channel has already run.
class CHeldGain {
public:
    explicit CHeldGain(float gain) : m_gain(splat(gain)) {}

    void start(const SGainLaw & /*law*/, const SDetected &detected) {
        m_areActive = detected.areActive;
    }
    Floats4 finish(const SGainLaw &law) const {
        return m_areActive ? m_gain : splat(law.offsetLinear);
    }

private:
    Floats4 m_gain;
    Mask4 m_areActive{};
};

/// Marks the frames whose gain is the held one, which is known only after the block. No gain is
/// negative.
constexpr float gainToHold = -1.0f;

/// @param out  the gains of the frames, some of them gainToHold; replaced by the output.
void applyHeldGain(const float *in, float *out, int frames, float gain) {
    for (int i = 0; i < frames; ++i)
        out[i] = in[i] * (out[i] == gainToHold ? gain : out[i]);
}

}  // namespace

SDetectorSettings CDSPComp::settings() const {
    return {
        thresholdDb, thresholdLinear, {attackCoef, releaseCoef}, {slope, makeUpDb, makeUpLinear}};
}

template <typename Sample>
void CDSPComp::run(Sample *const *in, Sample *const *out, int frames) {
    // Setting the mode also requests a reset. The request is taken before the mode is read, so the
    // old mode's state is cleared in this block or, at the latest, in the next.
    if (resetRequest.take())
        clear();
    if (frames <= 0)
        return;
    Sample *inL = in[0], *inR = in[1], *outL = out[0], *outR = out[1];
    if (linked) {
        runWide([=, this](auto processor) {
            runLinked<decltype(processor)>(inL, inR, outL, outR, frames);
        });
    } else {
        runWide([=, this](auto processor) {
            runSeparate<decltype(processor)>(inL, inR, outL, outR, frames);
        });
    }
}

template <typename Processor, typename Sample>
void CDSPComp::runLinked(Sample *inL, Sample *inR, Sample *outL, Sample *outR, int frames) {
    const auto levels = [=](const SStep &step) {
        return larger(magnitude(read(step, inL)), magnitude(read(step, inR)));
    };
    detectLeft<Processor, Sample>(frames, levels, [=](const SStep &step, const Floats4 &gains) {
        apply(step, gains, inL, outL);
        apply(step, gains, inR, outR);
    });
}

/// Both channels in one loop.
template <typename Processor>
void CDSPComp::runSeparate(float *inL, float *inR, float *outL, float *outR, int frames) {
    const auto levels = [=](const SStep &step) {
        return std::array{magnitude(read(step, inL)), magnitude(read(step, inR))};
    };
    const auto applyGains = [=](const SStep &step, const SGainLaw &law, const Floats4 &leftGains,
                                const Mask4 &isRightActive) {
        apply(step, leftGains, inL, outL);
        step.store(outR, SFloats4{isRightActive ? splat(gainToHold) : splat(law.offsetLinear)});
    };
    std::array<SDetectorState, 2> states{left, right};
    const bool isActive = TDetectorPair<Processor>::run(
        states, frames, [this] { return settings(); }, levels, applyGains);
    left = states[0];
    right = states[1];
    leftGain = settings().law.gain(isActive, left.smoothedExcessDb);
    applyHeldGain(inR, outR, frames, leftGain.linear);
}

/// One channel after the other: how the right one is flushed depends on the result of the left.
template <typename Processor>
void CDSPComp::runSeparate(double *inL, double *inR, double *outL, double *outR, int frames) {
    const auto levels = [=](const SStep &step) { return magnitude(read(step, inL)); };
    detectLeft<Processor, double>(frames, levels, [=](const SStep &step, const Floats4 &gains) {
        apply(step, gains, inL, outL);
    });
    detectRight<Processor>(inR, outR, frames);
}

template <typename Processor, typename Sample, typename Levels, typename Apply>
void CDSPComp::detectLeft(int frames, Levels levels, Apply applyGains) {
    const SFlushedFields flushed{.peak = isFlushedByNeighbour<Sample>(right.peak),
                                 .smoothedExcess =
                                     isFlushedByNeighbour<Sample>(right.smoothedExcessDb)};
    using Math = MathOf<Sample, Processor>;
    const bool isActive = TDetector<Sample, Math>::run(
        left, flushed, frames, [this] { return settings(); }, levels, CGainsByLaw<Math>(),
        applyGains);
    leftGain = settings().law.gain(isActive, left.smoothedExcessDb);
}

template <typename Processor>
void CDSPComp::detectRight(const double *in, double *out, int frames) {
    const SFlushedFields flushed{.peak = isFlushedByNeighbour<double>(leftGain.decibels),
                                 .smoothedExcess = isFlushedByNeighbour<double>(thresholdDb)};
    const auto levels = [=](const SStep &step) { return magnitude(read(step, in)); };
    TDetector<double, MathOf<double, Processor>>::run(
        right, flushed, frames, [this] { return settings(); }, levels, CHeldGain(leftGain.linear),
        [=](const SStep &step, const Floats4 &gains) { apply(step, gains, in, out); });
}

void CDSPComp::processReplacing(float **in, float **out, int frames) {
    run(in, out, frames);
}

void CDSPComp::processDoubleReplacing(double **in, double **out, int frames) {
    run(in, out, frames);
}
