#pragma once

#include "foundation/TAutomaticPointer.h"
#include "foundation/TCountedPointerArray.h"

namespace Tessitor::Collections {

/// A node of a tree: a value, a parent and children. A node holds references to its parent and to
/// its children, so parent and child keep each other alive until one releases the other. To free a
/// tree, set the parent of its children to null, or clear the children of a parent that is still
/// referenced elsewhere.
template <typename TypeName>
class TTreeNode : public Basics::CCountedObject {
public:
    /// @param valueDeleter  decides who owns the value. Not owned; if null, the node deletes it.
    explicit TTreeNode(TPointerDeleter<TypeName> *valueDeleter);
    TTreeNode(const TTreeNode &) = delete;
    TTreeNode &operator=(const TTreeNode &) = delete;
    ~TTreeNode() override { s_class.decrementInstanceCount(); }
    Basics::CClass &getClass() const override { return s_class; }

    /// Does not set the child's parent.
    void addChild(TTreeNode *child) { m_children.addElement(child); }
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
