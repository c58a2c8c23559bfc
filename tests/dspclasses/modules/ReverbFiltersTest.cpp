#include "dspclasses/modules/ReverbFilters.h"

#include "dspclasses/support/Signals.h"

#include <array>
#include <gtest/gtest.h>
#include <vector>

namespace {

CDSPOnePole makeFilter(float pole, float state) {
    CDSPOnePole filter;
    filter.setPole(pole);
    filter.setState(state);
    return filter;
}

}  // namespace

TEST(ReverbFilters, TheInputTickerEqualsItsFilter) {
    CDSPOnePole ticked = makeFilter(0.25f, 0.5f), stored = ticked;
    CInputTicker ticker(stored);
    for (const double sample : makeChannel(ESignal::Mixed, 1, 5000)) {
        const auto x = static_cast<float>(sample);
        ASSERT_TRUE(sameBits(ticker.tick(x), ticked.tick(x)));
    }
    ticker.storeState(stored);
    EXPECT_TRUE(sameBits(stored.getState(), ticked.getState()));
}

TEST(ReverbFilters, EachLaneOfTheWallTickerEqualsItsDamper) {
    CDSPOnePole ticked[] = {makeFilter(0.1f, 0.5f), makeFilter(0.4f, -0.5f), makeFilter(0.7f, 0.0f),
                            makeFilter(0.9f, 1.0f)};
    CDSPOnePole stored[] = {ticked[0], ticked[1], ticked[2], ticked[3]};
    const TRelaxed<float> gains[] = {-0.9f, -0.8f, -0.7f, -0.6f};
    std::array<std::vector<float>, reverbLines> samples;
    std::array<DelayLine::SRun, reverbLines> ends;
    const float fractions[] = {0.0f, 0.25f, 0.5f, 1.0f};
    for (std::size_t k = 0; k < ends.size(); ++k) {
        for (const double sample : makeChannel(ESignal::Mixed, 2 + k, 5001))
            samples[k].push_back(static_cast<float>(sample));
        ends[k] = {samples[k].data() + 1, fractions[k], 5000};
    }
    CWallTicker ticker(ends, gains, stored);
    for (int i = 0; i < 5000; ++i) {
        float damped[reverbLines];
        storeFour(damped, ticker.tick(i));
        for (int k = 0; k < reverbLines; ++k) {
            const float *newer = ends[static_cast<std::size_t>(k)].newer + i;
            const float end = (newer[-1] - newer[0]) * fractions[k] + newer[0];
            ASSERT_TRUE(sameBits(damped[k], ticked[k].tick(end * gains[k]))) << k;
        }
    }
    ticker.storeState(stored);
    for (int k = 0; k < reverbLines; ++k)
        EXPECT_TRUE(sameBits(stored[k].getState(), ticked[k].getState())) << k;
}
