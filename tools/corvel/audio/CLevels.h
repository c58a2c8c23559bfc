#pragma once

#include <cstddef>
#include <cstdint>

namespace Tessitor::Tool {

/// 20 log10(amplitude); minus infinity for 0.
double decibels(double amplitude);

/// Peak and root mean square of all samples added; 1.0 is full scale.
class CLevels {
public:
    void add(const float *samples, std::size_t count);
    void add(const double *samples, std::size_t count);

    double peak() const { return m_peak; }
    double rms() const;  ///< 0 without samples

private:
    template <typename Sample>
    void addAll(const Sample *samples, std::size_t count);

    double m_peak = 0.0;
    double m_squares = 0.0;  // sum of the squared samples
    std::uint64_t m_count = 0;
};

}  // namespace Tessitor::Tool
