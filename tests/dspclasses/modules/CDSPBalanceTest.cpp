#include "dspclasses/modules/CDSPBalance.h"

#include "dspclasses/modules/PlainLevels.h"
#include "dspclasses/support/Matrix.h"
#include "dspclasses/support/Oracle.h"

#include <memory>

using enum CDSPBalance::EParameter;

static SMatrix matrixAt(float position) {
    CDSPBalance balance;
    balance.setParameter(kPosition, position);
    return matrixOf(balance);
}

TEST(CDSPBalance, IsTheIdentityInTheMiddle) {
    CDSPBalance balance;
    EXPECT_EQ(balance.getParameter(kPosition), 0.5f);
    EXPECT_EQ(matrixOf(balance), (SMatrix{1.0, 0.0, 0.0, 1.0}));
    balance.setParameter(kPosition, 0.2f);
    balance.setParameter(kPosition, 0.5f);
    EXPECT_EQ(matrixOf(balance), (SMatrix{1.0, 0.0, 0.0, 1.0}));
}

TEST(CDSPBalance, SilencesTheOtherSideAtTheEnds) {
    EXPECT_EQ(matrixAt(0.0f), (SMatrix{1.0, 0.0, 0.0, 0.0}));
    EXPECT_EQ(matrixAt(1.0f), (SMatrix{0.0, 0.0, 0.0, 1.0}));
}

TEST(CDSPBalance, LowersOneSideByASquareRootLawAndLeavesTheOther) {
    EXPECT_EQ(matrixAt(0.125f), (SMatrix{1.0, 0.0, 0.0, 0.5}));
    EXPECT_EQ(matrixAt(0.875f), (SMatrix{0.5, 0.0, 0.0, 1.0}));
}

TEST(CDSPBalance, DoesNotClampThePosition) {
    const SMatrix below = matrixAt(-1.0f), above = matrixAt(1.5f);
    EXPECT_EQ(below.leftToLeft, 1.0);
    EXPECT_TRUE(std::isnan(below.rightToRight));
    EXPECT_TRUE(std::isnan(above.leftToLeft));
    EXPECT_EQ(above.rightToRight, 1.0);
}

TEST(CDSPBalance, IgnoresMinusZeroAfterZero) {
    CDSPBalance balance;
    balance.setParameter(kPosition, 0.0f);
    balance.setParameter(kPosition, -0.0f);
    EXPECT_FALSE(std::signbit(balance.getParameter(kPosition)));
}

TEST(CDSPBalance, IgnoresTheIndex) {
    CDSPBalance balance;
    balance.setParameter(4, 0.125f);
    EXPECT_EQ(balance.getParameter(2), 0.125f);
    EXPECT_EQ(matrixOf(balance), (SMatrix{1.0, 0.0, 0.0, 0.5}));
}

TEST(CDSPBalance, EqualsThePlainVersionBitForBit) {
    expectSameBits([] { return std::make_unique<CDSPBalance>(); },
                   [] { return std::make_unique<CPlainBalance>(); }, {{kPosition, 0.0f, 1.0f}});
}
