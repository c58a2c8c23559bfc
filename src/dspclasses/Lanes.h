#pragma once

#include <emmintrin.h>

#include <limits>

/// Thin names for the SSE2 registers that every x86-64 processor has. Each lane computes exactly
/// what the scalar operation would, so a kernel on lanes gives the same bits as one without.

/// Two doubles: in the recursive modules the left channel and the right.
struct SDoubles2 {
    __m128d lanes;
};

/// Four floats: in the modules mostly four frames of one channel.
struct SFloats4 {
    __m128 lanes;
};

inline SDoubles2 pair(double first, double second) {
    return {_mm_set_pd(second, first)};
}
inline SDoubles2 both(double value) {
    return {_mm_set1_pd(value)};
}
inline double firstOf(SDoubles2 a) {
    return _mm_cvtsd_f64(a.lanes);
}
inline double secondOf(SDoubles2 a) {
    return _mm_cvtsd_f64(_mm_unpackhi_pd(a.lanes, a.lanes));
}

inline SDoubles2 operator+(SDoubles2 a, SDoubles2 b) {
    return {_mm_add_pd(a.lanes, b.lanes)};
}
inline SDoubles2 operator-(SDoubles2 a, SDoubles2 b) {
    return {_mm_sub_pd(a.lanes, b.lanes)};
}
inline SDoubles2 operator*(SDoubles2 a, SDoubles2 b) {
    return {_mm_mul_pd(a.lanes, b.lanes)};
}

inline SDoubles2 operator|(SDoubles2 a, SDoubles2 b) {
    return {_mm_or_pd(a.lanes, b.lanes)};
}
inline SDoubles2 operator&(SDoubles2 a, SDoubles2 b) {
    return {_mm_and_pd(a.lanes, b.lanes)};
}
/// @return all bits of a lane set where a is below (above) b, none where one of the two is a NaN.
inline SDoubles2 isBelow(SDoubles2 a, SDoubles2 b) {
    return {_mm_cmplt_pd(a.lanes, b.lanes)};
}
inline SDoubles2 isAbove(SDoubles2 a, SDoubles2 b) {
    return {_mm_cmpgt_pd(a.lanes, b.lanes)};
}
/// @return a where the mask's bits are set, b where they are not.
inline SDoubles2 select(SDoubles2 mask, SDoubles2 a, SDoubles2 b) {
    return {_mm_or_pd(_mm_and_pd(mask.lanes, a.lanes), _mm_andnot_pd(mask.lanes, b.lanes))};
}
/// The lesser and the greater of each lane; b's where one of the two is a NaN.
inline SDoubles2 lesser(SDoubles2 a, SDoubles2 b) {
    return {_mm_min_pd(a.lanes, b.lanes)};
}
inline SDoubles2 greater(SDoubles2 a, SDoubles2 b) {
    return {_mm_max_pd(a.lanes, b.lanes)};
}
inline bool hasAnyBit(SDoubles2 a) {
    const __m128i clear = _mm_cmpeq_epi32(_mm_castpd_si128(a.lanes), _mm_setzero_si128());
    return _mm_movemask_epi8(clear) != 0xffff;
}

inline SFloats4 loadFour(const float *from) {
    return {_mm_loadu_ps(from)};
}
inline void storeFour(float *to, SFloats4 a) {
    _mm_storeu_ps(to, a.lanes);
}

inline SFloats4 operator+(SFloats4 a, SFloats4 b) {
    return {_mm_add_ps(a.lanes, b.lanes)};
}
inline SFloats4 operator-(SFloats4 a, SFloats4 b) {
    return {_mm_sub_ps(a.lanes, b.lanes)};
}
inline SFloats4 operator*(SFloats4 a, SFloats4 b) {
    return {_mm_mul_ps(a.lanes, b.lanes)};
}

inline SDoubles2 magnitude(SDoubles2 a) {
    return {_mm_andnot_pd(_mm_set1_pd(-0.0), a.lanes)};
}
inline SFloats4 magnitude(SFloats4 a) {
    return {_mm_andnot_ps(_mm_set1_ps(-0.0f), a.lanes)};
}

/// flushDenormal in every lane. "Not less than" and not "at least", so that a NaN stays.
inline SDoubles2 flushDenormal(SDoubles2 a) {
    const __m128d smallest = _mm_set1_pd(std::numeric_limits<double>::min());
    return {_mm_and_pd(a.lanes, _mm_cmpnlt_pd(magnitude(a).lanes, smallest))};
}
inline SFloats4 flushDenormal(SFloats4 a) {
    const __m128 smallest = _mm_set1_ps(std::numeric_limits<float>::min());
    return {_mm_and_ps(a.lanes, _mm_cmpnlt_ps(magnitude(a).lanes, smallest))};
}
