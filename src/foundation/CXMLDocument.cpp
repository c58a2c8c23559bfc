#include "foundation/CXMLDocument.h"

#include "foundation/Trace.h"
#include "foundation/XMLEntities.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace Tessitor::IO {

using Basics::CString;
using Basics::CSystemString;

Basics::TClassRecord<CXMLDocument> CXMLDocument::s_class("CXMLDocument", "CCountedObject");

namespace {

CString trimmedLine(CTextStream &stream) {
    CString line;
    stream >> line;
    line.removeTrailingAndLeadingWhiteSpace();
    return line;
}

std::string openingTag(const CXMLNode &node) {
    std::string tag = "<";
    tag += encodeEntities(node.getName()).getString();
    for (int i = 0; i < node.getNumberOfAttributes(); ++i) {
        const CXMLAttribute &attribute = *node.getAttribute(i);
        tag += ' ';
        tag += encodeEntities(attribute.getName()).getString();
        tag += "=\"";
        tag += encodeEntities(attribute.getValue()).getString();
        tag += '"';
    }
    tag += node.getNumberOfChildren() == 0 ? "/>\n" : ">\n";
    return tag;
}

}  // namespace

CXMLDocument::CXMLDocument() {
    s_class.incrementInstanceCount();
}

CXMLDocument::~CXMLDocument() {
    setRootNode(nullptr);
    s_class.decrementInstanceCount();
}

void CXMLDocument::setRootNode(CXMLNode *node) {
    if (node != nullptr)
        node->reference();
    if (m_rootNode != nullptr)
        m_rootNode->dereference();
    m_rootNode = node;
    m_currentNode = nullptr;
}

bool CXMLDocument::isValidXMLFile(CTextStream &stream) {
    return trimmedLine(stream).getSubString(0, 4) == "<?xml";
}

bool CXMLDocument::readFile(const CSystemString &path) {
    CTextStream stream(path, EStreamMode::Read);
    if (!stream.isOpenForReading()) {
        trace(path, "Failed to open XML stream with path = ");
        return false;
    }
    if (!isValidXMLFile(stream)) {
        trace(path, "Failed to read XML DTD on path = ");
        return false;
    }
    setRootNode(nullptr);
    while (!stream.isEndOfFile() && !stream.hasFailed())
        parseLine(trimmedLine(stream));
    return !stream.hasFailed();
}

void CXMLDocument::parseLine(const CString &line) {
    if (line[0] != '<')
        return;
    const CString tag = line.getSubString(1, line.getNumberOfCharacters() - 1);
    if (tag[0] == '!' || tag[0] == '?')
        return;
    if (tag[0] == '/') {
        closeCurrentNode();
    } else if (const std::int32_t blank = tag.findForward(' '); blank != -1) {
        addNode(tag.getSubString(0, blank - 1), true);
        parseAttributes(tag.getSubString(blank + 1, tag.getNumberOfCharacters() - 1));
    } else if (const std::int32_t slash = tag.findBackwards('/'); slash != -1) {
        addNode(tag.getSubString(0, slash - 1), false);
    } else {
        const std::int32_t end = tag.findBackwards('>');
        addNode(end == -1 ? tag : tag.getSubString(0, end - 1), true);
    }
}

void CXMLDocument::addNode(CString name, bool becomesCurrent) {
    name.removeTrailingAndLeadingWhiteSpace();
    auto node = std::make_unique<CXMLNode>(decodeEntities(name), m_currentNode);
    if (m_rootNode == nullptr)
        setRootNode(node.get());
    else if (m_currentNode != nullptr)
        m_currentNode->addChild(node.get());
    else
        return;
    CXMLNode *const added = node.release();  // owned by the tree now
    if (becomesCurrent)
        m_currentNode = added;
}

void CXMLDocument::closeCurrentNode() {
    if (m_currentNode != nullptr)
        m_currentNode = m_currentNode->getParent();
}

void CXMLDocument::parseAttributes(const CString &text) {
    std::string buffer;
    std::unique_ptr<CXMLAttribute> pending;
    bool isQuoted = false;
    const auto takeBuffer = [&] { return decodeEntities(std::exchange(buffer, {}).c_str()); };
    const auto endValue = [&] {
        const CString value = takeBuffer();
        if (pending != nullptr && m_currentNode != nullptr) {
            pending->setValue(value);
            m_currentNode->addAttribute(pending.get());
            static_cast<void>(pending.release());  // owned by the node now
        }
        pending.reset();
    };

    for (const char *character = text.getString(); *character != '\0'; ++character) {
        if (*character == '"') {
            if (isQuoted)
                endValue();
            isQuoted = !isQuoted;
        } else if (*character == '=') {
            // Kept: even inside quotes.
            pending = std::make_unique<CXMLAttribute>(takeBuffer(), "");
        } else if (character[0] == '/' && character[1] == '>') {
            closeCurrentNode();
        } else if (*character != ' ' || isQuoted) {
            buffer += *character;
        }
    }
    if (pending != nullptr)
        trace("Failed to close XML attribute tag");
}

bool CXMLDocument::writeFile(const CSystemString &path) {
    if (m_rootNode == nullptr)
        return false;
    CTextStream stream(path, EStreamMode::Write);
    if (!stream.isOpenForWriting()) {
        trace(path, "Failed to open XML stream with path = ");
        return false;
    }
    stream << CString("<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n");
    writeTree(stream);
    stream.flush();
    return !stream.hasFailed();
}

// Not recursive: deeply nested nodes would overflow the stack.
void CXMLDocument::writeTree(CTextStream &stream) {
    struct SOpenNode {
        const CXMLNode *node;
        int nextChild;
    };
    std::vector<SOpenNode> open;
    m_indentLevel = 0;
    const auto begin = [&](const CXMLNode *node) {
        stream << CString(openingTag(*node).c_str());
        if (node->getNumberOfChildren() > 0) {
            open.push_back({node, 0});
            ++m_indentLevel;
        }
    };

    begin(m_rootNode);
    while (!open.empty()) {
        SOpenNode &last = open.back();
        const CXMLNode *const node = last.node;
        if (last.nextChild < node->getNumberOfChildren()) {
            writeIndent(stream);
            begin(node->getChild(last.nextChild++));
        } else {
            open.pop_back();
            --m_indentLevel;
            writeIndent(stream);
            const CString name = encodeEntities(node->getName());
            stream << CString("</") << name << CString(open.empty() ? ">" : ">\n");
        }
    }
}

void CXMLDocument::writeIndent(CTextStream &stream) const {
    stream << CString(std::string(static_cast<std::size_t>(m_indentLevel), '\t').c_str());
}

}  // namespace Tessitor::IO
