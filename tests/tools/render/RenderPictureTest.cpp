#include "corvel/render/RenderPicture.h"

#include "tools/support/AudioFiles.h"
#include "tools/support/CPixels.h"

#include <gmock/gmock.h>

using namespace Tessitor::Tool;
using testing::HasSubstr;

namespace {

constexpr SPictureOptions png{EPictureFormat::Png, ETheme::Light, 1.0};

CSoundMeter meterOf(SSound sound, double gain, std::size_t frames) {
    for (double &sample : sound.samples)
        sample *= gain;
    CSoundMeter meter(44100, 2, {.loudness = true, .curves = true});
    meter.add(sound.samples.data(), frames);
    return meter;
}

std::string picture(double gain, const SPictureOptions &options = png,
                    std::size_t framesBefore = 5 * 44100) {
    const SSound sound = voice(1, 5 * 44100);
    CSoundMeter before = meterOf(sound, 0.2, framesBefore);
    CSoundMeter after = meterOf(sound, 0.2 * gain, 5 * 44100);
    const auto loudnessBefore = before.finishLoudness(), loudnessAfter = after.finishLoudness();
    return drawRender({before, loudnessBefore}, {after, loudnessAfter},
                      {"out.wav", "from in.wav, Plain"}, options);
}

int count(const CPixels &pixels, EInk ink, int left, int top, int right, int bottom) {
    return pixels.count(colourOf(ink, ETheme::Light), left, top, right, bottom);
}

/// @return the row of the lowest pixel of an ink, -1 for none. Legends do not count.
int lowest(const CPixels &pixels, EInk ink, int column) {
    for (int row = pixels.height() - 1; row >= 0; --row)
        if (pixels.at(column, row) == colourOf(ink, ETheme::Light))
            return row;
    return -1;
}

}  // namespace

TEST(RenderPicture, ShowsBothWaveformsAboveEachOther) {
    const CPixels pixels(picture(2.0));
    const int middle = 70 + 34 + 130 + 5;  // between both
    EXPECT_GT(count(pixels, EInk::Blue, 70, 104, 1180, middle), 1000);
    EXPECT_EQ(count(pixels, EInk::Orange, 70, 104, 1180, middle), 0);
    EXPECT_GT(count(pixels, EInk::Orange, 70, middle, 1180, middle + 170),
              count(pixels, EInk::Blue, 70, 104, 1180, middle));
}

TEST(RenderPicture, TheDifferenceRisesWithTheGain) {
    constexpr int column = 600;
    const CPixels same(picture(1.0)), louder(picture(2.0)), quieter(picture(0.5));
    const int zero = lowest(same, EInk::Green, column);
    EXPECT_GT(zero, 740);
    EXPECT_LT(lowest(louder, EInk::Green, column), zero);
    EXPECT_GT(lowest(quieter, EInk::Green, column), zero);
}

TEST(RenderPicture, BothCurvesOfTheLoudnessAreDrawn) {
    const CPixels pixels(picture(2.0));
    EXPECT_GT(count(pixels, EInk::Blue, 70, 460, 1180, 690), 500);
    EXPECT_GT(count(pixels, EInk::Orange, 70, 460, 1180, 690), 500);
    EXPECT_LT(lowest(pixels, EInk::Orange, 600), lowest(pixels, EInk::Blue, 600));
}

TEST(RenderPicture, AShorterSideEndsInTime) {
    const CPixels pixels(picture(1.0, png, 44100));  // a second of five
    EXPECT_GT(count(pixels, EInk::Blue, 70, 104, 290, 234), 200);
    EXPECT_EQ(count(pixels, EInk::Blue, 300, 104, 1180, 234), 0);
    EXPECT_GT(count(pixels, EInk::Orange, 300, 278, 1180, 408), 200);
}

TEST(RenderPicture, NothingAtAllCanBeDrawn) {
    CSoundMeter before = meterOf(voice(1, 0), 1.0, 0), after = meterOf(voice(1, 0), 1.0, 0);
    const auto loudness = before.finishLoudness();
    const CPixels pixels(drawRender({before, loudness}, {after, loudness}, {"", ""}, png));
    EXPECT_EQ(count(pixels, EInk::Green, 70, 760, 1180, 900), 0);
    EXPECT_EQ(pixels.width(), 1200);
}

TEST(RenderPicture, AnSvgNamesTheFiles) {
    const std::string svg = picture(2.0, {EPictureFormat::Svg, ETheme::Viewer, 1.0});
    EXPECT_THAT(svg, HasSubstr("<title>out.wav</title>"));
    EXPECT_THAT(svg, HasSubstr("<desc>from in.wav, Plain: waveform and loudness before and after"));
    EXPECT_THAT(svg, HasSubstr("prefers-color-scheme: dark"));
    EXPECT_LT(svg.size(), 400000u);
}
