#include "dspclasses/parameters/ParameterTexts.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace Text = ParameterTexts;

static float below(float value) {
    return std::nextafter(value, -std::numeric_limits<float>::infinity());
}

TEST(ParameterTexts, ShowMinusInfinityAtMinusSixtyDecibelsAndBelow) {
    EXPECT_EQ(Text::decibels(-60.0f), "-oo");
    EXPECT_EQ(Text::decibels(-61.0f), "-oo");
    EXPECT_EQ(Text::decibels(-59.99f), "-59.99");
    EXPECT_EQ(Text::decibels(std::nextafter(-60.0f, 0.0f)), "-60.00");
    EXPECT_EQ(Text::decibels(std::numeric_limits<float>::quiet_NaN()), "-oo");
}

TEST(ParameterTexts, ShowDecibelsWithTwoDecimals) {
    EXPECT_EQ(Text::decibels(0.0f), "0.00");
    EXPECT_EQ(Text::decibels(-0.0f), "-0.00");
    EXPECT_EQ(Text::decibels(-0.004f), "-0.00");
    EXPECT_EQ(Text::decibels(6.0f), "6.00");
    EXPECT_EQ(Text::decibels(-12.345f), "-12.35");
}

TEST(ParameterTexts, RoundATieToTheEvenDigit) {
    EXPECT_EQ(Text::twoDecimals(0.125f), "0.12");
    EXPECT_EQ(Text::twoDecimals(0.375f), "0.38");
    EXPECT_EQ(Text::whole(0.5f), "0");
    EXPECT_EQ(Text::whole(1.5f), "2");
    EXPECT_EQ(Text::whole(2.5f), "2");
    EXPECT_EQ(Text::percent(0.125f), "12");
    EXPECT_EQ(Text::ratio(1.25f), "1.2:1");
}

TEST(ParameterTexts, ShowLevelsInDecibelsWithOneDecimal) {
    EXPECT_EQ(Text::level(1.0f), "0.0");
    EXPECT_EQ(Text::level(0.5f), "-6.0");
    EXPECT_EQ(Text::level(0.1f), "-20.0");
    EXPECT_EQ(Text::level(below(1.0f)), "-0.0");
    EXPECT_EQ(Text::level(2.0f), "6.0");
}

TEST(ParameterTexts, ShowMinusInfinityForALevelUpToAThousandth) {
    EXPECT_EQ(Text::level(0.0f), "-oo");
    EXPECT_EQ(Text::level(-1.0f), "-oo");
    EXPECT_EQ(Text::level(below(0.001f)), "-oo");
    // 0.001 in single precision is slightly more than 0.001 in double precision.
    EXPECT_EQ(Text::level(0.001f), "-60.0");
}

TEST(ParameterTexts, ShowBothSidesOfABalance) {
    EXPECT_EQ(Text::balance(0.0f), "100:0");
    EXPECT_EQ(Text::balance(0.25f), "100:50");
    EXPECT_EQ(Text::balance(0.498f), "100:99");
    EXPECT_EQ(Text::balance(0.5f), "100:100");
    EXPECT_EQ(Text::balance(0.502f), "99:100");
    EXPECT_EQ(Text::balance(0.75f), "50:100");
    EXPECT_EQ(Text::balance(1.0f), "0:100");
}

TEST(ParameterTexts, TruncateBothNumbersOfABalanceAndAMix) {
    EXPECT_EQ(Text::balance(0.2549f), "100:50");
    EXPECT_EQ(Text::balance(-0.004f), "100:0");
    EXPECT_EQ(Text::mix(0.0f), "100:0");
    EXPECT_EQ(Text::mix(0.7f), "30:70");
    EXPECT_EQ(Text::mix(0.555f), "44:55");
    EXPECT_EQ(Text::mix(1.0f), "0:100");
}

