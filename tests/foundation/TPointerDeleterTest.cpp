#include "foundation/TPointerDeleter.h"

#include "foundation/ObjectSamples.h"
#include "foundation/TPointerCollection.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <memory>

using namespace Tessitor::Collections;

template class Tessitor::Collections::TObjectDeleter<CWatchedObject>;
template class Tessitor::Collections::TObjectNuller<CWatchedObject>;
template class Tessitor::Collections::TCountedObjectDeleter<CWatchedObject>;

namespace {

TEST(TObjectDeleter, DeletesAReleasedObject) {
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

TEST(TCountedObjectDeleter, HoldsAReferenceUntilItReleasesTheObject) {
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

TYPED_TEST(TPointerDeleterFamily, CountsItselfAndItsBases) {
    const TypeParam witness;
    const auto instances = witness.getClass().getInstanceCount();
    const TypeParam another;
    EXPECT_EQ(witness.getClass().getInstanceCount(), instances + 1);
    const Tessitor::Basics::CClass family("TPointerDeleter<TypeName>", typeid(CWatchedObject));
    EXPECT_TRUE(witness.getClass().isTypeOf(family));
    EXPECT_TRUE(witness.getClass().isTypeOf(Tessitor::Basics::CCountedObject().getClass()));
}

/// Counts what a deleter does to an object. The operations are static, so calls on null count too.
struct STouched {
    ~STouched() { ++touches; }
    static void reference() { ++touches; }
    static void dereference() { ++touches; }

    static inline int touches = 0;
};

template <typename Deleter>
class TPointerDeleterGivenNull : public testing::Test {};
using DeletersOfTouched = testing::Types<TObjectDeleter<STouched>, TObjectNuller<STouched>,
                                         TCountedObjectDeleter<STouched>>;
TYPED_TEST_SUITE(TPointerDeleterGivenNull, DeletersOfTouched);

TYPED_TEST(TPointerDeleterGivenNull, DoesNothing) {
    TypeParam deleter;
    deleter.pointerAdded(nullptr);
    deleter.deletePointer(nullptr);
    EXPECT_EQ(STouched::touches, 0);
}

TEST(TPointerDeleter, RecordsAreNamedAfterTheType) {
    EXPECT_TRUE(TObjectDeleter<CWatchedObject>().getClass() == "TObjectDeleter<CWatchedObject>");
    EXPECT_TRUE(TObjectNuller<CWatchedObject>().getClass() == "TObjectNuller<CWatchedObject>");
    EXPECT_TRUE(TCountedObjectDeleter<CWatchedObject>().getClass() ==
                "TCountedObjectDeleter<CWatchedObject>");
}

TEST(TPointerDeleter, EachTypeHasOneSharedDeleter) {
    EXPECT_EQ(TObjectDeleter<CWatchedObject>::getStaticDeleter(),
              TObjectDeleter<CWatchedObject>::getStaticDeleter());
    EXPECT_EQ(TCountedObjectDeleter<CWatchedObject>::getStaticDeleter(),
              TCountedObjectDeleter<CWatchedObject>::getStaticDeleter());
}

/// An element type whose shared deleter is first created by the test below.
class CLateElement : public Tessitor::Basics::CCountedObject {
public:
    explicit CLateElement(bool &destroyed) : m_destroyed(destroyed) {}
    ~CLateElement() override { m_destroyed = true; }

private:
    bool &m_destroyed;
};

/// Static objects are destroyed in reverse order of construction. The deleter of the list is
/// created later than the owner, so an ordinary static deleter would be destroyed before the list.
struct SOwnerOfALateList {
    ~SOwnerOfALateList() {
        const auto deleters = TObjectDeleter<CLateElement>().getClass().getInstanceCount();
        list.reset();
        if (deleters != 2 || !destroyed)
            std::_Exit(EXIT_FAILURE);
    }

    bool destroyed = false;
    std::unique_ptr<TPointerCollection<CLateElement>> list;
};

TEST(TPointerDeleterDeathTest, ASharedDeleterOutlivesAStaticOwnerThatCreatesItsListLate) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        {
            static SOwnerOfALateList owner;
            owner.list = std::make_unique<TPointerCollection<CLateElement>>();
            owner.list->addElement(new CLateElement(owner.destroyed));
            std::exit(EXIT_SUCCESS);
        },
        testing::ExitedWithCode(EXIT_SUCCESS), "");
}

}  // namespace
