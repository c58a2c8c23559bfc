#pragma once

#include "dspclasses/kernels/Denormals.h"
#include "dspclasses/kernels/Lanes.h"

#include <array>

/// Both channels side by side: a frame is one register {left, right} in double precision, and four
/// frames are read and written at once, so that the two channels cost what one would.

using Frames4 = std::array<SDoubles2, 4>;

inline SDoubles2 loadFrame(const float *left, const float *right) {
    return pair(double{*left}, double{*right});
}
inline SDoubles2 loadFrame(const double *left, const double *right) {
    return pair(*left, *right);
}

inline void storeFrame(float *left, float *right, SDoubles2 frame) {
    *left = static_cast<float>(firstOf(frame));
    *right = static_cast<float>(secondOf(frame));
}
inline void storeFrame(double *left, double *right, SDoubles2 frame) {
    *left = firstOf(frame);
    *right = secondOf(frame);
}

inline Frames4 loadFrames(const float *left, const float *right) {
    const __m128 l = _mm_loadu_ps(left), r = _mm_loadu_ps(right);
    const __m128 early = _mm_unpacklo_ps(l, r), late = _mm_unpackhi_ps(l, r);
    return {SDoubles2{_mm_cvtps_pd(early)}, SDoubles2{_mm_cvtps_pd(_mm_movehl_ps(early, early))},
            SDoubles2{_mm_cvtps_pd(late)}, SDoubles2{_mm_cvtps_pd(_mm_movehl_ps(late, late))}};
}
inline Frames4 loadFrames(const double *left, const double *right) {
    Frames4 frames;
    for (std::size_t k = 0; k < frames.size(); k += 2) {
        const __m128d l = _mm_loadu_pd(left + k), r = _mm_loadu_pd(right + k);
        frames[k] = {_mm_unpacklo_pd(l, r)};
        frames[k + 1] = {_mm_unpackhi_pd(l, r)};
    }
    return frames;
}

inline void storeFrames(float *left, float *right, const Frames4 &frames) {
    const auto rounded = [&](std::size_t k) { return _mm_cvtpd_ps(frames[k].lanes); };
    const __m128 early = _mm_unpacklo_ps(rounded(0), rounded(1));  // l0 l1 r0 r1
    const __m128 late = _mm_unpacklo_ps(rounded(2), rounded(3));
    _mm_storeu_ps(left, _mm_movelh_ps(early, late));
    _mm_storeu_ps(right, _mm_movehl_ps(late, early));
}
inline void storeFrames(double *left, double *right, const Frames4 &frames) {
    for (std::size_t k = 0; k < frames.size(); k += 2) {
        _mm_storeu_pd(left + k, _mm_unpacklo_pd(frames[k].lanes, frames[k + 1].lanes));
        _mm_storeu_pd(right + k, _mm_unpackhi_pd(frames[k].lanes, frames[k + 1].lanes));
    }
}

/// Writes 0.0 over the denormals among the next four samples of one channel.
inline void flushFourInPlace(float *samples) {
    storeFour(samples, flushDenormal(loadFour(samples)));
}
inline void flushFourInPlace(double *samples) {
    for (int k = 0; k < 4; k += 2)
        _mm_storeu_pd(samples + k, flushDenormal(SDoubles2{_mm_loadu_pd(samples + k)}).lanes);
}
