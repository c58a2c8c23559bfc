#include "foundation/CLong.h"

#include <gtest/gtest.h>
#include <limits>

using Tessitor::Basics::CLong;

namespace {

constexpr long highest = std::numeric_limits<long>::max();
constexpr long lowest = std::numeric_limits<long>::min();

TEST(CLong, IsZeroAtFirst) {
    EXPECT_EQ(CLong().getValue(), 0);
}

TEST(CLong, StoresItsValue) {
    CLong number(5);
    EXPECT_EQ(number.getValue(), 5);
    number.setValue(-6);
    EXPECT_EQ(number.getValue(), -6);
    number = 7;
    EXPECT_EQ(number.getValue(), 7);
    EXPECT_EQ(CLong(number).getValue(), 7);
}

TEST(CLong, Compares) {
    EXPECT_TRUE(CLong(2) == CLong(2));
    EXPECT_TRUE(CLong(2) != CLong(3));
    EXPECT_TRUE(CLong(2) < CLong(3));
    EXPECT_TRUE(CLong(3) >= CLong(3));
    EXPECT_TRUE(CLong(2) == 2);
    EXPECT_TRUE(CLong(-2) > -3);
}

TEST(CLong, Calculates) {
    EXPECT_EQ(CLong(7) + 2, 9);
    EXPECT_EQ(CLong(7) - 2, 5);
    EXPECT_EQ(CLong(7) * 2, 14);
    EXPECT_EQ(CLong(-7) / 2, -3);
    CLong number(10);
    number += 5;
    number -= 3;
    number *= 2;
    number /= 4;
    EXPECT_EQ(number, 6);
}

TEST(CLong, WrapsAtTheEndsOfTheRange) {
    EXPECT_EQ(CLong(highest) + 1, lowest);
    EXPECT_EQ(CLong(lowest) - 1, highest);
    EXPECT_EQ(CLong(highest) * 2, -2);
    EXPECT_EQ(CLong(lowest) / -1, lowest);
    EXPECT_EQ(CLong(5) / -1, -5);
}

TEST(CLong, DividingByZeroReturnsZero) {
    EXPECT_EQ(CLong(5) / 0, 0);
}

TEST(CLong, PadsTextWithZerosToTheWidth) {
    EXPECT_STREQ(CLong::toString(7, 3).getString(), "007");
    EXPECT_STREQ(CLong::toString(-7, 3).getString(), "-07");
    EXPECT_STREQ(CLong::toString(12345, 3).getString(), "12345");
    EXPECT_STREQ(CLong::toString(7, 0).getString(), "7");
}

TEST(CLong, DescribesItself) {
    char text[32];
    CLong(-42).getObjectDescription(text, sizeof text);
    EXPECT_STREQ(text, "-42");
    CLong(12345).getObjectDescription(text, 4);
    EXPECT_STREQ(text, "123");
}

TEST(CLong, EveryConstructorCounts) {
    const CLong number(1);
    EXPECT_TRUE(number.getClass() == "CLong");
    const auto instances = number.getClass().getInstanceCount();
    {
        CLong copy(number), another;
        copy += another;
        EXPECT_EQ(number.getClass().getInstanceCount(), instances + 2);
    }
    EXPECT_EQ(number.getClass().getInstanceCount(), instances);
}

}  // namespace
