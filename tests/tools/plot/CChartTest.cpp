#include "corvel/plot/CChart.h"

#include "tools/support/CPixels.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

using namespace Tessitor::Tool;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

/// A chart from 0 to 10 in both directions that fills a picture of one pixel per unit.
class CChartPicture {
public:
    CChart chart() {
        return {m_canvas,
                {0.0, 0.0, 400.0, 300.0},
                "Title",
                plainAxis("x", 0.0, 10.0, 10),
                plainAxis("y", 0.0, 10.0, 10)};
    }
    std::string bytes() { return m_canvas.finish("", ""); }

private:
    CCanvas m_canvas{400.0, 300.0, {EPictureFormat::Png, ETheme::Light, 1.0}};
};

int pixelsOf(EInk ink, const CPixels &pixels, const SRectangle &area) {
    return pixels.count(colourOf(ink, ETheme::Light), static_cast<int>(area.x),
                        static_cast<int>(area.y), static_cast<int>(area.right()),
                        static_cast<int>(area.bottom()));
}

Colour at(const CPixels &pixels, SPoint place) {
    return pixels.at(static_cast<int>(place.x), static_cast<int>(place.y));
}

}  // namespace

TEST(CChart, PlacesValuesByItsAxes) {
    CChartPicture picture;
    const CChart chart = picture.chart();
    const SRectangle &plot = chart.plotArea();
    EXPECT_DOUBLE_EQ(chart.place({0.0, 0.0}).x, plot.x);
    EXPECT_DOUBLE_EQ(chart.place({0.0, 0.0}).y, plot.bottom());
    EXPECT_DOUBLE_EQ(chart.place({10.0, 10.0}).x, plot.right());
    EXPECT_DOUBLE_EQ(chart.place({10.0, 10.0}).y, plot.y);
    EXPECT_DOUBLE_EQ(chart.place({2.5, 0.0}).x, plot.x + plot.width / 4.0);
}

TEST(CChart, DrawsALineWithAGapForWhatIsNoNumber) {
    CChartPicture picture;
    CChart chart = picture.chart();
    const double gap = std::nan("");
    chart.draw(
        SSeries{{{0.0, 4.5}, {3.0, 4.5}, {4.0, gap}, {7.0, 4.5}, {10.0, 4.5}}, {EInk::Blue, 4.0}});
    const CPixels pixels(picture.bytes());
    const Colour blue = colourOf(EInk::Blue, ETheme::Light);
    EXPECT_EQ(at(pixels, chart.place({1.3, 4.5})), blue);
    EXPECT_EQ(at(pixels, chart.place({8.3, 4.5})), blue);
    EXPECT_EQ(at(pixels, chart.place({5.3, 4.5})), colourOf(EInk::Panel, ETheme::Light));
    // No line leads to the gap.
    SRectangle others = chart.plotArea();
    others.height = chart.place({0.0, 5.0}).y - others.y;
    EXPECT_EQ(pixelsOf(EInk::Blue, pixels, others), 0);
    others.y = chart.place({0.0, 4.0}).y;
    others.height = chart.plotArea().bottom() - others.y;
    EXPECT_EQ(pixelsOf(EInk::Blue, pixels, others), 0);
}

TEST(CChart, CutsTheDataAtThePlotArea) {
    CChartPicture picture;
    CChart chart = picture.chart();
    chart.draw(
        SSeries{{{-50.0, 5.0}, {5.0, 1e300}, {5.0, -infinity}, {60.0, 5.0}}, {EInk::Blue, 4.0}});
    chart.draw(
        SBand{{{-5.0, -5.0}, {1.0, -infinity}}, {{-5.0, 20.0}, {1.0, infinity}}, EInk::Green});
    const CPixels pixels(picture.bytes());
    for (const EInk ink : {EInk::Blue, EInk::Green}) {
        const int inside = pixelsOf(ink, pixels, chart.plotArea());
        EXPECT_GT(inside, 100);
        EXPECT_EQ(pixelsOf(ink, pixels, {0.0, 0.0, 400.0, 300.0}), inside);
    }
}

TEST(CChart, LabelledSeriesAreInTheLegend) {
    CChartPicture picture;
    CChart chart = picture.chart();
    const SRectangle head{0.0, 0.0, 400.0, chart.plotArea().y};
    chart.draw(SSeries{{{0.0, 1.0}, {9.0, 1.0}}, {EInk::Blue, 2.0}, "first"});
    chart.draw(SSeries{{{0.0, 2.0}, {9.0, 2.0}}, {EInk::Orange, 2.0, EDash::Dashed}});
    chart.draw(
        SBand{{{0.0, 3.0}, {9.0, 3.0}}, {{0.0, 4.0}, {9.0, 4.0}}, EInk::Green, 1.0, "third"});
    const CPixels pixels(picture.bytes());
    EXPECT_GT(pixelsOf(EInk::Blue, pixels, head), 10);
    EXPECT_EQ(pixelsOf(EInk::Orange, pixels, head), 0);
    EXPECT_GT(pixelsOf(EInk::Green, pixels, head), 100);
}

TEST(CChart, MarksOnlyWhatIsInsideTheAxes) {
    CChartPicture picture;
    CChart chart = picture.chart();
    chart.drawVertical(5.5, {EInk::Blue, 2.0}, "here");
    chart.drawHorizontal(5.5, {EInk::Orange, 2.0}, "there");
    chart.drawVertical(11.0, {EInk::Green, 2.0}, "outside");
    chart.drawHorizontal(-1.0, {EInk::Green, 2.0}, "outside");
    const CPixels pixels(picture.bytes());
    EXPECT_GT(pixelsOf(EInk::Blue, pixels, chart.plotArea()), 150);
    EXPECT_GT(pixelsOf(EInk::Orange, pixels, chart.plotArea()), 150);
    EXPECT_EQ(pixelsOf(EInk::Green, pixels, {0.0, 0.0, 400.0, 300.0}), 0);
}

TEST(CChart, ANoteHidesTheLinesUnderIt) {
    CChartPicture picture;
    CChart chart = picture.chart();
    chart.draw(SSeries{{{5.0, 0.0}, {5.0, 10.0}}, {EInk::Blue, 6.0}});
    chart.note(CChart::ECorner::Middle, {"", ""});
    const CPixels pixels(picture.bytes());
    EXPECT_NE(at(pixels, chart.place({5.0, 5.0})), colourOf(EInk::Blue, ETheme::Light));
    EXPECT_EQ(at(pixels, chart.place({5.0, 8.3})), colourOf(EInk::Blue, ETheme::Light));
}
