#include "corvel/settings/CParameterText.h"

#include "corvel/console/Errors.h"

#include <cmath>
#include <cstdio>
#include <gmock/gmock.h>

using Tessitor::Tool::CCallError;
using Tessitor::Tool::CParameterText;

namespace {

std::string printed(const char *format, double number) {
    char text[32];
    std::snprintf(text, sizeof(text), format, number);
    return text;
}

// The strip's display of decibels
std::string decibels(double db) {
    return db > -60.0 ? printed("%.2f", db) : "-oo";
}

// A law that drops from -15 dB to -20 dB at 0.25
double gainLaw(double v) {
    return v > 0.5 ? (v - 0.5) * 12.0 : v < 0.25 ? (0.2 - v) * -180.0 - 24.0 : (0.5 - v) * -80.0;
}

std::string gain(float v) {
    return decibels(gainLaw(v));
}

std::string threshold(float v) {
    return decibels(60.0 * v - 60.0);
}

std::string frequency(float v) {
    return printed("%.0f", v > 0.999f ? 6000.0 : 100.0 * std::exp2(5.90689039 * v));
}

std::string ratio(float v) {
    return printed("%.1f:1", 7.0 * v + 1.0);
}

std::string balance(float v) {
    const double x = 200.0 * v - 100.0;
    return x < 0.0 ? "100:" + std::to_string(static_cast<long>(x + 100.0))
                   : std::to_string(static_cast<long>(100.0 - x)) + ":100";
}

std::string mix(float v) {
    return std::to_string(static_cast<long>(100.0f - 100.0f * v)) + ":" +
           std::to_string(static_cast<long>(100.0f * v));
}

std::string route(float v) {
    const char *const texts[] = {"Combine", "AllLeft", "AllRight", "Stereo"};
    return texts[static_cast<int>(3.0f * v)];
}

std::string linkage(float v) {
    return v < 0.5f ? "Separate" : "Linked";
}

std::string refusal(const CParameterText &parameter, const std::string &text) {
    try {
        parameter.valueOf(text);
    } catch (const CCallError &error) {
        return error.what();
    }
    return "";
}

}  // namespace

TEST(CParameterText, APlainNumberIsTheNormalisedValue) {
    const CParameterText parameter("dB", threshold);
    EXPECT_EQ(parameter.valueOf("0"), 0.0f);
    EXPECT_EQ(parameter.valueOf("0.405"), 0.405f);
    EXPECT_EQ(parameter.valueOf("1"), 1.0f);
    EXPECT_EQ(parameter.valueOf(" .5 "), 0.5f);
}

TEST(CParameterText, ANumberWithAUnitIsADisplayedValue) {
    const CParameterText parameter("dB", threshold);
    EXPECT_NEAR(parameter.valueOf("-18dB"), 0.7f, 1e-6f);
    EXPECT_NEAR(parameter.valueOf("-18.00 DB"), 0.7f, 1e-6f);
    EXPECT_EQ(threshold(parameter.valueOf("-0.01dB")), "-0.01");
}

TEST(CParameterText, EveryDisplayedTextIsFound) {
    const CParameterText parameter("Hz", frequency);
    for (int hertz = 100; hertz <= 5975; hertz += 5) {
        const std::string text = std::to_string(hertz);
        EXPECT_EQ(frequency(parameter.valueOf(text + "Hz")), text);
    }
}

TEST(CParameterText, AJumpAtTheEndOfALawIsFound) {
    const CParameterText parameter("Hz", frequency);
    EXPECT_EQ(parameter.valueOf("6000Hz"), 1.0f);
    EXPECT_EQ(frequency(parameter.valueOf("5980Hz")), "5975");
    EXPECT_EQ(frequency(parameter.valueOf("5995Hz")), "6000");
}

