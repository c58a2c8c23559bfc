#include "dspclasses/modules/CDSPReverb.h"

#include "dspclasses/blocks/WholeCount.h"
#include "dspclasses/kernels/Denormals.h"
#include "dspclasses/kernels/Lanes.h"
#include "dspclasses/kernels/SingleMath.h"
#include "dspclasses/kernels/WideLoop.h"
#include "dspclasses/modules/ReverbGeometry.h"
#include "values/Truncation.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

/// A room of 400 m at 340 m/s, and a margin.
static std::uint32_t tailCapacity(float sampleRate) {
    return static_cast<std::uint32_t>(1000 - truncated(sampleRate * -400.0f / 340.0f));
}

CDSPReverb::CDSPReverb()
    : tailDelays{DelayLine(tailCapacity(sampleRate)), DelayLine(tailCapacity(sampleRate)),
                 DelayLine(tailCapacity(sampleRate)), DelayLine(tailCapacity(sampleRate))} {
    setInputDamping(0.75f);
    setWallDamping(0.4f);
    setReverbTime(2.0f);
    setRoomSize(100.0f);
    setSpread(0.3f);
}

void CDSPReverb::setParameter(int index, float value) {
    switch (index) {
    case kRoomSize:
        return setRoomSize(value);
    case kTime:
        return setReverbTime(value);
    case kInputDamping:
        return setInputDamping(value);
    case kWallDamping:
        return setWallDamping(value);
    case kSpread:
        return setSpread(value);
    case kDryLevel:
        dryLevel = value;
        return;
    case kEarlyLevel:
        earlyLevel = value;
        return;
    case kTailLevel:
        tailLevel = value;
        return;
    default:
        return;
    }
}

float CDSPReverb::getParameter(int index) {
    switch (index) {
    case kRoomSize:
        return roomSize;
    case kTime:
        return reverbTime;
    case kInputDamping:
        return inputDamping;
    case kWallDamping:
        return wallDamping;
    case kSpread:
        return spread;
    case kDryLevel:
        return dryLevel;
    case kEarlyLevel:
        return earlyLevel;
    case kTailLevel:
        return tailLevel;
    default:
        return 0.0f;
    }
}

void CDSPReverb::setInputDamping(float value) {
    if (value == inputDamping)
        return;
    inputDamping = value;
    inputFilter.setPole(1.0f - value);
}

void CDSPReverb::setWallDamping(float value) {
    if (value == wallDamping)
        return;
    wallDamping = value;
    for (CDSPOnePole &damper : tailDampers)
        damper.setPole(value);
}

void CDSPReverb::setRoomSize(float metres) {
    if (metres == roomSize)
        return;
    roomSize = metres <= 1.0f ? 1.0f : metres;
    const SReverbRoom room = reverbRoom(roomSize, sampleRate);
    for (int k = 0; k < lines; ++k) {
        tailLengths[k] = room.tailLengths[k];
        tapOffsets[k] = room.tapOffsets[k];
        tapGains[k] = decayOver(tapOffsets[k]);
    }
    applyDecayToTails();
}

void CDSPReverb::setReverbTime(float seconds) {
    if (seconds == reverbTime)
        return;
    reverbTime = seconds;
    decayBase = std::pow(0.001, 1.0 / double{seconds * sampleRate});
    applyDecayToTails();  // kept: the taps go on with the decay of the last change of room
}

void CDSPReverb::applyDecayToTails() {
    for (int k = 0; k < lines; ++k)
        tailGains[k] = -decayOver(tailLengths[k]);
}

/// @return the gain after so many samples.
float CDSPReverb::decayOver(float samples) const {
    return powSingle(static_cast<float>(decayBase), samples);
}

