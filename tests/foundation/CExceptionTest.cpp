#include "foundation/CException.h"

#include "foundation/ObjectSamples.h"

#include <gtest/gtest.h>

using Tessitor::Exceptions::CException;

namespace {

TEST(CException, CarriesReasonAndFunction) {
    const CException exception("Menu is NULL", "CMenu::open(CMenu *)", true);
    EXPECT_STREQ(exception.getErrorReason().getString(), "Menu is NULL");
    EXPECT_STREQ(exception.getFunctionName().getString(), "CMenu::open(CMenu *)");
}

TEST(CException, TheFlagIsOneWhateverIsPassed) {
    EXPECT_EQ(CException("", "", true).getErrorFlag(), 1);
    EXPECT_EQ(CException("", "", false).getErrorFlag(), 1);
}

TEST(CException, ACopyHasTheSameTexts) {
    const CException original("reason", "function", true);
    const CException copy = copyOf(original);
    EXPECT_STREQ(copy.getErrorReason().getString(), "reason");
    EXPECT_STREQ(copy.getFunctionName().getString(), "function");
    EXPECT_EQ(copy.getErrorFlag(), 1);
}

TEST(CException, ACopyLowersTheNumberOfInstances) {
    const CException original("reason", "function", true);
    const auto &record = original.getClass();
    const auto instances = record.getInstanceCount(), total = record.getTotalCount();
    copyOf(original);
    EXPECT_EQ(record.getInstanceCount(), instances - 1);
    EXPECT_EQ(record.getTotalCount(), total);
    original.getClass().incrementInstanceCount();  // restores the count for the next test
}

TEST(CException, HasItsOwnRecord) {
    const CException exception("", "", true);
    EXPECT_TRUE(exception.getClass() == "CException");
    EXPECT_TRUE(exception.getClass().isTypeOf(Tessitor::Basics::CCountedObject().getClass()));
}

}  // namespace
