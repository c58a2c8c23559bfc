#include "foundation/CCountedObject.h"

#include "foundation/ObjectSamples.h"

#include <gtest/gtest.h>
#include <string>

using Tessitor::Basics::CCountedObject;

namespace {

TEST(CCountedObject, StartsWithACountOfZero) {
    EXPECT_EQ(CCountedObject().getReferenceCount(), 0);
}

TEST(CCountedObject, LivesUntilItsLastReferenceIsReleased) {
    bool destroyed = false;
    auto *object = new CWatchedObject(destroyed);
    object->reference();
    object->reference();
    EXPECT_EQ(object->getReferenceCount(), 2);
    object->dereference();
    EXPECT_FALSE(destroyed);
    object->dereference();
    EXPECT_TRUE(destroyed);
}

TEST(CCountedObject, IsDestroyedWhenDereferencedAtZero) {
    bool destroyed = false;
    (new CWatchedObject(destroyed))->dereference();
    EXPECT_TRUE(destroyed);
}

TEST(CCountedObject, CountsItselfInItsRecord) {
    const auto &record = CCountedObject().getClass();
    const auto instances = record.getInstanceCount(), total = record.getTotalCount();
    {
        const CCountedObject first, second;
        EXPECT_EQ(record.getInstanceCount(), instances + 2);
    }
    EXPECT_EQ(record.getInstanceCount(), instances);
    EXPECT_EQ(record.getTotalCount(), total + 2);
}

TEST(CCountedObject, ADerivedObjectCountsInItsOwnRecordAndItsBases) {
    bool destroyed = false;
    const CWatchedObject witness(destroyed);
    const CCountedObject base;
    const auto derivedCount = witness.getClass().getInstanceCount();
    const auto baseCount = base.getClass().getInstanceCount();
    const CWatchedObject another(destroyed);
    EXPECT_EQ(witness.getClass().getInstanceCount(), derivedCount + 1);
    EXPECT_EQ(base.getClass().getInstanceCount(), baseCount + 1);
}

TEST(CCountedObject, ACopyHasTheSameCountAndLowersTheNumberOfInstances) {
    CCountedObject original;
    original.reference();
    original.reference();
    const auto &record = original.getClass();
    const auto instances = record.getInstanceCount(), total = record.getTotalCount();
    {
        const CCountedObject copy = copyOf(original);
        EXPECT_EQ(copy.getReferenceCount(), 2);
        EXPECT_EQ(record.getInstanceCount(), instances);
    }
    EXPECT_EQ(record.getInstanceCount(), instances - 1);
    EXPECT_EQ(record.getTotalCount(), total);
    original.getClass().incrementInstanceCount();  // restores the count for the next test
}

TEST(CCountedObject, AssignmentDoesNotCopyTheCount) {
    CCountedObject left, right;
    right.reference();
    left = right;
    EXPECT_EQ(left.getReferenceCount(), 0);
}

TEST(CCountedObject, DescriptionShowsTheCountWithoutAClosingBracket) {
    CCountedObject object;
    object.reference();
    char text[64];
    object.getObjectDescription(text, sizeof text);
    EXPECT_STREQ(text, "[CCounted Object Base Reference Count = 1");
}

TEST(CCountedObject, DescriptionThatFillsTheArrayHasNoTerminator) {
    const std::string whole = "[CCounted Object Base Reference Count = 0";
    const auto filled = [](std::size_t size) {
        std::string array(64, 'x');
        CCountedObject().getObjectDescription(array.data(), static_cast<long>(size));
        return array.substr(0, size + 1);
    };
    EXPECT_EQ(filled(9), "[CCountedx");
    EXPECT_EQ(filled(whole.size()), whole + 'x');
    EXPECT_EQ(filled(whole.size() + 1), whole + '\0' + 'x');
    EXPECT_EQ(filled(whole.size() + 3), whole + std::string(3, '\0') + 'x');
}

TEST(CCountedObject, DescriptionNeedsAnArray) {
    char text[] = "kept";
    CCountedObject().getObjectDescription(nullptr, 10);
    CCountedObject().getObjectDescription(text, 0);
    CCountedObject().getObjectDescription(text, -1);
    EXPECT_STREQ(text, "kept");
}

}  // namespace