TEST(ParameterTexts, NameTheRoutingByTruncation) {
    const float third = 1.0f / 3.0f, twoThirds = 2.0f / 3.0f;
    EXPECT_EQ(Text::monoMode(0.0f), "Combine");
    EXPECT_EQ(Text::monoMode(below(third)), "Combine");
    EXPECT_EQ(Text::monoMode(third), "AllLeft");
    EXPECT_EQ(Text::monoMode(below(twoThirds)), "AllLeft");
    EXPECT_EQ(Text::monoMode(twoThirds), "AllRight");
    EXPECT_EQ(Text::monoMode(below(1.0f)), "AllRight");
    EXPECT_EQ(Text::monoMode(1.0f), "Stereo");
    EXPECT_EQ(Text::monoMode(5.0f), "Stereo");
    EXPECT_EQ(Text::monoMode(-1.0f), "Stereo");
}

TEST(ParameterTexts, NameTheModulationByTruncation) {
    EXPECT_EQ(Text::modulationType(0.0f), "Vibrato");
    EXPECT_EQ(Text::modulationType(below(0.4f)), "Vibrato");
    EXPECT_EQ(Text::modulationType(0.4f), "ADT");
    EXPECT_EQ(Text::modulationType(0.5f), "ADT");
    EXPECT_EQ(Text::modulationType(below(0.7f)), "ADT");
    EXPECT_EQ(Text::modulationType(0.7f), "Phaser");
    EXPECT_EQ(Text::modulationType(1.0f), "Phaser");
    EXPECT_EQ(Text::modulationType(-0.2f), "Phaser");
}

TEST(ParameterTexts, NameTheDelayTimeByTruncation) {
    EXPECT_EQ(Text::delaySync(0.0f), "ms");
    EXPECT_EQ(Text::delaySync(below(0.5f)), "ms");
    EXPECT_EQ(Text::delaySync(0.5f), "Quaver");
    EXPECT_EQ(Text::delaySync(below(1.0f)), "Quaver");
    EXPECT_EQ(Text::delaySync(1.0f), "Crotchet");
    EXPECT_EQ(Text::delaySync(1.5f), "Minim");
    EXPECT_EQ(Text::delaySync(-0.5f), "Minim");
}

TEST(ParameterTexts, SwitchTheNamesOfTwoWayParametersAtAHalf) {
    EXPECT_EQ(Text::link(below(0.5f)), "Separate");
    EXPECT_EQ(Text::link(0.5f), "Linked");
    EXPECT_EQ(Text::deEsserBand(below(0.5f)), "Wide");
    EXPECT_EQ(Text::deEsserBand(0.5f), "Narrow");
    EXPECT_EQ(Text::deEsserListen(below(0.5f)), "DeEsser");
    EXPECT_EQ(Text::deEsserListen(0.5f), "SdeChn");
    EXPECT_EQ(Text::onOff(below(0.5f)), "Off");
    EXPECT_EQ(Text::onOff(0.5f), "On");
}

TEST(ParameterTexts, ShowSmallRoomsWithDecimals) {
    EXPECT_EQ(Text::roomSize(1.0f), "1.00");
    EXPECT_EQ(Text::roomSize(75.25f), "75.25");
    EXPECT_EQ(Text::roomSize(below(100.0f)), "100.00");
    EXPECT_EQ(Text::roomSize(100.0f), "100");
    EXPECT_EQ(Text::roomSize(400.0f), "400");
}

TEST(ParameterTexts, ShowRatiosPercentagesAndTheOtherForms) {
    EXPECT_EQ(Text::percent(0.5f), "50");
    EXPECT_EQ(Text::percent(1.0f), "100");
    EXPECT_EQ(Text::deEsserSpeed(0.0f), "100");
    EXPECT_EQ(Text::deEsserSpeed(0.305f), "70");
    EXPECT_EQ(Text::deEsserSpeed(1.0f), "0");
    EXPECT_EQ(Text::ratio(4.0f), "4.0:1");
    EXPECT_EQ(Text::whole(5975.48f), "5975");
    EXPECT_EQ(Text::none(3.0f), "");
}

TEST(ParameterTexts, ShowAllDigitsOfTheLargestValue) {
    const float greatest = std::numeric_limits<float>::max();
    EXPECT_EQ(Text::twoDecimals(greatest), "340282346638528859811704183484516925440.00");
    EXPECT_EQ(Text::whole(std::numeric_limits<float>::infinity()), "inf");
    EXPECT_EQ(Text::mix(1e30f), "-2147483648:-2147483648");
}
