#include "dspclasses/blocks/DelayLine.h"

#include "dspclasses/blocks/Assertion.h"
#include "dspclasses/blocks/WholeCount.h"
#include "dspclasses/kernels/Denormals.h"
#include "dspclasses/kernels/Lanes.h"
#include "dspclasses/kernels/SingleMath.h"
#include "dspclasses/kernels/WideLoop.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <memory>
#include <utility>

static constexpr const char *sourceName = "dspclasses/DelayLine";

/// Never changes but for its samples, so that a run finds a mask that fits.
struct DelayLine::SBuffer {
    explicit SBuffer(std::uint32_t samples)
        : capacity(samples), memory(std::make_unique<float[]>(std::size_t{samples} + 1)) {}

    std::uint32_t capacity;  // samples, a power of two
    // memory[0] repeats the last sample, so that every one has its older neighbour beside it.
    std::unique_ptr<float[]> memory;
    SBuffer *older = nullptr;
};

/// The line as a run of frames finds it.
struct DelayLine::SRing {
    float *samples;
    std::uint32_t mask;
    std::uint32_t newest;

    int getLongestRun(std::uint32_t distance) const;
    void readRun(std::uint32_t distance, float fraction, float *to, int count) const;

    /// Reads at one frame of a run.
    float readOne(std::uint32_t frame, float offset) const {
        const std::uint32_t distance = wholeCount(offset);
        const float *newer = samples + ((newest + frame - distance) & mask);
        return (newer[-1] - newer[0]) * (offset - static_cast<float>(distance)) + newer[0];
    }

    /// Reads at four frames. Each pair of neighbours comes in one load, the older sample first.
    SFloats4 readFour(std::uint32_t frame, const float *offsets) const {
        const __m128 offset = _mm_loadu_ps(offsets);
        const __m128i distance = _mm_cvttps_epi32(offset);
        const __m128 fraction = _mm_sub_ps(offset, _mm_cvtepi32_ps(distance));
        const __m128i frames = _mm_add_epi32(_mm_set1_epi32(static_cast<int>(newest + frame)),
                                             _mm_setr_epi32(0, 1, 2, 3));
        alignas(16) std::uint32_t places[4];
        _mm_store_si128(
            reinterpret_cast<__m128i *>(places),
            _mm_and_si128(_mm_sub_epi32(frames, distance), _mm_set1_epi32(static_cast<int>(mask))));
        const auto neighbours = [this, &places](int first) {
            const auto at = [this, &places](int k) {
                return reinterpret_cast<const __m64 *>(samples + places[k] - 1);
            };
            return _mm_loadh_pi(_mm_loadl_pi(_mm_setzero_ps(), at(first)), at(first + 1));
        };
        const __m128 early = neighbours(0), late = neighbours(2);
        const SFloats4 older{_mm_shuffle_ps(early, late, _MM_SHUFFLE(2, 0, 2, 0))};
        const SFloats4 newer{_mm_shuffle_ps(early, late, _MM_SHUFFLE(3, 1, 3, 1))};
        return (older - newer) * SFloats4{fraction} + newer;
    }
};

static void assertNotNegative(float offset) {
    assertAlways(offset >= 0.0f, "offset >= 0.0f", sourceName, 74);
}

/// By logarithms in single precision. A size of more than half the range gives 0.
static std::uint32_t roundedUpToPowerOfTwo(std::uint32_t size) {
    if ((size & (size - 1)) == 0)
        return size;
    const double exponent = double{logSingle(static_cast<float>(size))} * 1.4426950408889634;
    return wholeCount(powSingle(2.0f, std::ceil(static_cast<float>(exponent))));
}

static std::uint32_t capacityFor(std::uint32_t size) {
    return roundedUpToPowerOfTwo(size == 0 ? 2 : size);
}

DelayLine::DelayLine(std::uint32_t size) : buffer(new SBuffer(capacityFor(size))) {}

DelayLine::~DelayLine() {
    for (const SBuffer *newest = buffer; newest != nullptr;)
        delete std::exchange(newest, newest->older);
}

void DelayLine::resize(std::uint32_t size) {
    const std::uint32_t capacity = capacityFor(size);
    SBuffer *present = buffer.load(std::memory_order_acquire);
    if (capacity <= present->capacity)
        return;
    auto grown = std::make_unique<SBuffer>(capacity);
    while (capacity > present->capacity) {
        grown->older = present;
        if (buffer.compare_exchange_weak(present, grown.get(), std::memory_order_acq_rel)) {
            grown.release();
            writeIndex = 0;
            return;
        }
    }
}

std::uint32_t DelayLine::getCapacity() const {
    return buffer.load(std::memory_order_acquire)->capacity;
}

