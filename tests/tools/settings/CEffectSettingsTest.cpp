#include "corvel/settings/CEffectSettings.h"

#include "corvel/console/Errors.h"
#include "tools/support/Program.h"

#include <gmock/gmock.h>

using namespace Tessitor::Tool;
using testing::HasSubstr;

namespace {

class CEffectSettingsTest : public testing::Test {
protected:
    CEffectSettings settingsFor(const SSettingsRequest &request) {
        CEffectInstance trial(library);
        return CEffectSettings(request, trial);
    }

    std::string refusal(const SSettingsRequest &request) {
        try {
            settingsFor(request);
        } catch (const CCallError &error) {
            return error.what();
        }
        return "";
    }

    const CEffectLibrary library{testEffect("Whole")};
};

}  // namespace

TEST_F(CEffectSettingsTest, AnEmptyRequestChangesNothing) {
    const CEffectSettings settings = settingsFor({});
    EXPECT_EQ(settings.programName(), "Plain");
    EXPECT_EQ(settings.chain(), Chain{});
    EXPECT_TRUE(settings.assignments().empty());
}

TEST_F(CEffectSettingsTest, AProgramIsFoundByNumberAndByName) {
    for (const char *text : {"1", "Loud", "LOUD", " loud ", "lo", "L"}) {
        const CEffectSettings settings = settingsFor({text, {}, {}});
        EXPECT_EQ(settings.programName(), "Loud") << text;
        EXPECT_EQ(settings.chain(), (Chain{6, 11}));
    }
}

TEST_F(CEffectSettingsTest, AnUnknownProgramIsRefused) {
    for (const char *text : {"3", "-1", "Loudest", "", "1x", "99999999999"})
        EXPECT_THAT(refusal({text, {}, {}}), HasSubstr("--program: no program")) << text;
}

TEST_F(CEffectSettingsTest, AppliesProgramChainAndParametersToANewInstance) {
    const CEffectSettings settings =
        settingsFor({"Loud", "Reverb,Gate", {"gain=-3dB", "Freq = 400Hz", "Link=linked"}});
    CEffectInstance effect(library);
    settings.applyTo(effect);
    EXPECT_EQ(effect.text(effGetProgramName), "Loud");
    EXPECT_EQ(chainOf(effect), (Chain{17, 10}));
    EXPECT_EQ(effect.text(effGetParamDisplay, 0), "-3.00");
    EXPECT_EQ(effect.text(effGetParamDisplay, 1), "400");
    EXPECT_EQ(effect.parameter(2), 1.0f);
}

TEST_F(CEffectSettingsTest, TheChainKeepsTheProgramsParameters) {
    const CEffectSettings settings = settingsFor({"Loud", "none", {}});
    CEffectInstance effect(library);
    settings.applyTo(effect);
    EXPECT_EQ(effect.parameter(0), 1.0f);
    EXPECT_EQ(chainOf(effect), Chain{});
}

TEST_F(CEffectSettingsTest, ReportsTheValuesAsTheEffectDisplaysThem) {
    const CEffectSettings settings = settingsFor({{}, {}, {"GAIN=0.75", "ratio=3:1"}});
    ASSERT_EQ(settings.assignments().size(), 2u);
    EXPECT_EQ(settings.assignments()[0].name, "Gain");
    EXPECT_EQ(settings.assignments()[0].value, 0.75f);
    EXPECT_EQ(settings.assignments()[0].display, "3.00 dB");
    EXPECT_EQ(settings.assignments()[1].display, "3.0:1");
}

TEST_F(CEffectSettingsTest, TheLastOfTwoValuesWins) {
    const CEffectSettings settings = settingsFor({{}, {}, {"Gain=@0.25", "Gain=@0.75"}});
    CEffectInstance effect(library);
    settings.applyTo(effect);
    EXPECT_EQ(effect.parameter(0), 0.75f);
    ASSERT_EQ(settings.assignments().size(), 1u);
    EXPECT_EQ(
        settings.notes(),
        std::vector<std::string>{"note: --set Gain: given more than once; the last value counts"});
}

TEST_F(CEffectSettingsTest, BothMeaningsOfAPlainNumberAreNoted) {
    EXPECT_EQ(
        settingsFor({{}, {}, {"gain=0"}}).notes(),
        std::vector<std::string>{"note: --set gain=0: taken as a normalised value, which is "
                                 "-6.00 dB; write Gain=@0 for this, or \"Gain=0 dB\" for 0 dB"});
    EXPECT_TRUE(
        settingsFor({{}, {}, {"Gain=@0", "Freq=0.5", "Link=1", "Ratio=3:1"}}).notes().empty());
}

TEST_F(CEffectSettingsTest, AWrongAssignmentIsRefused) {
    EXPECT_THAT(refusal({{}, {}, {"Gain"}}), HasSubstr("\"Gain\" is not NAME=VALUE"));
    EXPECT_THAT(refusal({{}, {}, {"Gian=0"}}), HasSubstr("no parameter \"Gian\""));
    EXPECT_THAT(refusal({{}, {}, {"=0"}}), HasSubstr("no parameter \"\""));
    EXPECT_THAT(refusal({{}, {}, {"Gain=30dB"}}),
                HasSubstr("--set Gain: 30dB is outside -6.00 to 6.00 dB"));
}

TEST_F(CEffectSettingsTest, OnlyTheChannelStripHasAChain) {
    const CEffectLibrary stranger(testEffect("Stranger"));
    CEffectInstance trial(stranger);
    EXPECT_THROW(CEffectSettings({{}, "Gate", {}}, trial), CCallError);
    EXPECT_FALSE(CEffectSettings({}, trial).chain().has_value());
}

TEST_F(CEffectSettingsTest, AStateOfAnotherSizeIsRefused) {
    const CEffectLibrary shortChunk(testEffect("ShortChunk"));
    CEffectInstance trial(shortChunk);
    EXPECT_THROW(CEffectSettings({{}, "Gate", {}}, trial), CJobError);
}
