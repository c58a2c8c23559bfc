#pragma once

#include "dspclasses/kernels/Denormals.h"
#include "dspclasses/kernels/Lanes.h"

#include <array>

/// Both channels side by side: a frame is one register {left, right} in double precision, so that
/// the two channels cost what one would. Four frames are read and written at once.

inline SDoubles2 frameOf(double left, double right) {
    return {Doubles2{left, right}};
}
inline SDoubles2 inBothChannels(double value) {
    return frameOf(value, value);
}
inline double leftOf(SDoubles2 frame) {
    return frame.values[0];
}
inline double rightOf(SDoubles2 frame) {
    return frame.values[1];
}

template <typename Sample>
SDoubles2 loadFrame(const Sample *left, const Sample *right) {
    return frameOf(double{*left}, double{*right});
}
template <typename Sample>
void storeFrame(Sample *left, Sample *right, SDoubles2 frame) {
    *left = static_cast<Sample>(leftOf(frame));
    *right = static_cast<Sample>(rightOf(frame));
}

using Frames4 = std::array<SDoubles2, 4>;

inline Frames4 loadFrames(const float *left, const float *right) {
    const SFloats4 l = loadFour(left), r = loadFour(right);
    const SFloats4 early = interleavedLow(l, r), late = interleavedHigh(l, r);
    return {widenedLow(early), widenedHigh(early), widenedLow(late), widenedHigh(late)};
}
inline Frames4 loadFrames(const double *left, const double *right) {
    Frames4 frames;
    for (std::size_t k = 0; k < frames.size(); k += 2) {
        const SDoubles2 l = loadTwo(left + k), r = loadTwo(right + k);
        frames[k] = interleavedLow(l, r);
        frames[k + 1] = interleavedHigh(l, r);
    }
    return frames;
}

inline void storeFrames(float *left, float *right, const Frames4 &frames) {
    const SFloats4 early = narrowed(frames[0], frames[1]);  // l0 r0 l1 r1
    const SFloats4 late = narrowed(frames[2], frames[3]);
    storeFour(left, evenLanes(early, late));
    storeFour(right, oddLanes(early, late));
}
inline void storeFrames(double *left, double *right, const Frames4 &frames) {
    for (std::size_t k = 0; k < frames.size(); k += 2) {
        storeTwo(left + k, interleavedLow(frames[k], frames[k + 1]));
        storeTwo(right + k, interleavedHigh(frames[k], frames[k + 1]));
    }
}

/// Writes 0.0 over the denormals among the next four samples of one channel.
inline void flushFourInPlace(float *samples) {
    storeFour(samples, flushDenormal(loadFour(samples)));
}
inline void flushFourInPlace(double *samples) {
    for (int k = 0; k < 4; k += 2)
        storeTwo(samples + k, flushDenormal(loadTwo(samples + k)));
}
