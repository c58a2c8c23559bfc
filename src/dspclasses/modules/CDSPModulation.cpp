#include "dspclasses/modules/CDSPModulation.h"

#include "dspclasses/blocks/WholeCount.h"
#include "dspclasses/kernels/WideLoop.h"
#include "dspclasses/modules/SweepOscillator.h"
#include "values/Truncation.h"

#include <algorithm>
#include <cmath>

static constexpr int longestRun = 64;

CDSPModulation::CDSPModulation() {
    leftLine.resize(4096);
    rightLine.resize(4096);
}

void CDSPModulation::setParameter(int index, float value) {
    switch (index) {
    case kType:
        return setType(value);
    case kWidth:
        return setWidth(value);
    case kDepth:
        return setDepth(value);
    case kSpeed:
        return setSpeed(value);
    case kSpread:
        return setSpread(value);
    case kFeedback:
        return setFeedback(value);
    case kMix:
        return setMix(value);
    default:
        return;
    }
}

float CDSPModulation::getParameter(int index) {
    switch (index) {
    case kType:
        return static_cast<float>(type.load()) * 0.5f;
    case kWidth:
        return widthMs;
    case kDepth:
        return depth;
    case kSpeed:
        return speedHz;
    case kSpread:
        return spread;
    case kFeedback:
        return feedback;
    case kMix:
        return mix;
    default:
        return 0.0f;
    }
}

/// Kept: the type changes at 0.4 and at 0.7, although the types read as 0, 0.5 and 1.
static CDSPModulation::EType typeAt(float value) {
    const std::int32_t tenths = truncated(value * 10.0f);
    if (tenths < 0 || tenths > 6)
        return CDSPModulation::kPhaser;
    return tenths < 4 ? CDSPModulation::kVibrato : CDSPModulation::kAdt;
}

void CDSPModulation::setType(float value) {
    const EType newType = typeAt(value);
    if (newType == type)
        return;
    type = newType;
    delayedGain = 1.0f;
    directGain = newType == kPhaser ? -feedback : 0.0f;
    feedbackGain = newType == kVibrato ? 0.0f : feedback.load();
}

void CDSPModulation::setWidth(float ms) {
    if (ms == widthMs)
        return;
    widthMs = ms;
    const std::uint32_t samples = wholeCount(ms * 0.001f * sampleRate);
    widthSamples = samples;
    if (samples > 4096) {
        leftLine.resize(samples);
        rightLine.resize(samples);
    }
    applyDepth();
}

void CDSPModulation::setDepth(float share) {
    if (share == depth)
        return;
    depth = share;
    applyDepth();
}

void CDSPModulation::applyDepth() {
    depthSamples = wholeCount(static_cast<float>(widthSamples.load()) * depth);
    baseSamples = widthSamples - depthSamples;
}

void CDSPModulation::setSpeed(float hz) {
    if (hz == speedHz)
        return;
    speedHz = hz;
    lfoIncrement = sweepIncrement(hz, invSampleRate);
}

void CDSPModulation::setSpread(float value) {
    if (value == spread)
        return;
    // Kept: shifts the right oscillator from its present phase, whatever that is.
    const float change = value - spread;
    float phase = phaseRight;
    while (!phaseRight.compare_exchange_weak(phase, shiftedSweepPhase(phase, change)))
        ;
    spread = value;
}

void CDSPModulation::setFeedback(float value) {
    if (value == feedback)
        return;
    feedback = value;
    if (type == kVibrato)
        return;
    if (type == kPhaser)
        directGain = -value;
    feedbackGain = value;
}

void CDSPModulation::setMix(float value) {
    if (value == mix)
        return;
    mix = value;
    dryGain = std::sqrt(0.5f - (value - 0.5f));
    wetGain = std::sqrt(value - 0.5f + 0.5f);
}

void CDSPModulation::reset() {
    resetRequest.ask();
}

/// The values of the setters, read once per group of frames.
struct CDSPModulation::SSettings {
    float direct, delayed, feedback, dry, wet;
    float increment;
    std::uint32_t depth, base;  // samples
};

/// For each frame, first the phase of the oscillator, later the offset to read at.
struct CDSPModulation::SSweep {
    float left[longestRun];
    float right[longestRun];
};

/// The only recursion from frame to frame, for both channels in one loop.
void CDSPModulation::advanceOscillators(SSweep &sweep, int frames, float increment) {
    float left, right, rightBefore = phaseRight;
    do {
        left = phaseLeft;
        right = rightBefore;
        for (int i = 0; i < frames; ++i) {
            sweep.left[i] = left = nextSweepPhase(left, increment);
            sweep.right[i] = right = nextSweepPhase(right, increment);
        }
        // Repeats the group if a change of spread has shifted the phase in the meantime.
    } while (!phaseRight.compare_exchange_strong(rightBefore, right));
    phaseLeft = left;
}

/// Turns phases into offsets, in the precision of the run.
/// @param depth, base  samples.
template <typename Sample>
static void sweepOffsets(float *sweep, int frames, Sample depth, Sample base) {
    runWide([=] {
        for (int i = 0; i < frames; ++i) {
            const float wave = sweepWave(sweep[i]);
            sweep[i] = static_cast<float>(wave * depth + base);
        }
    });
}

template <typename Sample>
void CDSPModulation::mixChannel(const Sample *x, const float *delayed, Sample *out, float *toLine,
                                int frames, const SSettings &settings) {
    runWide([=] {
        for (int i = 0; i < frames; ++i) {
            const float d = delayed[i] * settings.delayed;
            const Sample y = d + x[i] * settings.direct;
            out[i] = settings.dry * x[i] + settings.wet * y;
            toLine[i] = static_cast<float>(y * settings.feedback + x[i]);
        }
    });
}

template <typename Sample>
void CDSPModulation::runChannel(const Sample *in, Sample *out, int frames,
                                const SSettings &settings, float *sweep, DelayLine &line) {
    sweepOffsets(sweep, frames, static_cast<Sample>(settings.depth),
                 static_cast<Sample>(settings.base));
    float delayed[longestRun], toLine[longestRun];
    if (line.canReadRun(sweep, frames)) {
        line.readRun(sweep, delayed, frames);
        mixChannel(in, delayed, out, toLine, frames, settings);
        line.write(toLine, frames);
        return;
    }
    // Frame by frame, since a frame may read what its own group writes.
    for (int i = 0; i < frames; ++i) {
        delayed[0] = line.read(sweep[i]);
        mixChannel(in + i, delayed, out + i, toLine, 1, settings);
        line.write(toLine, 1);
    }
}

template <typename Sample>
void CDSPModulation::run(const Sample *const *in, Sample *const *out, int frames) {
    for (int first = 0; first < frames; first += longestRun) {
        if (resetRequest.take()) {
            leftLine.clear();
            rightLine.clear();
        }
        const SSettings settings{directGain, delayedGain,  feedbackGain, dryGain,
                                 wetGain,    lfoIncrement, depthSamples, baseSamples};
        const int count = std::min(longestRun, frames - first);
        SSweep sweep;
        advanceOscillators(sweep, count, settings.increment);
        runChannel(in[0] + first, out[0] + first, count, settings, sweep.left, leftLine);
        runChannel(in[1] + first, out[1] + first, count, settings, sweep.right, rightLine);
    }
}

void CDSPModulation::processReplacing(float **in, float **out, int frames) {
    run<float>(in, out, frames);
}

void CDSPModulation::processDoubleReplacing(double **in, double **out, int frames) {
    run<double>(in, out, frames);
}
