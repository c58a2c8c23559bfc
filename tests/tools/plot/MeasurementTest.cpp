#include "corvel/plot/MeasurementJson.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace Tessitor::Tool;

namespace {

SMeasurement measureStrip(const SSettingsRequest &request, const SMeasurementOptions &options) {
    const CEffectLibrary library(CORVEL_EFFECT);
    CEffectInstance trial(library);
    const CEffectSettings settings(request, trial);
    return measure(library, settings, trial, options);
}

}  // namespace

TEST(Measurement, NamesWhatIsMeasured) {
    const SMeasurement measurement =
        measureStrip({"lead vocal", "Gate,Reverb", {"GateThrsh=-30dB", "RvTime=1s"}}, {});
    EXPECT_EQ(measurement.effect, "Corvel");
    EXPECT_EQ(measurement.version, 1);
    EXPECT_EQ(measurement.program, "Lead Vocal");
    EXPECT_EQ(measurement.chain, "Gate, Reverb");
    EXPECT_EQ(measurement.settings, "GateThrsh -30.00 dB, RvTime 1.00 s");
    EXPECT_EQ(measureStrip({"Empty", {}, {}}, {}).chain, "none");
}

TEST(Measurement, UsesItsOptions) {
    const SSettingsRequest compressor{"Empty", "Compressor", {"CmpThresh=-30dB", "CmpRatio=2:1"}};
    SMeasurementOptions options;
    options.level = -70.0;
    EXPECT_NEAR(measureStrip(compressor, options).response.gains[0][60], 0.0, 0.1);
    const SSettingsRequest gate{"Empty", "Gate", {"GateThrsh=-30dB"}};
    EXPECT_EQ(measureStrip(gate, options).decay.tail, ETail::Unknown);
    options.level = -10.0;
    EXPECT_EQ(measureStrip(gate, options).decay.tail, ETail::None);
    EXPECT_NEAR(measureStrip(compressor, options).response.gains[0][60], -15.0, 1.0);

    const SSettingsRequest highPass{"Empty", "HiPass", {"HPFreq=2000Hz"}};
    options.tone = 100.0;
    EXPECT_LT(measureStrip(highPass, options).levels.out[0].back(), -20.0);
    options.tone = 15000.0;
    EXPECT_NEAR(measureStrip(highPass, options).levels.out[0].back(), 0.0, 1.5);

    const SSettingsRequest echoes{"Empty", "Delay", {"DlySync=Crotchet", "DlyFdBk=@0.5"}};
    options.tempo = 240.0;
    const SDecay fast = measureStrip(echoes, options).decay;
    options.tempo = 120.0;
    const SDecay slow = measureStrip(echoes, options).decay;
    ASSERT_TRUE(fast.fit.has_value() && slow.fit.has_value());
    EXPECT_NEAR(slow.fit->reverberation / fast.fit->reverberation, 2.0, 0.1);
}

TEST(Measurement, SidesDifferByATenthOfADecibel) {
    EXPECT_FALSE(differ({{{0.0, -1.0}, {0.0, -1.05}}}));
    EXPECT_TRUE(differ({{{0.0, -1.0}, {0.0, -1.15}}}));
    EXPECT_TRUE(differ({{{0.0, -HUGE_VAL}, {0.0, -90.0}}}));
    EXPECT_FALSE(differ({{{0.0, -HUGE_VAL}, {0.0, -HUGE_VAL}}}));
}

TEST(Measurement, DescribesEachKindOfTail) {
    SDecay decay;
    EXPECT_EQ(describeTail(decay), "nothing comes out at this level");
    decay.tail = ETail::None;
    EXPECT_EQ(describeTail(decay), "no tail");
    decay.tail = ETail::Persists;
    EXPECT_EQ(describeTail(decay), "still sounding after 20 s");
    decay.tail = ETail::Decays;
    EXPECT_EQ(describeTail(decay), "tail ends at once");
    decay.fit = SDecayFit{-5.0, -35.0, 0.0, 1.2345};
    EXPECT_EQ(describeTail(decay), "RT60 1.23 s");
}

TEST(Measurement, ItsJsonHasAllNumbers) {
    SMeasurement measurement{"Corvel", 1, "Mine", "Pan", "Pan 100:0", {}, {}, {}, {}};
    measurement.response = {{20.0, 20000.0}, {{{0.123456, -1.0}, {-HUGE_VAL, std::nan("")}}}};
    measurement.levels = {{-60.0, 0.0}, {{{-60.0, -0.00001}, {-54.0, 6.0}}}};
    measurement.decay.tail = ETail::Decays;
    measurement.decay.seconds = {0.0, 0.01};
    measurement.decay.energies = {0.0, -30.0};
    measurement.decay.tailLevel = -12.5;
    measurement.decay.fit = SDecayFit{-5.0, -35.0, 0.0, 1.5};
    const nlohmann::ordered_json expected = {
        {"effect", "Corvel"},
        {"version", 1},
        {"program", "Mine"},
        {"chain", "Pan"},
        {"settings", "Pan 100:0"},
        {"sampleRate", 44100},
        {"tempo", 120.0},
        {"response",
         {{"noiseLevel", -20.0},
          {"frequencies", {20.0, 20000.0}},
          {"left", {0.1235, -1.0}},
          {"right", {nullptr, nullptr}}}},
        {"levels",
         {{"tone", 1000.0}, {"in", {-60.0, 0.0}}, {"left", {-60.0, 0.0}}, {"right", {-54.0, 6.0}}}},
        {"decay",
         {{"tail", "decays"},
          {"tailLevel", -12.5},
          {"rt60", 1.5},
          {"fittedTo", -35.0},
          {"secondsTo60", nullptr},
          {"seconds", {0.0, 0.01}},
          {"energies", {0.0, -30.0}}}}};
    EXPECT_EQ(jsonFrom(measurement).dump(), expected.dump());
    measurement.decay = {};
    EXPECT_EQ(jsonFrom(measurement)["decay"].dump(), "{\"tail\":\"unknown\"}");
}
