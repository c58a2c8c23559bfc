#include "corvel/live/CControllers.h"

#include "corvel/console/Errors.h"
#include "dspclasses/parameters/ParameterIds.h"
#include "tools/support/Program.h"

#include <gmock/gmock.h>

using namespace Tessitor::Tool;
using testing::HasSubstr;

namespace {

class CControllersOfStrip : public testing::Test {
protected:
    std::string errorOf(const std::string &text) {
        try {
            const CControllers controllers({text}, effect);
        } catch (const CCallError &error) {
            return error.what();
        }
        return "";
    }

    CEffectLibrary library{CORVEL_EFFECT};
    CEffectInstance effect{library};
};

}  // namespace

TEST_F(CControllersOfStrip, SetTheWholeRangeOfAParameter) {
    const CControllers controllers({"21=InGain"}, effect);
    for (const int value : {0, 1, 64, 127}) {
        controllers.apply(21, value, effect);
        EXPECT_EQ(effect.parameter(kInGain), static_cast<float>(value) / 127.0f);
    }
}

TEST_F(CControllersOfStrip, MaySetSeveralParametersAndBeMany) {
    const CControllers controllers({"0=ingain", " 119 = DlyWet ", "119=RvTlLvl"}, effect);
    EXPECT_TRUE(controllers.isAnySetBy(0));
    EXPECT_TRUE(controllers.isAnySetBy(119));
    EXPECT_FALSE(controllers.isAnySetBy(1));
    controllers.apply(119, 127, effect);
    EXPECT_EQ(effect.parameter(kDlyWet), 1.0f);
    EXPECT_EQ(effect.parameter(kRvTlLvl), 1.0f);
}

TEST_F(CControllersOfStrip, ReachAHardPanAtOnce) {
    const CControllers controllers({"10=Pan"}, effect);
    effect.start({});
    controllers.apply(10, 0, effect);
    EXPECT_EQ(effect.parameter(kPan), 0.0f);
}

TEST_F(CControllersOfStrip, SetATimeThatIsHeardThoughTheDelayFollowedTheTempo) {
    const CControllers controllers({"20=DlyTime"}, effect);
    effect.setParameter(kDlySync, 1.0f);
    controllers.apply(20, 64, effect);
    EXPECT_EQ(effect.parameter(kDlySync), 0.0f);
    EXPECT_EQ(effect.parameter(kDlyTime), 64.0f / 127.0f);
    effect.setParameter(kDlySync, 0.4f);
    controllers.apply(20, 65, effect);
    EXPECT_EQ(effect.parameter(kDlySync), 0.4f);
}

TEST_F(CControllersOfStrip, KeepTheReverbsSpreadFromTheAudioThread) {
    const CControllers controllers({"1=RvTlLvl", "2=RvSpread", "3=RvTlLvl", "3=RvSpread"}, effect);
    EXPECT_TRUE(controllers.canSetOnAudioThread(1));
    EXPECT_FALSE(controllers.canSetOnAudioThread(2));
    EXPECT_FALSE(controllers.canSetOnAudioThread(3));
    EXPECT_TRUE(controllers.canSetOnAudioThread(4));
}

TEST_F(CControllersOfStrip, AreRefusedWithTheReason) {
    EXPECT_EQ(errorOf("21"), "--cc: \"21\" is not NUMBER=PARAMETER");
    EXPECT_EQ(errorOf(""), "--cc: \"\" is not NUMBER=PARAMETER");
    for (const std::string number : {"120", "-1", "x", "", "1.5", "99999999999"})
        EXPECT_EQ(errorOf(number + "=InGain"),
                  "--cc: \"" + number + "\" is not a controller's number from 0 to 119");
    EXPECT_THAT(errorOf("21=Nothing"), HasSubstr("--cc: no parameter \"Nothing\""));
    EXPECT_THAT(errorOf("21="), HasSubstr("--cc: no parameter \"\""));
}

TEST(CControllers, SetParametersOfOtherEffectsDirectly) {
    const CEffectLibrary library(testEffect("Lively"));
    CEffectInstance effect(library);
    const CControllers controllers({"7=Gain"}, effect);
    controllers.apply(7, 127, effect);
    EXPECT_EQ(effect.parameter(0), 1.0f);
    EXPECT_TRUE(controllers.canSetOnAudioThread(7));
}
