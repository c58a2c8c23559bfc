#include "corvel/audio/CWaveform.h"

#include "tools/support/AudioFiles.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

using Tessitor::Tool::CWaveform;

TEST(CWaveform, ABinHasTheExtremesAndThePowerOfAllChannels) {
    std::vector<double> samples(2 * 16, 0.25);
    samples[5] = 0.75;
    samples[6] = -0.5;
    CWaveform waveform(2);
    waveform.add(samples.data(), 16);
    ASSERT_EQ(waveform.bins().size(), 1u);
    const CWaveform::SBin &bin = waveform.bins()[0];
    EXPECT_EQ(bin.lowest, -0.5);
    EXPECT_EQ(bin.highest, 0.75);
    EXPECT_NEAR(bin.rms(), std::sqrt((30 * 0.0625 + 0.5625 + 0.25) / 32.0), 1e-12);
}

TEST(CWaveform, WithoutSoundThereAreNoBins) {
    EXPECT_TRUE(CWaveform(2).bins().empty());
    EXPECT_EQ(CWaveform::SBin().rms(), 0.0);
}

TEST(CWaveform, SamplesThatAreNotFiniteAreLeftOut) {
    const std::vector<float> samples = {0.5f, std::numeric_limits<float>::quiet_NaN(),
                                        std::numeric_limits<float>::infinity(), -0.5f};
    CWaveform waveform(1);
    waveform.add(samples.data(), 4);
    EXPECT_EQ(waveform.bins()[0].highest, 0.5);
    EXPECT_EQ(waveform.bins()[0].lowest, -0.5);
    EXPECT_EQ(waveform.bins()[0].rms(), 0.5);
}

class CWaveformLengths : public testing::TestWithParam<std::size_t> {};

TEST_P(CWaveformLengths, EverySampleIsInItsBin) {
    const std::size_t frames = GetParam();
    SSound sound = voice(3, frames);
    CWaveform waveform(2);
    for (std::size_t done = 0; done < frames; done += 777)
        waveform.add(sound.samples.data() + 2 * done, std::min<std::size_t>(777, frames - done));
    ASSERT_LE(waveform.bins().size(), CWaveform::mostBins);
    const std::size_t binSamples = 2 * waveform.binFrames();
    ASSERT_EQ(waveform.bins().size(), (2 * frames + binSamples - 1) / binSamples);
    for (std::size_t i = 0; i < waveform.bins().size(); ++i) {
        const auto begin = sound.samples.begin() + static_cast<std::ptrdiff_t>(i * binSamples);
        const auto end =
            std::min(sound.samples.end(), begin + static_cast<std::ptrdiff_t>(binSamples));
        double squares = 0.0;
        std::for_each(begin, end, [&](double sample) { squares += sample * sample; });
        const CWaveform::SBin &bin = waveform.bins()[i];
        EXPECT_EQ(bin.lowest, std::min(0.0, *std::min_element(begin, end))) << i;
        EXPECT_EQ(bin.highest, std::max(0.0, *std::max_element(begin, end))) << i;
        EXPECT_EQ(bin.samples, static_cast<std::size_t>(end - begin)) << i;
        EXPECT_NEAR(bin.squares, squares, 1e-9) << i;
    }
}
INSTANTIATE_TEST_SUITE_P(Frames, CWaveformLengths,
                         testing::Values(1, 16, 17, 15999, 16000, 16001, 32000, 100003));
