#include "dspclasses/modules/CDSPDelay.h"

#include "dspclasses/blocks/WholeCount.h"
#include "dspclasses/kernels/WideLoop.h"
#include "values/Truncation.h"

#include <algorithm>
#include <cmath>

static constexpr int groupFrames = 256;

static float withoutDust(float level) {
    return std::fabs(level) < 1e-20f ? 0.0f : level;
}

CDSPDelay::CDSPDelay() {
    setDelay(1000);
}

void CDSPDelay::setParameter(int index, float value) {
    switch (index) {
    case kTime:
        return setDelay(wholeCount(value));
    case kSync:
        return setSync(truncated(value * 2.0f));
    case kFeedback:
        feedback = withoutDust(value);
        return;
    case kPingPong:
        pingPong = value >= 0.5f;
        return;
    case kDryLevel:
        dryLevel = withoutDust(value);
        return;
    case kWetLevel:
        wetLevel = withoutDust(value);
        return;
    case kTempo:
        return setTempo(value);
    case kBeatsPerBar:
        return setBeats(value);
    default:
        return;
    }
}

float CDSPDelay::getParameter(int index) {
    switch (index) {
    case kTime:
        return static_cast<float>(delayMs.load());
    case kSync:
        return static_cast<float>(syncMode.load()) * 0.5f;
    case kFeedback:
        return feedback;
    case kPingPong:
        return pingPong ? 1.0f : 0.0f;
    case kDryLevel:
        return dryLevel;
    case kWetLevel:
        return wetLevel;
    case kTempo:
        return tempo;
    case kBeatsPerBar:
        return static_cast<float>(beatsPerBar.load());
    default:
        return 0.0f;
    }
}

void CDSPDelay::setDelay(std::uint32_t ms) {
    if (ms == delayMs)
        return;
    delayMs = ms;
    delaySamples = static_cast<float>(ms) * 0.001f * sampleRate;
    if (delaySamples > static_cast<float>(lineCapacity.load())) {
        leftLine.resize(wholeCount(delaySamples));
        rightLine.resize(wholeCount(delaySamples));
        lineCapacity = leftLine.getCapacity();
    }
    leftLine.setConstantOffset(delaySamples);
    rightLine.setConstantOffset(delaySamples);
}

/// @param ms  a whole beat. A tempo of 0 makes it infinite, which counts as 0: the shortest delay.
void CDSPDelay::setBeat(float ms) {
    const std::uint32_t whole = wholeCount(ms);
    setDelay(syncMode == kHalfBeat ? whole >> 1 : whole);
}

static float wholeQuarters(std::int32_t beats) {
    const std::int32_t quarters = beats / 4;
    return static_cast<float>(quarters);
}

void CDSPDelay::setSync(std::int32_t mode) {
    if (mode == syncMode)
        return;
    if (syncMode == kFree)
        freeDelayMs = delayMs;
    syncMode = mode;
    if (mode == kFree)
        setDelay(freeDelayMs);
    else
        setBeat(60000.0f / tempo * wholeQuarters(beatsPerBar));
}

void CDSPDelay::setTempo(float bpm) {
    if (bpm == tempo)
        return;
    tempo = bpm;
    if (syncMode != kFree)
        setBeat(wholeQuarters(beatsPerBar) * (60000.0f / bpm));
}

void CDSPDelay::setBeats(float beats) {
    if (beats == static_cast<float>(beatsPerBar.load()))
        return;
    beatsPerBar = truncated(beats);
    // Kept: only here the quarter of the bar is not cut to a whole number.
    if (syncMode != kFree)
        setBeat(60000.0f / tempo * (beats * 0.25f));
}

void CDSPDelay::reset() {
    resetRequest.ask();
}

namespace {

struct SLevels {
    float dry, wet, feedback;
};

/// One channel of a run.
/// @param echo      what the channel's own line gives.
/// @param crossing  what comes round into that line: its own echo or that of the other channel.
/// @param fresh     what goes into the line.
void mix(const float *x, const float *echo, const float *crossing, float *out, float *fresh,
         int count, SLevels levels) {
    runWide([=] {
        for (int i = 0; i < count; ++i) {
            out[i] = levels.dry * x[i] + levels.wet * echo[i];
            fresh[i] = crossing[i] * levels.feedback + x[i];
        }
    });
}

/// Here too the lines and the products with their samples are single precision.
void mix(const double *x, const float *echo, const float *crossing, double *out, float *fresh,
         int count, SLevels levels) {
    runWide([=] {
        for (int i = 0; i < count; ++i) {
            out[i] = double{levels.dry} * x[i] + double{levels.wet * echo[i]};
            fresh[i] = static_cast<float>(double{crossing[i] * levels.feedback} + x[i]);
        }
    });
}

}  // namespace

template <typename Sample>
void CDSPDelay::run(const Sample *const *in, Sample *const *out, int frames) {
    for (int done = 0; done < frames;) {
        if (resetRequest.take()) {
            leftLine.clear();
            rightLine.clear();
        }
        const SLevels levels{dryLevel, wetLevel, feedback};
        const bool crossed = pingPong;
        const int count = std::min({frames - done, groupFrames, leftLine.getLongestConstantRun(),
                                    rightLine.getLongestConstantRun()});
        float left[groupFrames], right[groupFrames], fresh[groupFrames];
        leftLine.readConstant(left, count);
        rightLine.readConstant(right, count);
        mix(in[0] + done, left, crossed ? right : left, out[0] + done, fresh, count, levels);
        leftLine.write(fresh, count);
        mix(in[1] + done, right, crossed ? left : right, out[1] + done, fresh, count, levels);
        rightLine.write(fresh, count);
        done += count;
    }
}

void CDSPDelay::processReplacing(float **in, float **out, int frames) {
    run<float>(in, out, frames);
}

void CDSPDelay::processDoubleReplacing(double **in, double **out, int frames) {
    run<double>(in, out, frames);
}
