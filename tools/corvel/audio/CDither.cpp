#include "corvel/audio/CDither.h"

#include <cmath>

namespace Tessitor::Tool {

CDither::CDither(int bits) : m_unit(std::ldexp(1.0, 1 - bits - 32)) {}

void CDither::add(const float *samples, std::size_t count, double *dithered) {
    addAll(samples, count, dithered);
}

void CDither::add(const double *samples, std::size_t count, double *dithered) {
    addAll(samples, count, dithered);
}

// The difference of two uniform numbers has a triangular density.
template <typename Sample>
void CDither::addAll(const Sample *samples, std::size_t count, double *dithered) {
    for (std::size_t i = 0; i < count; ++i) {
        const std::uint64_t bits = random();
        const auto first = static_cast<double>(bits >> 32);
        const auto second = static_cast<double>(bits & 0xffffffff);
        dithered[i] = static_cast<double>(samples[i]) + (first - second) * m_unit;
    }
}

// Source: SplitMix64, in G. Steele, D. Lea, C. Flood, Fast splittable pseudorandom number
// generators, 2014.
std::uint64_t CDither::random() {
    m_state += 0x9e3779b97f4a7c15;
    std::uint64_t mixed = m_state;
    mixed = (mixed ^ mixed >> 30) * 0xbf58476d1ce4e5b9;
    mixed = (mixed ^ mixed >> 27) * 0x94d049bb133111eb;
    return mixed ^ mixed >> 31;
}

}  // namespace Tessitor::Tool
