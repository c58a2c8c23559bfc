#include "foundation/CXMLNode.h"

#include <gtest/gtest.h>

using Tessitor::IO::CXMLAttribute;
using Tessitor::IO::CXMLNode;

namespace {

/// Creates a node and holds a reference to it.
class CHeldNode {
public:
    explicit CHeldNode(CXMLNode *parent = nullptr) : m_node(new CXMLNode("held", parent)) {
        m_node->reference();
    }
    CHeldNode(const CHeldNode &) = delete;
    CHeldNode &operator=(const CHeldNode &) = delete;
    ~CHeldNode() { m_node->dereference(); }
    CXMLNode *operator->() const { return m_node; }
    CXMLNode *get() const { return m_node; }

private:
    CXMLNode *m_node;
};

auto nodes() {
    return CXMLNode("counter", nullptr).getClass().getInstanceCount() - 1;
}

TEST(CXMLNode, KnowsItsNameAndItsParent) {
    const CHeldNode parent;
    const CHeldNode child(parent.get());
    EXPECT_STREQ(parent->getName().getString(), "held");
    EXPECT_EQ(parent->getParent(), nullptr);
    EXPECT_EQ(child->getParent(), parent.get());
    EXPECT_EQ(parent->getReferenceCount(), 1) << "the child does not reference it";
    EXPECT_EQ(parent->getNumberOfChildren(), 0) << "nor is it added";
}

TEST(CXMLNode, FindsAttributesByIndexAndByName) {
    const CHeldNode node;
    auto *first = new CXMLAttribute("gain", 1), *second = new CXMLAttribute("pan", 2),
         *third = new CXMLAttribute("gain", 3);
    for (CXMLAttribute *attribute : {first, second, third})
        node->addAttribute(attribute);
    node->addAttribute(nullptr);
    EXPECT_EQ(node->getNumberOfAttributes(), 3);
    EXPECT_EQ(node->getAttribute(0), first);
    EXPECT_EQ(node->getAttribute(2), third);
    EXPECT_EQ(node->getAttribute(3), nullptr);
    EXPECT_EQ(node->getAttribute(-1), nullptr);
    EXPECT_EQ(node->getAttribute("gain"), first);
    EXPECT_EQ(node->getAttribute("pan"), second);
    EXPECT_EQ(node->getAttribute("Gain"), nullptr);
    EXPECT_EQ(first->getReferenceCount(), 1);
}

TEST(CXMLNode, FindsChildrenByIndexAndByName) {
    const CHeldNode node;
    auto *first = new CXMLNode("strip", node.get()), *second = new CXMLNode("meter", node.get()),
         *third = new CXMLNode("strip", node.get());
    for (CXMLNode *child : {first, second, third})
        node->addChild(child);
    node->addChild(nullptr);
    EXPECT_EQ(node->getNumberOfChildren(), 3);
    EXPECT_EQ(node->getChild(0), first);
    EXPECT_EQ(node->getChild(2), third);
    EXPECT_EQ(node->getChild(3), nullptr);
    EXPECT_EQ(node->getChild(-1), nullptr);
    EXPECT_EQ(node->getChild("strip"), first);
    EXPECT_EQ(node->getChild("meter"), second);
    EXPECT_EQ(node->getChild("none"), nullptr);
}

TEST(CXMLNode, DestroysItsTree) {
    const auto before = nodes();
    {
        const CHeldNode root;
        for (int i = 0; i < 40; ++i) {
            auto *child = new CXMLNode("child", root.get());
            root->addChild(child);
            child->addChild(new CXMLNode("grandchild", child));
            child->addAttribute(new CXMLAttribute("number", i));
        }
        EXPECT_EQ(nodes(), before + 81);
    }
    EXPECT_EQ(nodes(), before);
}

TEST(CXMLNode, AChildThatIsStillReferencedLosesItsParent) {
    const auto before = nodes();
    {
        auto *root = new CXMLNode("root", nullptr);
        root->reference();
        auto *middle = new CXMLNode("middle", root);
        const CHeldNode held(middle);
        root->addChild(middle);
        middle->addChild(held.get());
        held->addChild(new CXMLNode("leaf", held.get()));
        root->dereference();
        EXPECT_EQ(nodes(), before + 2);
        EXPECT_EQ(held->getParent(), nullptr);
        EXPECT_EQ(held->getReferenceCount(), 1);
        EXPECT_EQ(held->getChild(0)->getParent(), held.get());
    }
    EXPECT_EQ(nodes(), before);
}

TEST(CXMLNode, MayHaveSeveralParents) {
    const auto before = nodes();
    {
        const CHeldNode root;
        auto *left = new CXMLNode("left", root.get()), *right = new CXMLNode("right", root.get()),
             *shared = new CXMLNode("shared", left);
        root->addChild(left);
        root->addChild(right);
        for (CXMLNode *parent : {left, left, right})
            parent->addChild(shared);
        // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks): the nodes own it.
        EXPECT_EQ(shared->getReferenceCount(), 3);
    }
    EXPECT_EQ(nodes(), before);
}

TEST(CXMLNode, MayBeNestedDeeperThanTheStack) {
    const auto before = nodes();
    {
        const CHeldNode root;
        CXMLNode *innermost = root.get();
        for (int depth = 0; depth < 100'000; ++depth) {
            auto *child = new CXMLNode("child", innermost);
            innermost->addChild(child);
            innermost = child;
        }
    }
    EXPECT_EQ(nodes(), before);
}

TEST(CXMLNode, HasItsOwnRecord) {
    EXPECT_TRUE(CHeldNode()->getClass() == "CXMLNode");
}

}  // namespace
