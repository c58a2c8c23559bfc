#include "foundation/CClass.h"

#include "foundation/CClassManager.h"

#include <gtest/gtest.h>
#include <string>

using Tessitor::Basics::CClass;

namespace {

struct SArgument {};
struct SOther {};

/// @return true if a class of this name is registered: only then is it found as an ancestor.
bool isRegistered(const char *name) {
    const CClass child("CChildOfIt", name);
    CClass named;
    named.setClassName(name);
    return child.isTypeOf(named);
}

TEST(CClass, ADefaultRecordHasNoNameAndIsNotRegistered) {
    const CClass record;
    EXPECT_STREQ(record.getClassName(), "UndefinedClass");
    EXPECT_FALSE(isRegistered("UndefinedClass"));
}

TEST(CClass, RegistersUnderItsNameUntilItIsDestroyed) {
    EXPECT_FALSE(isRegistered("CPassing"));
    {
        const CClass record("CPassing");
        EXPECT_TRUE(isRegistered("CPassing"));
    }
    EXPECT_FALSE(isRegistered("CPassing"));
}

TEST(CClass, CountsLiveInstancesAndAllEverMade) {
    CClass record("CCounting");
    EXPECT_EQ(record.getInstanceCount(), 0u);
    EXPECT_EQ(record.getTotalCount(), 0u);
    record.incrementInstanceCount();
    record.incrementInstanceCount();
    record.decrementInstanceCount();
    EXPECT_EQ(record.getInstanceCount(), 1u);
    EXPECT_EQ(record.getTotalCount(), 2u);
}

TEST(CClass, BelowZeroTheCountWraps) {
    CClass record("CCounting");
    record.decrementInstanceCount();
    EXPECT_EQ(record.getInstanceCount(), 0xffffffffu);
    EXPECT_EQ(record.getTotalCount(), 0u);
}

TEST(CClass, OfTwoRecordsWithTheSameNameOnlyTheFirstIsRegisteredButBothCount) {
    const CClass ancestor("CFirstAncestor");
    CClass first("CTwice", "CFirstAncestor");
    CClass second("CTwice", "CSecondAncestor");
    second.incrementInstanceCount();
    EXPECT_EQ(first.getInstanceCount(), 0u);
    EXPECT_EQ(second.getInstanceCount(), 1u);
    // The search for ancestors continues from the registered record.
    EXPECT_TRUE(CClass("CBelow", "CTwice").isTypeOf(ancestor));
}

TEST(CClass, ASecondRecordOfANameDoesNotWithdrawTheFirst) {
    const CClass first("CTwice");
    { const CClass second("CTwice"); }
    EXPECT_TRUE(isRegistered("CTwice"));
}

TEST(CClass, ACopyHasOnlyTheName) {
    const CClass parent("CParent");
    CClass original("COriginal", "CParent");
    original.incrementInstanceCount();
    const CClass copy(original);
    EXPECT_STREQ(copy.getClassName(), "COriginal");
    EXPECT_EQ(copy.getInstanceCount(), 0u);
    EXPECT_EQ(copy.getTotalCount(), 0u);
    EXPECT_TRUE(original.isTypeOf(parent));
    EXPECT_FALSE(copy.isTypeOf(parent));
}

TEST(CClass, AssignmentCopiesOnlyTheName) {
    CClass left("CLeft"), right("CRight");
    right.incrementInstanceCount();
    left = right;
    EXPECT_STREQ(left.getClassName(), "CRight");
    EXPECT_EQ(left.getInstanceCount(), 0u);
}

TEST(CClass, NullNamesChangeNothing) {
    CClass record("CNamed");
    record.setClassName(nullptr);
    EXPECT_STREQ(record.getClassName(), "CNamed");
    EXPECT_STREQ(CClass(nullptr, nullptr).getClassName(), "UndefinedClass");
}

TEST(CClass, NamesAreCutTo128Bytes) {
    const std::string fits(128, 'n'), tooLong = fits + "x";
    EXPECT_EQ(CClass(fits.c_str()).getClassName(), fits);
    EXPECT_EQ(CClass(tooLong.c_str()).getClassName(), fits);
    EXPECT_EQ(CClass(CClass(fits.c_str())).getClassName(), fits);
    CClass renamed("CShort");
    renamed.setClassName(tooLong.c_str());
    EXPECT_EQ(renamed.getClassName(), fits);
}

TEST(CClass, ParentNamesOf128BytesAreFound) {
    const std::string parentName(128, 'p');
    const CClass parent(parentName.c_str()), child("CChild", parentName.c_str());
    EXPECT_TRUE(child.isTypeOf(parent));
}

TEST(CClass, ComparesByExactName) {
    const CClass record("CTextEdit"), same("CTextEdit"), other("CTextedit");
    EXPECT_TRUE(record == same);
    EXPECT_FALSE(record == other);
    EXPECT_TRUE(record == "CTextEdit");
    EXPECT_FALSE(record == "CText");
    EXPECT_TRUE(record != "CTextEditor");
}

TEST(CClass, TemplateRecordsAreNamedFromTheLiteralAndTheType) {
    EXPECT_STREQ(CClass("TBox<TypeName>", typeid(SArgument)).getClassName(), "TBox<SArgument>");
}

TEST(CClass, ATemplateRecordMayHaveAPlainParent) {
    const CClass parent("CPlainParent");
    const CClass record("TBox<TypeName>", typeid(SArgument), "CPlainParent");
    EXPECT_STREQ(record.getClassName(), "TBox<SArgument>");
    EXPECT_TRUE(record.isTypeOf(parent));
}

TEST(CClass, ATemplateRecordMayHaveATemplateParent) {
    const CClass parent("TBase<TypeName>", typeid(SArgument));
    const CClass stranger("TBase<TypeName>", typeid(SOther));
    const CClass record("TBox<TypeName>", typeid(SOther), "TBase<TypeName>", typeid(SArgument));
    EXPECT_STREQ(record.getClassName(), "TBox<SOther>");
    EXPECT_TRUE(record.isTypeOf(parent));
    EXPECT_FALSE(record.isTypeOf(stranger));
}

TEST(CClass, IsItsOwnType) {
    const CClass record("CItself", "CNobody");
    EXPECT_TRUE(record.isTypeOf(record));
    EXPECT_TRUE(CClass().isTypeOf(CClass()));
}

TEST(CClass, IsTheTypeOfEveryAncestor) {
    const CClass grandparent("CGrandparent"), parent("CParent", "CGrandparent");
    const CClass record("CChild", "CParent");
    EXPECT_TRUE(record.isTypeOf(parent));
    EXPECT_TRUE(record.isTypeOf(grandparent));
    EXPECT_FALSE(grandparent.isTypeOf(record));
    EXPECT_FALSE(parent.isTypeOf(record));
}

TEST(CClass, AParentWithoutARecordEndsTheSearch) {
    const CClass grandparent("CGrandparent");
    const CClass record("CChild", "CMissing");
    EXPECT_FALSE(record.isTypeOf(grandparent));
}

TEST(CClass, ACycleOfParentNamesEndsTheSearch) {
    const CClass selfish("CSelfish", "CSelfish");
    const CClass left("CCircleLeft", "CCircleRight"), right("CCircleRight", "CCircleLeft");
    const CClass target("CElsewhere");
    EXPECT_FALSE(selfish.isTypeOf(target));
    EXPECT_FALSE(left.isTypeOf(target));
    EXPECT_TRUE(left.isTypeOf(right));
}

}  // namespace
