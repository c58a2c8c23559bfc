#pragma once

#include "foundation/TAutomaticPointer.h"
#include "foundation/TCountedPointerArray.h"

namespace Tessitor::Collections {

/// A node of a tree: a value, the parent node and the children. A node holds references on its
/// children and on its parent, so the two keep each other alive until one of them lets go: before
/// the tree is given up, take the parent from the children, or clear the children of a parent that
/// something else holds as well.
template <typename TypeName>
class TTreeNode : public Basics::CCountedObject {
public:
    /// @param valueDeleter  says who owns the value; not owned, null to delete it with the node.
    explicit TTreeNode(TPointerDeleter<TypeName> *valueDeleter);
    TTreeNode(const TTreeNode &) = delete;
    TTreeNode &operator=(const TTreeNode &) = delete;
    ~TTreeNode() override { s_class.decrementInstanceCount(); }
    Basics::CClass &getClass() const override { return s_class; }

    void addChild(TTreeNode *child) { m_children.addElement(child); }  ///< leaves its parent alone
    TCountedPointerArray<TTreeNode> &getChildren() { return m_children; }

    void setParent(TTreeNode *parent) { m_parent.setPointer(parent); }  ///< null for none
    TTreeNode *getParent() const { return m_parent.getPointer(); }

    void setValue(TypeName *value) { m_value.setPointer(value); }  ///< null for none
    TypeName *getValue() const { return m_value.getPointer(); }

private:
    static Basics::TClassRecord<TTreeNode> s_class;

    TCountedPointerArray<TTreeNode> m_children;
    TAutomaticPointer<TTreeNode> m_parent;
    TAutomaticPointer<TypeName> m_value;
};

// Definitions
template <typename TypeName>
Basics::TClassRecord<TTreeNode<TypeName>>
    TTreeNode<TypeName>::s_class("TTreeNode<TypeName>", typeid(TypeName), "CCountedObject");

template <typename TypeName>
TTreeNode<TypeName>::TTreeNode(TPointerDeleter<TypeName> *valueDeleter)
    : m_parent(TCountedObjectDeleter<TTreeNode>::getStaticDeleter()), m_value(valueDeleter) {
    s_class.incrementInstanceCount();
}

}  // namespace Tessitor::Collections
