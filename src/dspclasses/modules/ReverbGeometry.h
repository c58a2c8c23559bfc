#pragma once

#include <array>

/// The lengths that a reverb derives from its room and its spread, in samples. The lines' lengths
/// are whole numbers that are held as floats, since the decay is a power of them.

struct SReverbRoom {
    float delayBase;                   // the longest way through the room, not rounded
    std::array<float, 4> tailLengths;  // of the network's lines
    std::array<float, 4> tapOffsets;   // in the early line
};

/// @param metres  from 1.
SReverbRoom reverbRoom(float metres, float sampleRate);

struct SDiffuserLengths {
    std::array<int, 4> left;
    std::array<int, 4> right;
};

/// The lengths of the all-passes, which grow with the room and which spread detunes between the
/// sides; at 0 both are 210, 159, 562 and 410 samples times the scale of the room.
/// @param shortestTail  tailLengths[3] of the room.
SDiffuserLengths diffuserLengths(float spread, float shortestTail);
