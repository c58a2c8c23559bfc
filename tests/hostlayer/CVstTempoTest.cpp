#include "hostlayer/CVstTempo.h"

#include "Allocation.h"
#include "foundation/CException.h"
#include "hostlayer/FakeHost.h"
#include "hostlayer/ProbeEffect.h"

#include <gtest/gtest.h>
#include <limits>
#include <ostream>

using namespace Tessitor::Vst;
using Tessitor::Exceptions::CException;

namespace {

constexpr int everything = kVstTempoValid | kVstTimeSigValid | kVstPpqPosValid | kVstBarsValid;

VstTimeInfo timeWith(std::int32_t flags) {
    VstTimeInfo time{};
    time.samplePos = 1000.5;
    time.sampleRate = 48000.0;
    time.tempo = 120.0;
    time.ppqPos = 9.5;
    time.barStartPos = 8.0;
    time.timeSigNumerator = 3;
    time.timeSigDenominator = 8;
    time.flags = flags;
    return time;
}

class CVstTempoTest : public testing::Test {
protected:
    const STempoInformation &read(const VstTimeInfo &time) {
        m_host.time = time;
        EXPECT_TRUE(m_tempo.getTempoInformation(kVstTempoValid));
        return m_tempo.getInformation();
    }

    FakeHost m_host;
    ProbeEffect m_effect{FakeHost::callback};
    CVstTempo m_tempo{&m_effect};
};

}  // namespace

TEST_F(CVstTempoTest, StartsAtATempoOf120InFourFour) {
    EXPECT_FALSE(m_tempo.isValid());
    const STempoInformation &information = m_tempo.getInformation();
    EXPECT_FALSE(information.tempoValid);
    EXPECT_FALSE(information.timeSignatureValid);
    EXPECT_FALSE(information.ppqPositionValid);
    EXPECT_FALSE(information.barsValid);
    EXPECT_FALSE(information.samplesToNextBarValid);
    EXPECT_FALSE(information.samplesPerBeatValid);
    EXPECT_FALSE(information.transportChanged);
    EXPECT_FALSE(information.transportPlaying);
    EXPECT_EQ(information.timeSignature.getNumerator(), 4);
    EXPECT_EQ(information.timeSignature.getDenominator(), 4);
    EXPECT_EQ(information.tempo, 120.0);
}

TEST_F(CVstTempoTest, PassesTheMaskToTheHost) {
    m_tempo.getTempoInformation(kVstTempoValid);
    ASSERT_EQ(m_host.calls().size(), 1u);
    EXPECT_EQ(m_host.calls().front().opcode, audioMasterGetTime);
    EXPECT_EQ(m_host.calls().front().value, kVstTempoValid);
}

TEST_F(CVstTempoTest, ReadsTheTempo) {
    const STempoInformation &information = read(timeWith(kVstTempoValid));
    EXPECT_TRUE(m_tempo.isValid());
    EXPECT_TRUE(information.tempoValid);
    EXPECT_TRUE(information.samplesPerBeatValid);
    EXPECT_EQ(information.tempo, 120.0);
    EXPECT_EQ(information.samplesPerBeat, 24000);
    EXPECT_EQ(information.samplePosition, 1000.5);
}

TEST_F(CVstTempoTest, TruncatesTheSamplesPerBeat) {
    VstTimeInfo time = timeWith(kVstTempoValid);
    time.sampleRate = 44100.0;
    time.tempo = 133.0;  // 19894.7 frames
    EXPECT_EQ(read(time).samplesPerBeat, 19894);
}

TEST_F(CVstTempoTest, ResetsValuesWhoseFlagIsMissing) {
    read(timeWith(everything));
    const STempoInformation &information = read(timeWith(0));
    EXPECT_TRUE(m_tempo.isValid());
    EXPECT_FALSE(information.tempoValid);
    EXPECT_FALSE(information.samplesPerBeatValid);
    EXPECT_EQ(information.tempo, 0.0);
    EXPECT_EQ(information.samplesPerBeat, 0);
    EXPECT_FALSE(information.timeSignatureValid);
    EXPECT_EQ(information.timeSignature.getNumerator(), 4);
    EXPECT_EQ(information.timeSignature.getDenominator(), 4);
    EXPECT_FALSE(information.ppqPositionValid);
    EXPECT_EQ(information.ppqPosition, 0.0);
    EXPECT_FALSE(information.barsValid);
    EXPECT_EQ(information.barStartPosition, 0.0);
    EXPECT_EQ(information.samplePosition, 1000.5);
}

