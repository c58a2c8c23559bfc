#include "foundation/CXMLNode.h"

namespace Tessitor::IO {

namespace {

template <typename Element>
Element *firstNamed(const Collections::TPointerCollection<Element> &elements,
                    const Basics::CString &name) {
    for (int i = 0; i < elements.getInsertIndex(); ++i)
        if (elements.elementAtIndex(i)->getName() == name)
            return elements.elementAtIndex(i);
    return nullptr;
}

}  // namespace

Basics::TClassRecord<CXMLNode> CXMLNode::s_class("CXMLNode", "CCountedObject");

CXMLNode::CXMLNode(const Basics::CString &name, CXMLNode *parent) : m_parent(parent), m_name(name) {
    s_class.incrementInstanceCount();
}

// Not recursive: the destructors of deeply nested nodes would overflow the stack.
CXMLNode::~CXMLNode() {
    CXMLNode *abandoned = nullptr;
    handOverChildren(abandoned);
    while (abandoned != nullptr) {
        CXMLNode *node = abandoned;
        abandoned = node->m_parent;
        node->handOverChildren(abandoned);
        node->dereference();
    }
    s_class.decrementInstanceCount();
}

/// Releases the children.
/// @param abandoned  receives the children that nobody else references, each with one reference
///                   left. It is a list linked by m_parent, which these nodes no longer need.
void CXMLNode::handOverChildren(CXMLNode *&abandoned) {
    for (int i = 0; i < m_children.getInsertIndex(); ++i) {
        CXMLNode *child = m_children.elementAtIndex(i);
        if (child->m_parent == this)
            child->m_parent = nullptr;
        child->reference();
        m_children.deletePointerAtIndex(i);
        if (child->getReferenceCount() > 1) {
            child->dereference();
        } else {
            child->m_parent = abandoned;
            abandoned = child;
        }
    }
    m_children.clearArray();
}

void CXMLNode::addAttribute(CXMLAttribute *attribute) {
    if (attribute != nullptr)
        m_attributes.addElement(attribute);
}

CXMLAttribute *CXMLNode::getAttribute(int index) const {
    return m_attributes.elementAtIndex(index);
}

CXMLAttribute *CXMLNode::getAttribute(const Basics::CString &name) const {
    return firstNamed(m_attributes, name);
}

void CXMLNode::addChild(CXMLNode *child) {
    if (child != nullptr)
        m_children.addElement(child);
}

CXMLNode *CXMLNode::getChild(int index) const {
    return m_children.elementAtIndex(index);
}

CXMLNode *CXMLNode::getChild(const Basics::CString &name) const {
    return firstNamed(m_children, name);
}

}  // namespace Tessitor::IO
