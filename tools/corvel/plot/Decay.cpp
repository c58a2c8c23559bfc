#include "corvel/plot/Decay.h"

#include "corvel/plot/PinkNoise.h"
#include "corvel/plot/StereoSound.h"

#include <algorithm>
#include <cmath>

namespace Tessitor::Tool {

namespace {

constexpr std::size_t noisePeriod = 65536, burstFrames = 2 * noisePeriod;
constexpr std::size_t restFrames = std::size_t{longestTail} * probeRate;
constexpr std::size_t binFrames = 441;  // 10 ms, the resolution of the curve
constexpr std::size_t binsIn50ms = 5;
// Lower noise would leave a high-pass filter with a thump.
constexpr double lowest = 100.0, highest = 15000.0;    // Hz
constexpr double shallowest = -25.0, deepest = -35.0;  // dB, to where a line is fitted
constexpr double leastTail = 1e-6;                     // of the loudest 50 ms of the sound

std::vector<float> burst(double level) {
    std::vector<float> samples = pinkNoise(noisePeriod, lowest, highest, level);
    samples.resize(burstFrames);
    std::copy_n(samples.begin(), noisePeriod, samples.begin() + noisePeriod);
    return samples;
}

// Of both outputs together, in bins of 10 ms
std::vector<double> energiesOf(const BothSides<float> &sound, std::size_t begin) {
    std::vector<double> energies;
    for (; begin + binFrames <= sound[0].size(); begin += binFrames)
        energies.push_back(binFrames * (meanPower(std::span(sound[0]).subspan(begin, binFrames)) +
                                        meanPower(std::span(sound[1]).subspan(begin, binFrames))));
    return energies;
}

// At the beginning of each bin, what is in it and after it
std::vector<double> sumsFromBehind(const std::vector<double> &energies) {
    std::vector<double> sums(energies);
    for (std::size_t i = sums.size() - 1; i-- > 0;)
        sums[i] += sums[i + 1];
    return sums;
}

double loudest50ms(const std::vector<double> &energies) {
    double loudest = 0.0;
    for (std::size_t i = 0; i + binsIn50ms <= energies.size(); ++i) {
        double sum = 0.0;
        for (std::size_t bin = i; bin < i + binsIn50ms; ++bin)
            sum += energies[bin];
        loudest = std::max(loudest, sum);
    }
    return loudest;
}

// The least squares line
std::optional<SDecayFit> fitted(const SDecay &decay, double from, double to) {
    double count = 0.0, sumX = 0.0, sumY = 0.0, sumXX = 0.0, sumXY = 0.0;
    for (std::size_t i = 0; i < decay.seconds.size(); ++i) {
        const double x = decay.seconds[i], y = decay.energies[i];
        if (y > from || y < to)
            continue;
        count += 1.0;
        sumX += x;
        sumY += y;
        sumXX += x * x;
        sumXY += x * y;
    }
    constexpr double fewest = 3.0;
    if (count < fewest)
        return {};
    const double slope = (count * sumXY - sumX * sumY) / (count * sumXX - sumX * sumX);
    return SDecayFit{from, to, (sumY - slope * sumX) / count, -60.0 / slope};
}

// Close to the end of the measurement the curve falls since the measurement ends, not the sound.
double lastTrusted(const SDecay &decay) {
    constexpr double margin = 10.0;
    return decay.energies[decay.energies.size() * 9 / 10] + margin;
}

void fit(SDecay &decay) {
    constexpr double from = -5.0;
    decay.tail = ETail::Decays;
    for (const double to : {shallowest, deepest})
        if (lastTrusted(decay) < to)
            decay.fit = fitted(decay, from, to);
    const auto faded = std::find_if(decay.energies.begin(), decay.energies.end(),
                                    [](double energy) { return energy < -60.0; });
    if (lastTrusted(decay) < -60.0)
        decay.secondsTo60 = decay.seconds[static_cast<std::size_t>(faded - decay.energies.begin())];
}

// @param before, after  energies of what came out before and after the end of the burst.
SDecay decayFrom(const std::vector<double> &before, const std::vector<double> &after) {
    const std::vector<double> sums = sumsFromBehind(after);
    const double sound = loudest50ms(before);
    if (!std::isfinite(sumsFromBehind(before)[0]) || !std::isfinite(sums[0]) || sound == 0.0)
        return {};
    if (sums[binsIn50ms] <= leastTail * sound)
        return {.tail = ETail::None};

    SDecay decay;
    for (std::size_t i = 0; i < sums.size(); ++i) {
        decay.seconds.push_back(static_cast<double>(i * binFrames) / probeRate);
        decay.energies.push_back(decibelsOfPower(sums[i] / sums[0]));
    }
    decay.tailLevel = decibelsOfPower(loudest50ms(after) / sound);
    if (lastTrusted(decay) >= shallowest)
        return {.tail = ETail::Persists, .tailLevel = decay.tailLevel};
    fit(decay);
    return decay;
}

}  // namespace

SDecay measureDecay(const CSubject &subject, double level) {
    const auto effect = subject.start();
    const auto latency = static_cast<std::size_t>(std::max(0, effect->record().initialDelay));
    const BothSides<float> sound = passThrough(*effect, burst(level));
    const BothSides<float> rest = passThrough(*effect, std::vector<float>(restFrames + latency));
    return decayFrom(energiesOf(sound, burstFrames - noisePeriod), energiesOf(rest, latency));
}

}  // namespace Tessitor::Tool
