#pragma once

#include "foundation/CXMLNode.h"

// Nodes that hold a list of children with the same name, and the length of that list.
namespace Tessitor::GUI::Controls {

/// @return the new child, owned by its parent.
inline IO::CXMLNode &addChildNode(IO::CXMLNode &parent, const char *name) {
    auto *child = new IO::CXMLNode(name, &parent);
    parent.addChild(child);
    return *child;
}

/// Calls visit(child) for the children with this name until it returns false.
/// @return false if it did.
template <typename Visit>
bool forEachChild(IO::CXMLNode &node, const char *name, Visit visit) {
    for (int i = 0; i < node.getNumberOfChildren(); ++i)
        if (node.getChild(i)->getName() == name && !visit(*node.getChild(i)))
            return false;
    return true;
}

/// @return true if the attribute is there and is the number of children with this name.
inline bool hasCountedChildren(IO::CXMLNode &node, const char *name, const char *attribute) {
    int children = 0;
    forEachChild(node, name, [&](const IO::CXMLNode &) { return ++children > 0; });
    const IO::CXMLAttribute *count = node.getAttribute(attribute);
    return count != nullptr && count->getValueAsInt() == children;
}

}  // namespace Tessitor::GUI::Controls
