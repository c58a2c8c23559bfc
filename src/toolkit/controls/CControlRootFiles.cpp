// The XML form of a root.
#include "foundation/CXMLDocument.h"
#include "foundation/Trace.h"
#include "toolkit/controls/CControlRoot.h"
#include "toolkit/controls/CHeldControl.h"
#include "toolkit/controls/ChildNodes.h"

namespace Tessitor::GUI::Controls {

using Tessitor::Basics::CSystemString;
using Tessitor::IO::CXMLAttribute;
using Tessitor::IO::CXMLDocument;
using Tessitor::IO::CXMLNode;

namespace {

constexpr const char *listName = "controls", *nodeName = "control", *typeName = "type",
                     *countName = "number_of_controls";

// Each panel in a panel adds two nodes. A damaged file must not overflow the stack.
constexpr int maximumDepth = 200;

bool isTooDeep(const CXMLNode *node) {
    int depth = 0;
    for (; node != nullptr && depth <= maximumDepth; node = node->getParent())
        ++depth;
    return depth > maximumDepth;
}

}  // namespace

void CControlRoot::serialiseToXml(CXMLNode *node) const {
    if (node == nullptr)
        return;
    int count = 0;
    for (int i = 0; i < m_controls.getArraySize(); ++i) {
        const IControl *control = m_controls.elementAtIndex(i);
        if (control == nullptr || control->isTransient())
            continue;
        CXMLNode &child = addChildNode(*node, nodeName);
        child.addAttribute(new CXMLAttribute(typeName, control->getClass().getClassName()));
        control->serialiseToXml(&child);
        ++count;
    }
    node->addAttribute(new CXMLAttribute(countName, count));
}

bool CControlRoot::serialiseFromXml(CXMLNode *node) {
    if (node == nullptr || isTooDeep(node))
        return false;
    if (node->getName() != listName) {
        IO::trace("The node name of a control root xml file must be \"controls\"");
        return false;
    }
    return hasCountedChildren(*node, nodeName, countName) &&
           forEachChild(*node, nodeName,
                        [this](CXMLNode &child) { return addControlFromXml(child); });
}

bool CControlRoot::addControlFromXml(CXMLNode &node) {
    const CXMLAttribute *type = node.getAttribute(typeName);
    IControl *control =
        type != nullptr ? m_factory->createControl(type->getValue(), this) : nullptr;
    if (control == nullptr)
        return false;
    const CHeldControl held(control);
    if (auto *panel = dynamic_cast<CControlRoot *>(control))
        panel->setControlFactory(*m_factory);
    if (!control->serialiseFromXml(&node))
        return false;
    addControl(control);
    return true;
}

// These two read and write the list alone. In a panel, the operations of that name deal with the
// control, too.

bool CControlRoot::loadFromFile(const CSystemString &path) {
    CXMLDocument document;
    return document.readFile(path) && CControlRoot::serialiseFromXml(document.getRootNode());
}

bool CControlRoot::saveToFile(const CSystemString &path) const {
    CXMLDocument document;
    document.setRootNode(new CXMLNode(listName, nullptr));
    CControlRoot::serialiseToXml(document.getRootNode());
    return document.writeFile(path);
}

}  // namespace Tessitor::GUI::Controls
