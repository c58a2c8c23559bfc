#include "dspclasses/modules/CDSPDelay.h"

#include "dspclasses/blocks/WholeCount.h"
#include "dspclasses/kernels/WideLoop.h"
#include "values/Truncation.h"

#include <algorithm>
#include <cmath>

static constexpr int longestRun = 256;

/// Kept: a level below -400 dB is stored as 0.
static float zeroIfInaudible(float level) {
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
        feedback = zeroIfInaudible(value);
        return;
    case kPingPong:
        pingPong = value >= 0.5f;
        return;
    case kDryLevel:
        dryLevel = zeroIfInaudible(value);
        return;
    case kWetLevel:
        wetLevel = zeroIfInaudible(value);
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

/// @param ms  a whole beat. Kept: a tempo of 0 makes it infinite, which counts as 0 ms.
void CDSPDelay::setBeat(float ms) {
    const std::uint32_t whole = wholeCount(ms);
    setDelay(syncMode == kHalfBeat ? whole >> 1 : whole);
}

/// @return a quarter of a bar, in beats. Kept: without its fraction, so 0 for a bar of three beats.
static float wholeQuarters(std::int32_t beatsPerBar) {
    const std::int32_t quarters = beatsPerBar / 4;
    return static_cast<float>(quarters);
}

/// @return ms.
static float beatTime(float bpm, float quarters) {
    return 60000.0f / bpm * quarters;
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
        setBeat(beatTime(tempo, wholeQuarters(beatsPerBar)));
}

void CDSPDelay::setTempo(float bpm) {
    if (bpm == tempo)
        return;
    tempo = bpm;
    if (syncMode != kFree)
        setBeat(beatTime(bpm, wholeQuarters(beatsPerBar)));
}

void CDSPDelay::setBeats(float beats) {
    if (beats == static_cast<float>(beatsPerBar.load()))
        return;
    beatsPerBar = truncated(beats);
    // Kept: only here the quarter keeps its fraction.
    if (syncMode != kFree)
        setBeat(beatTime(tempo, beats * 0.25f));
}

void CDSPDelay::reset() {
    resetRequest.ask();
}

namespace {

struct SLevels {
    float dry, wet, feedback;
};

/// Mixes one channel of a run.
/// @param echo    read from the channel's own line.
/// @param fedBack the echo that goes back into that line: its own, or in ping-pong mode that of
///                the other channel.
/// @param toLine  what is written to the line.
void mixEcho(const float *x, const float *echo, const float *fedBack, float *out, float *toLine,
             int count, SLevels levels) {
    runWide([=] {
        for (int i = 0; i < count; ++i) {
            out[i] = levels.dry * x[i] + levels.wet * echo[i];
            toLine[i] = fedBack[i] * levels.feedback + x[i];
        }
    });
}

/// In double precision too, the lines and the products with their samples are single precision.
void mixEcho(const double *x, const float *echo, const float *fedBack, double *out, float *toLine,
             int count, SLevels levels) {
    runWide([=] {
        for (int i = 0; i < count; ++i) {
            out[i] = double{levels.dry} * x[i] + double{levels.wet * echo[i]};
            toLine[i] = static_cast<float>(double{fedBack[i] * levels.feedback} + x[i]);
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
        const bool crossesOver = pingPong;
        const DelayLine::SRun leftRun = leftLine.getConstantRun(),
                              rightRun = rightLine.getConstantRun();
        const int count = std::min({frames - done, longestRun, leftRun.frames, rightRun.frames});
        float left[longestRun], right[longestRun], toLine[longestRun];
        leftRun.read(left, count);
        rightRun.read(right, count);
        mixEcho(in[0] + done, left, crossesOver ? right : left, out[0] + done, toLine, count,
                levels);
        leftLine.write(toLine, count);
        mixEcho(in[1] + done, right, crossesOver ? left : right, out[1] + done, toLine, count,
                levels);
        rightLine.write(toLine, count);
        done += count;
    }
}

void CDSPDelay::processReplacing(float **in, float **out, int frames) {
    run<float>(in, out, frames);
}

void CDSPDelay::processDoubleReplacing(double **in, double **out, int frames) {
    run<double>(in, out, frames);
}
