#include "foundation/CBool.h"

#include <gtest/gtest.h>

using Tessitor::Basics::CBool;
using Tessitor::Basics::CString;

namespace {

TEST(CBool, StoresItsValue) {
    EXPECT_FALSE(CBool().getValue());
    CBool value(true);
    EXPECT_TRUE(value.getValue());
    value.setValue(false);
    EXPECT_FALSE(value.getValue());
    value = true;
    EXPECT_TRUE(CBool(value).getValue());
}

TEST(CBool, Compares) {
    EXPECT_TRUE(CBool(true) == CBool(true));
    EXPECT_TRUE(CBool(true) != false);
    EXPECT_TRUE(!CBool(false));
    EXPECT_FALSE(!CBool(true));
}

TEST(CBool, ReadsOnlyTrueAsTrue) {
    EXPECT_TRUE(CBool("True").getValue());
    EXPECT_TRUE(CBool(CString("True")).getValue());
    const CBool converted = "False";
    EXPECT_FALSE(converted.getValue());
    for (const char *text : {"true", "TRUE", "True ", "1", "", "False"}) {
        EXPECT_FALSE(CBool(text).getValue()) << text;
        CBool value(true);
        value.setValue(text);
        EXPECT_FALSE(value.getValue()) << text;
    }
    CBool value;
    value.setValue(CString("True"));
    EXPECT_TRUE(value.getValue());
}

TEST(CBool, ConvertsToTextAndBack) {
    EXPECT_STREQ(CBool(true).toString().getString(), "True");
    EXPECT_STREQ(CBool(false).toString().getString(), "False");
    EXPECT_TRUE(CBool(CBool(true).toString()).getValue());
}

TEST(CBool, DescribesItself) {
    char text[6];
    CBool(false).getObjectDescription(text, sizeof text);
    EXPECT_STREQ(text, "False");
    CBool(true).getObjectDescription(text, 3);
    EXPECT_STREQ(text, "Tr");
}

TEST(CBool, EveryConstructorCounts) {
    const CBool value;
    EXPECT_TRUE(value.getClass() == "CBool");
    const auto instances = value.getClass().getInstanceCount();
    {
        CBool copy(value);
        copy = true;
        const CBool fromText("True"), fromString(CString("True"));
        EXPECT_EQ(value.getClass().getInstanceCount(), instances + 3);
    }
    EXPECT_EQ(value.getClass().getInstanceCount(), instances);
}

}  // namespace
