#include "dspclasses/parameters/ParameterTable.h"

#include "dspclasses/support/Signals.h"

#include <cmath>
#include <cstdio>
#include <gtest/gtest.h>

// The table a second time, with every law as one expression and every text as printf makes it.

using Law = float (*)(float);
using Text = std::string (*)(float);

/// Rounded once from a double that is far more exact.
static float power(float base, float exponent) {
    return static_cast<float>(std::pow(double{base}, double{exponent}));
}

template <typename... Values>
static std::string print(const char *format, Values... values) {
    char text[100];
    std::snprintf(text, sizeof text, format, values...);
    return text;
}

static float raw(float v) {
    return v;
}
static float gainLaw(float v) {
    return v > 0.5f    ? (v - 0.5f) * 12.0f
           : v < 0.25f ? (0.2f - v) * -180.0f - 24.0f
                       : (0.5f - v) * -80.0f;
}
static float trim(float v) {
    return 24.0f * v - 12.0f;
}
static float threshold(float v) {
    return 60.0f * v - 60.0f;
}
static float width(float v) {
    return 35.0f * v + 5.0f;
}
static float depth(float v) {
    return 0.5f * v;
}
static float speed(float v) {
    return 2.0f * power(2.0f, -3.32192802f * (1.0f - v));
}

static std::string noText(float) {
    return "";
}
static std::string f0(float g) {
    return print("%.0f", double{g});
}
static std::string f2(float g) {
    return print("%.2f", double{g});
}
static std::string decibelForm(float g) {
    return g > -60.0f ? f2(g) : "-oo";
}
static std::string levelForm(float g) {
    const double linear = g;
    return linear <= 0.001 ? "-oo" : print("%.1f", 20.0 * std::log10(linear));
}
static std::string balanceForm(float g) {
    const float x = 200.0f * g - 100.0f;
    return x < 0.0f ? print("100:%ld", static_cast<long>(x + 100.0f))
                    : print("%ld:100", static_cast<long>(100.0f - x));
}
static std::string monoForm(float g) {
    const int m = static_cast<int>(3.0f * g);
    return m == 0 ? "Combine" : m == 1 ? "AllLeft" : m == 2 ? "AllRight" : "Stereo";
}
static std::string typeForm(float g) {
    const int t = static_cast<int>(10.0f * g);
    return t >= 0 && t <= 3 ? "Vibrato" : t >= 4 && t <= 6 ? "ADT" : "Phaser";
}
static std::string percentForm(float g) {
    return f0(100.0f * g);
}
static std::string mixForm(float g) {
    return print("%ld:%ld", static_cast<long>(100.0f - 100.0f * g), static_cast<long>(100.0f * g));
}
static std::string syncForm(float g) {
    const int s = static_cast<int>(2.0f * g);
    return s == 0 ? "ms" : s == 1 ? "Quaver" : s == 2 ? "Crotchet" : "Minim";
}
static std::string ratioForm(float g) {
    return print("%.1f:1", double{g});
}

struct SRow {
    const char *name;
    int slot, index;
    Law law;
    Text text;
    const char *unit;
};

