#include "foundation/CParameter.h"

#include <gtest/gtest.h>
#include <limits>

using Tessitor::Basics::CString;
using Tessitor::MathTools::CParameter;

namespace {

TEST(CParameter, StartsAtAHalfBetweenZeroAndOne) {
    CParameter parameter;
    EXPECT_EQ(parameter.getValue(), 0.5);
    EXPECT_EQ(parameter.getMinimum(), 0.0);
    EXPECT_EQ(parameter.getMaximum(), 1.0);
    EXPECT_EQ(parameter.updateValue(0.25), 0.25);
}

TEST(CParameter, MapsANormalisedValueToItsRange) {
    CParameter parameter;
    parameter.setRange(-10.0, 30.0);
    EXPECT_EQ(parameter.getValue(), 0.5);
    parameter.setNormalisedValue(0.25);
    EXPECT_EQ(parameter.getValue(), 0.0);
    EXPECT_EQ(parameter.updateValue(1.0), 30.0);
    EXPECT_EQ(parameter.updateValue(1.5), 50.0);
}

TEST(CParameter, IgnoresARangeWithItsMaximumBelowItsMinimum) {
    CParameter parameter;
    parameter.setRange(2.0, 4.0);
    parameter.setRange(5.0, 1.0);
    parameter.setRange(std::numeric_limits<double>::quiet_NaN(), 1.0);
    EXPECT_EQ(parameter.getMinimum(), 2.0);
    EXPECT_EQ(parameter.getMaximum(), 4.0);
    EXPECT_EQ(parameter.updateValue(0.5), 3.0);
}

TEST(CParameter, ARangeMayBeEmpty) {
    CParameter parameter;
    parameter.setRange(3.0, 3.0);
    EXPECT_EQ(parameter.updateValue(0.7), 3.0);
}

TEST(CParameter, ASetValueMayLieOutsideTheRange) {
    CParameter parameter;
    parameter.setValue(-7.25);
    EXPECT_EQ(parameter.getValue(), -7.25);
}

TEST(CParameter, TextHasTwoDecimals) {
    CParameter parameter;
    CString text;
    parameter.getValueAsString(text);
    EXPECT_STREQ(text.getString(), "0.50");
    parameter.setValue(-1234.567);
    parameter.getValueAsString(text);
    EXPECT_STREQ(text.getString(), "-1234.57");
}

TEST(CParameter, EveryConstructorCounts) {
    CParameter parameter;
    parameter.setRange(1.0, 3.0);
    parameter.setValue(2.0);
    EXPECT_TRUE(parameter.getClass() == "CParameter");
    const auto instances = parameter.getClass().getInstanceCount();
    {
        CParameter copy(parameter);
        EXPECT_EQ(copy.getValue(), 2.0);
        EXPECT_EQ(copy.updateValue(1.0), 3.0);
        EXPECT_EQ(parameter.getClass().getInstanceCount(), instances + 1);
    }
    EXPECT_EQ(parameter.getClass().getInstanceCount(), instances);
}

}  // namespace
