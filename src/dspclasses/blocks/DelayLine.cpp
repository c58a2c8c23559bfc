#include "dspclasses/blocks/DelayLine.h"

#include "dspclasses/blocks/Assertion.h"
#include "dspclasses/blocks/SDelayRing.h"
#include "dspclasses/blocks/SweptRead.h"
#include "dspclasses/blocks/WholeCount.h"
#include "dspclasses/kernels/WideLoop.h"

// Kept: the text of the reports is fixed. This name, the expressions and the line numbers below
// belong to it and do not follow this file.
static constexpr const char *sourceName = "dspclasses/DelayLine";

static void assertNotNegative(float offset) {
    assertAlways(offset >= 0.0f, "offset >= 0.0f", sourceName, 74);
}

DelayLine::DelayLine(std::uint32_t size) : buffer(size) {}

void DelayLine::resize(std::uint32_t size) {
    if (buffer.grow(size))
        writeIndex = 0;
}

std::uint32_t DelayLine::getCapacity() const {
    return buffer.getNewest().capacity;
}

SDelayRing DelayLine::ring() const {
    const CDelayBuffer::SMemory &memory = buffer.getNewest();
    return {memory.samples(), memory.capacity - 1, writeIndex};
}

void DelayLine::write(float sample) {
    write(&sample, 1);
}

float DelayLine::read(float offset) const {
    assertNotNegative(offset);
    return readSwept(ring(), 0, offset);
}

void DelayLine::copyNewest(float *samples, int count) const {
    ring().copyNewest(samples, count);
}

void DelayLine::setConstantOffset(float offset) {
    assertAlways(offset >= 0.0f, "newconstantoffset >= 0.0f", sourceName, 174);
    constantOffset = wholeCount(offset);
    if (offset + 1.0f > static_cast<float>(getCapacity()))
        resize(constantOffset + 1);
}

float DelayLine::readConstant() const {
    float sample;
    getConstantRun().read(&sample, 1);
    return sample;
}

void DelayLine::clear() {
    ring().clear();
}

// Runs of frames

void DelayLine::write(const float *samples, int count) {
    writeIndex = ring().write(samples, count);
}

void DelayLine::SRun::read(float *samples, int count) const {
    runWide([count, to = samples, from = newer, share = fraction] {
        for (int i = 0; i < count; ++i)
            to[i] = (from[i - 1] - from[i]) * share + from[i];
    });
}

DelayLine::SRun DelayLine::runAt(std::uint32_t distance, float fraction) const {
    const SDelayRing now = ring();
    const std::uint32_t place = now.placeOf(distance);
    return {now.samples + place, fraction, now.stretchFrom(place, now.getLongestRun(distance))};
}

DelayLine::SRun DelayLine::getRun(float offset) const {
    assertNotNegative(offset);
    const std::uint32_t distance = wholeCount(offset);
    return runAt(distance, offset - static_cast<float>(distance));
}

DelayLine::SRun DelayLine::getConstantRun() const {
    return runAt(constantOffset, constantFraction);
}

bool DelayLine::canReadRun(const float *offsets, int count) const {
    return canReadRunSwept(ring(), offsets, count);
}

void DelayLine::readRun(const float *offsets, float *samples, int count) const {
    readRunSwept(ring(), offsets, samples, count);
}
