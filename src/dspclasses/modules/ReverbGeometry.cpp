#include "dspclasses/modules/ReverbGeometry.h"

#include "values/Truncation.h"

#include <cmath>
#include <cstddef>
#include <cstdint>

SReverbRoom reverbRoom(float metres, float sampleRate) {
    // Kept: the constants have only these digits.
    constexpr float secondsPerMetre = 0.00294f;                      // 1 / 340
    constexpr std::array ratios{1.0f, 0.81649f, 0.7071f, 0.63245f};  // sqrt(2/2, 2/3, 2/4, 2/5)
    constexpr std::array taps{0.41f, 0.3f, 0.155f, 0.0f};            // follow no formula
    constexpr float nearestTap = 5.0f;
    SReverbRoom room;
    room.delayBase = sampleRate * metres * secondsPerMetre;
    for (std::size_t k = 0; k < ratios.size(); ++k) {
        room.tailLengths[k] = std::floor(room.delayBase * ratios[k]);
        room.tapOffsets[k] = std::floor(room.delayBase * taps[k]) + nearestTap;
    }
    return room;
}

std::uint32_t reverbLineCapacity(float sampleRate) {
    return static_cast<std::uint32_t>(1000 - truncated(sampleRate * -400.0f / 340.0f));
}

namespace {

/// How far a full spread moves the second and the third mark of a side, as shares of 50 and of 150
/// samples. Kept: the shares are arbitrary numbers between -1 and 1.
struct SDetune {
    float second, third;
};
constexpr SDetune leftDetune{-0.125541f, -0.854046f}, rightDetune{0.568366f, 0.126815f};

std::array<int, reverbLines> lengthsOf(SDetune detune, float spread, float scale) {
    // 64 bits hold the sums of any two truncations.
    const auto whole = [](float number) { return std::int64_t{truncated(number)}; };
    const std::int64_t marks[] = {0, 210, 369 - whole(spread * 50.0f * detune.second),
                                  931 - whole(spread * 3.0f * 50.0f * detune.third), 1341};
    std::array<int, reverbLines> lengths;
    for (std::size_t k = 0; k < lengths.size(); ++k)
        lengths[k] = truncated(static_cast<float>(marks[k + 1] - marks[k]) * scale);
    return lengths;
}

}  // namespace

SDiffuserLengths diffuserLengths(float spread, float shortestTail) {
    const float scale = shortestTail / 1341.0f;
    return {lengthsOf(leftDetune, spread, scale), lengthsOf(rightDetune, spread, scale)};
}
