#include "corvel/plot/StereoSound.h"

#include <algorithm>
#include <cmath>

namespace Tessitor::Tool {

BothSides<float> passThrough(CEffectInstance &effect, std::span<const float> signal) {
    BothSides<float> out;
    out[0].resize(signal.size());
    out[1].resize(signal.size());
    std::vector<float> left(probeBlock), right(probeBlock);
    for (std::size_t done = 0; done < signal.size(); done += probeBlock) {
        const std::size_t frames = std::min<std::size_t>(probeBlock, signal.size() - done);
        const auto block = signal.subspan(done, frames);
        std::copy(block.begin(), block.end(), left.begin());
        std::copy(block.begin(), block.end(), right.begin());
        float *ins[] = {left.data(), right.data()};
        float *outs[] = {out[0].data() + done, out[1].data() + done};
        effect.process(ins, outs, static_cast<std::int32_t>(frames));
    }
    return out;
}

double decibelsOfPower(double power) {
    return 10.0 * std::log10(power);
}

double meanPower(std::span<const float> samples) {
    double sum = 0.0;
    for (const float sample : samples)
        sum += static_cast<double>(sample) * static_cast<double>(sample);
    return samples.empty() ? 0.0 : sum / static_cast<double>(samples.size());
}

}  // namespace Tessitor::Tool
