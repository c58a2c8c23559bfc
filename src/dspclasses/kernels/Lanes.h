#pragma once

#include <cstdint>
#include <emmintrin.h>
#include <limits>
#include <type_traits>

/// Thin names for the registers of the processor. Each lane computes exactly what the scalar
/// operation would, so a kernel on lanes gives the same bits as one without.

/// Two doubles: in the recursive modules the left channel and the right.
struct SDoubles2 {
    __m128d lanes;
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

inline SDoubles2 magnitude(SDoubles2 a) {
    return {_mm_andnot_pd(_mm_set1_pd(-0.0), a.lanes)};
}
/// flushDenormal in every lane. "Not less than" and not "at least", so that a NaN stays.
inline SDoubles2 flushDenormal(SDoubles2 a) {
    const __m128d smallest = _mm_set1_pd(std::numeric_limits<double>::min());
    return {_mm_and_pd(a.lanes, _mm_cmpnlt_pd(magnitude(a).lanes, smallest))};
}

/// Values as a vector of the compiler, which has the operators of its elements: comparisons give
/// masks, and mask ? a : b selects. Four doubles are one register of AVX2 and two of SSE2, so
/// functions take and return the structure, and those on four doubles are always in line.
template <typename Value, int count>
struct TLanes {
    using Word = std::conditional_t<sizeof(Value) == 4, std::uint32_t, std::uint64_t>;
    using Values [[gnu::vector_size(count * sizeof(Value))]] = Value;
    using Bits [[gnu::vector_size(count * sizeof(Value))]] = Word;
    /// The same anywhere in an array.
    using InArray
        [[gnu::vector_size(count * sizeof(Value)), gnu::aligned(sizeof(Value)), gnu::may_alias]] =
            Value;
    Values values;
};

/// In the modules mostly four frames of one channel.
template <typename Value>
using TFour = TLanes<Value, 4>;
using SFloats4 = TFour<float>;

/// The bare vector, and what a comparison of two of them gives.
using Floats4 = SFloats4::Values;
using Mask4 = decltype(Floats4{} > Floats4{});

inline Floats4 splat(float value) {
    return Floats4{value, value, value, value};
}

/// @return one bit per lane: those that are set.
inline int laneBits(const Mask4 &mask) {
    return _mm_movemask_ps(reinterpret_cast<__m128>(mask));
}
inline bool isAnySet(const Mask4 &mask) {
    return laneBits(mask) != 0;
}
inline bool areAllSet(const Mask4 &mask) {
    return laneBits(mask) == 0xf;
}

inline SFloats4 operator+(SFloats4 a, SFloats4 b) {
    return {a.values + b.values};
}
inline SFloats4 operator-(SFloats4 a, SFloats4 b) {
    return {a.values - b.values};
}
inline SFloats4 operator*(SFloats4 a, SFloats4 b) {
    return {a.values * b.values};
}

template <typename Value>
[[gnu::always_inline]] inline TFour<Value> loadFour(const Value *from) {
    return {*reinterpret_cast<const typename TFour<Value>::InArray *>(from)};
}
template <typename Value>
[[gnu::always_inline]] inline void storeFour(Value *to, const TFour<Value> &four) {
    *reinterpret_cast<typename TFour<Value>::InArray *>(to) = four.values;
}

template <typename Value>
[[gnu::always_inline]] inline TFour<Value> magnitude(const TFour<Value> &a) {
    using Four = TFour<Value>;
    constexpr auto allButSign = static_cast<typename Four::Word>(-1) >> 1;
    const auto bits = reinterpret_cast<typename Four::Bits>(a.values) & allButSign;
    return {reinterpret_cast<typename Four::Values>(bits)};
}

/// The larger of each lane; b's where they are equal or one is a NaN.
template <typename Value>
[[gnu::always_inline]] inline TFour<Value> larger(const TFour<Value> &a, const TFour<Value> &b) {
    return {a.values > b.values ? a.values : b.values};
}

/// The smaller of each lane; b's where they are equal or one is a NaN.
template <typename Value>
[[gnu::always_inline]] inline TFour<Value> smaller(const TFour<Value> &a, const TFour<Value> &b) {
    return {a.values < b.values ? a.values : b.values};
}

/// flushDenormal in every lane.
inline SFloats4 flushDenormal(SFloats4 a) {
    return {magnitude(a).values < std::numeric_limits<float>::min() ? splat(0.0f) : a.values};
}

// The same for floats in one instruction each. GCC 12 misses it if one operand is a constant.
inline SFloats4 larger(SFloats4 a, SFloats4 b) {
    return {_mm_max_ps(a.values, b.values)};
}
inline SFloats4 smaller(SFloats4 a, SFloats4 b) {
    return {_mm_min_ps(a.values, b.values)};
}

/// Four whole numbers, which wrap as unsigned ones do.
using SCounts4 = TFour<std::uint32_t>;

/// @param a  from 0 to below 2^31.
/// @return each lane without its fraction.
inline SCounts4 wholeParts(SFloats4 a) {
    const auto whole = __builtin_convertvector(a.values, TFour<std::int32_t>::Values);
    return {reinterpret_cast<SCounts4::Values>(whole)};
}
/// @param a  from 0 to below 2^31.
inline SFloats4 toFloats(SCounts4 a) {
    const auto whole = reinterpret_cast<TFour<std::int32_t>::Values>(a.values);
    return {__builtin_convertvector(whole, SFloats4::Values)};
}

/// Two neighbours from each of two places: {first[0], first[1], second[0], second[1]}.
inline SFloats4 loadPairs(const float *first, const float *second) {
    const auto pair = [](const float *place) { return reinterpret_cast<const __m64 *>(place); };
    return {_mm_loadh_pi(_mm_loadl_pi(_mm_setzero_ps(), pair(first)), pair(second))};
}
/// The first of each pair, and the second of each, where a and b hold two pairs each.
inline SFloats4 firstOfPairs(SFloats4 a, SFloats4 b) {
    return {_mm_shuffle_ps(a.values, b.values, _MM_SHUFFLE(2, 0, 2, 0))};
}
inline SFloats4 secondOfPairs(SFloats4 a, SFloats4 b) {
    return {_mm_shuffle_ps(a.values, b.values, _MM_SHUFFLE(3, 1, 3, 1))};
}
