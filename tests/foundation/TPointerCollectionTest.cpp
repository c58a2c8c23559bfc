#include "foundation/TPointerCollection.h"

#include "foundation/ObjectSamples.h"
#include "foundation/TCountedPointerArray.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace Tessitor::Collections;
using Tessitor::Basics::CCountedObject;

template class Tessitor::Collections::TPointerCollection<CCountedObject>;
template class Tessitor::Collections::TCountedPointerArray<CCountedObject>;

namespace {

/// A collection that does not own its elements, and objects to put into it.
class TPointerCollectionList : public testing::Test {
protected:
    void add(int count) {
        for (int i = 0; i < count; ++i)
            list.addElement(&objects[static_cast<std::size_t>(i)]);
    }

    std::vector<CCountedObject> objects = std::vector<CCountedObject>(100);
    TPointerCollection<CCountedObject> list{nullptr};
};

/// Records each call.
class CDiary : public TPointerDeleter<CCountedObject> {
public:
    explicit CDiary(const std::vector<CCountedObject> &objects) : m_objects(objects) {}
    void pointerAdded(CCountedObject *pointer) override { note('+', pointer); }
    void deletePointer(CCountedObject *pointer) override { note('-', pointer); }

    std::string text;

private:
    void note(char what, const CCountedObject *pointer) {
        text += what;
        text += pointer == nullptr ? "null" : std::to_string(pointer - m_objects.data());
    }

