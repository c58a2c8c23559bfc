#include "corvel/plot/LevelCurve.h"

#include "corvel/batch/Workers.h"

#include <cmath>
#include <exception>
#include <mutex>
#include <numbers>

namespace Tessitor::Tool {

namespace {

constexpr int quietest = -60, loudest = 0;  // dB

// Long enough for the slowest gate to open and for most of a long reverb to build up. What is
// missing of the reverb is missing at every level alike.
constexpr std::size_t settlingFrames = std::size_t{3} * probeRate, measuredFrames = probeRate;

std::vector<double> sine(double tone) {
    std::vector<double> samples(settlingFrames + measuredFrames);
    for (std::size_t i = 0; i < samples.size(); ++i)
        samples[i] = std::sin(2.0 * std::numbers::pi * tone * static_cast<double>(i) / probeRate);
    return samples;
}

std::vector<float> scaled(const std::vector<double> &samples, double level) {
    const double factor = std::pow(10.0, level / 20.0);
    std::vector<float> result;
    result.reserve(samples.size());
    for (const double sample : samples)
        result.push_back(static_cast<float>(factor * sample));
    return result;
}

}  // namespace

SLevelCurve measureLevelCurve(const CSubject &subject, double tone) {
    SLevelCurve curve;
    for (int level = quietest; level <= loudest; ++level)
        curve.in.push_back(level);
    for (std::vector<double> &side : curve.out)
        side.resize(curve.in.size());

    const std::vector<double> unit = sine(tone);
    std::mutex lock;
    std::exception_ptr failure;
    runInParallel(curve.in.size(), {}, [&](std::size_t index) {
        try {
            const auto effect = subject.start();
            const BothSides<float> out = passThrough(*effect, scaled(unit, curve.in[index]));
            for (std::size_t side = 0; side < 2; ++side) {
                const double power = meanPower(std::span(out[side]).subspan(settlingFrames));
                // The mean square of a full-scale sine is a half.
                curve.out[side][index] = decibelsOfPower(2.0 * power);
            }
        } catch (...) {
            const std::lock_guard guard(lock);
            failure = std::current_exception();
        }
    });
    if (failure)
        std::rethrow_exception(failure);
    return curve;
}

}  // namespace Tessitor::Tool
