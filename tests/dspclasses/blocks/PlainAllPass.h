#pragma once

#include "dspclasses/blocks/Assertion.h"
#include "dspclasses/support/PlainBits.h"

#include <cstddef>
#include <vector>

/// The plain version of the all-pass: one tick a call.
class CPlainAllPass {
public:
    void setDelayLength(int length) {
        assertAlways(length != 0, "newDelayLength!=0", "dspclasses/DSPAllPass", 46);
        if (length > capacity)
            capacity = length;
        delayLength = length;
        clear();
    }

    float tick(float x) {
        float &cell = buffer[static_cast<std::size_t>(position)];
        const float d = cell;
        float w = x - coefficient * d;
        if (exponentIsZero(w))
            w = 0.0f;
        const float y = coefficient * w + d;
        cell = w;
        ++position;
        if (position >= delayLength)
            position = 0;
        return y;
    }

    void clear() {
        buffer.assign(static_cast<std::size_t>(capacity), 0.0f);
        position = 0;
    }

    float coefficient = 0.0f;

private:
    int capacity = 8;
    int delayLength = 8;
    int position = 0;
    std::vector<float> buffer = std::vector<float>(8, 0.0f);
};