void CDSPReverb::setSpread(float value) {
    if (value == spread)
        return;
    spread = value;
    const SDiffuserLengths lengths = diffuserLengths(value, tailLengths[3]);
    constexpr float coefficients[lines] = {0.75f, 0.75f, 0.625f, 0.625f};
    for (int k = 0; k < lines; ++k) {
        diffuserLeft[k].setDelayLength(lengths.left[k]);
        diffuserLeft[k].setCoefficient(coefficients[k]);
        diffuserRight[k].setDelayLength(lengths.right[k]);
        diffuserRight[k].setCoefficient(coefficients[k]);
    }
}

void CDSPReverb::reset() {
    resetRequest.ask();
}

void CDSPReverb::clear() {
    inputFilter.clear();
    earlyLine.clear();
    for (int k = 0; k < lines; ++k) {
        tailDampers[k].clear();
        tailDelays[k].clear();
        diffuserLeft[k].clear();
        diffuserRight[k].clear();
    }
}

/// The signals of a group of frames between the stages.
struct CDSPReverb::SGroup {
    float left[groupFrames];  // filtered, then diffused; at the end the wet signal
    float right[groupFrames];
    float early[lines][groupFrames];
    float tail[lines][groupFrames];
};

int CDSPReverb::framesAhead() const {
    int frames = groupFrames;
    for (int k = 0; k < lines; ++k)
        frames = std::min(frames, tailDelays[k].getLongestRun(tailLengths[k]));
    return frames;
}

/// The two recursions from frame to frame, side by side: the input filter, which takes the left
/// sample and then the right one, and the dampers of the four lines in four lanes.
void CDSPReverb::filterInputAndWalls(const float *left, const float *right, SGroup &group,
                                     int frames) {
    for (int k = 0; k < lines; ++k)
        tailDelays[k].read(tailLengths[k], group.tail[k], frames);
    const float inputGain = inputFilter.getGain(), inputPole = inputFilter.getPole();
    float input = inputFilter.getState();
    const auto tickInput = [&](float sample) {
        input = inputGain * sample + inputPole * input;
        // A branch and not a choice of values: the next tick need not wait for it.
        if (isDenormalOrZero(input))
            input = 0.0f;
        return input;
    };
    const auto four = [](auto of) { return SFloats4{_mm_setr_ps(of(0), of(1), of(2), of(3))}; };
    const SFloats4 gains = four([&](int k) { return tailGains[k].load(); });
    const SFloats4 wallGains = four([&](int k) { return tailDampers[k].getGain(); });
    const SFloats4 wallPoles = four([&](int k) { return tailDampers[k].getPole(); });
    SFloats4 walls = four([&](int k) { return tailDampers[k].getState(); });
    for (int i = 0; i < frames; ++i) {
        group.left[i] = tickInput(left[i]);
        group.right[i] = tickInput(right[i]);
        const SFloats4 returning = four([&](int k) { return group.tail[k][i]; }) * gains;
        walls = flushDenormal(wallGains * returning + wallPoles * walls);
        float damped[lines];
        storeFour(damped, walls);
        for (int k = 0; k < lines; ++k)
            group.tail[k][i] = damped[k];
    }
    inputFilter.setState(input);
    float states[lines];
    storeFour(states, walls);
    for (int k = 0; k < lines; ++k)
        tailDampers[k].setState(states[k]);
}

static void addHalves(const float *left, const float *right, float *sums, int frames) {
    runWide([=] {
        for (int i = 0; i < frames; ++i)
            sums[i] = flushDenormal((left[i] + right[i]) * 0.5f);
    });
}

static void readTap(const float *newer, const float *older, float fraction, float gain,
                    float *samples, int frames) {
    runWide([=] {
        for (int i = 0; i < frames; ++i)
            samples[i] = ((older[i] - newer[i]) * fraction + newer[i]) * gain;
    });
}

