#pragma once

#include <array>
#include <cstdint>

/// The lengths that a reverb derives from its room and its spread, in samples. Those of the lines
/// are whole numbers held as floats, since the decay is raised to their power.

inline constexpr int reverbLines = 4;

struct SReverbRoom {
    float delayBase;                             // samples from wall to wall, not rounded
    std::array<float, reverbLines> tailLengths;  // of the network's lines
    std::array<float, reverbLines> tapOffsets;   // in the early line
};

///     delayBase       = metres sampleRate / (340 m/s)
///     tailLengths[k]  = floor(delayBase sqrt(2 / (2 + k)))
///     tapOffsets[k]   = floor(delayBase times 0.41, 0.3, 0.155 and 0) + 5
///
/// The square roots keep the echoes of two lines from meeting often.
/// @param metres  from 1.
SReverbRoom reverbRoom(float metres, float sampleRate);

/// @return samples that a line needs for a room of 400 m, with a margin of 1000.
std::uint32_t reverbLineCapacity(float sampleRate);

struct SDiffuserLengths {
    std::array<int, reverbLines> left;
    std::array<int, reverbLines> right;
};

/// The lengths of a side's four all-passes are the distances between five marks. Spread moves the
/// second and the third one differently on the two sides; the scale makes the last one the length
/// of the shortest line of the room:
///
///     0        210      369               931            1341   times shortestTail / 1341
///     |--------|--------|-----------------|--------------|
///        210      159          562              410
///                     <-+->             <-+->
///                     spread            spread
///
/// @param spread  0 to 1; at 0 the sides are equal.
/// @param shortestTail  tailLengths[3] of the room.
SDiffuserLengths diffuserLengths(float spread, float shortestTail);
