// The input: an XML file without the declaration at its start, which is added here. What was read
// must form a tree, and the file written from the tree must be readable. The two trees may differ:
// a root with a name of one letter is written as "</>", which reads as a closing tag.
#include "Fuzz.h"
#include "foundation/CXMLDocument.h"

#include <vector>

using Tessitor::IO::CXMLDocument;
using Tessitor::IO::CXMLNode;

namespace {

void requireTree(const CXMLDocument &document) {
    std::vector<const CXMLNode *> open;
    if (document.getRootNode() != nullptr)
        open.push_back(document.getRootNode());
    while (!open.empty()) {
        const CXMLNode *node = open.back();
        open.pop_back();
        for (int i = 0; i < node->getNumberOfAttributes(); ++i) {
            const auto *attribute = node->getAttribute(i);
            require(attribute->getReferenceCount() == 1, "an attribute belongs to its node");
            attribute->getValueAsDouble();
            attribute->getValueAsInt();
        }
        for (int i = 0; i < node->getNumberOfChildren(); ++i) {
            require(node->getChild(i)->getParent() == node, "a child points to its parent");
            require(node->getChild(i)->getReferenceCount() == 1, "a child belongs to its parent");
            open.push_back(node->getChild(i));
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    static CInputFile file;
    const std::string path = file.write("<?xml?>\n" + CInput(data, size).rest());
    CXMLDocument document;
    document.readFile(path.c_str());
    requireTree(document);
    if (document.getRootNode() == nullptr)
        return 0;

    file.remove();
    require(document.writeFile(path.c_str()), "what was read can be written");
    CXMLDocument again;
    again.readFile(path.c_str());
    requireTree(again);
    return 0;
}
