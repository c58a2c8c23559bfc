#include "foundation/CDouble.h"
#include "foundation/CFloat.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

using Tessitor::Basics::CDouble;
using Tessitor::Basics::CFloat;

namespace {

template <typename Number>
class TRealNumber : public testing::Test {};

using Numbers = testing::Types<CFloat, CDouble>;
TYPED_TEST_SUITE(TRealNumber, Numbers);

TYPED_TEST(TRealNumber, IsZeroAtFirst) {
    EXPECT_EQ(TypeParam().getValue(), 0);
}

TYPED_TEST(TRealNumber, StoresItsValue) {
    TypeParam number(1.5);
    EXPECT_EQ(number.getValue(), 1.5);
    number.setValue(-0.25);
    EXPECT_EQ(number.getValue(), -0.25);
    number = 2;
    EXPECT_EQ(number.getValue(), 2);
    EXPECT_EQ(TypeParam(number).getValue(), 2);
}

TYPED_TEST(TRealNumber, Compares) {
    EXPECT_TRUE(TypeParam(2.5) == TypeParam(2.5));
    EXPECT_TRUE(TypeParam(2.5) != TypeParam(3));
    EXPECT_TRUE(TypeParam(2.5) < TypeParam(3));
    EXPECT_TRUE(TypeParam(3) >= TypeParam(3));
    const TypeParam none(std::numeric_limits<float>::quiet_NaN());
    EXPECT_FALSE(none == none);
    EXPECT_FALSE(none < none);
}

TYPED_TEST(TRealNumber, Calculates) {
    EXPECT_EQ(TypeParam(7) + TypeParam(2), TypeParam(9));
    EXPECT_EQ(TypeParam(7) - TypeParam(2), TypeParam(5));
    EXPECT_EQ(TypeParam(7) * TypeParam(2), TypeParam(14));
    EXPECT_EQ(TypeParam(7) / TypeParam(2), TypeParam(3.5));
    TypeParam number(10);
    number += TypeParam(5);
    number -= TypeParam(3);
    number *= TypeParam(2);
    number /= TypeParam(4);
    EXPECT_EQ(number.getValue(), 6);
    EXPECT_TRUE(std::isinf((TypeParam(1) / TypeParam(0)).getValue()));
}

TYPED_TEST(TRealNumber, TextHasTheRequestedDecimals) {
    EXPECT_STREQ(TypeParam::toString(1.25f, 3).getString(), "1.250");
    EXPECT_STREQ(TypeParam::toString(-1.25f, 1).getString(), "-1.2") << "halves go to the even";
    EXPECT_STREQ(TypeParam::toString(0.75f, 0).getString(), "1");
    EXPECT_STREQ(TypeParam::toString(0.75f, -3).getString(), "1");
    EXPECT_STREQ(TypeParam::toString(1, 12).getString(), "1.000000000000");
}

TYPED_TEST(TRealNumber, DescribesItself) {
    char text[32];
    TypeParam(1.5).getObjectDescription(text, sizeof text);
    EXPECT_STREQ(text, "1.500000");
    TypeParam(1.5).getObjectDescription(text, 3);
    EXPECT_STREQ(text, "1.");
}

TYPED_TEST(TRealNumber, EveryConstructorCounts) {
    const TypeParam number(1);
    const auto instances = number.getClass().getInstanceCount();
    {
        TypeParam copy(number), another;
        copy += number;
        another = copy + number;
        EXPECT_EQ(number.getClass().getInstanceCount(), instances + 2);
    }
    EXPECT_EQ(number.getClass().getInstanceCount(), instances);
}

TEST(CFloat, IsSingle) {
    EXPECT_EQ(CFloat(0.1f).getValue(), 0.1f);
    EXPECT_EQ((CFloat(16777216) + 1).getValue(), 16777216);
    EXPECT_TRUE(CFloat().getClass() == "CFloat");
    EXPECT_STREQ(CFloat::toString(0.1f, 12).getString(), "0.100000001490");
}

TEST(CDouble, IsDouble) {
    EXPECT_EQ(CDouble(0.1).getValue(), 0.1);
    EXPECT_EQ((CDouble(16777216) + 1).getValue(), 16777217);
    EXPECT_TRUE(CDouble().getClass() == "CDouble");
    EXPECT_STREQ(CDouble::toString(0.1, 12).getString(), "0.100000000000");
    char text[400];
    CDouble(std::numeric_limits<double>::lowest()).getObjectDescription(text, sizeof text);
    EXPECT_EQ(std::string(text).size(), 317u);
}

}  // namespace