    const std::vector<CCountedObject> &m_objects;
};

TEST_F(TPointerCollectionList, IsEmptyAtFirst) {
    EXPECT_EQ(list.getArraySize(), 0);
    EXPECT_EQ(list.getInsertIndex(), 0);
    EXPECT_EQ(list.elementAtIndex(0), nullptr);
    EXPECT_EQ(list.getIndexOfPointer(&objects[0]), -1);
    EXPECT_EQ(list.getIndexOfPointer(nullptr), -1);
    EXPECT_FALSE(list.isPointerInArray(&objects[0]));
    list.deletePointerAtIndex(0);
}

TEST_F(TPointerCollectionList, GrowsBy32Slots) {
    add(1);
    EXPECT_EQ(list.getArraySize(), 32);
    add(31);
    EXPECT_EQ(list.getArraySize(), 32);
    add(1);
    EXPECT_EQ(list.getArraySize(), 64);
    EXPECT_EQ(list.getInsertIndex(), 33);
    for (int i = 33; i < 64; ++i)
        EXPECT_EQ(list.elementAtIndex(i), nullptr) << i;
}

TEST_F(TPointerCollectionList, KeepsItsElementsWhenItGrows) {
    add(100);
    for (int i = 0; i < 100; ++i)
        EXPECT_EQ(list.elementAtIndex(i), &objects[static_cast<std::size_t>(i)]) << i;
}

TEST_F(TPointerCollectionList, ReturnsNullOutsideTheSlots) {
    add(2);
    EXPECT_EQ(list.elementAtIndex(-1), nullptr);
    EXPECT_EQ(list.elementAtIndex(2), nullptr);
    EXPECT_EQ(list.elementAtIndex(32), nullptr);
}

TEST_F(TPointerCollectionList, RemovalLeavesAHole) {
    add(5);
    list.deletePointerAtIndex(2);
    EXPECT_EQ(list.getInsertIndex(), 5);
    EXPECT_EQ(list.elementAtIndex(1), &objects[1]);
    EXPECT_EQ(list.elementAtIndex(2), nullptr);
    EXPECT_EQ(list.elementAtIndex(3), &objects[3]);
    list.addElement(&objects[9]);
    EXPECT_EQ(list.elementAtIndex(5), &objects[9]);
}

TEST_F(TPointerCollectionList, RemovalOutsideTheSlotsDoesNothing) {
    add(2);
    list.deletePointerAtIndex(-1);
    list.deletePointerAtIndex(32);
    EXPECT_EQ(list.elementAtIndex(0), &objects[0]);
    EXPECT_EQ(list.elementAtIndex(1), &objects[1]);
}

TEST_F(TPointerCollectionList, FindsByAddress) {
    add(3);
    list.addElement(&objects[1]);
    EXPECT_EQ(list.getIndexOfPointer(&objects[1]), 1);
    EXPECT_EQ(list.getIndexOfPointer(&objects[7]), -1);
    EXPECT_TRUE(list.isPointerInArray(&objects[2]));
    EXPECT_FALSE(list.isPointerInArray(&objects[7]));
}

TEST_F(TPointerCollectionList, NullCanBeAnElement) {
    list.addElement(nullptr);
    EXPECT_EQ(list.getInsertIndex(), 1);
}

TEST_F(TPointerCollectionList, GrowsByTheGivenStep) {
    list.setGrowSize(3);
    add(4);
    EXPECT_EQ(list.getArraySize(), 6);
}

TEST_F(TPointerCollectionList, GrowsByOneIfTheStepIsBelowOne) {
    list.setGrowSize(0);
    add(2);
    list.setGrowSize(-5);
    add(2);
    EXPECT_EQ(list.getArraySize(), 4);
    EXPECT_EQ(list.elementAtIndex(3), &objects[1]);
}

TEST_F(TPointerCollectionList, CompactingClosesTheGaps) {
    add(5);
    list.deletePointerAtIndex(0);
    list.deletePointerAtIndex(3);
    list.compactArray(false);
    EXPECT_EQ(list.getArraySize(), 32);
    EXPECT_EQ(list.getInsertIndex(), 3);
    EXPECT_EQ(list.elementAtIndex(0), &objects[1]);
    EXPECT_EQ(list.elementAtIndex(1), &objects[2]);
    EXPECT_EQ(list.elementAtIndex(2), &objects[4]);
    EXPECT_EQ(list.elementAtIndex(3), nullptr);
    EXPECT_EQ(list.elementAtIndex(4), nullptr);
}

TEST_F(TPointerCollectionList, ShrinkingKeepsTheFilledSlotsOnly) {
    add(5);
    list.deletePointerAtIndex(1);
    list.compactArray(true);
    EXPECT_EQ(list.getArraySize(), 4);
    EXPECT_EQ(list.getInsertIndex(), 4);
    EXPECT_EQ(list.elementAtIndex(3), &objects[4]);
    EXPECT_EQ(list.elementAtIndex(4), nullptr);
    list.addElement(&objects[9]);
    EXPECT_EQ(list.getArraySize(), 36);
    EXPECT_EQ(list.elementAtIndex(4), &objects[9]);
}

TEST_F(TPointerCollectionList, ShrinkingAFullArrayChangesNothing) {
    add(32);
    list.compactArray(true);
    EXPECT_EQ(list.getArraySize(), 32);
    EXPECT_EQ(list.getInsertIndex(), 32);
    EXPECT_EQ(list.elementAtIndex(31), &objects[31]);
}

TEST_F(TPointerCollectionList, ShrinkingAnEmptiedArrayFreesEverySlot) {
    add(2);
    list.deletePointerAtIndex(0);
    list.deletePointerAtIndex(1);
    list.compactArray(true);
    EXPECT_EQ(list.getArraySize(), 0);
    EXPECT_EQ(list.elementAtIndex(0), nullptr);
    add(1);
    EXPECT_EQ(list.getArraySize(), 32);
    EXPECT_EQ(list.elementAtIndex(0), &objects[0]);
}

TEST_F(TPointerCollectionList, CompactingAnEmptyArrayDoesNothing) {
    list.compactArray(false);
    list.compactArray(true);
    EXPECT_EQ(list.getArraySize(), 0);
    EXPECT_EQ(list.getInsertIndex(), 0);
}

TEST_F(TPointerCollectionList, ClearingFreesTheSlots) {
    add(3);
    list.clearArray();
    EXPECT_EQ(list.getArraySize(), 0);
    EXPECT_EQ(list.getInsertIndex(), 0);
    EXPECT_EQ(list.elementAtIndex(0), nullptr);
}

TEST_F(TPointerCollectionList, ReinitialisingLeavesOneStepOfEmptySlots) {
    add(40);
    list.clearAndReinitialise();
    EXPECT_EQ(list.getArraySize(), 32);
    EXPECT_EQ(list.getInsertIndex(), 0);
    EXPECT_EQ(list.elementAtIndex(0), nullptr);
}

TEST_F(TPointerCollectionList, TellsTheDeleterOfEveryElementAddedOrRemoved) {
    CDiary diary(objects);
    {
        TPointerCollection<CCountedObject> watched(&diary);
        watched.addElement(&objects[4]);
        watched.addElement(nullptr);
        watched.addElement(&objects[2]);
        watched.addElement(&objects[3]);
        watched.deletePointerAtIndex(2);
        watched.deletePointerAtIndex(2);  // empty already
    }
    EXPECT_EQ(diary.text, "+4+null+2+3-2-4-3");
}

TEST_F(TPointerCollectionList, TheDeleterCanBeChanged) {
    CDiary diary(objects);
    add(1);
    list.setPointerDeleter(&diary);
    list.deletePointerAtIndex(0);
    list.setPointerDeleter(nullptr);
    add(1);
    list.clearArray();
    EXPECT_EQ(diary.text, "-0");
}

TEST_F(TPointerCollectionList, SortsTheEmptySlotsToo) {
    add(3);
    list.sortSlots([](const CCountedObject *left, const CCountedObject *right) {
        return left != nullptr && (right == nullptr || left > right);
    });
    EXPECT_EQ(list.elementAtIndex(0), &objects[2]);
    EXPECT_EQ(list.elementAtIndex(2), &objects[0]);
    EXPECT_EQ(list.elementAtIndex(3), nullptr);
}

/// Removes itself from the list when it is destroyed, as a listener does.
class CLeaver : public CCountedObject {
public:
    explicit CLeaver(TPointerCollection<CCountedObject> &list) : m_list(list) {}
    ~CLeaver() override { m_list.deletePointerAtIndex(m_list.getIndexOfPointer(this)); }

private:
    TPointerCollection<CCountedObject> &m_list;
};

TEST(TPointerCollection, ADeletedElementMayRemoveItself) {
    TPointerCollection<CCountedObject> list;
    list.addElement(new CLeaver(list));
    list.addElement(new CLeaver(list));
    list.deletePointerAtIndex(0);
    EXPECT_EQ(list.elementAtIndex(0), nullptr);
    list.clearArray();
    EXPECT_EQ(list.getArraySize(), 0);
}

TEST(TPointerCollection, OwnsItsElementsByDefault) {
    bool destroyed = false;
    {
        TPointerCollection<CCountedObject> list;
        list.addElement(new CWatchedObject(destroyed));
        EXPECT_FALSE(destroyed);
    }
    EXPECT_TRUE(destroyed);
}

TEST(TPointerCollection, HasItsOwnRecord) {
    const TPointerCollection<CCountedObject> list;
    EXPECT_TRUE(list.getClass() == "TPointerCollection<CCountedObject>");
}

TEST(TCountedPointerArray, HoldsOneReferenceToEachElement) {
    bool destroyed = false;
    auto *object = new CWatchedObject(destroyed);
    TCountedPointerArray<CCountedObject> array;
    array.addElement(object);
    EXPECT_EQ(object->getReferenceCount(), 1);
    array.clearArray();
    EXPECT_TRUE(destroyed);
}

TEST(TCountedPointerArray, LeavesAnElementThatIsReferencedElsewhere) {
    bool destroyed = false;
    auto *object = new CWatchedObject(destroyed);
    object->reference();
    {
        TCountedPointerArray<CCountedObject> array;
        array.addElement(object);
        EXPECT_EQ(object->getReferenceCount(), 2);
    }
    EXPECT_FALSE(destroyed);
    object->dereference();
    EXPECT_TRUE(destroyed);
}

TEST(TCountedPointerArray, IsAPointerCollection) {
    const TCountedPointerArray<CCountedObject> array;
    EXPECT_TRUE(array.getClass() == "TCountedPointerArray<CCountedObject>");
    EXPECT_TRUE(array.getClass().isTypeOf(TPointerCollection<CCountedObject>().getClass()));
}

}  // namespace
