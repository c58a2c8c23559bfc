#include "corvel/plot/SAxis.h"

#include <cmath>
#include <gmock/gmock.h>
#include <limits>

using namespace Tessitor::Tool;
using testing::ElementsAre;

namespace {

std::vector<std::string> labels(const SAxis &axis) {
    std::vector<std::string> labels;
    for (const STick &tick : axis.ticks)
        if (!tick.label.empty())
            labels.push_back(tick.label);
    return labels;
}

}  // namespace

TEST(SAxis, PlacesValuesBetweenItsEnds) {
    const SAxis linear{"", -60.0, 0.0};
    EXPECT_DOUBLE_EQ(linear.position(-60.0), 0.0);
    EXPECT_DOUBLE_EQ(linear.position(-15.0), 0.75);
    EXPECT_DOUBLE_EQ(linear.position(0.0), 1.0);
    const SAxis logarithmic{"", 20.0, 20000.0, EScale::Logarithmic};
    EXPECT_DOUBLE_EQ(logarithmic.position(20.0), 0.0);
    EXPECT_NEAR(logarithmic.position(200.0), 1.0 / 3.0, 1e-12);
    EXPECT_DOUBLE_EQ(logarithmic.position(20000.0), 1.0);
}

TEST(SAxis, KeepsFarValuesNearAndGapsGaps) {
    const double infinity = std::numeric_limits<double>::infinity();
    const SAxis linear{"", 0.0, 1.0};
    EXPECT_EQ(linear.position(-infinity), -1.0);
    EXPECT_EQ(linear.position(infinity), 2.0);
    EXPECT_EQ(linear.position(1e300), 2.0);
    EXPECT_TRUE(std::isnan(linear.position(std::nan(""))));
    const SAxis logarithmic{"", 20.0, 20000.0, EScale::Logarithmic};
    EXPECT_EQ(logarithmic.position(0.0), -1.0);
    EXPECT_EQ(logarithmic.position(-5.0), -1.0);
    EXPECT_TRUE(std::isnan(logarithmic.position(std::nan(""))));
}

TEST(SAxis, OfFrequenciesHasALineForEachDigitAndFewLabels) {
    const SAxis axis = frequencyAxis(20.0, 20000.0);
    EXPECT_EQ(axis.title, "Frequency (Hz)");
    EXPECT_THAT(labels(axis),
                ElementsAre("20", "50", "100", "200", "500", "1k", "2k", "5k", "10k", "20k"));
    EXPECT_EQ(axis.ticks.size(), 28u);
    EXPECT_NEAR(axis.ticks.back().value, 20000.0, 1e-6);
}

TEST(SAxis, OfDecibelsHasRoundSteps) {
    const SAxis axis = decibelAxis("Gain", -24.0, 12.0, 6);
    EXPECT_EQ(axis.title, "Gain (dB)");
    EXPECT_THAT(labels(axis), ElementsAre("-24", "-18", "-12", "-6", "0", "6", "12"));
    EXPECT_THAT(labels(decibelAxis("Gain", -0.5, 0.5, 5)),
                ElementsAre("-0.4", "-0.2", "0.0", "0.2", "0.4"));
    EXPECT_THAT(labels(decibelAxis("Level", -80.0, 0.0, 5)), ElementsAre("-72", "-48", "-24", "0"));
}

TEST(SAxis, OfTimeChoosesItsUnit) {
    EXPECT_EQ(timeAxis(0.0, 0.4, 5).title, "Time (ms)");
    EXPECT_THAT(labels(timeAxis(0.0, 0.4, 5)), ElementsAre("0", "100", "200", "300", "400"));
    EXPECT_EQ(timeAxis(0.0, 3.2, 7).title, "Time (s)");
    EXPECT_THAT(labels(timeAxis(0.0, 3.2, 7)),
                ElementsAre("0.0", "0.5", "1.0", "1.5", "2.0", "2.5", "3.0"));
    EXPECT_EQ(timeAxis(0.0, 200.0, 4).title, "Time (min:s)");
    EXPECT_THAT(labels(timeAxis(0.0, 200.0, 4)), ElementsAre("0:00", "1:00", "2:00", "3:00"));
    EXPECT_EQ(timeAxis(0.0, 10000.0, 3).title, "Time (h:min:s)");
    EXPECT_THAT(labels(timeAxis(0.0, 10000.0, 3)), ElementsAre("0:00:00", "1:00:00", "2:00:00"));
}

TEST(SAxis, NeverHasMoreTicksThanAskedFor) {
    for (const double span : {0.001, 0.013, 0.7, 1.0, 9.9, 99.0, 119.0, 121.0, 3599.0, 4000.0, 1e6})
        for (const int most : {1, 3, 8}) {
            EXPECT_LE(timeAxis(0.0, span, most).ticks.size(), static_cast<std::size_t>(most) + 1)
                << span;
            EXPECT_GE(timeAxis(0.0, span, most).ticks.size(), 1u) << span;
            EXPECT_LE(plainAxis("", 0.0, span, most).ticks.size(),
                      static_cast<std::size_t>(most) + 1)
                << span;
        }
}

TEST(SAxis, OfNumbersHasTheDecimalsThatItsStepsNeed) {
    EXPECT_THAT(labels(plainAxis("Sample", -1.0, 1.0, 4)),
                ElementsAre("-1.0", "-0.5", "0.0", "0.5", "1.0"));
    EXPECT_THAT(labels(plainAxis("", 0.0, 20.0, 4)), ElementsAre("0", "5", "10", "15", "20"));
}
