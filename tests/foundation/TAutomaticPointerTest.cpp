#include "foundation/TAutomaticPointer.h"

#include "foundation/ObjectSamples.h"

#include <gtest/gtest.h>

using namespace Tessitor::Collections;

template class Tessitor::Collections::TAutomaticPointer<CWatchedObject>;

namespace {

TEST(TAutomaticPointer, IsEmptyAtFirst) {
    TAutomaticPointer<CWatchedObject> pointer;
    EXPECT_EQ(pointer.getPointer(), nullptr);
    pointer.freePointer();
    pointer.setPointer(nullptr);
    EXPECT_EQ(pointer.getPointer(), nullptr);
}

TEST(TAutomaticPointer, DeletesItsObjectWithoutADeleter) {
    bool first = false, second = false;
    {
        TAutomaticPointer<CWatchedObject> pointer;
        pointer.setPointer(new CWatchedObject(first));
        EXPECT_EQ(pointer.getPointer()->getReferenceCount(), 0);
        pointer.setPointer(new CWatchedObject(second));
        EXPECT_TRUE(first);
        EXPECT_FALSE(second);
    }
    EXPECT_TRUE(second);
}

TEST(TAutomaticPointer, HoldsAReferenceThroughACountingDeleter) {
    bool destroyed = false;
    auto *object = new CWatchedObject(destroyed);
    TAutomaticPointer<CWatchedObject> pointer(
        TCountedObjectDeleter<CWatchedObject>::getStaticDeleter());
    pointer.setPointer(object);
    EXPECT_EQ(object->getReferenceCount(), 1);
    pointer.setPointer(nullptr);
    EXPECT_TRUE(destroyed);
    EXPECT_EQ(pointer.getPointer(), nullptr);
}

TEST(TAutomaticPointer, KeepsAnObjectThatIsSetTwice) {
    bool destroyed = false;
    auto *object = new CWatchedObject(destroyed);
    TAutomaticPointer<CWatchedObject> pointer(
        TCountedObjectDeleter<CWatchedObject>::getStaticDeleter());
    pointer.setPointer(object);
    pointer.setPointer(object);
    EXPECT_FALSE(destroyed);
    EXPECT_EQ(object->getReferenceCount(), 1);
}

TEST(TAutomaticPointer, FreesOnRequestAndOnlyOnce) {
    bool destroyed = false;
    TAutomaticPointer<CWatchedObject> pointer(TObjectDeleter<CWatchedObject>::getStaticDeleter());
    pointer.setPointer(new CWatchedObject(destroyed));
    pointer.freePointer();
    EXPECT_TRUE(destroyed);
    EXPECT_EQ(pointer.getPointer(), nullptr);
    pointer.freePointer();
}

TEST(TAutomaticPointer, OwnsNothingThroughANuller) {
    bool destroyed = false;
    CWatchedObject object(destroyed);
    TObjectNuller<CWatchedObject> nuller;
    {
        TAutomaticPointer<CWatchedObject> pointer(&nuller);
        pointer.setPointer(&object);
        EXPECT_EQ(pointer.getPointer(), &object);
    }
    EXPECT_FALSE(destroyed);
}

TEST(TAutomaticPointer, HasItsOwnRecord) {
    EXPECT_TRUE(TAutomaticPointer<CWatchedObject>().getClass() ==
                "TAutomaticPointer<CWatchedObject>");
}

}  // namespace
