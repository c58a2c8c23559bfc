#pragma once

#include <emmintrin.h>

#include <cstdint>
#include <type_traits>

/// Four frames of one signal in single or double precision, as a vector of the compiler: it has the
/// operators of its elements, comparisons give masks, and mask ? a : b selects. In double precision
/// four are one register of AVX2 and two of SSE2, so functions take and return the structure.
template <typename Sample>
struct TFour {
    using Word = std::conditional_t<sizeof(Sample) == 4, std::uint32_t, std::uint64_t>;
    using Values [[gnu::vector_size(4 * sizeof(Sample))]] = Sample;
    using Bits [[gnu::vector_size(4 * sizeof(Sample))]] = Word;
    /// The same anywhere in an array of samples.
    using InArray
        [[gnu::vector_size(4 * sizeof(Sample)), gnu::aligned(sizeof(Sample)), gnu::may_alias]] =
            Sample;
    Values values;
};

using Floats4 = TFour<float>::Values;
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

template <typename Sample>
[[gnu::always_inline]] inline TFour<Sample> magnitude(const TFour<Sample> &a) {
    using Bits = typename TFour<Sample>::Bits;
    constexpr auto allButSign = static_cast<typename TFour<Sample>::Word>(-1) >> 1;
    const Bits bits = reinterpret_cast<Bits>(a.values) & allButSign;
    return {reinterpret_cast<typename TFour<Sample>::Values>(bits)};
}

/// The larger of each lane; b's where they are equal or one is a NaN.
template <typename Sample>
[[gnu::always_inline]] inline TFour<Sample> larger(const TFour<Sample> &a, const TFour<Sample> &b) {
    return {a.values > b.values ? a.values : b.values};
}

/// Four frames of a recursion.
/// @param state  the result of the frame before; becomes that of the fourth.
/// @param next   (result of the frame before, input) -> result.
template <typename Sample, typename Next>
[[gnu::always_inline]] inline Floats4 recurFour(float &state, const TFour<Sample> &input,
                                                Next next) {
    const auto &in = input.values;
    const float first = next(state, in[0]), second = next(first, in[1]);
    const float third = next(second, in[2]), fourth = next(third, in[3]);
    state = fourth;
    return Floats4{first, second, third, fourth};
}
