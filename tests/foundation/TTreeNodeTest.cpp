#include "foundation/TTreeNode.h"

#include "foundation/ObjectSamples.h"

#include <gtest/gtest.h>
#include <memory>

using namespace Tessitor::Collections;

template class Tessitor::Collections::TTreeNode<CWatchedObject>;

namespace {

using CNode = TTreeNode<CWatchedObject>;

CNode *makeNode() {
    return new CNode(TObjectDeleter<CWatchedObject>::getStaticDeleter());
}

/// Two nodes that reference each other, and the number of nodes before they were created.
class TTreeNodeFamily : public testing::Test {
protected:
    TTreeNodeFamily() : before(countNodes()), parent(makeNode()), child(makeNode()) {
        child->setValue(new CWatchedObject(childDestroyed));
        child->setParent(parent);
        parent->addChild(child);
    }

    static std::uint32_t countNodes() {
        const CNode probe(nullptr);
        return probe.getClass().getInstanceCount() - 1;
    }

    const std::uint32_t before;
    bool childDestroyed = false;
    CNode *parent, *child;
};

TEST(TTreeNode, IsEmptyAtFirst) {
    CNode node(nullptr);
    EXPECT_EQ(node.getParent(), nullptr);
    EXPECT_EQ(node.getValue(), nullptr);
    EXPECT_EQ(node.getChildren().getArraySize(), 0);
}

TEST(TTreeNode, TheDeleterDecidesWhoOwnsTheValue) {
    bool owned = false, listed = false;
    const auto object = std::make_unique<CWatchedObject>(listed);
    TObjectNuller<CWatchedObject> nuller;
    {
        CNode owner(nullptr), lister(&nuller);
        owner.setValue(new CWatchedObject(owned));
        lister.setValue(object.get());
        EXPECT_EQ(lister.getValue(), object.get());
    }
    EXPECT_TRUE(owned);
    EXPECT_FALSE(listed);
}

TEST(TTreeNode, HasItsOwnRecord) {
    EXPECT_TRUE(CNode(nullptr).getClass() == "TTreeNode<CWatchedObject>");
}

TEST_F(TTreeNodeFamily, ParentAndChildReferenceEachOther) {
    EXPECT_EQ(child->getParent(), parent);
    EXPECT_EQ(parent->getChildren().elementAtIndex(0), child);
    EXPECT_EQ(parent->getReferenceCount(), 1);
    EXPECT_EQ(child->getReferenceCount(), 1);
    child->setParent(nullptr);
}

TEST_F(TTreeNodeFamily, BothLiveUntilOneReleasesTheOther) {
    parent->reference();
    parent->dereference();
    EXPECT_FALSE(childDestroyed);
    EXPECT_EQ(countNodes(), before + 2);
    child->setParent(nullptr);
    EXPECT_TRUE(childDestroyed);
    EXPECT_EQ(countNodes(), before);
}

TEST_F(TTreeNodeFamily, AChildMayChangeItsParentEvenIfThatDestroysBoth) {
    CNode *const other = makeNode();
    other->reference();
    child->setParent(other);
    EXPECT_TRUE(childDestroyed);
    EXPECT_EQ(other->getReferenceCount(), 1);
    other->dereference();
    EXPECT_EQ(countNodes(), before);
}

TEST_F(TTreeNodeFamily, ClearingTheChildrenReleasesThemToo) {
    parent->reference();
    parent->getChildren().clearArray();
    EXPECT_TRUE(childDestroyed);
    EXPECT_EQ(parent->getReferenceCount(), 1);
    parent->dereference();
    EXPECT_EQ(countNodes(), before);
}

}  // namespace
