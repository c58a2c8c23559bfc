#include "corvel/CLevels.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace Tessitor::Tool {

double decibels(double amplitude) {
    return 20.0 * std::log10(amplitude);
}

template <typename Sample>
void CLevels::addAll(const Sample *samples, std::size_t count) {
    std::array<double, lanes> peaks = m_peaks, squares = m_squares;
    const auto take = [&](std::size_t lane, double sample) {
        const double size = std::abs(sample);
        peaks[lane] = size > peaks[lane] ? size : peaks[lane];
        squares[lane] += sample * sample;
    };
    std::size_t i = 0;
    for (; i + lanes <= count; i += lanes)
        for (std::size_t lane = 0; lane < lanes; ++lane)
            take(lane, samples[i + lane]);
    for (; i < count; ++i)
        take(i % lanes, samples[i]);
    m_peaks = peaks;
    m_squares = squares;
    m_count += count;
}

void CLevels::add(const float *samples, std::size_t count) {
    addAll(samples, count);
}

void CLevels::add(const double *samples, std::size_t count) {
    addAll(samples, count);
}

double CLevels::peak() const {
    return *std::max_element(m_peaks.begin(), m_peaks.end());
}

double CLevels::rms() const {
    if (m_count == 0)
        return 0.0;
    const double sum = std::accumulate(m_squares.begin(), m_squares.end(), 0.0);
    return std::sqrt(sum / static_cast<double>(m_count));
}

}  // namespace Tessitor::Tool
