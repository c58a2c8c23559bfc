#pragma once

#include <cstdint>
#include <emmintrin.h>
#include <limits>
#include <type_traits>

/// Values side by side in the registers of the processor. A lane computes exactly what the scalar
/// operation would, so a kernel on lanes produces the same bits as a scalar one.
///
/// `values` is a compiler vector, which has the operators of its elements: a comparison yields a
/// mask, and mask ? a : b selects lane by lane. Four doubles are one register of AVX2 or two of
/// SSE2, and the calling convention depends on which. So functions take and return the structure,
/// and those that may see four doubles are always inlined.
template <typename Value, int count>
struct TLanes {
    using Word = std::conditional_t<sizeof(Value) == 4, std::uint32_t, std::uint64_t>;
    using Values [[gnu::vector_size(count * sizeof(Value))]] = Value;
    using Bits [[gnu::vector_size(count * sizeof(Value))]] = Word;
    /// Values at any address, aligned or not.
    using InArray
        [[gnu::vector_size(count * sizeof(Value)), gnu::aligned(sizeof(Value)), gnu::may_alias]] =
            Value;
    Values values;
};

/// {left, right} in the filters; see StereoFrames.h.
using SDoubles2 = TLanes<double, 2>;

/// In the modules, usually four frames of one channel.
template <typename Value>
using TFour = TLanes<Value, 4>;
using SFloats4 = TFour<float>;

/// The bare vectors, and the masks that comparing two of them yields.
using Doubles2 = SDoubles2::Values;
using Floats4 = SFloats4::Values;
using Mask2 = decltype(Doubles2{} > Doubles2{});
using Mask4 = decltype(Floats4{} > Floats4{});

inline Floats4 splat(float value) {
    return Floats4{value, value, value, value};
}

/// @return one bit per lane, lane 0 the lowest: 1 where the mask is set.
inline int laneBits(const Mask4 &mask) {
    return _mm_movemask_ps(reinterpret_cast<__m128>(mask));
}
inline bool isAnySet(const Mask2 &mask) {
    return _mm_movemask_pd(reinterpret_cast<__m128d>(mask)) != 0;
}
inline bool isAnySet(const Mask4 &mask) {
    return laneBits(mask) != 0;
}
inline bool areAllSet(const Mask4 &mask) {
    return laneBits(mask) == 0xf;
}

template <typename Value, int count>
[[gnu::always_inline]] inline TLanes<Value, count> operator+(const TLanes<Value, count> &a,
                                                             const TLanes<Value, count> &b) {
    return {a.values + b.values};
}
template <typename Value, int count>
[[gnu::always_inline]] inline TLanes<Value, count> operator-(const TLanes<Value, count> &a,
                                                             const TLanes<Value, count> &b) {
    return {a.values - b.values};
}
template <typename Value, int count>
[[gnu::always_inline]] inline TLanes<Value, count> operator*(const TLanes<Value, count> &a,
                                                             const TLanes<Value, count> &b) {
    return {a.values * b.values};
}

template <typename Value>
[[gnu::always_inline]] inline TFour<Value> loadFour(const Value *from) {
    return {*reinterpret_cast<const typename TFour<Value>::InArray *>(from)};
}
template <typename Value>
[[gnu::always_inline]] inline void storeFour(Value *to, const TFour<Value> &lanes) {
    *reinterpret_cast<typename TFour<Value>::InArray *>(to) = lanes.values;
}

inline SDoubles2 loadTwo(const double *from) {
    return {*reinterpret_cast<const SDoubles2::InArray *>(from)};
}
inline void storeTwo(double *to, SDoubles2 lanes) {
    *reinterpret_cast<SDoubles2::InArray *>(to) = lanes.values;
}

/// @return a0 b0 a1 b1, from the lower halves.
inline SFloats4 interleavedLow(SFloats4 a, SFloats4 b) {
    return {__builtin_shufflevector(a.values, b.values, 0, 4, 1, 5)};
}
inline SDoubles2 interleavedLow(SDoubles2 a, SDoubles2 b) {
    return {__builtin_shufflevector(a.values, b.values, 0, 2)};
}
/// @return a2 b2 a3 b3, from the upper halves.
inline SFloats4 interleavedHigh(SFloats4 a, SFloats4 b) {
    return {__builtin_shufflevector(a.values, b.values, 2, 6, 3, 7)};
}
inline SDoubles2 interleavedHigh(SDoubles2 a, SDoubles2 b) {
    return {__builtin_shufflevector(a.values, b.values, 1, 3)};
}

/// @return a0 a1 b0 b1.
inline SFloats4 lowerHalves(SFloats4 a, SFloats4 b) {
    return {__builtin_shufflevector(a.values, b.values, 0, 1, 4, 5)};
}
/// @return a2 a3 b2 b3.
inline SFloats4 upperHalves(SFloats4 a, SFloats4 b) {
    return {__builtin_shufflevector(a.values, b.values, 2, 3, 6, 7)};
}

/// @return a0 a2 b0 b2.
inline SFloats4 evenLanes(SFloats4 a, SFloats4 b) {
    return {__builtin_shufflevector(a.values, b.values, 0, 2, 4, 6)};
}
/// @return a1 a3 b1 b3.
inline SFloats4 oddLanes(SFloats4 a, SFloats4 b) {
    return {__builtin_shufflevector(a.values, b.values, 1, 3, 5, 7)};
}