TEST(CParameterText, TheMiddleOfTheMatchingValuesIsUsed) {
    const CParameterText parameter("Hz", frequency);
    const float value = parameter.valueOf("120Hz");
    // 119.5 to 120.5 Hz
    const double first = std::log2(1.195) / 5.90689039, last = std::log2(1.205) / 5.90689039;
    EXPECT_NEAR(value, (first + last) / 2.0, 1e-6);
}

TEST(CParameterText, NeutralValuesAreExact) {
    EXPECT_EQ(CParameterText("dB", gain).valueOf("0dB"), 0.5f);
    EXPECT_EQ(CParameterText("dB", threshold).valueOf("0.00dB"), 1.0f);
    EXPECT_EQ(CParameterText("", balance).valueOf("100:100"), 0.5f);
}

TEST(CParameterText, ASwitchIsSetToItsEnd) {
    const CParameterText parameter("", linkage);
    EXPECT_EQ(parameter.valueOf("separate"), 0.0f);
    EXPECT_EQ(parameter.valueOf("Linked"), 1.0f);
}

TEST(CParameterText, ATextThatOnlyOneValueDisplaysIsFound) {
    const CParameterText parameter("", route);
    EXPECT_EQ(parameter.valueOf("Stereo"), 1.0f);
    EXPECT_NEAR(parameter.valueOf("AllRight"), 5.0f / 6.0f, 1e-4f);
}

TEST(CParameterText, BothBranchesOfAFoldedLawAreSearched) {
    const CParameterText parameter("dB", gain);
    // -18 dB is at 0.2333 and at 0.275, where the law is flatter. -22 dB is only on the steep
    // branch and -10 dB only on the flat one.
    EXPECT_NEAR(parameter.valueOf("-18dB"), 0.275f, 1e-4f);
    EXPECT_NEAR(parameter.valueOf("-22dB"), 0.2f + 2.0f / 180.0f, 1e-4f);
    EXPECT_NEAR(parameter.valueOf("-10dB"), 0.375f, 1e-4f);
}

TEST(CParameterText, SilenceIsFoundByItsText) {
    const CParameterText parameter("dB", threshold);
    EXPECT_EQ(parameter.valueOf("-oo"), 0.0f);
    EXPECT_EQ(parameter.valueOf("-oo dB"), 0.0f);
    EXPECT_EQ(parameter.valueOf("-inf"), 0.0f);
}

TEST(CParameterText, TheFirstNumberAboveSilenceIsFound) {
    const CParameterText parameter("dB", threshold);
    EXPECT_EQ(threshold(parameter.valueOf("-59.99dB")), "-59.99");
}

TEST(CParameterText, ANumberBetweenTwoDisplayedOnesIsRoundedToTheNearest) {
    const CParameterText parameter("Hz", frequency);
    EXPECT_EQ(frequency(parameter.valueOf("120.4Hz")), "120");
    EXPECT_EQ(frequency(parameter.valueOf("120.6Hz")), "121");
}

TEST(CParameterText, TheMiddleIsUsedForTheNearestNumberToo) {
    const CParameterText parameter("Hz", frequency);
    EXPECT_EQ(parameter.valueOf("120.4Hz"), parameter.valueOf("120Hz"));
}

TEST(CParameterText, TrailingZerosOfARatioDoNotMatter) {
    const CParameterText parameter("", ratio);
    EXPECT_EQ(ratio(parameter.valueOf("3:1")), "3.0:1");
    EXPECT_EQ(ratio(parameter.valueOf("3.0:1")), "3.0:1");
    EXPECT_EQ(ratio(parameter.valueOf("2.5 : 1")), "2.5:1");
}

TEST(CParameterText, BothSidesOfABalanceAreFound) {
    const CParameterText parameter("", balance);
    for (const char *text : {"100:0", "100:80", "100:99", "80:100", "1:100", "0:100"})
        EXPECT_EQ(balance(parameter.valueOf(text)), text);
}

