#include "corvel/plot/PinkNoise.h"

#include "corvel/plot/Fourier.h"
#include "corvel/plot/StereoSound.h"

#include <cmath>
#include <numbers>
#include <random>

namespace Tessitor::Tool {

std::vector<float> pinkNoise(std::size_t period, double low, double high, double level) {
    const double spacing = probeRate / static_cast<double>(period);
    const auto first = static_cast<std::size_t>(std::ceil(low / spacing));
    const auto last = static_cast<std::size_t>(high / spacing);
    // Not a distribution of the standard library: those differ from one system to another.
    std::mt19937 random(1);
    std::vector<std::complex<double>> values(period);
    double power = 0.0;
    for (std::size_t k = first; k <= last; ++k) {
        const double amplitude = 1.0 / std::sqrt(static_cast<double>(k));
        const double phase = 2.0 * std::numbers::pi * static_cast<double>(random()) / 0x1p32;
        values[k] = std::polar(amplitude, phase);
        power += amplitude * amplitude / 2.0;
    }
    transform(values);
    const double scale = std::sqrt(std::pow(10.0, level / 10.0) / power);
    std::vector<float> samples(period);
    for (std::size_t i = 0; i < period; ++i)
        samples[i] = static_cast<float>(scale * values[i].real());
    return samples;
}

}  // namespace Tessitor::Tool
