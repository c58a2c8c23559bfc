#include "corvel/plot/LevelCurve.h"

#include "tools/support/CMeasuredStrip.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace Tessitor::Tool;

namespace {

class CCurve {
public:
    explicit CCurve(const std::string &chain, const std::vector<std::string> &set = {},
                    double tone = 1000.0)
        : m_curve(measureLevelCurve(CMeasuredStrip(chain, set).subject(), tone)) {}

    double at(int in, std::size_t side = 0) const {
        const auto index = static_cast<std::size_t>(in + 60);
        EXPECT_EQ(m_curve.in[index], in);
        return m_curve.out[side][index];
    }
    const SLevelCurve &curve() const { return m_curve; }

private:
    SLevelCurve m_curve;
};

}  // namespace

TEST(LevelCurve, OfTheEmptyChainIsTheInput) {
    const SLevelCurve curve = CCurve("none").curve();
    ASSERT_EQ(curve.in.size(), 61u);
    for (std::size_t i = 0; i < curve.in.size(); ++i)
        for (const std::vector<double> &side : curve.out)
            EXPECT_NEAR(side[i], curve.in[i], 0.001);
}

TEST(LevelCurve, OfAGainIsShifted) {
    const CCurve curve("Gain", {"Gain=-6dB"});
    for (const int in : {-60, -30, 0})
        EXPECT_NEAR(curve.at(in), in - 6.0, 0.02);
}

TEST(LevelCurve, OfACompressorDropsAtItsThresholdByThresholdAndRatio) {
    const CCurve curve("Compressor", {"CmpThresh=-30dB", "CmpRatio=3:1", "CmpMakUp=0dB"});
    for (const int in : {-60, -40, -31})
        EXPECT_NEAR(curve.at(in), in, 0.01);
    // Above its threshold this compressor lowers everything by threshold * (1 - 1 / ratio).
    for (const int in : {-27, -15, 0})
        EXPECT_NEAR(curve.at(in), in - 20.0, 0.5);
    const CCurve raised("Compressor", {"CmpThresh=-30dB", "CmpRatio=3:1", "CmpMakUp=6dB"});
    EXPECT_NEAR(raised.at(-15), -15.0 - 20.0 + 6.0, 0.5);
}

TEST(LevelCurve, OfAGateIsSilentBelowItsThreshold) {
    for (const char *attack : {"GateAtt=1ms", "GateAtt=500ms"}) {
        const CCurve curve("Gate", {"GateThrsh=-30dB", attack});
        for (const int in : {-60, -40, -31})
            EXPECT_EQ(curve.at(in), -HUGE_VAL) << in;
        for (const int in : {-27, -15, 0})
            EXPECT_NEAR(curve.at(in), in, 0.01) << attack;
    }
}

TEST(LevelCurve, OfADeEsserDependsOnTheTone) {
    const std::vector<std::string> set = {"DeSThresh=-30dB", "DeSFreq=6000Hz", "DeSRatio=4:1"};
    EXPECT_NEAR(CCurve("DeEsser", set, 200.0).at(-10), -10.0, 0.01);
    EXPECT_LT(CCurve("DeEsser", set, 10000.0).at(-10), -20.0);
}

TEST(LevelCurve, OfAHardPanIsSilentOnOneSide) {
    const CCurve curve("Pan", {"Pan=0:100"});
    EXPECT_EQ(curve.at(-10, 0), -HUGE_VAL);
    EXPECT_NEAR(curve.at(-10, 1), -10.0 + 6.02, 0.01);
}

TEST(LevelCurve, OfADelayIncludesItsEchoes) {
    const CCurve curve("Delay", {"DlyTime=1500ms", "DlyFdBk=0%", "DlyDry=-oo", "DlyWet=0dB"});
    EXPECT_NEAR(curve.at(-10), -10.0, 0.01);
}
