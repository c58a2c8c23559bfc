#include "corvel/presets/CUnitText.h"

#include "corvel/console/Errors.h"
#include "corvel/effect/CEffectInstance.h"
#include "dspclasses/parameters/ParameterIds.h"

#include <gmock/gmock.h>

using namespace Tessitor::Tool;
using testing::HasSubstr;

namespace {

std::string refusal(int id, std::string_view text) {
    try {
        CUnitText(id).valueOf(text);
    } catch (const CCallError &error) {
        return error.what();
    }
    return "";
}

}  // namespace

TEST(CUnitText, ShowsValuesLikeTheEffect) {
    const CEffectLibrary library(CORVEL_EFFECT);
    CEffectInstance effect(library);
    for (int id = 0; id < kUnused62; ++id) {
        const CUnitText text(id);
        const std::string unit = effect.text(effGetParamLabel, id);
        for (int step = 0; step <= 1000; ++step) {
            const float value = static_cast<float>(step) / 1000.0f;
            effect.setParameter(id, value);
            const std::string shown = effect.text(effGetParamDisplay, id);
            ASSERT_EQ(text.display(value),
                      (shown == "-0.00" ? "0.00" : shown) + (unit.empty() ? "" : " " + unit))
                << id << " at " << value;
        }
    }
}

TEST(CUnitText, ReadsRoundValuesFromTheDisplay) {
    EXPECT_EQ(CUnitText(kCmpThresh).exactText(0.665f), "-20.10 dB");
    EXPECT_EQ(CUnitText(kCmpThresh).valueOf("-20.10 dB"), 0.665f);
    EXPECT_EQ(CUnitText(k3EQXLoMd).valueOf("399Hz"), 0.665f);
    EXPECT_EQ(CUnitText(kCmpRatio).valueOf("3.0:1"), 0.29f);
    EXPECT_EQ(CUnitText(kMod1Mix).valueOf("30:70"), 0.7f);
    EXPECT_EQ(CUnitText(kCmpLink).valueOf("linked"), 1.0f);
    EXPECT_EQ(CUnitText(kRvDryLvl).valueOf("-oo dB"), 0.0f);
}

TEST(CUnitText, AddsDecimalsWhereTheDisplayRounds) {
    EXPECT_EQ(CUnitText(kRvInDamp).exactText(0.695f), "69.5 %");
    EXPECT_EQ(CUnitText(kRvInDamp).valueOf("69.5 %"), 0.695f);
    EXPECT_EQ(CUnitText(kDeSSpeed).exactText(0.2285f), "77.15");
    EXPECT_EQ(CUnitText(kDeSSpeed).valueOf("77.15"), 0.2285f);
    EXPECT_EQ(CUnitText(kCmpRatio).exactText(0.2975f), "3.0825:1");
    EXPECT_EQ(CUnitText(kCmpRatio).valueOf("3.0825:1"), 0.2975f);
}

TEST(CUnitText, ATextIsOnlyGivenIfItIsExact) {
    int given = 0;
    for (int id = 0; id < kUnused62; ++id) {
        const CUnitText text(id);
        for (int step = 0; step <= 50; ++step) {
            const float value = static_cast<float>(step) / 50.0f * 0.999991f;
            const std::optional<std::string> exact = text.exactText(value);
            if (!exact)
                continue;
            ++given;
            ASSERT_EQ(text.valueOf(*exact), value) << id << ": " << *exact;
        }
    }
    EXPECT_GT(given, 62 * 51 / 2);
}

TEST(CUnitText, AValueThatTheUnitCannotTellHasNoText) {
    EXPECT_EQ(CUnitText(kCmpLink).exactText(0.7f), std::nullopt);
    EXPECT_EQ(CUnitText(kMod1Type).exactText(0.3f), std::nullopt);
    EXPECT_EQ(CUnitText(kRvDryLvl).exactText(0.0005f), std::nullopt);
    EXPECT_EQ(CUnitText(kCmpThresh).exactText(-0.0f), std::nullopt);
}

TEST(CUnitText, ANumberNeedsItsUnit) {
    EXPECT_EQ(refusal(kCmpThresh, "-18"),
              "\"-18\" is only a number; expected a text like \"-30.00 dB\"");
    EXPECT_THAT(refusal(kCmpThresh, " 0.5 "), HasSubstr("only a number"));
    EXPECT_THAT(refusal(kCmpThresh, "0 . 5"), HasSubstr("only a number"));
    EXPECT_THAT(refusal(kCmpThresh, "+1e-1"), HasSubstr("only a number"));
    EXPECT_THAT(refusal(kCmpLink, "1"), HasSubstr("expected a text like \"Linked\""));
}

TEST(CUnitText, ABareNumberIsNoNormalisedValue) {
    EXPECT_EQ(CUnitText(kDeSSpeed).valueOf("0"), 1.0f);
    EXPECT_EQ(CUnitText(kDeSSpeed).valueOf("100"), 0.0f);
    EXPECT_EQ(CUnitText(kDeSSpeed).valueOf("1"), 0.99f);
}

TEST(CUnitText, RefusesWhatTheEffectCannotShow) {
    EXPECT_THAT(refusal(kCmpThresh, "3 dB"), HasSubstr("3 dB is outside -60.00 to 0.00 dB"));
    EXPECT_THAT(refusal(kCmpThresh, "-18 Hz"), HasSubstr("is not possible"));
    EXPECT_THAT(refusal(kCmpLink, "Loose"), HasSubstr("shows Separate, Linked"));
    EXPECT_THAT(refusal(kCmpLink, ""), HasSubstr("is not possible"));
}
