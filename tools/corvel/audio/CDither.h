#pragma once

#include <cstddef>
#include <cstdint>

namespace Tessitor::Tool {

/// Adds TPDF dither: noise with a triangular density between -1 and +1 step of the output, new for
/// each sample. After rounding, the error has no mean and a variance of 1/4 step squared, whatever
/// the signal. Every dither is the same noise, so the same sound gives the same file.
class CDither {
public:
    /// @param bits  of the integers that the samples are rounded to; 1.0 is 2^(bits - 1) steps.
    explicit CDither(int bits);

    void add(const float *samples, std::size_t count, double *dithered);
    void add(const double *samples, std::size_t count, double *dithered);

private:
    template <typename Sample>
    void addAll(const Sample *samples, std::size_t count, double *dithered);
    std::uint64_t random();

    double m_unit;                               // 2^-32 steps
    std::uint64_t m_state = 0x436f7276656c2131;  // the seed: "Corvel!1"
};

}  // namespace Tessitor::Tool
