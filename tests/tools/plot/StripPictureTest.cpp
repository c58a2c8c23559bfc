#include "corvel/plot/StripPicture.h"

#include "tools/support/CPixels.h"

#include <cmath>
#include <gmock/gmock.h>

using namespace Tessitor::Tool;
using testing::HasSubstr;

namespace {

constexpr SPictureOptions png{EPictureFormat::Png, ETheme::Light, 1.0};

// The parts of a picture of 1200 x 900
constexpr SRectangle response{64.0, 130.0, 1118.0, 306.0};
constexpr SRectangle levels{64.0, 524.0, 458.0, 318.0};
constexpr SRectangle decay{604.0, 524.0, 578.0, 318.0};

SMeasurement plainMeasurement() {
    SMeasurement measurement{"Corvel", 1, "Mine", "Pan, Gain", "Pan 100:0", {}, {}, {}, {}};
    measurement.response = {{20.0, 1000.0, 20000.0}, {{{-3.5, -3.5, -3.5}, {-3.5, -3.5, -3.5}}}};
    measurement.levels = {{-60.0, 0.0}, {{{-57.5, 2.5}, {-57.5, 2.5}}}};
    measurement.decay.tail = ETail::None;
    return measurement;
}

int pixelsOf(EInk ink, const CPixels &pixels, const SRectangle &area) {
    return pixels.count(colourOf(ink, ETheme::Light), static_cast<int>(area.x),
                        static_cast<int>(area.y), static_cast<int>(area.right()),
                        static_cast<int>(area.bottom()));
}

}  // namespace

TEST(StripPicture, EqualSidesShareALine) {
    const CPixels pixels(drawStrip(plainMeasurement(), png));
    EXPECT_EQ(pixels.width(), 1200);
    EXPECT_EQ(pixels.height(), 900);
    for (const SRectangle &part : {response, levels}) {
        EXPECT_GT(pixelsOf(EInk::Blue, pixels, part), 400);
        EXPECT_EQ(pixelsOf(EInk::Orange, pixels, part), 0);
    }
    EXPECT_EQ(pixelsOf(EInk::Blue, pixels, decay), 0);
}

TEST(StripPicture, SidesThatDifferHaveTheirOwnLines) {
    SMeasurement measurement = plainMeasurement();
    measurement.response.gains[1] = {-9.5, -9.5, -9.5};
    measurement.levels.out[1] = {-50.0, 0.0};
    const CPixels pixels(drawStrip(measurement, png));
    for (const SRectangle &part : {response, levels}) {
        EXPECT_GT(pixelsOf(EInk::Blue, pixels, part), 400);
        EXPECT_GT(pixelsOf(EInk::Orange, pixels, part), 150);
    }
}

TEST(StripPicture, ADeepNotchDoesNotFlattenTheRest) {
    SMeasurement measurement = plainMeasurement();
    for (std::vector<double> &side : measurement.response.gains)
        side = {-200.0, 0.0, 0.0};
    const CPixels pixels(drawStrip(measurement, png));
    // Sixty decibels are shown, from 6 dB down.
    const double zero = response.y + response.height / 10.0;
    EXPECT_EQ(pixels.at(1000, static_cast<int>(zero)), colourOf(EInk::Blue, ETheme::Light));
    EXPECT_EQ(pixelsOf(EInk::Blue, pixels, {800.0, zero + 6.0, 300.0, 200.0}), 0);
}

TEST(StripPicture, LongNamesStayInsideThePicture) {
    SMeasurement measurement = plainMeasurement();
    measurement.program = std::string(200, 'M');
    measurement.chain = std::string(500, 'c');
    measurement.settings = std::string(500, 's');
    const std::string bytes = drawStrip(measurement, png);
    const CPixels pixels(bytes);
    const Colour paper = colourOf(EInk::Paper, ETheme::Light);
    constexpr int head = 92, width = 1200, edge = 18;
    EXPECT_EQ(pixels.count(paper, width - edge, 0, width, head), edge * head);
    EXPECT_LT(pixels.count(paper, width - 200, 50, width, head), 200 * (head - 50));
    // The effect and its version are to the right of the name.
    EXPECT_EQ(pixels.count(paper, 1040, 20, 1058, 44), 18 * 24);
}

TEST(StripPicture, SilenceIsSaidAndNotDrawn) {
    SMeasurement measurement = plainMeasurement();
    const std::vector<double> silence(3, -HUGE_VAL);
    measurement.response.gains = {silence, silence};
    const CPixels pixels(drawStrip(measurement, png));
    EXPECT_EQ(pixelsOf(EInk::Blue, pixels, response), 0);
    EXPECT_GT(pixelsOf(EInk::Text, pixels, response), 20);
}

TEST(StripPicture, TheDecayHasItsLineAndItsFit) {
    SMeasurement measurement = plainMeasurement();
    SDecay &tail = measurement.decay;
    tail.tail = ETail::Decays;
    for (int i = 0; i < 100; ++i) {
        tail.seconds.push_back(0.01 * i);
        tail.energies.push_back(-0.8 * i);
    }
    tail.secondsTo60 = 0.75;
    const SRectangle legend{660.0, 494.0, 300.0, 24.0};
    EXPECT_EQ(pixelsOf(EInk::Text, CPixels(drawStrip(measurement, png)), legend), 0);
    tail.fit = SDecayFit{-5.0, -35.0, -12.0, 0.75};
    const CPixels pixels(drawStrip(measurement, png));
    EXPECT_GT(pixelsOf(EInk::Blue, pixels, decay), 300);
    EXPECT_GT(pixelsOf(EInk::Text, pixels, decay), 100);
    EXPECT_GT(pixelsOf(EInk::Text, pixels, legend), 20);
}

TEST(StripPicture, EveryColourOfAnSvgChangesInTheDark) {
    SMeasurement measurement = plainMeasurement();
    measurement.response.gains[1] = {-9.5, -9.5, -9.5};
    const std::string svg = drawStrip(measurement, {EPictureFormat::Svg, ETheme::Viewer, 1.0});
    std::size_t colours = 0;
    for (std::size_t place = svg.find("</style>"); place != std::string::npos; ++colours) {
        place = svg.find(":rgb(", place + 1);
        if (place == std::string::npos)
            break;
        const std::string colour = svg.substr(place, svg.find(')', place) + 1 - place);
        EXPECT_THAT(svg, HasSubstr("\"fill" + colour + "\"]")) << "no rule for" << colour;
    }
    EXPECT_GT(colours, 20u);
}

TEST(StripPicture, SaysInWordsWhatItShows) {
    const std::string svg =
        drawStrip(plainMeasurement(), {EPictureFormat::Svg, ETheme::Light, 1.0});
    EXPECT_THAT(svg, HasSubstr("<title>Corvel: Mine</title>"));
    EXPECT_THAT(svg, HasSubstr("Chain: Pan, Gain. Decay: no tail."));
}

TEST(StripPicture, NumbersThatAreNotFiniteDoNotSpoilIt) {
    SMeasurement measurement = plainMeasurement();
    measurement.response.gains[0] = {HUGE_VAL, std::nan(""), -3.5};
    measurement.levels.out[1] = {std::nan(""), std::nan("")};
    const CPixels pixels(drawStrip(measurement, png));
    EXPECT_GT(pixelsOf(EInk::Orange, pixels, response), 150);
    EXPECT_GT(pixelsOf(EInk::Blue, pixels, levels), 400);
}
