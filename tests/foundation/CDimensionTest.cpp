#include "foundation/CDimension.h"

#include <gtest/gtest.h>

using Tessitor::MathTools::CDimension;

namespace {

TEST(CDimension, StoresItsSize) {
    CDimension size(3, 4);
    EXPECT_EQ(size.getWidth(), 3);
    EXPECT_EQ(size.getHeight(), 4);
    size.setDimension(5, 6);
    EXPECT_EQ(size.getWidth(), 5);
    EXPECT_EQ(size.getHeight(), 6);
    size.setWidth(-7);
    size.setHeight(8);
    EXPECT_EQ(size.getWidth(), -7);
    EXPECT_EQ(size.getHeight(), 8);
}

TEST(CDimension, IsEmptyAtFirst) {
    EXPECT_EQ(CDimension().getWidth(), 0);
    EXPECT_EQ(CDimension().getHeight(), 0);
}

TEST(CDimension, Assigns) {
    CDimension size;
    size = CDimension(3, 4);
    EXPECT_EQ(size.getWidth(), 3);
    EXPECT_EQ(size.getHeight(), 4);
}

TEST(CDimension, EveryConstructorCounts) {
    const CDimension size;
    EXPECT_TRUE(size.getClass() == "CDimension");
    const auto instances = size.getClass().getInstanceCount();
    {
        const CDimension copy(size), another(1, 2);
        EXPECT_EQ(size.getClass().getInstanceCount(), instances + 2);
    }
    EXPECT_EQ(size.getClass().getInstanceCount(), instances);
}

}  // namespace
