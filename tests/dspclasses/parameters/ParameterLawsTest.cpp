#include "dspclasses/parameters/ParameterLaws.h"

#include <cmath>
#include <gtest/gtest.h>
#include <vector>

namespace Law = ParameterLaws;

TEST(ParameterLaws, PassRawValuesUnchanged) {
    for (const float v : {0.0f, 0.3f, 1.0f, -2.0f, 7.5f})
        EXPECT_EQ(Law::raw(v), v);
    EXPECT_TRUE(std::signbit(Law::raw(-0.0f)));
}

TEST(ParameterLaws, MapTheCornersOfTheGain) {
    EXPECT_EQ(Law::gain(0.0f), -60.0f);
    EXPECT_EQ(Law::gain(0.2f), -24.0f);
    EXPECT_EQ(Law::gain(0.25f), -20.0f);
    EXPECT_EQ(Law::gain(0.5f), 0.0f);
    EXPECT_EQ(Law::gain(1.0f), 6.0f);
}

TEST(ParameterLaws, DropTheGainAtAQuarter) {
    EXPECT_GT(Law::gain(0.24f), Law::gain(0.25f));
    EXPECT_NEAR(Law::gain(0.24f), -16.8, 1e-4);
    EXPECT_NEAR(Law::gain(std::nextafter(0.25f, 0.0f)), -15.0, 1e-4);
}

TEST(ParameterLaws, MapTheMiddleOfTheGainToMinusZeroDecibels) {
    EXPECT_TRUE(std::signbit(Law::gain(0.5f)));
}

TEST(ParameterLaws, CoverTheRangesOfTheExponentialLaws) {
    const struct {
        float (*law)(float);
        double low, high;
    } powers[] = {
        {Law::lowCrossover, 100.0, 800.0},
        {Law::highCrossover, 1600.0, 6400.0},
        {Law::rumbleFrequency, 1.0, 125.0},
        {Law::hiPassFrequency, 100.0, 2000.0},
        {Law::presenceFrequency, 1000.0, 6000.0},
        {Law::parametricFrequency, 100.0, 6000.0},
        {Law::bandwidth, 0.125, 1.0},
        {Law::deEsserFrequency, 2000.0, 8000.0},
        {Law::modulationSpeed, 0.2, 2.0},
    };
    for (const auto &power : powers) {
        EXPECT_NEAR(power.law(0.0f) / power.low, 1.0, 1e-6) << power.low;
        EXPECT_NEAR(power.law(1.0f) / power.high, 1.0, 1e-6) << power.high;
        EXPECT_NEAR(power.law(0.5f) / std::sqrt(power.low * power.high), 1.0, 1e-6) << power.low;
    }
}

TEST(ParameterLaws, StepAtTheTopOfTheParametricAndDeEsserFrequencies) {
    const float above = std::nextafter(0.999f, 1.0f);
    EXPECT_NEAR(Law::parametricFrequency(0.999f), 5975.48, 0.02);
    EXPECT_EQ(Law::parametricFrequency(above), 6000.0f);
    EXPECT_EQ(Law::parametricFrequency(1.5f), 6000.0f);
    EXPECT_NEAR(Law::deEsserFrequency(0.999f), 7988.92, 0.02);
    EXPECT_EQ(Law::deEsserFrequency(above), 8000.0f);
    EXPECT_EQ(Law::deEsserFrequency(1.5f), 8000.0f);
}

TEST(ParameterLaws, ChangeTheSlopeOfTheRoomSizeInTheMiddle) {
    EXPECT_EQ(Law::roomSize(0.0f), 1.0f);
    EXPECT_NEAR(Law::roomSize(std::nextafter(0.5f, 0.0f)), 100.0, 1e-4);
    EXPECT_EQ(Law::roomSize(0.5f), 100.0f);
    EXPECT_EQ(Law::roomSize(0.75f), 250.0f);
    EXPECT_EQ(Law::roomSize(1.0f), 400.0f);
}

TEST(ParameterLaws, DoNotClamp) {
    EXPECT_EQ(Law::gain(2.0f), 18.0f);
    EXPECT_EQ(Law::plusMinus12(2.0f), 36.0f);
    EXPECT_EQ(Law::gateAttack(-1.0f), -498.0f);
    EXPECT_EQ(Law::bandwidth(2.0f), 8.0f);
    EXPECT_EQ(Law::roomSize(-1.0f), -197.0f);
}
