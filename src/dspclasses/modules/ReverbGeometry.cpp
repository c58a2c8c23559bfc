#include "dspclasses/modules/ReverbGeometry.h"

#include "values/Truncation.h"

#include <cmath>
#include <cstddef>
#include <cstdint>

SReverbRoom reverbRoom(float metres, float sampleRate) {
    constexpr std::array lengths{1.0f, 0.81649f, 0.7071f, 0.63245f};
    constexpr std::array taps{0.41f, 0.3f, 0.155f, 0.0f};
    SReverbRoom room;
    room.delayBase = sampleRate * metres * 0.00294f;  // twice the way, at 340 m/s
    for (std::size_t k = 0; k < lengths.size(); ++k) {
        room.tailLengths[k] = std::floor(room.delayBase * lengths[k]);
        room.tapOffsets[k] = std::floor(room.delayBase * taps[k]) + 5.0f;
    }
    return room;
}

SDiffuserLengths diffuserLengths(float spread, float shortestTail) {
    const float scale = shortestTail / 1341.0f;
    // Wide enough for the sums of any two truncations.
    const auto whole = [](float number) { return std::int64_t{truncated(number)}; };
    const auto scaled = [scale](std::int64_t length) {
        return truncated(static_cast<float>(length) * scale);
    };
    const std::int64_t leftNear = whole(spread * 50.0f * -0.125541f);
    const std::int64_t leftFar = 931 - whole(spread * 3.0f * 50.0f * -0.854046f);
    const std::int64_t rightNear = whole(spread * 50.0f * 0.568366f);
    const std::int64_t rightFar = whole(spread * 3.0f * 50.0f * 0.126815f);
    return {{scaled(210), scaled(159 - leftNear), scaled(leftFar - (369 - leftNear)),
             scaled(1341 - leftFar)},
            {scaled(210), scaled(159 - rightNear), scaled(931 - rightFar - (369 - rightNear)),
             scaled(rightFar + 410)}};
}
