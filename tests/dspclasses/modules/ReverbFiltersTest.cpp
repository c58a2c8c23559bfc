#include "dspclasses/modules/ReverbFilters.h"

#include "dspclasses/support/Signals.h"

#include <gtest/gtest.h>

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
    CWallTicker ticker(gains, stored);
    const std::vector<double> signal = makeChannel(ESignal::Mixed, 2, 20000);
    for (std::size_t i = 0; i + 4 <= signal.size(); i += 4) {
        const auto end = [&](int k) {
            return static_cast<float>(signal[i + static_cast<std::size_t>(k)]);
        };
        float damped[reverbLines];
        storeFour(damped, ticker.tick(perLine(end)));
        for (int k = 0; k < reverbLines; ++k)
            ASSERT_TRUE(sameBits(damped[k], ticked[k].tick(end(k) * gains[k]))) << k;
    }
    ticker.storeState(stored);
    for (int k = 0; k < reverbLines; ++k)
        EXPECT_TRUE(sameBits(stored[k].getState(), ticked[k].getState())) << k;
}
