#include "foundation/TClassRecord.h"

#include "foundation/CCountedObject.h"

#include <gtest/gtest.h>

using Tessitor::Basics::CClass;
using Tessitor::Basics::CCountedObject;
using Tessitor::Basics::TClassRecord;

namespace {

class CEarly : public CCountedObject {
public:
    CEarly() { s_class.incrementInstanceCount(); }
    ~CEarly() override { s_class.decrementInstanceCount(); }
    CClass &getClass() const override { return s_class; }

private:
    static TClassRecord<CEarly> s_class;
};

// Within one file the order is fixed: the record comes after these, so it is destroyed before them.
const CEarly first, second;
TClassRecord<CEarly> CEarly::s_class("CEarly", "CCountedObject");

TEST(TClassRecord, CountsInstancesThatWereBuiltBeforeIt) {
    const CClass &record = first.getClass();
    EXPECT_EQ(record.getInstanceCount(), 2u);
    EXPECT_EQ(record.getTotalCount(), 2u);
}

TEST(TClassRecord, CountsTheSameThroughTheClassAndThroughTheRecord) {
    CClass &record = first.getClass();
    TClassRecord<CEarly>::incrementInstanceCount();
    EXPECT_EQ(record.getInstanceCount(), 3u);
    record.incrementInstanceCount();
    EXPECT_EQ(record.getInstanceCount(), 4u);
    record.decrementInstanceCount();
    TClassRecord<CEarly>::decrementInstanceCount();
    EXPECT_EQ(record.getInstanceCount(), 2u);
    EXPECT_EQ(record.getTotalCount(), 4u);
}

TEST(TClassRecord, KnowsItsNameAndItsAncestors) {
    EXPECT_STREQ(first.getClass().getClassName(), "CEarly");
    EXPECT_TRUE(first.getClass().isTypeOf(CCountedObject().getClass()));
}

TEST(TClassRecord, EachClassHasItsOwn) {
    EXPECT_NE(&first.getClass(), &CCountedObject().getClass());
    EXPECT_EQ(&first.getClass(), &second.getClass());
}

}  // namespace
