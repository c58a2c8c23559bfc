#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace Tessitor::Tool {

/// 20 log10(amplitude); minus infinity for 0.
double decibels(double amplitude);

/// Peak and root mean square of all samples that it was given, 1.0 being full scale.
class CLevels {
public:
    void add(const float *samples, std::size_t count);
    void add(const double *samples, std::size_t count);

    double peak() const;
    double rms() const;  ///< 0 without samples

private:
    // Independent lanes, so that the compiler may use whole vectors without reordering any sum.
    static constexpr std::size_t lanes = 8;

    template <typename Sample>
    void addAll(const Sample *samples, std::size_t count);

    std::array<double, lanes> m_peaks{};
    std::array<double, lanes> m_squares{};
    std::uint64_t m_count = 0;
};

}  // namespace Tessitor::Tool
