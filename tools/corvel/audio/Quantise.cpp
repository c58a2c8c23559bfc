#include "corvel/audio/Quantise.h"

#include <cmath>

namespace Tessitor::Tool {

namespace {

template <typename Sample>
std::uint64_t quantiseAll(const Sample *samples, std::size_t count, int bits,
                          std::int32_t *integers) {
    const double scale = std::ldexp(1.0, bits - 1);
    const double lowest = -scale, highest = scale - 1.0;
    const int shift = 32 - bits;
    std::uint64_t clipped = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const double exact = samples[i] * scale;
        const bool above = exact >= highest + 0.5;
        const bool below = !(exact > lowest - 0.5);  // true for a NaN
        clipped += above || below ? 1 : 0;
        const double kept = above ? highest : below ? lowest : exact;
        // Adds half a step and truncates: the compiler vectorises that, but not lrint().
        const auto rounded = static_cast<std::int32_t>(kept + (kept < 0.0 ? -0.5 : 0.5));
        integers[i] = static_cast<std::int32_t>(static_cast<std::uint32_t>(rounded) << shift);
    }
    return clipped;
}

}  // namespace

std::uint64_t quantise(const float *samples, std::size_t count, int bits, std::int32_t *integers) {
    return quantiseAll(samples, count, bits, integers);
}

std::uint64_t quantise(const double *samples, std::size_t count, int bits, std::int32_t *integers) {
    return quantiseAll(samples, count, bits, integers);
}

}  // namespace Tessitor::Tool
