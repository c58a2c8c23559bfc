#include "corvel/audio/CResampler.h"

#include "corvel/console/Errors.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>
#include <vector>

using namespace Tessitor::Tool;

namespace {

std::vector<float> sine(double frequency, double rate, std::size_t frames, std::size_t channels) {
    std::vector<float> samples;
    for (std::size_t i = 0; i < frames; ++i)
        for (std::size_t channel = 0; channel < channels; ++channel)
            samples.push_back(static_cast<float>(
                0.5 * std::sin(2.0 * std::numbers::pi * frequency * static_cast<double>(i) / rate +
                               static_cast<double>(channel))));
    return samples;
}

template <typename Sample>
std::vector<Sample> convertInPieces(CResampler &resampler, const std::vector<Sample> &samples,
                                    std::size_t piece) {
    std::vector<Sample> all;
    for (std::size_t done = 0; done < samples.size(); done += piece) {
        const std::size_t length = std::min(piece, samples.size() - done);
        const auto ready =
            resampler.convert(std::span<const Sample>(samples.data() + done, length));
        all.insert(all.end(), ready.begin(), ready.end());
    }
    return all;
}

}  // namespace

TEST(CResampler, ASineKeepsItsPositionInTime) {
    CResampler resampler("file", 48000.0, 44100.0, 2);
    const std::vector<float> converted =
        convertInPieces(resampler, sine(1000.0, 48000.0, 48000, 2), 2 * 1024);
    const std::vector<float> expected = sine(1000.0, 44100.0, 44100, 2);
    ASSERT_GT(converted.size(), 2u * 43000);
    ASSERT_LE(converted.size(), expected.size());
    for (std::size_t i = 2000; i < converted.size(); ++i)
        ASSERT_NEAR(converted[i], expected[i], 1e-4) << i;
}

TEST(CResampler, TheLengthOfThePiecesDoesNotMatter) {
    const std::vector<float> samples = sine(700.0, 8000.0, 8000, 1);
    CResampler whole("file", 8000.0, 44100.0, 1), pieces("file", 8000.0, 44100.0, 1);
    const std::vector<float> fromWhole = convertInPieces(whole, samples, samples.size());
    const std::vector<float> fromPieces = convertInPieces(pieces, samples, 77);
    EXPECT_EQ(fromPieces, fromWhole);
}

TEST(CResampler, DoublesGoThroughSinglePrecision) {
    const std::vector<float> samples = sine(700.0, 96000.0, 5000, 2);
    CResampler single("file", 96000.0, 44100.0, 2), twofold("file", 96000.0, 44100.0, 2);
    const std::vector<float> fromFloats = convertInPieces(single, samples, 1000);
    const std::vector<double> fromDoubles =
        convertInPieces(twofold, std::vector<double>(samples.begin(), samples.end()), 1000);
    EXPECT_EQ(std::vector<double>(fromFloats.begin(), fromFloats.end()), fromDoubles);
}

TEST(CResampler, NoInputGivesNoOutput) {
    CResampler resampler("file", 48000.0, 44100.0, 2);
    EXPECT_TRUE(resampler.convert(std::span<const float>()).empty());
}

TEST(CResampler, RatesTooFarApartAreRefused) {
    EXPECT_THROW(CResampler("file", 1.0, 44100.0, 2), CJobError);
}
