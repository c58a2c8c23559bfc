#include "corvel/effect/CEffectInstance.h"

#include "corvel/console/Errors.h"
#include "corvel/console/Text.h"
#include "tools/support/CTemporaryFolder.h"
#include "tools/support/Program.h"

#include <gmock/gmock.h>
#include <stdlib.h>

using namespace Tessitor::Tool;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

/// Collects the log of the test effects.
class CEffectInstanceLog : public testing::Test {
protected:
    CEffectInstanceLog() { setenv("CORVEL_TEST_LOG", (folder / "log").c_str(), 1); }
    ~CEffectInstanceLog() override { unsetenv("CORVEL_TEST_LOG"); }

    /// @return the lines without the number of the instance.
    std::vector<std::string> lines() const {
        const std::string text = readFile(folder / "log");
        std::vector<std::string> result;
        for (const std::string_view line : split(text, '\n'))
            if (!line.empty())
                result.emplace_back(line.substr(line.find(' ') + 1));
        return result;
    }

    CTemporaryFolder folder;
};

std::string refusal(const char *effect) {
    const CEffectLibrary library(testEffect(effect));
    try {
        const CEffectInstance instance(library);
    } catch (const CJobError &error) {
        return error.what();
    }
    return "";
}

}  // namespace

TEST_F(CEffectInstanceLog, ReceivesTheCallsOfAHost) {
    {
        const CEffectLibrary library(testEffect("Whole"));
        CEffectInstance effect(library);
        SRunSettings settings;
        settings.sampleRate = 48000.0;
        settings.tempo = 90.0;
        settings.blockSize = 4;
        effect.start(settings);
        float in[2][4] = {}, out[2][4];
        float *ins[] = {in[0], in[1]}, *outs[] = {out[0], out[1]};
        effect.process(ins, outs, 4);
        effect.process(ins, outs, 3);
        effect.stop();
    }
    EXPECT_THAT(lines(), ElementsAre("open", "rate 48000", "block 4", "single", "mains 1", "stereo",
                                     "start", "tempo 90", "process 4 at 0", "process 3 at 4",
                                     "stop", "mains 0", "close"));
}

TEST_F(CEffectInstanceLog, AlwaysStopsBeforeItCloses) {
    {
        const CEffectLibrary library(testEffect("Whole"));
        CEffectInstance effect(library);
        effect.start({});
    }
    const std::vector<std::string> log = lines();
    ASSERT_GE(log.size(), 3u);
    EXPECT_THAT(std::vector<std::string>(log.end() - 3, log.end()),
                ElementsAre("stop", "mains 0", "close"));
}

TEST_F(CEffectInstanceLog, ReportsPrecisionAndPins) {
    {
        const CEffectLibrary library(testEffect("Whole"));
        CEffectInstance effect(library);
        SRunSettings settings;
        settings.doublePrecision = true;
        settings.rightInputConnected = false;
        effect.start(settings);
    }
    const std::vector<std::string> log = lines();
    EXPECT_THAT(log, testing::Contains("double"));
    EXPECT_THAT(log, testing::Contains("mono"));
}

TEST(CEffectInstance, TimeAdvancesFromBlockToBlock) {
    const CEffectLibrary library(testEffect("Whole"));
    CEffectInstance effect(library);
    SRunSettings settings;
    settings.tempo = 60.0;
    settings.sampleRate = 8.0;
    settings.blockSize = 4;
    effect.start(settings);
    const auto *time = &reinterpret_cast<const SHostState *>(effect.record().resvd1)->time;
    EXPECT_EQ(time->flags,
              kVstTempoValid | kVstPpqPosValid | kVstTransportPlaying | kVstTransportChanged);
    double in[2][4] = {}, out[2][4];
    double *ins[] = {in[0], in[1]}, *outs[] = {out[0], out[1]};
    effect.process(ins, outs, 4);
    EXPECT_EQ(time->samplePos, 4.0);
    EXPECT_EQ(time->ppqPos, 0.5);
    EXPECT_EQ(time->flags, kVstTempoValid | kVstPpqPosValid | kVstTransportPlaying);
    effect.stop();
    effect.start(settings);
    EXPECT_EQ(time->samplePos, 0.0);
}

TEST(CEffectInstance, ReturnsTextsAndChunks) {
    const CEffectLibrary library(testEffect("Whole"));
    CEffectInstance effect(library);
    EXPECT_EQ(effect.text(effGetParamName, 1), "Freq");
    EXPECT_EQ(effect.text(effGetParamLabel, 1), "Hz");
    EXPECT_EQ(effect.text(effGetErrorText), "");  // unknown to the effect
    EXPECT_EQ(effect.programChunk().size(), 424u);
}

TEST(CEffectInstance, RefusesAnInvalidRecord) {
    EXPECT_THAT(refusal("Refusing"), HasSubstr("Refusing.so: the effect does not start"));
    EXPECT_THAT(refusal("NoMagic"), HasSubstr("NoMagic.so: not a VST 2 effect"));
}

TEST(CEffectInstance, SeveralCanExistAtOnce) {
    const CEffectLibrary library(testEffect("Whole"));
    CEffectInstance first(library), second(library);
    first.setParameter(0, 0.25f);
    second.setParameter(0, 0.75f);
    EXPECT_EQ(first.parameter(0), 0.25f);
    EXPECT_EQ(second.parameter(0), 0.75f);
}