DelayLine::SRing DelayLine::ring() const {
    const SBuffer &present = *buffer.load(std::memory_order_acquire);
    return {present.memory.get() + 1, present.capacity - 1, writeIndex};
}

void DelayLine::write(float sample) {
    write(&sample, 1);
}

float DelayLine::read(float offset) const {
    assertNotNegative(offset);
    return ring().readOne(0, offset);
}

void DelayLine::copyNewest(float *samples, int count) const {
    const SRing line = ring();
    std::uint32_t place = line.newest - static_cast<std::uint32_t>(count);
    for (int i = 0; i < count; ++i)
        samples[i] = line.samples[++place & line.mask];
}

void DelayLine::setConstantOffset(float offset) {
    assertAlways(offset >= 0.0f, "newconstantoffset >= 0.0f", sourceName, 174);
    constantOffset = wholeCount(offset);
    if (offset + 1.0f > static_cast<float>(getCapacity()))
        resize(constantOffset + 1);
}

float DelayLine::readConstant() const {
    float sample;
    readConstant(&sample, 1);
    return sample;
}

void DelayLine::clear() {
    const SRing line = ring();
    std::fill_n(line.samples - 1, std::size_t{line.mask} + 2, 0.0f);
}

static void writeStretch(const float *from, float *to, int count) {
    runWide([=] {
        for (int i = 0; i < count; ++i)
            to[i] = flushDenormal(from[i]);
    });
}

static void readStretch(const float *newer, float fraction, float *to, int count) {
    runWide([=] {
        for (int i = 0; i < count; ++i)
            to[i] = (newer[i - 1] - newer[i]) * fraction + newer[i];
    });
}

/// @return the samples from `place` to the end of the line, `count` at most.
static int stretchFrom(std::uint32_t place, std::uint32_t mask, int count) {
    return static_cast<int>(std::min(mask - place, static_cast<std::uint32_t>(count - 1))) + 1;
}

void DelayLine::write(const float *samples, int count) {
    const SRing line = ring();
    std::uint32_t place = line.newest;
    while (count > 0) {
        place = (place + 1) & line.mask;
        const int stretch = stretchFrom(place, line.mask, count);
        writeStretch(samples, line.samples + place, stretch);
        place += static_cast<std::uint32_t>(stretch - 1);
        if (place == line.mask)
            line.samples[-1] = line.samples[place];
        samples += stretch;
        count -= stretch;
    }
    writeIndex = place;
}

int DelayLine::SRing::getLongestRun(std::uint32_t distance) const {
    const std::uint32_t back = distance & mask;
    // At the far end of the line the older neighbour is the newest sample.
    const std::uint32_t frames = back == mask ? 1 : back + 1;
    return static_cast<int>(std::min(frames, 0x7fffffffu));
}

void DelayLine::SRing::readRun(std::uint32_t distance, float fraction, float *to, int count) const {
    std::uint32_t place = (newest - distance) & mask;
    while (count > 0) {
        const int stretch = stretchFrom(place, mask, count);
        readStretch(samples + place, fraction, to, stretch);
        place = 0;
        to += stretch;
        count -= stretch;
    }
}

int DelayLine::getLongestRun(float offset) const {
    return ring().getLongestRun(wholeCount(offset));
}

void DelayLine::read(float offset, float *samples, int count) const {
    assertNotNegative(offset);
    const std::uint32_t whole = wholeCount(offset);
    ring().readRun(whole, offset - static_cast<float>(whole), samples, count);
}

int DelayLine::getLongestConstantRun() const {
    return ring().getLongestRun(constantOffset);
}

void DelayLine::readConstant(float *samples, int count) const {
    ring().readRun(constantOffset, constantFraction, samples, count);
}

bool DelayLine::canReadRun(const float *offsets, int count) const {
    const SRing line = ring();
    constexpr std::uint32_t lastWholeFloat = 1 << 24;
    if (line.mask >= lastWholeFloat)
        return false;
    const auto nearest = static_cast<float>(count);
    const auto farthest = static_cast<float>(line.mask) - 1.0f;
    int can = 1;
    runWide([=, &can] {
        int all = 1;
        for (int i = 0; i < count; ++i)
            all &= (offsets[i] >= nearest) & (offsets[i] <= farthest);
        can = all;
    });
    return can != 0;
}

void DelayLine::readRun(const float *offsets, float *samples, int count) const {
    const SRing line = ring();
    int i = 0;
    for (; i + 4 <= count; i += 4)
        storeFour(samples + i, line.readFour(static_cast<std::uint32_t>(i), offsets + i));
    for (; i < count; ++i)
        samples[i] = line.readOne(static_cast<std::uint32_t>(i), offsets[i]);
}
