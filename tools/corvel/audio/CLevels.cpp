#include "corvel/audio/CLevels.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

namespace Tessitor::Tool {

namespace {

// Each lane has its own sum, so the compiler can vectorise without reordering additions.
constexpr std::size_t lanes = 8;

}  // namespace

double decibels(double amplitude) {
    return 20.0 * std::log10(amplitude);
}

template <typename Sample>
void CLevels::addAll(const Sample *samples, std::size_t count) {
    std::array<Sample, lanes> peaks{};
    std::array<double, lanes> squares{};
    const auto take = [&](std::size_t lane, Sample sample) {
        const Sample size = std::abs(sample);
        peaks[lane] = size > peaks[lane] ? size : peaks[lane];
        squares[lane] += static_cast<double>(sample) * static_cast<double>(sample);
    };
    std::size_t i = 0;
    for (; i + lanes <= count; i += lanes)
        for (std::size_t lane = 0; lane < lanes; ++lane)
            take(lane, samples[i + lane]);
    for (; i < count; ++i)
        take(i % lanes, samples[i]);

    for (const Sample peak : peaks)
        m_peak = std::max(m_peak, static_cast<double>(peak));
    m_squares = std::accumulate(squares.begin(), squares.end(), m_squares);
    m_count += count;
}

void CLevels::add(const float *samples, std::size_t count) {
    addAll(samples, count);
}

void CLevels::add(const double *samples, std::size_t count) {
    addAll(samples, count);
}

double CLevels::rms() const {
    if (m_count == 0)
        return 0.0;
    return std::sqrt(m_squares / static_cast<double>(m_count));
}

}  // namespace Tessitor::Tool
