#include "dspclasses/blocks/SquareRootLaw.h"

#include <cmath>
#include <gtest/gtest.h>

TEST(SquareRootLaw, IsTheSquareRootOfTheShare) {
    EXPECT_EQ(squareRootLaw(1.0f), 1.0f);
    EXPECT_EQ(squareRootLaw(0.25f), 0.5f);
    EXPECT_EQ(squareRootLaw(1e-38f), std::sqrt(1e-38f));
}

TEST(SquareRootLaw, ReturnsZeroForAnInaudibleShare) {
    EXPECT_EQ(squareRootLaw(0.0f), 0.0f);
    EXPECT_EQ(squareRootLaw(0.9e-40f), 0.0f);
}

TEST(SquareRootLaw, ReturnsNaNForANegativeShare) {
    EXPECT_TRUE(std::isnan(squareRootLaw(-0.25f)));
}