TEST(CParameterText, APairThatNoValueDisplaysIsReplacedByTheNearest) {
    const CParameterText parameter("", mix);
    EXPECT_EQ(parameter.valueOf("30:70"), 0.7f);  // the only value with this display
    EXPECT_EQ(mix(parameter.valueOf("100:0")), "100:0");
    EXPECT_EQ(mix(0.6f), "39:60");  // no value is displayed as 40:60
    EXPECT_THAT(mix(parameter.valueOf("40:60")), testing::AnyOf("39:60", "40:59"));
    EXPECT_NE(refusal(parameter, "40:40"), "");
    EXPECT_NE(refusal(parameter, "130:0"), "");
}

TEST(CParameterText, WithoutAUnitANumberAboveOneIsADisplayedValue) {
    const CParameterText speed("", [](float v) { return printed("%.0f", 100.0 - 100.0 * v); });
    EXPECT_NEAR(speed.valueOf("30"), 0.7f, 1e-3f);
    EXPECT_EQ(speed.valueOf("1"), 1.0f);  // from 0 to 1 it is the normalised value
}

TEST(CParameterText, ANumberWithoutItsUnitIsRefusedWithAHint) {
    const CParameterText parameter("dB", threshold);
    EXPECT_EQ(refusal(parameter, "-18"),
              "\"-18\" needs a unit, as in \"-18dB\"; without one, a value is from 0 to 1");
}

TEST(CParameterText, ANumberOutOfRangeIsRefused) {
    const CParameterText parameter("Hz", frequency);
    EXPECT_EQ(refusal(parameter, "7000Hz"), "7000Hz is outside 100 to 6000 Hz");
    EXPECT_EQ(refusal(parameter, " 7 kHz "), "7 kHz is outside 100 to 6000 Hz");
    EXPECT_EQ(refusal(CParameterText("dB", threshold), "1 dB"),
              "1 dB is outside -60.00 to 0.00 dB or -oo");
    EXPECT_EQ(refusal(CParameterText("", ratio), "9:1"), "9:1 is outside 1.0:1 to 8.0:1");
    EXPECT_EQ(refusal(CParameterText("", ratio), "0:1"), "0:1 is outside 1.0:1 to 8.0:1");
    EXPECT_EQ(refusal(CParameterText("", ratio), "3:2"),
              "\"3:2\" is not possible; the effect shows 1.0:1 to 8.0:1");
    EXPECT_NE(refusal(CParameterText("dB", threshold), "-70dB"), "");
    EXPECT_NE(refusal(CParameterText("dB", threshold), "0.5dB"), "");
}

TEST(CParameterText, ANumberWithAnotherUnitIsRefused) {
    EXPECT_NE(refusal(CParameterText("Hz", frequency), "120ms"), "");
}

TEST(CParameterText, AnUnknownTextIsRefusedWithAListOfTheKnownOnes) {
    EXPECT_EQ(refusal(CParameterText("", linkage), "Linkd"),
              "\"Linkd\" is not possible; the effect shows Separate, Linked");
    EXPECT_EQ(refusal(CParameterText("", route), "Mono"),
              "\"Mono\" is not possible; the effect shows Combine, AllLeft, AllRight, Stereo");
}

TEST(CParameterText, AnEmptyTextAndANaNAreRefused) {
    const CParameterText parameter("dB", threshold);
    for (const char *text : {"", "nan", "inf", "dB", "-", "1e999", "0x1p-1"})
        EXPECT_NE(refusal(parameter, text), "") << text;
}

TEST(CParameterText, AParameterWithoutADisplayAcceptsOnlyNormalisedValues) {
    const CParameterText parameter("", [](float) { return std::string(); });
    EXPECT_EQ(parameter.valueOf("0.25"), 0.25f);
    EXPECT_NE(refusal(parameter, "On"), "");
}

TEST(CParameterText, AFallingLawIsInverted) {
    const CParameterText parameter("ms",
                                   [](float v) { return printed("%.1f", 500.0 - 499.0 * v); });
    EXPECT_NEAR(parameter.valueOf("100.5ms"), 399.5f / 499.0f, 1e-4f);
}

