#include "foundation/TPointerDeleter.h"

#include "foundation/ObjectSamples.h"

#include <gtest/gtest.h>

using namespace Tessitor::Collections;

template class Tessitor::Collections::TObjectDeleter<CWatchedObject>;
template class Tessitor::Collections::TObjectNuller<CWatchedObject>;
template class Tessitor::Collections::TCountedObjectDeleter<CWatchedObject>;

namespace {

TEST(TObjectDeleter, DeletesWhatIsLetGo) {
    TObjectDeleter<CWatchedObject> deleter;
    bool destroyed = false;
    auto *object = new CWatchedObject(destroyed);
    deleter.pointerAdded(object);
    EXPECT_EQ(object->getReferenceCount(), 0);
    deleter.deletePointer(object);
    EXPECT_TRUE(destroyed);
}

TEST(TObjectNuller, LeavesObjectsAlone) {
    TObjectNuller<CWatchedObject> deleter;
    bool destroyed = false;
    CWatchedObject object(destroyed);
    deleter.pointerAdded(&object);
    deleter.deletePointer(&object);
    EXPECT_FALSE(destroyed);
    EXPECT_EQ(object.getReferenceCount(), 0);
}

TEST(TCountedObjectDeleter, HoldsAReference) {
    TCountedObjectDeleter<CWatchedObject> deleter;
    bool destroyed = false;
    auto *object = new CWatchedObject(destroyed);
    deleter.pointerAdded(object);
    EXPECT_EQ(object->getReferenceCount(), 1);
    deleter.deletePointer(object);
    EXPECT_TRUE(destroyed);
}

template <typename Deleter>
class TPointerDeleterFamily : public testing::Test {};
using Deleters = testing::Types<TObjectDeleter<CWatchedObject>, TObjectNuller<CWatchedObject>,
                                TCountedObjectDeleter<CWatchedObject>>;
TYPED_TEST_SUITE(TPointerDeleterFamily, Deleters);

TYPED_TEST(TPointerDeleterFamily, IgnoresNull) {
    TypeParam deleter;
    deleter.pointerAdded(nullptr);
    deleter.deletePointer(nullptr);
}

TYPED_TEST(TPointerDeleterFamily, CountsItselfAndItsBases) {
    const TypeParam witness;
    const auto instances = witness.getClass().getInstanceCount();
    const TypeParam another;
    EXPECT_EQ(witness.getClass().getInstanceCount(), instances + 1);
    const Tessitor::Basics::CClass family("TPointerDeleter<TypeName>", typeid(CWatchedObject));
    EXPECT_TRUE(witness.getClass().isTypeOf(family));
    EXPECT_TRUE(witness.getClass().isTypeOf(Tessitor::Basics::CCountedObject().getClass()));
}

TEST(TPointerDeleter, RecordsAreNamedAfterTheType) {
    EXPECT_TRUE(TObjectDeleter<CWatchedObject>().getClass() == "TObjectDeleter<CWatchedObject>");
    EXPECT_TRUE(TObjectNuller<CWatchedObject>().getClass() == "TObjectNuller<CWatchedObject>");
    EXPECT_TRUE(TCountedObjectDeleter<CWatchedObject>().getClass() ==
                "TCountedObjectDeleter<CWatchedObject>");
}

TEST(TPointerDeleter, OneOfEachTypeIsShared) {
    EXPECT_EQ(TObjectDeleter<CWatchedObject>::getStaticDeleter(),
              TObjectDeleter<CWatchedObject>::getStaticDeleter());
    EXPECT_EQ(TCountedObjectDeleter<CWatchedObject>::getStaticDeleter(),
              TCountedObjectDeleter<CWatchedObject>::getStaticDeleter());
}

}  // namespace
