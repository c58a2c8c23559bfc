#pragma once

#include "foundation/CXMLAttribute.h"
#include "foundation/TCountedPointerArray.h"

namespace Tessitor::IO {

/// A tag with its attributes and the tags inside it. It holds references to both.
class CXMLNode : public Basics::CCountedObject {
public:
    /// @param parent  null for none. The node holds no reference to it and is not added to its
    ///                children: call parent->addChild() as well. A parent that is destroyed leaves
    ///                its children without a parent.
    CXMLNode(const Basics::CString &name, CXMLNode *parent);
    CXMLNode(const CXMLNode &) = delete;
    CXMLNode &operator=(const CXMLNode &) = delete;
    ~CXMLNode() override;
    Basics::CClass &getClass() const override { return s_class; }

    const Basics::CString &getName() const { return m_name; }
    CXMLNode *getParent() const { return m_parent; }

    void addAttribute(CXMLAttribute *attribute);   ///< null is ignored
    CXMLAttribute *getAttribute(int index) const;  ///< null if there is none
    CXMLAttribute *
    getAttribute(const Basics::CString &name) const;  ///< the first; null if there is none
    int getNumberOfAttributes() const { return m_attributes.getInsertIndex(); }

    /// @param child  null is ignored. Must not be this node or one of its ancestors.
    void addChild(CXMLNode *child);
    CXMLNode *getChild(int index) const;                    ///< null if there is none
    CXMLNode *getChild(const Basics::CString &name) const;  ///< the first; null if there is none
    int getNumberOfChildren() const { return m_children.getInsertIndex(); }

private:
    static Basics::TClassRecord<CXMLNode> s_class;

    void handOverChildren(CXMLNode *&abandoned);

    CXMLNode *m_parent;
    Basics::CString m_name;
    Collections::TCountedPointerArray<CXMLAttribute> m_attributes;
    Collections::TCountedPointerArray<CXMLNode> m_children;
};

}  // namespace Tessitor::IO
