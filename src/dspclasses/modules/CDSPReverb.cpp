#include "dspclasses/modules/CDSPReverb.h"

#include "dspclasses/blocks/WholeCount.h"
#include "dspclasses/kernels/Lanes.h"
#include "dspclasses/kernels/WideLoop.h"
#include "dspclasses/modules/ReverbDecay.h"
#include "dspclasses/modules/ReverbFilters.h"
#include "dspclasses/modules/ReverbGroup.h"

#include <algorithm>
#include <cstdint>
#include <span>

static constexpr int lines = reverbLines;

CDSPReverb::CDSPReverb()
    : tailDelays{
          DelayLine(reverbLineCapacity(sampleRate)), DelayLine(reverbLineCapacity(sampleRate)),
          DelayLine(reverbLineCapacity(sampleRate)), DelayLine(reverbLineCapacity(sampleRate))} {
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
        tapGains[k] = decayAfter(tapOffsets[k], decay);
    }
    applyDecayToTails();
}

void CDSPReverb::setReverbTime(float seconds) {
    if (seconds == reverbTime)
        return;
    reverbTime = seconds;
    decay = decayPerSample(seconds, sampleRate);
    // Kept: the tap gains do not follow. The next change of room applies the new decay to them.
    applyDecayToTails();
}

void CDSPReverb::applyDecayToTails() {
    for (int k = 0; k < lines; ++k)
        tailGains[k] = -decayAfter(tailLengths[k], decay);
}

void CDSPReverb::setSpread(float value) {
    if (value == spread)
        return;
    spread = value;
    const SDiffuserLengths lengths = diffuserLengths(value, tailLengths[3]);
    // Kept: like the lengths, the coefficients follow no formula.
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

CDSPReverb::LineEnds CDSPReverb::endsOfLines() const {
    LineEnds ends;
    for (int k = 0; k < lines; ++k)
        ends[k] = tailDelays[k].getRun(tailLengths[k]);
    return ends;
}

/// @return how many frames may run before one needs what another feeds to a line. Sixteen or a
///         multiple where possible, which leaves the wide loops no remainder.
static int framesAhead(std::span<const DelayLine::SRun> ends) {
    int frames = SReverbGroup::longest;
    for (const DelayLine::SRun &end : ends)
        frames = std::min(frames, end.frames);
    return frames < 16 ? frames : frames & ~15;
}

/// The two recursions from frame to frame. They share a loop, so that the processor can work on one
/// while the other waits for its last result.
void CDSPReverb::filterInputAndWalls(const float *left, const float *right, const LineEnds &ends,
                                     SReverbGroup &group, int frames) {
    CInputTicker input(inputFilter);
    CWallTicker walls(ends, tailGains, tailDampers);
    for (int i = 0; i < frames; ++i) {
        group.left[i] = input.tick(left[i]);
        group.right[i] = input.tick(right[i]);
        float damped[lines];
        storeFour(damped, walls.tick(i));
        for (int k = 0; k < lines; ++k)
            group.tail[k][i] = damped[k];
    }
    input.storeState(inputFilter);
    walls.storeState(tailDampers);
}

void CDSPReverb::diffuseInput(SReverbGroup &group, int frames) {
    diffuserLeft[0].run(group.left, frames);
    diffuserRight[0].run(group.right, frames);
}

/// Writes the mean of both channels to the early line and reads its taps. The line has four
/// samples. These and the group itself contain every sample that the taps read.
void CDSPReverb::runEarlyLine(SReverbGroup &group, int frames) {
    constexpr int held = 4;
    float mono[held + SReverbGroup::longest];
    earlyLine.copyNewest(mono, held);
    mixToMono(group.left, group.right, mono + held, frames);
    earlyLine.write(mono + frames, held);
    for (int k = 0; k < lines; ++k) {
        const float offset = tapOffsets[k];
        const std::uint32_t whole = wholeCount(offset);
        const float *newer = mono + (held - 1 - whole % held);
        const float *older = mono + (held - 1 - (whole + 1) % held);
        const float fraction = offset - static_cast<float>(whole);
        readTap(newer, older, fraction, tapGains[k], group.early[k], frames);
    }
}

void CDSPReverb::feedLines(const SReverbGroup &group, int frames) {
    SReverbGroup::Lines fed;
    scatter(group, fed, frames);
    for (int k = 0; k < lines; ++k)
        tailDelays[k].write(fed[k], frames);
}

void CDSPReverb::diffuseWet(SReverbGroup &group, int frames) {
    for (int k = 1; k < lines; ++k) {
        diffuserLeft[k].run(group.left, frames);
        diffuserRight[k].run(group.right, frames);
    }
}

namespace {

/// @return the samples in single precision, in which the whole network runs.
/// @param room  receives the converted samples if they are doubles.
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
        SReverbGroup group;
        const LineEnds ends = endsOfLines();
        const int count = std::min(framesAhead(ends), frames - done);
        const Sample *left = in[0] + done, *right = in[1] + done;
        filterInputAndWalls(asFloats(left, group.left, count), asFloats(right, group.right, count),
                            ends, group, count);
        diffuseInput(group, count);
        runEarlyLine(group, count);
        mixWet(group, earlyLevel, tailLevel, count);
        feedLines(group, count);
        diffuseWet(group, count);
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
