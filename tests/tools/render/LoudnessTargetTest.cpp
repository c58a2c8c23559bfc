#include "corvel/render/LoudnessTarget.h"

#include "corvel/console/Errors.h"

#include <gmock/gmock.h>

using namespace Tessitor::Tool;
using testing::HasSubstr;

namespace {

std::string errorOf(const std::string &text) {
    try {
        targetFromText(text);
    } catch (const CCallError &error) {
        return error.what();
    }
    return "";
}

}  // namespace

TEST(LoudnessTarget, IsANumberAndAUnit) {
    const struct {
        const char *text, *meaning;
    } cases[] = {{"-16LUFS", "-16 LUFS"},         {"-16 LUFS", "-16 LUFS"},
                 {" -23.5  lufs ", "-23.5 LUFS"}, {"-1dBTP", "-1 dBTP"},
                 {"-1 DBtp", "-1 dBTP"},          {"0dBTP", "0 dBTP"},
                 {"-60LUFS", "-60 LUFS"},         {"-0,5 dBTP", "-0.5 dBTP"}};
    for (const auto &[text, meaning] : cases)
        EXPECT_EQ(toText(targetFromText(text)), meaning) << text;
}

TEST(LoudnessTarget, AnotherUnitIsAnErrorThatNamesBoth) {
    for (const char *text :
         {"-16", "-16dB", "-1dBFS", "-16 LU", "-16LUFS!", "-16%", "-16-16LUFS"}) {
        EXPECT_THAT(errorOf(text), HasSubstr("LUFS")) << text;
        EXPECT_THAT(errorOf(text), HasSubstr("dBTP")) << text;
    }
    EXPECT_EQ(errorOf("-16 dB"), "--normalize: \"dB\" is not a unit of loudness; use LUFS for the "
                                 "loudness, dBTP for the true peak");
    EXPECT_EQ(errorOf("-16"),
              "--normalize: needs a unit: LUFS for the loudness, dBTP for the true peak");
}

TEST(LoudnessTarget, WhatIsNoNumberIsAnError) {
    for (const char *text : {"", " ", "LUFS", "loud", "--16LUFS", "dBTP -1", "."})
        EXPECT_EQ(errorOf(text), std::string("--normalize: \"") + text +
                                     "\" is not a target; use one like -16LUFS or -1dBTP");
}

TEST(LoudnessTarget, WhatIsOutsideIsAnError) {
    for (const char *text : {"-60.1LUFS", "0.1dBTP", "16LUFS", "-1000 LUFS", "infdBTP", "nan LUFS"})
        EXPECT_EQ(errorOf(text), std::string("--normalize: \"") + text + "\" is outside -60 to 0");
}
