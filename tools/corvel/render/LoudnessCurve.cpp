#include "corvel/render/LoudnessCurve.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Tessitor::Tool {

namespace {

constexpr double hopSeconds = 0.1;
constexpr double quietest = -70.0;  // LUFS; the absolute gate of the loudness
constexpr double none = std::numeric_limits<double>::quiet_NaN();
constexpr std::size_t mostPoints = 1200;

}  // namespace

std::size_t valuesPerPoint(std::size_t values) {
    return std::max<std::size_t>(1, (values + mostPoints - 1) / mostPoints);
}

LoudnessCurve loudnessCurve(const std::vector<float> &shortTerm, std::size_t together) {
    LoudnessCurve curve;
    for (std::size_t begin = 0; begin < shortTerm.size(); begin += together) {
        const std::size_t end = std::min(shortTerm.size(), begin + together);
        double energy = 0.0;
        for (std::size_t i = begin; i < end; ++i)
            energy += std::pow(10.0, static_cast<double>(shortTerm[i]) / 10.0);
        const double loudness = 10.0 * std::log10(energy / static_cast<double>(end - begin));
        curve.push_back(
            {static_cast<double>(end) * hopSeconds, loudness >= quietest ? loudness : none});
    }
    return curve;
}

LoudnessCurve difference(const LoudnessCurve &before, const LoudnessCurve &after) {
    LoudnessCurve curve;
    for (std::size_t i = 0; i < std::min(before.size(), after.size()); ++i)
        curve.push_back({after[i].x, after[i].y - before[i].y});
    return curve;
}

}  // namespace Tessitor::Tool