TEST_F(CVstTempoTest, KeepsItsValuesIfTheHostHasNoTime) {
    VstTimeInfo time = timeWith(everything | kVstTransportPlaying | kVstTransportChanged);
    time.tempo = 93.0;
    read(time);
    m_host.time.reset();
    EXPECT_FALSE(m_tempo.getTempoInformation(kVstTempoValid));
    EXPECT_FALSE(m_tempo.isValid());
    const STempoInformation &information = m_tempo.getInformation();
    EXPECT_TRUE(information.tempoValid);
    EXPECT_EQ(information.tempo, 93.0);
    EXPECT_TRUE(information.timeSignatureValid);
    EXPECT_EQ(information.timeSignature.getNumerator(), 3);
    EXPECT_TRUE(information.ppqPositionValid);
    EXPECT_EQ(information.ppqPosition, 9.5);
    EXPECT_TRUE(information.barsValid);
    EXPECT_EQ(information.barStartPosition, 8.0);
    EXPECT_TRUE(information.transportPlaying);
    EXPECT_TRUE(information.transportChanged);
    EXPECT_EQ(information.samplePosition, 1000.5);
}

TEST_F(CVstTempoTest, ReadsEachFlagOnItsOwn) {
    const STempoInformation &information = m_tempo.getInformation();
    read(timeWith(kVstTransportChanged));
    EXPECT_TRUE(information.transportChanged);
    EXPECT_FALSE(information.transportPlaying);
    read(timeWith(kVstTransportPlaying));
    EXPECT_FALSE(information.transportChanged);
    EXPECT_TRUE(information.transportPlaying);
    read(timeWith(kVstTimeSigValid));
    EXPECT_TRUE(information.timeSignatureValid);
    EXPECT_EQ(information.timeSignature.getNumerator(), 3);
    EXPECT_EQ(information.timeSignature.getDenominator(), 8);
    EXPECT_FALSE(information.tempoValid);
    read(timeWith(kVstPpqPosValid));
    EXPECT_TRUE(information.ppqPositionValid);
    EXPECT_EQ(information.ppqPosition, 9.5);
    EXPECT_FALSE(information.timeSignatureValid);
    read(timeWith(kVstBarsValid));
    EXPECT_TRUE(information.barsValid);
    EXPECT_EQ(information.barStartPosition, 8.0);
    EXPECT_FALSE(information.ppqPositionValid);
}

TEST_F(CVstTempoTest, NeedsAllFourFlagsForTheNextBar) {
    for (const int missing : {kVstTempoValid, kVstTimeSigValid, kVstPpqPosValid, kVstBarsValid}) {
        const STempoInformation &information = read(timeWith(everything & ~missing));
        EXPECT_FALSE(information.samplesToNextBarValid) << missing;
        EXPECT_EQ(information.samplesToNextBar, 0) << missing;
    }
    EXPECT_TRUE(read(timeWith(everything)).samplesToNextBarValid);
}

TEST_F(CVstTempoTest, NeverClearsTheSamplesToTheNextBar) {
    EXPECT_EQ(read(timeWith(everything)).samplesToNextBar, 36000);
    const STempoInformation &information = read(timeWith(0));
    EXPECT_TRUE(information.samplesToNextBarValid);
    EXPECT_EQ(information.samplesToNextBar, 36000);
}

namespace {

struct SBar {
    const char *name;
    int numerator;
    double barStart, position, tempo;
    std::int64_t samples;
};

void PrintTo(const SBar &bar, std::ostream *stream) {
    *stream << bar.name;
}

const SBar bars[] = {
    {"AtItsStart", 4, 8.0, 8.0, 120.0, 0},
    {"WithinIt", 4, 8.0, 9.5, 120.0, 60000},
    {"AtItsEnd", 4, 8.0, 12.0, 120.0, 0},
    {"OneBarBehind", 4, 8.0, 13.0, 120.0, 72000},
    {"ThreeBarsBehind", 4, 0.0, 13.0, 120.0, 72000},
    {"AheadOfThePosition", 4, 20.0, 2.0, 120.0, 48000},
    {"AWholeBarAhead", 4, 8.0, 4.0, 120.0, 96000},
    {"ABillionBarsBehind", 4, 0.0, 4e9 + 1.0, 120.0, 72000},
    {"TooFarBehindForSingleBeats", 4, 0.0, 1e300, 120.0, 0},
    {"TooFarAheadForSingleBeats", 4, 1e300, 0.0, 120.0, 96000},
    {"InfinitelyFarBehind", 4, 0.0, std::numeric_limits<double>::infinity(), 120.0, 0},
    {"InThree", 3, 9.0, 9.25, 90.0, 88000},
    {"WithAFraction", 4, 0.0, 1.0, 133.0, 64962},
    {"WithoutBeatsBehind", 0, 8.0, 9.5, 120.0, 0},
    {"WithoutBeatsAhead", 0, 8.0, 7.0, 120.0, 24000},
    {"WithoutTempo", 4, 8.0, 9.5, 0.0, 0},
    {"BackInTime", 4, 8.0, 9.5, -120.0, 0},
};

}  // namespace

