#pragma once

#include "dspclasses/blocks/Assertion.h"
#include "dspclasses/blocks/WholeCount.h"
#include "dspclasses/support/PlainBits.h"

#include <cmath>
#include <cstdint>
#include <vector>

/// The plain version of the delay line: one sample a call, every index masked at its use.
class CPlainDelayLine {
public:
    explicit CPlainDelayLine(std::uint32_t size) { resize(size); }

    void resize(std::uint32_t size) {
        if (size == 0)
            size = 2;
        if ((size & (size - 1)) != 0) {
            const auto logarithm = static_cast<float>(std::log(static_cast<double>(size)));
            const float exponent =
                std::ceil(static_cast<float>(double{logarithm} * 1.4426950408889634));
            size = wholeCount(static_cast<float>(std::pow(2.0, double{exponent})));
        }
        if (size <= capacity)
            return;
        buffer.assign(size, 0.0f);
        mask = size - 1;
        capacity = size;
        writeIndex = 0;
    }

    void write(float sample) {
        writeIndex = (writeIndex + 1) & mask;
        buffer[writeIndex] = exponentIsZero(sample) ? 0.0f : sample;
    }

    float read(float offset) const {
        assertAlways(offset >= 0.0f, "offset >= 0.0f", "dspclasses/DelayLine", 74);
        const std::uint32_t n = wholeCount(offset);
        return interpolated(n, offset - static_cast<float>(n));
    }

    void setConstantOffset(float offset) {
        assertAlways(offset >= 0.0f, "newconstantoffset >= 0.0f", "dspclasses/DelayLine", 174);
        constantOffset = wholeCount(offset);
        if (offset + 1.0f > static_cast<float>(capacity))
            resize(constantOffset + 1);
    }

    float readConstant() const { return interpolated(constantOffset, constantFraction); }

    void clear() { buffer.assign(buffer.size(), 0.0f); }

    std::uint32_t getCapacity() const { return capacity; }

private:
    float interpolated(std::uint32_t n, float fraction) const {
        const std::uint32_t i = writeIndex - n;
        const float a = buffer[i & mask];
        const float b = buffer[(i - 1) & mask];
        return (b - a) * fraction + a;
    }

    std::uint32_t capacity = 0;
    std::uint32_t writeIndex = 0;
    std::uint32_t mask = 0;
    std::uint32_t constantOffset = 0;
    float constantFraction = 0.0f;
    std::vector<float> buffer;
};
