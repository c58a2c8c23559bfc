#include "corvel/plot/Response.h"

#include "corvel/plot/Fourier.h"
#include "corvel/plot/PinkNoise.h"

#include <algorithm>
#include <cmath>

namespace Tessitor::Tool {

namespace {

constexpr std::size_t period = 131072;  // frames
constexpr int settlingPeriods = 2, measuredPeriods = 2;
constexpr double low = 20.0, high = 20000.0;  // Hz
constexpr int bandsPerOctave = 12;

using Powers = std::vector<double>;  // by multiples of probeRate / period

// Adds the powers in one period of two signals, which one transform finds together: they are the
// real and the imaginary part.
void addPowers(std::span<const float> left, std::span<const float> right, Powers &leftPowers,
               Powers &rightPowers) {
    std::vector<std::complex<double>> values(period);
    for (std::size_t i = 0; i < period; ++i)
        values[i] = {static_cast<double>(left[i]), static_cast<double>(right[i])};
    transform(values);
    for (std::size_t k = 1; k < period / 2; ++k) {
        const std::complex<double> value = values[k], mirrored = std::conj(values[period - k]);
        leftPowers[k] += std::norm(value + mirrored) / 4.0;
        rightPowers[k] += std::norm(value - mirrored) / 4.0;
    }
}

double bandPower(const Powers &powers, double frequency) {
    constexpr double spacing = static_cast<double>(probeRate) / period;
    const double half = std::exp2(0.5 / bandsPerOctave);
    const auto nearest = static_cast<std::size_t>(std::lround(frequency / spacing));
    const auto first =
        std::min(nearest, static_cast<std::size_t>(std::ceil(frequency / half / spacing)));
    const auto last = std::max(nearest, static_cast<std::size_t>(frequency * half / spacing));
    double sum = 0.0;
    for (std::size_t k = first; k <= last; ++k)
        sum += powers[k];
    return sum;
}

// The transform rounds, which puts a little of one side into the other.
double gain(double ratio) {
    constexpr double rounding = 1e-20;
    return decibelsOfPower(ratio < rounding ? 0.0 : ratio);
}

std::vector<double> bandCentres() {
    const double octaves = std::log2(high / low);
    const int steps = static_cast<int>(std::ceil(octaves * bandsPerOctave));
    std::vector<double> centres;
    for (int step = 0; step <= steps; ++step)
        centres.push_back(low * std::exp2(octaves * step / steps));
    return centres;
}

}  // namespace

SResponse measureResponse(const CSubject &subject, double level) {
    const std::vector<float> noise = pinkNoise(period, low / 1.1, high * 1.1, level);
    const auto effect = subject.start();
    for (int i = 0; i < settlingPeriods; ++i)
        passThrough(*effect, noise);
    Powers in(period / 2), ignored(period / 2), left(period / 2), right(period / 2);
    addPowers(noise, noise, in, ignored);
    for (int i = 0; i < measuredPeriods; ++i) {
        const BothSides<float> out = passThrough(*effect, noise);
        addPowers(out[0], out[1], left, right);
    }

    SResponse response{bandCentres(), {}};
    for (const double frequency : response.frequencies) {
        const double reference = measuredPeriods * bandPower(in, frequency);
        response.gains[0].push_back(gain(bandPower(left, frequency) / reference));
        response.gains[1].push_back(gain(bandPower(right, frequency) / reference));
    }
    return response;
}

}  // namespace Tessitor::Tool
