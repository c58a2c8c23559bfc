#include "hostlayer/CTimeSignature.h"

#include <gtest/gtest.h>
#include <memory>

using Tessitor::Music::CTimeSignature;

TEST(CTimeSignature, IsFourFourByDefault) {
    const CTimeSignature signature;
    EXPECT_EQ(signature.getNumerator(), 4);
    EXPECT_EQ(signature.getDenominator(), 4);
}

TEST(CTimeSignature, SetsBothNumbersOrOneOfThem) {
    CTimeSignature signature(7, 8);
    EXPECT_EQ(signature.getNumerator(), 7);
    EXPECT_EQ(signature.getDenominator(), 8);
    signature.setNumerator(5);
    EXPECT_EQ(signature.getNumerator(), 5);
    EXPECT_EQ(signature.getDenominator(), 8);
    signature.setDenominator(16);
    EXPECT_EQ(signature.getNumerator(), 5);
    EXPECT_EQ(signature.getDenominator(), 16);
    signature.setTimeSignature(3, 2);
    EXPECT_EQ(signature.getNumerator(), 3);
    EXPECT_EQ(signature.getDenominator(), 2);
}

TEST(CTimeSignature, CopiesBothNumbers) {
    const CTimeSignature original(7, 8);
    CTimeSignature copy(original), assigned;
    assigned = original;
    copy.setNumerator(9);
    EXPECT_EQ(copy.getNumerator(), 9);
    EXPECT_EQ(copy.getDenominator(), 8);
    EXPECT_EQ(original.getNumerator(), 7);
    EXPECT_EQ(assigned.getNumerator(), 7);
    EXPECT_EQ(assigned.getDenominator(), 8);
}

TEST(CTimeSignature, RoundsBeatsTowardsZero) {
    EXPECT_EQ(CTimeSignature(3, 4).getBeats(), 0.0);
    EXPECT_EQ(CTimeSignature(4, 4).getBeats(), 1.0);
    EXPECT_EQ(CTimeSignature(6, 4).getBeats(), 1.0);
    EXPECT_EQ(CTimeSignature(8, 4).getBeats(), 2.0);
}

TEST(CTimeSignature, CountsItsInstances) {
    CTimeSignature first(3, 4);
    first.reference();
    auto &record = first.getClass();
    EXPECT_STREQ(record.getClassName(), "CTimeSignature");
    const auto before = record.getInstanceCount();
    {
        const CTimeSignature second, third(6, 8);
        const auto fourth = std::make_unique<CTimeSignature>(first);
        EXPECT_EQ(fourth->getReferenceCount(), 0);
        EXPECT_EQ(record.getInstanceCount(), before + 3);
    }
    EXPECT_EQ(record.getInstanceCount(), before);
}