class CVstTempoBars : public CVstTempoTest, public testing::WithParamInterface<SBar> {};

TEST_P(CVstTempoBars, HaveTheExpectedSamplesToTheNextBar) {
    const SBar &bar = GetParam();
    VstTimeInfo time = timeWith(everything);
    time.timeSigNumerator = bar.numerator;
    time.timeSigDenominator = 4;
    time.barStartPos = bar.barStart;
    time.ppqPos = bar.position;
    time.tempo = bar.tempo;
    EXPECT_EQ(read(time).samplesToNextBar, bar.samples);
}
INSTANTIATE_TEST_SUITE_P(Positions, CVstTempoBars, testing::ValuesIn(bars),
                         [](const auto &entry) { return std::string(entry.param.name); });

TEST_F(CVstTempoTest, SetsTheSmallestIntegerIfTheSamplesPerBeatDoNotFit) {
    VstTimeInfo time = timeWith(kVstTempoValid);
    for (const double tempo : {0.0, -0.0, 1e-9, std::numeric_limits<double>::quiet_NaN()}) {
        time.tempo = tempo;
        EXPECT_EQ(read(time).samplesPerBeat, std::numeric_limits<std::int32_t>::min()) << tempo;
    }
}

TEST_F(CVstTempoTest, AllocatesNothing) {
    m_host.logging = false;
    m_host.time = timeWith(everything);
    auto &record = m_tempo.getInformation().timeSignature.getClass();
    const auto instances = record.getTotalCount();
    const auto allocations = allocationsOfThisThread();
    m_tempo.getTempoInformation(kVstTempoValid);
    m_host.time->flags = 0;
    m_tempo.getTempoInformation(kVstTempoValid);
    m_host.time.reset();
    m_tempo.getTempoInformation(kVstTempoValid);
    EXPECT_EQ(allocationsOfThisThread(), allocations);
    EXPECT_EQ(record.getTotalCount(), instances);
}

TEST(CVstTempo, RefusesANullEffect) {
    try {
        const CVstTempo tempo(nullptr);
        FAIL();
    } catch (const CException &exception) {
        EXPECT_STREQ(exception.getErrorReason().getString(), "Effect is NULL");
        EXPECT_STREQ(exception.getFunctionName().getString(),
                     "CVstTempo::CVstTempo(AudioEffectX *)");
    }
}

TEST(CVstTempo, RefusesToReadWithoutAnEffect) {
    CVstTempo tempo;
    try {
        tempo.getTempoInformation(kVstTempoValid);
        FAIL();
    } catch (const CException &exception) {
        EXPECT_STREQ(exception.getErrorReason().getString(), "m_theEffect is NULL");
        EXPECT_STREQ(exception.getFunctionName().getString(),
                     "CVstTempo::getTempoInformation(const long *)");
    }
    FakeHost host;
    ProbeEffect effect(FakeHost::callback);
    tempo.setEffect(&effect);
    EXPECT_FALSE(tempo.getTempoInformation(kVstTempoValid));
}

TEST(CVstTempo, CountsItsInstances) {
    const CVstTempo tempo;
    EXPECT_STREQ(tempo.getClass().getClassName(), "CVstTempo");
    const auto before = tempo.getClass().getInstanceCount();
    {
        const CVstTempo another;
        EXPECT_EQ(tempo.getClass().getInstanceCount(), before + 1);
    }
    EXPECT_THROW(CVstTempo(nullptr), CException);
    EXPECT_EQ(tempo.getClass().getInstanceCount(), before);
}
