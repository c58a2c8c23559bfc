#include "dspclasses/blocks/DSPAllPass.h"

#include "dspclasses/blocks/Assertion.h"
#include "dspclasses/kernels/Denormals.h"
#include "dspclasses/kernels/WideLoop.h"

#include <algorithm>
#include <cstddef>
#include <new>

// Kept: the text of the reports is fixed. This name, the expressions and the line numbers below
// belong to it and do not follow this file.
static constexpr const char *sourceName = "dspclasses/DSPAllPass";

DSPAllPass::DSPAllPass() : buffer(std::make_unique<float[]>(static_cast<std::size_t>(capacity))) {}

void DSPAllPass::setDelayLength(int length) {
    assertAlways(length != 0, "newDelayLength!=0", sourceName, 46);
    if (length > capacity) {
        float *newBuffer = new (std::nothrow) float[static_cast<std::size_t>(length)];
        assertAlways(newBuffer != nullptr, "newBuffer != 0", sourceName, 63);
        buffer.reset(newBuffer);
        capacity = length;
    }
    delayLength = length;
    clear();
}

float DSPAllPass::tick(float sample) {
    run(&sample, 1);
    return sample;
}

/// Ticks `count` samples, none of them past the end of the ring.
/// @param delayed  the cells of the ring that the stretch reads and overwrites.
static void runStretch(float *samples, float *delayed, float coefficient, int count) {
    runWide([=] {
        for (int i = 0; i < count; ++i) {
            const float d = delayed[i];
            const float w = flushDenormal(samples[i] - coefficient * d);
            samples[i] = coefficient * w + d;
            delayed[i] = w;
        }
    });
}

void DSPAllPass::run(float *samples, int count) {
    while (count > 0) {
        const int stretch = std::clamp(delayLength - position, 1, count);
        runStretch(samples, buffer.get() + position, coefficient, stretch);
        position += stretch;
        if (position >= delayLength)
            position = 0;
        samples += stretch;
        count -= stretch;
    }
}

void DSPAllPass::clear() {
    std::fill_n(buffer.get(), capacity, 0.0f);
    position = 0;
}