static const SRow rows[] = {
    {"InGain", 0, 0, gainLaw, decibelForm, "dB"},
    {"InMono", 1, 0, raw, monoForm, ""},
    {"Balance", 2, 0, raw, balanceForm, ""},
    {"Pan", 3, 0, raw, balanceForm, ""},
    {"Gain", 4, 0, gainLaw, decibelForm, "dB"},
    {"3EQLo", 5, 0, trim, decibelForm, "dB"},
    {"3EQMid", 5, 1, trim, decibelForm, "dB"},
    {"3EQHi", 5, 2, trim, decibelForm, "dB"},
    {"3EQXLoMd", 5, 3, [](float v) { return 100.0f * power(2.0f, 3.0f * v); }, f0, "Hz"},
    {"3EQXMdHi", 5, 4, [](float v) { return 100.0f * power(2.0f, 2.0f * v + 4.0f); }, f0, "Hz"},
    {"RmblFreq", 6, 0, [](float v) { return power(5.0f, 3.0f * v); }, f0, "Hz"},
    {"HPFreq", 7, 0, [](float v) { return 100.0f * power(2.0f, 4.32192802f * v); }, f0, "Hz"},
    {"PresFreq", 8, 0, [](float v) { return 1000.0f * power(2.0f, 2.58496261f * v); }, f0, "Hz"},
    {"PresGain", 8, 1, trim, decibelForm, "dB"},
    {"ParaFreq", 9, 0,
     [](float v) { return v > 0.999f ? 6000.0f : 100.0f * power(2.0f, 5.90689039f * v); }, f0,
     "Hz"},
    {"ParaBW", 9, 1, [](float v) { return power(2.0f, 3.0f * v - 3.0f); }, f2, "Oct"},
    {"ParaGain", 9, 2, trim, decibelForm, "dB"},
    {"GateThrsh", 10, 0, threshold, decibelForm, "dB"},
    {"GateAtt", 10, 1, [](float v) { return 499.0f * v + 1.0f; }, f0, "ms"},
    {"GateRel", 10, 2, [](float v) { return 950.0f * v + 50.0f; }, f0, "ms"},
    {"CmpThresh", 11, 0, threshold, decibelForm, "dB"},
    {"CmpAtt", 11, 1, [](float v) { return 99.0f * v + 1.0f; }, f0, "ms"},
    {"CmpRel", 11, 2, [](float v) { return 198.0f * v + 2.0f; }, f0, "ms"},
    {"CmpRatio", 11, 3, [](float v) { return 7.0f * v + 1.0f; }, ratioForm, ""},
    {"CmpMakUp", 11, 4, trim, decibelForm, "dB"},
    {"CmpLink", 11, 5, raw, [](float g) -> std::string { return g < 0.5f ? "Separate" : "Linked"; },
     ""},
    {"DeSThresh", 12, 0, threshold, decibelForm, "dB"},
    {"DeSSpeed", 12, 1, raw, [](float g) { return f0(100.0f - 100.0f * g); }, ""},
    {"DeSRatio", 12, 2, [](float v) { return 6.0f * v + 1.0f; }, ratioForm, ""},
    {"DeSFreq", 12, 3,
     [](float v) { return v > 0.999f ? 8000.0f : 1000.0f * power(2.0f, 2.0f * v + 1.0f); }, f0,
     "Hz"},
    {"DeSBand", 12, 4, raw, [](float g) -> std::string { return g < 0.5f ? "Wide" : "Narrow"; },
     ""},
    {"DeSLstn", 12, 5, raw, [](float g) -> std::string { return g < 0.5f ? "DeEsser" : "SdeChn"; },
     ""},
    {"Mod1Type", 13, 0, raw, typeForm, ""},
    {"Mod1Wdth", 13, 1, width, f2, "ms"},
    {"Mod1Dpth", 13, 2, depth, percentForm, "%"},
    {"Mod1Spd", 13, 3, speed, f2, "Hz"},
    {"Mod1Sprd", 13, 4, raw, percentForm, "%"},
    {"Mod1FdBk", 13, 5, raw, percentForm, "%"},
    {"Mod1Mix", 13, 6, raw, mixForm, ""},
    {"Mod2Type", 14, 0, raw, typeForm, ""},
    {"Mod2Wdth", 14, 1, width, f2, "ms"},
    {"Mod2Dpth", 14, 2, depth, percentForm, "%"},
    {"Mod2Spd", 14, 3, speed, f2, "Hz"},
    {"Mod2Sprd", 14, 4, raw, percentForm, "%"},
    {"Mod2FdBk", 14, 5, raw, percentForm, "%"},
    {"Mod2Mix", 14, 6, raw, mixForm, ""},
    {"Warmer", 15, 0, raw, percentForm, "%"},
    {"DlyTime", 16, 0, [](float v) { return 1450.0f * v + 50.0f; }, f0, "ms"},
    {"DlySync", 16, 1, raw, syncForm, ""},
    {"DlyFdBk", 16, 2, raw, percentForm, "%"},
    {"DlyPngPng", 16, 3, raw, [](float g) -> std::string { return g < 0.5f ? "Off" : "On"; }, ""},
    {"DlyDry", 16, 4, raw, levelForm, "dB"},
    {"DlyWet", 16, 5, raw, levelForm, "dB"},
    {"RvRmSize", 17, 0,
     [](float v) { return v < 0.5f ? 198.0f * v + 1.0f : 600.0f * (v - 0.5f) + 100.0f; },
     [](float g) { return g < 100.0f ? f2(g) : f0(g); }, "m2"},
    {"RvTime", 17, 1, [](float v) { return 7.8f * v + 0.2f; }, f2, "s"},
    {"RvInDamp", 17, 2, raw, percentForm, "%"},
    {"RvWllDmp", 17, 3, raw, percentForm, "%"},
    {"RvSpread", 17, 4, raw, percentForm, "%"},
    {"RvDryLvl", 17, 5, raw, levelForm, "dB"},
    {"RvERLvl", 17, 6, raw, levelForm, "dB"},
    {"RvTlLvl", 17, 7, raw, levelForm, "dB"},
    {"OutMono", kOutMonoSlot, 0, raw, monoForm, ""},
    {"", kNoSlot, 0, raw, noText, ""},
    {"", kNoSlot, 0, raw, noText, ""},
};
static_assert(std::size(rows) == kStripParameters);

class ParameterTable : public testing::TestWithParam<int> {
protected:
    const SParameter &parameter = parameterTable[static_cast<std::size_t>(GetParam())];
    const SRow &row = rows[GetParam()];
};

TEST_P(ParameterTable, NamesTheParameterItsModuleAndItsUnit) {
    EXPECT_STREQ(parameter.name, row.name);
    EXPECT_EQ(parameter.slot, row.slot);
    EXPECT_EQ(parameter.index, row.index);
    EXPECT_STREQ(parameter.unit, row.unit);
}

/// Every thousandth, the neighbours of the corners, and random values in and beyond the range.
static std::vector<float> manyValues() {
    std::vector<float> values;
    for (int i = 0; i <= 1000; ++i)
        values.push_back(static_cast<float>(i) / 1000.0f);
    for (const float corner : {0.0f, 0.2f, 0.25f, 0.5f, 0.999f, 1.0f}) {
        values.push_back(std::nextafter(corner, -1.0f));
        values.push_back(std::nextafter(corner, 2.0f));
    }
    CRandom random(64);
    for (int i = 0; i < 3000; ++i)
        values.push_back(static_cast<float>(random.real(0.0, 1.0)));
    for (int i = 0; i < 500; ++i)
        values.push_back(static_cast<float>(random.real(-2.0, 3.0)));
    return values;
}

TEST_P(ParameterTable, FollowsTheLawToTheLastBit) {
    for (const float v : manyValues())
        ASSERT_TRUE(sameBits(parameter.law(v), row.law(v)))
            << row.name << " at " << v << ": " << parameter.law(v) << ", expected " << row.law(v);
}

TEST_P(ParameterTable, ShowsTheTextToTheLastByte) {
    for (const float v : manyValues()) {
        const float g = row.law(v);
        ASSERT_EQ(parameter.text(g), row.text(g)) << row.name << " at " << g;
    }
}

INSTANTIATE_TEST_SUITE_P(Ids, ParameterTable, testing::Range(0, kStripParameters));