TEST(CParameterText, OtherUnitsOfTheSameKindAreConverted) {
    const CParameterText hertz("Hz", frequency);
    EXPECT_EQ(hertz.valueOf("1.2 kHz"), hertz.valueOf("1200Hz"));
    EXPECT_EQ(hertz.valueOf("0.12KHZ"), hertz.valueOf("120Hz"));
    const auto time = [](float v) { return printed("%.0f", 99.0 * v + 1.0); };
    const CParameterText milliseconds("ms", time), seconds("s", time);
    EXPECT_EQ(milliseconds.valueOf("0.03 s"), milliseconds.valueOf("30ms"));
    EXPECT_EQ(seconds.valueOf("30000 ms"), seconds.valueOf("30s"));
    EXPECT_NE(refusal(milliseconds, "1 Hz"), "");
}

TEST(CParameterText, ACommaSeparatesDecimalsToo) {
    const CParameterText parameter("dB", threshold);
    EXPECT_EQ(parameter.valueOf("-1,5 dB"), parameter.valueOf("-1.5dB"));
    EXPECT_EQ(parameter.valueOf("0,25"), 0.25f);
}

TEST(CParameterText, AnAtSignMarksANormalisedValue) {
    const CParameterText parameter("dB", threshold);
    EXPECT_EQ(parameter.valueOf("@0.37"), 0.37f);
    EXPECT_EQ(parameter.valueOf(" @1 "), 1.0f);
    EXPECT_EQ(parameter.otherMeaningOf("@0.37"), "");
    for (const char *text : {"@", "@2", "@-0.1", "@nan", "@0.5dB", "@0.5:1", "@x"})
        EXPECT_THAT(refusal(parameter, text), testing::HasSubstr("from 0 to 1 after @")) << text;
}

TEST(CParameterText, APlainNumberMayHaveAnotherMeaning) {
    const CParameterText gainOrNot("dB", gain);
    EXPECT_EQ(gainOrNot.otherMeaningOf("0"), "0 dB");
    EXPECT_EQ(gainOrNot.otherMeaningOf("0.5"), "0.5 dB");
    EXPECT_EQ(gainOrNot.otherMeaningOf("0.5dB"), "");
    const CParameterText share("%", [](float v) { return printed("%.0f", 100.0 * v); });
    EXPECT_EQ(share.otherMeaningOf("0"), "");  // the same in both
    EXPECT_EQ(share.otherMeaningOf("1"), "1 %");
    EXPECT_EQ(CParameterText("Hz", frequency).otherMeaningOf("0.5"), "");
    EXPECT_EQ(CParameterText("", linkage).otherMeaningOf("1"), "");
    EXPECT_EQ(CParameterText("", ratio).otherMeaningOf("1"), "");
    EXPECT_EQ(CParameterText("", [](float v) { return printed("%.0f", 100.0 - 100.0 * v); })
                  .otherMeaningOf("1"),
              "1");
}

TEST(CParameterText, TheRangeShowsNumbersOrAllTexts) {
    EXPECT_EQ(CParameterText("Hz", frequency).range(), "100 to 6000 Hz");
    EXPECT_EQ(CParameterText("dB", threshold).range(), "-60.00 to 0.00 dB or -oo");
    EXPECT_EQ(CParameterText("", ratio).range(), "1.0:1 to 8.0:1");
    EXPECT_EQ(CParameterText("", balance).range(), "100:0 to 0:100");
    EXPECT_EQ(CParameterText("", linkage).range(), "Separate, Linked");
    EXPECT_EQ(
        CParameterText("", [](float v) { return printed("%.0f", 100.0 - 100.0 * v); }).range(),
        "0 to 100");
    EXPECT_EQ(CParameterText("", [](float) { return std::string(); }).range(), "");
}
