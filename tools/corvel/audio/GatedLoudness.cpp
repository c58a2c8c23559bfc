#include "corvel/audio/GatedLoudness.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Tessitor::Tool {

namespace {

constexpr double absoluteGate = -70.0;  // LUFS
constexpr double relativeGate = -10.0;  // LU below the blocks that pass the absolute gate

double energyOf(double loudness) {
    return std::pow(10.0, loudness / 10.0);
}

std::optional<double> meanFrom(double gate, const std::vector<double> &blocks) {
    double sum = 0.0;
    std::size_t count = 0;
    for (const double block : blocks) {
        if (block >= gate) {
            sum += energyOf(block);
            ++count;
        }
    }
    if (count == 0)
        return {};
    return 10.0 * std::log10(sum / static_cast<double>(count));
}

}  // namespace

// The gates move down instead of the blocks up.
// Source: ITU-R BS.1770-4, annex 1, gating.
std::optional<double> gatedLoudness(const std::vector<double> &blocks, double gain) {
    const double lowest = absoluteGate - gain;
    const auto ungated = meanFrom(lowest, blocks);
    if (!ungated)
        return {};
    return *meanFrom(std::max(lowest, *ungated + relativeGate), blocks) + gain;
}

std::optional<double> gainForLoudness(const std::vector<double> &blocks, double target) {
    const auto loudness = gatedLoudness(blocks, 0.0);
    if (!loudness)
        return {};
    double gain = target - *loudness, best = gain;
    double smallest = std::numeric_limits<double>::infinity();
    // Each step moves few blocks across the gate, so this ends soon. It may also go back and forth
    // between two gains.
    for (int step = 0; step < 20; ++step) {
        const auto reached = gatedLoudness(blocks, gain);
        if (!reached)
            break;
        const double missing = target - *reached;
        if (std::abs(missing) < smallest) {
            smallest = std::abs(missing);
            best = gain;
        }
        if (smallest < 1e-9)
            break;
        gain += missing;
    }
    return best;
}

}  // namespace Tessitor::Tool
