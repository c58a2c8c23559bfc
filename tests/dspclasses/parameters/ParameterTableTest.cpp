#include "dspclasses/parameters/ParameterTable.h"

#include "dspclasses/support/Signals.h"

#include <cmath>
#include <cstdio>
#include <gtest/gtest.h>

// The same table written independently: each law as one expression, each text through printf.

using Law = float (*)(float);
using Text = std::string (*)(float);

/// Computed in double precision and rounded once.
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
    {"InGain", kInGainSlot, 0, gainLaw, decibelForm, "dB"},
    {"InMono", kInMonoSlot, 0, raw, monoForm, ""},
    {"Balance", kBalanceSlot, 0, raw, balanceForm, ""},
    {"Pan", kPanSlot, 0, raw, balanceForm, ""},
    {"Gain", kGainSlot, 0, gainLaw, decibelForm, "dB"},
    {"3EQLo", k3BandSlot, 0, trim, decibelForm, "dB"},
    {"3EQMid", k3BandSlot, 1, trim, decibelForm, "dB"},
    {"3EQHi", k3BandSlot, 2, trim, decibelForm, "dB"},
    {"3EQXLoMd", k3BandSlot, 3, [](float v) { return 100.0f * power(2.0f, 3.0f * v); }, f0, "Hz"},
    {"3EQXMdHi", k3BandSlot, 4, [](float v) { return 100.0f * power(2.0f, 2.0f * v + 4.0f); }, f0,
     "Hz"},
    {"RmblFreq", kRumbleFilterSlot, 0, [](float v) { return power(5.0f, 3.0f * v); }, f0, "Hz"},
    {"HPFreq", kHiPassSlot, 0, [](float v) { return 100.0f * power(2.0f, 4.32192802f * v); }, f0,
     "Hz"},
    {"PresFreq", kPresenceSlot, 0, [](float v) { return 1000.0f * power(2.0f, 2.58496261f * v); },
     f0, "Hz"},
    {"PresGain", kPresenceSlot, 1, trim, decibelForm, "dB"},
    {"ParaFreq", kParametricSlot, 0,
     [](float v) { return v > 0.999f ? 6000.0f : 100.0f * power(2.0f, 5.90689039f * v); }, f0,
     "Hz"},
    {"ParaBW", kParametricSlot, 1, [](float v) { return power(2.0f, 3.0f * v - 3.0f); }, f2, "Oct"},
    {"ParaGain", kParametricSlot, 2, trim, decibelForm, "dB"},
    {"GateThrsh", kGateSlot, 0, threshold, decibelForm, "dB"},
    {"GateAtt", kGateSlot, 1, [](float v) { return 499.0f * v + 1.0f; }, f0, "ms"},
    {"GateRel", kGateSlot, 2, [](float v) { return 950.0f * v + 50.0f; }, f0, "ms"},
    {"CmpThresh", kCompressorSlot, 0, threshold, decibelForm, "dB"},
    {"CmpAtt", kCompressorSlot, 1, [](float v) { return 99.0f * v + 1.0f; }, f0, "ms"},
    {"CmpRel", kCompressorSlot, 2, [](float v) { return 198.0f * v + 2.0f; }, f0, "ms"},
    {"CmpRatio", kCompressorSlot, 3, [](float v) { return 7.0f * v + 1.0f; }, ratioForm, ""},
    {"CmpMakUp", kCompressorSlot, 4, trim, decibelForm, "dB"},
    {"CmpLink", kCompressorSlot, 5, raw,
     [](float g) -> std::string { return g < 0.5f ? "Separate" : "Linked"; }, ""},
    {"DeSThresh", kDeEsserSlot, 0, threshold, decibelForm, "dB"},
    {"DeSSpeed", kDeEsserSlot, 1, raw, [](float g) { return f0(100.0f - 100.0f * g); }, ""},
    {"DeSRatio", kDeEsserSlot, 2, [](float v) { return 6.0f * v + 1.0f; }, ratioForm, ""},
    {"DeSFreq", kDeEsserSlot, 3,
     [](float v) { return v > 0.999f ? 8000.0f : 1000.0f * power(2.0f, 2.0f * v + 1.0f); }, f0,
     "Hz"},
    {"DeSBand", kDeEsserSlot, 4, raw,
     [](float g) -> std::string { return g < 0.5f ? "Wide" : "Narrow"; }, ""},
    {"DeSLstn", kDeEsserSlot, 5, raw,
     [](float g) -> std::string { return g < 0.5f ? "DeEsser" : "SdeChn"; }, ""},
    {"Mod1Type", kModulator1Slot, 0, raw, typeForm, ""},
    {"Mod1Wdth", kModulator1Slot, 1, width, f2, "ms"},
    {"Mod1Dpth", kModulator1Slot, 2, depth, percentForm, "%"},
    {"Mod1Spd", kModulator1Slot, 3, speed, f2, "Hz"},
    {"Mod1Sprd", kModulator1Slot, 4, raw, percentForm, "%"},
    {"Mod1FdBk", kModulator1Slot, 5, raw, percentForm, "%"},
    {"Mod1Mix", kModulator1Slot, 6, raw, mixForm, ""},
    {"Mod2Type", kModulator2Slot, 0, raw, typeForm, ""},
    {"Mod2Wdth", kModulator2Slot, 1, width, f2, "ms"},
    {"Mod2Dpth", kModulator2Slot, 2, depth, percentForm, "%"},
    {"Mod2Spd", kModulator2Slot, 3, speed, f2, "Hz"},
    {"Mod2Sprd", kModulator2Slot, 4, raw, percentForm, "%"},
    {"Mod2FdBk", kModulator2Slot, 5, raw, percentForm, "%"},
    {"Mod2Mix", kModulator2Slot, 6, raw, mixForm, ""},
    {"Warmer", kWarmerSlot, 0, raw, percentForm, "%"},
    {"DlyTime", kDelaySlot, 0, [](float v) { return 1450.0f * v + 50.0f; }, f0, "ms"},
    {"DlySync", kDelaySlot, 1, raw, syncForm, ""},
    {"DlyFdBk", kDelaySlot, 2, raw, percentForm, "%"},
    {"DlyPngPng", kDelaySlot, 3, raw,
     [](float g) -> std::string { return g < 0.5f ? "Off" : "On"; }, ""},
    {"DlyDry", kDelaySlot, 4, raw, levelForm, "dB"},
    {"DlyWet", kDelaySlot, 5, raw, levelForm, "dB"},
    {"RvRmSize", kReverbSlot, 0,
     [](float v) { return v < 0.5f ? 198.0f * v + 1.0f : 600.0f * (v - 0.5f) + 100.0f; },
     [](float g) { return g < 100.0f ? f2(g) : f0(g); }, "m2"},
    {"RvTime", kReverbSlot, 1, [](float v) { return 7.8f * v + 0.2f; }, f2, "s"},
    {"RvInDamp", kReverbSlot, 2, raw, percentForm, "%"},
    {"RvWllDmp", kReverbSlot, 3, raw, percentForm, "%"},
    {"RvSpread", kReverbSlot, 4, raw, percentForm, "%"},
    {"RvDryLvl", kReverbSlot, 5, raw, levelForm, "dB"},
    {"RvERLvl", kReverbSlot, 6, raw, levelForm, "dB"},
    {"RvTlLvl", kReverbSlot, 7, raw, levelForm, "dB"},
    {"OutMono", kOutMonoSlot, 0, raw, monoForm, ""},
    {"", kNoSlot, 0, raw, noText, ""},
    {"", kNoSlot, 0, raw, noText, ""},
};
static_assert(std::size(rows) == kParameterCount);

class ParameterTable : public testing::TestWithParam<int> {
protected:
    const SParameter &parameter = parameterTable[static_cast<std::size_t>(GetParam())];
    const SRow &row = rows[GetParam()];
};

TEST_P(ParameterTable, HasTheRightNameModuleAndUnit) {
    EXPECT_STREQ(parameter.name, row.name);
    EXPECT_EQ(parameter.slot, row.slot);
    EXPECT_EQ(parameter.index, row.index);
    EXPECT_STREQ(parameter.unit, row.unit);
}

/// Every thousandth, the neighbours of the corners, and random values inside and outside the range.
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

INSTANTIATE_TEST_SUITE_P(Ids, ParameterTable, testing::Range(0, kParameterCount));