/// Diffuses both channels, adds them, and reads the taps of the early line, which holds no more
/// than the last four sums.
void CDSPReverb::feedEarlyLine(SGroup &group, int frames) {
    constexpr int held = 4;
    diffuserLeft[0].run(group.left, frames);
    diffuserRight[0].run(group.right, frames);
    float sums[held + groupFrames];
    earlyLine.copyNewest(sums, held);
    addHalves(group.left, group.right, sums + held, frames);
    earlyLine.write(sums + frames, held);
    for (int k = 0; k < lines; ++k) {
        const std::uint32_t offset = wholeCount(tapOffsets[k]);
        const float *newer = sums + (held - 1 - offset % held);
        const float *older = sums + (held - 1 - (offset + 1) % held);
        const float fraction = tapOffsets[k] - static_cast<float>(offset);
        readTap(newer, older, fraction, tapGains[k], group.early[k], frames);
    }
}

/// Makes the wet signal and feeds the four lines.
void CDSPReverb::closeLoop(SGroup &group, int frames) {
    mixWet(group, frames, earlyLevel, tailLevel);
    float returns[lines][groupFrames];
    scatter(group, returns, frames);
    for (int k = 0; k < lines; ++k)
        tailDelays[k].write(returns[k], frames);
}

void CDSPReverb::mixWet(SGroup &group, int frames, float earlyLevel, float tailLevel) {
    runWide([=, &group] {
        for (int i = 0; i < frames; ++i) {
            const auto line = [&](int k) {
                return earlyLevel * group.early[k][i] + tailLevel * group.tail[k][i];
            };
            group.left[i] = group.right[i] = line(0) - line(1) + line(2) - line(3);
        }
    });
}

/// The Hadamard matrix.
void CDSPReverb::scatter(const SGroup &group, float (*returns)[groupFrames], int frames) {
    runWide([=, &group] {
        for (int i = 0; i < frames; ++i) {
            const float a = group.tail[0][i], b = group.tail[1][i];
            const float c = group.tail[2][i], d = group.tail[3][i];
            returns[0][i] = (a + b - c - d) * 0.5f + group.early[0][i];
            returns[1][i] = (a - b - c + d) * 0.5f + group.early[1][i];
            returns[2][i] = (b - a - c + d) * 0.5f + group.early[2][i];
            returns[3][i] = (a + b + c + d) * 0.5f + group.early[3][i];
        }
    });
}

namespace {

/// The network runs in single precision.
const float *asFloats(const float *samples, float * /*room*/, int /*frames*/) {
    return samples;
}
const float *asFloats(const double *samples, float *room, int frames) {
    std::transform(samples, samples + frames, room,
                   [](double sample) { return static_cast<float>(sample); });
    return room;
}

template <typename Sample>
void addDry(const Sample *dry, const float *wet, Sample *out, float level, int frames) {
    runWide([=] {
        for (int i = 0; i < frames; ++i)
            out[i] = dry[i] * level + wet[i];
    });
}

}  // namespace

template <typename Sample>
void CDSPReverb::run(const Sample *const *in, Sample *const *out, int frames) {
    for (int done = 0; done < frames;) {
        if (resetRequest.take())
            clear();
        SGroup group;
        const int count = std::min(framesAhead(), frames - done);
        const Sample *left = in[0] + done, *right = in[1] + done;
        filterInputAndWalls(asFloats(left, group.left, count), asFloats(right, group.right, count),
                            group, count);
        feedEarlyLine(group, count);
        closeLoop(group, count);
        for (int k = 1; k < lines; ++k) {
            diffuserLeft[k].run(group.left, count);
            diffuserRight[k].run(group.right, count);
        }
        addDry(left, group.left, out[0] + done, dryLevel, count);
        addDry(right, group.right, out[1] + done, dryLevel, count);
        done += count;
    }
}

void CDSPReverb::processReplacing(float **in, float **out, int frames) {
    run<float>(in, out, frames);
}

void CDSPReverb::processDoubleReplacing(double **in, double **out, int frames) {
    run<double>(in, out, frames);
}