/// Lanes 0 and 1 (2 and 3) as doubles. Intrinsics, since GCC 12 would convert lane by lane.
inline SDoubles2 widenedLow(SFloats4 a) {
    return {_mm_cvtps_pd(a.values)};
}
inline SDoubles2 widenedHigh(SFloats4 a) {
    return {_mm_cvtps_pd(_mm_movehl_ps(a.values, a.values))};
}
/// @return a0 a1 b0 b1, each rounded to the nearest float.
inline SFloats4 narrowed(SDoubles2 a, SDoubles2 b) {
    return {_mm_movelh_ps(_mm_cvtpd_ps(a.values), _mm_cvtpd_ps(b.values))};
}

template <typename Value>
[[gnu::always_inline]] inline TFour<Value> magnitude(const TFour<Value> &a) {
    using Four = TFour<Value>;
    constexpr auto allButSign = static_cast<typename Four::Word>(-1) >> 1;
    const auto bits = reinterpret_cast<typename Four::Bits>(a.values) & allButSign;
    return {reinterpret_cast<typename Four::Values>(bits)};
}

/// The larger value in each lane; b's if they are equal or either is a NaN.
template <typename Value>
[[gnu::always_inline]] inline TFour<Value> larger(const TFour<Value> &a, const TFour<Value> &b) {
    return {a.values > b.values ? a.values : b.values};
}

/// The smaller value in each lane; b's if they are equal or either is a NaN.
template <typename Value>
[[gnu::always_inline]] inline TFour<Value> smaller(const TFour<Value> &a, const TFour<Value> &b) {
    return {a.values < b.values ? a.values : b.values};
}

// Intrinsics for two doubles. From vector expressions, GCC 12 generates integer instructions for
// the bit operations and a slower order around the comparisons: the three-band equaliser then takes
// up to 11 % longer.

inline SDoubles2 magnitude(SDoubles2 a) {
    return {_mm_andnot_pd(_mm_set1_pd(-0.0), a.values)};
}
/// Every bit that is set in a or in b.
inline SDoubles2 operator|(SDoubles2 a, SDoubles2 b) {
    return {_mm_or_pd(a.values, b.values)};
}
/// @return 1 with the sign of each lane.
inline SDoubles2 signedOne(SDoubles2 a) {
    return {_mm_or_pd(_mm_and_pd(a.values, _mm_set1_pd(-0.0)), _mm_set1_pd(1.0))};
}
inline SDoubles2 larger(SDoubles2 a, SDoubles2 b) {
    return {_mm_max_pd(a.values, b.values)};
}
inline SDoubles2 smaller(SDoubles2 a, SDoubles2 b) {
    return {_mm_min_pd(a.values, b.values)};
}

/// flushDenormal in every lane: a denormal and a zero of either sign become 0.0, a NaN stays.
template <typename Value, int count>
[[gnu::always_inline]] inline TLanes<Value, count> flushDenormal(const TLanes<Value, count> &a) {
    using Values = typename TLanes<Value, count>::Values;
    return {magnitude(a).values < std::numeric_limits<Value>::min() ? Values{} : a.values};
}

// For four floats in one instruction, which GCC 12 does not find if one operand is a constant.
inline SFloats4 larger(SFloats4 a, SFloats4 b) {
    return {_mm_max_ps(a.values, b.values)};
}
inline SFloats4 smaller(SFloats4 a, SFloats4 b) {
    return {_mm_min_ps(a.values, b.values)};
}

/// Four unsigned integers, which wrap.
using SCounts4 = TFour<std::uint32_t>;

/// @param a  at least 0 and below 2^31.
/// @return each lane without its fraction.
inline SCounts4 wholeParts(SFloats4 a) {
    const auto whole = __builtin_convertvector(a.values, TFour<std::int32_t>::Values);
    return {reinterpret_cast<SCounts4::Values>(whole)};
}
/// @param a  at least 0 and below 2^31.
inline SFloats4 toFloats(SCounts4 a) {
    const auto whole = reinterpret_cast<TFour<std::int32_t>::Values>(a.values);
    return {__builtin_convertvector(whole, SFloats4::Values)};
}

/// Two adjacent floats from each of two addresses: {first[0], first[1], second[0], second[1]}.
inline SFloats4 loadPairs(const float *first, const float *second) {
    const auto pair = [](const float *place) { return reinterpret_cast<const __m64 *>(place); };
    return {_mm_loadh_pi(_mm_loadl_pi(_mm_setzero_ps(), pair(first)), pair(second))};
}
/// The first, or the second, value of each pair; a and b have two pairs each.
inline SFloats4 firstOfPairs(SFloats4 a, SFloats4 b) {
    return {_mm_shuffle_ps(a.values, b.values, _MM_SHUFFLE(2, 0, 2, 0))};
}
inline SFloats4 secondOfPairs(SFloats4 a, SFloats4 b) {
    return {_mm_shuffle_ps(a.values, b.values, _MM_SHUFFLE(3, 1, 3, 1))};
}
