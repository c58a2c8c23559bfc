#include "corvel/plot/Fourier.h"

#include <numbers>
#include <utility>

namespace Tessitor::Tool {

namespace {

void reverseOrder(std::vector<std::complex<double>> &values) {
    for (std::size_t i = 1, j = 0; i < values.size(); ++i) {
        std::size_t bit = values.size() >> 1;
        for (; (j & bit) != 0; bit >>= 1)
            j ^= bit;
        j ^= bit;
        if (i < j)
            std::swap(values[i], values[j]);
    }
}

}  // namespace

// Radix 2, decimation in time
void transform(std::vector<std::complex<double>> &values) {
    const std::size_t count = values.size();
    std::vector<std::complex<double>> turns(count / 2);
    for (std::size_t k = 0; k < turns.size(); ++k)
        turns[k] = std::polar(1.0, -2.0 * std::numbers::pi * static_cast<double>(k) /
                                       static_cast<double>(count));
    reverseOrder(values);
    for (std::size_t half = 1; half < count; half *= 2) {
        for (std::size_t begin = 0; begin < count; begin += 2 * half) {
            for (std::size_t k = 0; k < half; ++k) {
                const auto &turn = turns[k * (count / 2 / half)];
                const auto &value = values[begin + half + k];
                const std::complex<double> turned{
                    value.real() * turn.real() - value.imag() * turn.imag(),
                    value.real() * turn.imag() + value.imag() * turn.real()};
                values[begin + half + k] = values[begin + k] - turned;
                values[begin + k] += turned;
            }
        }
    }
}

}  // namespace Tessitor::Tool
