#include "dspclasses/modules/CDSPPan.h"

#include "dspclasses/modules/PlainLevels.h"
#include "dspclasses/support/Matrix.h"
#include "dspclasses/support/Oracle.h"

#include <initializer_list>
#include <memory>

using enum CDSPPan::EParameter;

static SMatrix matrixAfter(std::initializer_list<float> positions) {
    CDSPPan pan;
    for (const float position : positions)
        pan.setParameter(kPosition, position);
    return matrixOf(pan);
}

static const SMatrix identity{1.0, 0.0, 0.0, 1.0};

TEST(CDSPPan, IsTheIdentityUntilItIsMoved) {
    CDSPPan pan;
    EXPECT_EQ(pan.getParameter(kPosition), 0.5f);
    EXPECT_EQ(matrixOf(pan), identity);
    EXPECT_EQ(matrixAfter({0.5f}), identity);
}

TEST(CDSPPan, PutsBothInputsOnOneSideAtEitherEnd) {
    EXPECT_EQ(matrixAfter({0.25f, 0.0f}), (SMatrix{1.0, 0.0, 1.0, 0.0}));
    EXPECT_EQ(matrixAfter({0.75f, 1.0f}), (SMatrix{0.0, 1.0, 0.0, 1.0}));
}

TEST(CDSPPan, IgnoresAFirstMoveStraightToEitherEnd) {
    EXPECT_EQ(matrixAfter({0.0f}), identity);
    EXPECT_EQ(matrixAfter({1.0f}), identity);
}

TEST(CDSPPan, SpreadsTheRightInputInTheLeftHalfAndTheLeftInputInTheRight) {
    const double near = std::sqrt(0.25f), far = std::sqrt(0.75f);
    EXPECT_EQ(matrixAfter({0.25f}), (SMatrix{1.0, 0.0, far, near}));
    EXPECT_EQ(matrixAfter({0.75f}), (SMatrix{near, far, 0.0, 1.0}));
}

TEST(CDSPPan, TheHalvesDoNotMeetInTheMiddle) {
    const SMatrix middle = matrixAfter({0.75f, 0.5f});
    const double rootHalf = std::sqrt(0.5f);
    EXPECT_EQ(middle, (SMatrix{rootHalf, rootHalf, 0.0, 1.0}));
    const SMatrix below = matrixAfter({std::nextafter(0.5f, 0.0f)});
    EXPECT_EQ(below.leftToLeft, 1.0);
    EXPECT_EQ(below.leftToRight, 0.0);
    EXPECT_NEAR(below.rightToLeft, rootHalf, 1e-6);
    EXPECT_NEAR(below.rightToRight, rootHalf, 1e-6);
}

TEST(CDSPPan, EachHalfSkipsASpreadThatIsItsLastOne) {
    // The second 0.75 has the spread of the first, but the other half has set two gains since.
    EXPECT_EQ(matrixAfter({0.75f, 0.25f, 0.75f}), identity);
    EXPECT_EQ(matrixAfter({0.25f, 0.75f, 0.25f}), (SMatrix{1.0, 0.0, 0.0, 1.0}));
    EXPECT_NE(matrixAfter({0.75f, 0.25f, 0.8f}), identity);
}

TEST(CDSPPan, KeepsItsMatrixWhenAPositionIsRepeated) {
    EXPECT_EQ(matrixAfter({0.75f, 0.25f, 0.75f, 0.75f}), identity);
}

TEST(CDSPPan, DoesNotClampThePosition) {
    const SMatrix below = matrixAfter({-0.5f}), above = matrixAfter({1.5f});
    EXPECT_TRUE(std::isnan(below.rightToRight));
    EXPECT_EQ(below.rightToLeft, std::sqrt(1.5f));
    EXPECT_TRUE(std::isnan(above.leftToLeft));
    EXPECT_EQ(above.leftToRight, std::sqrt(1.5f));
}

TEST(CDSPPan, IgnoresTheIndex) {
    CDSPPan pan;
    pan.setParameter(3, 0.25f);
    EXPECT_EQ(pan.getParameter(7), 0.25f);
    EXPECT_EQ(matrixOf(pan), matrixAfter({0.25f}));
}

TEST(CDSPPan, EqualsThePlainVersionBitForBit) {
    expectSameBits([] { return std::make_unique<CDSPPan>(); },
                   [] { return std::make_unique<CPlainPan>(); },
                   // Several draws, so that a case leaves a half and returns to it.
                   {{kPosition, 0.25f, 0.75f}, {kPosition, 0.25f, 0.75f}, {kPosition, 0.0f, 1.0f}});
}
