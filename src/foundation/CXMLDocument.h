#pragma once

#include "foundation/CSystemString.h"
#include "foundation/CTextStream.h"
#include "foundation/CXMLNode.h"

namespace Tessitor::IO {

/// A tree of nodes, read from or written to a file that has one tag per line and no text between
/// tags. Failures are returned and traced; nothing throws. [one thread at a time]
///
/// The file is read line by line, without the white space at both ends of a line:
/// - Lines that do not begin with "<" are ignored, and so are those that begin with "<!" or "<?".
/// - "</" closes the current node. The name after it is ignored.
/// - "<name attributes" opens a node inside the current one and makes it current.
/// - "<name/" without a blank adds a node but does not make it current. Any other tag without a
///   blank opens a node whose name is the text before the last ">" of the line.
/// - The first node becomes the root. A tag after the end of the root is dropped with its contents.
///
/// The text after the first blank is scanned for attributes. Each "=", even inside quotes, makes
/// the text before it the name of an attribute. A closing quote ends the value and adds the
/// attribute to the current node. "/>" closes the current node, even inside quotes. A quoted text
/// without a name is dropped, and so is an attribute without a current node. Kept: a name of a
/// single letter is read as "", since CString::getSubString() and the removal of white space return
/// nothing for one character.
class CXMLDocument : public Basics::CCountedObject {
public:
    CXMLDocument();
    CXMLDocument(const CXMLDocument &) = delete;
    CXMLDocument &operator=(const CXMLDocument &) = delete;
    ~CXMLDocument() override;
    Basics::CClass &getClass() const override { return s_class; }

    CXMLNode *getRootNode() const { return m_rootNode; }  ///< null if there is none
    void setRootNode(CXMLNode *node);  ///< holds a reference to it; null for none

    /// Replaces the tree with that of the file. If the file cannot be opened or does not begin with
    /// "<?xml", the old tree stays.
    /// @return false in these cases, or if the file could not be read to its end. A line of more
    ///         than 2047 bytes ends the reading; its first 2047 bytes are still parsed.
    bool readFile(const Basics::CSystemString &path);
    /// Indents tags by one tab per level. The closing tag of the root has no line end.
    /// @return false if there is no root, or if the file could not be written completely.
    bool writeFile(const Basics::CSystemString &path);

    /// Reads the first line of a stream.
    /// @return true if it begins with "<?xml" after any white space.
    static bool isValidXMLFile(CTextStream &stream);

private:
    void parseLine(const Basics::CString &line);
    void parseAttributes(const Basics::CString &text);
    void addNode(Basics::CString name, bool becomesCurrent);
    void closeCurrentNode();
    void writeTree(CTextStream &stream);
    void writeIndent(CTextStream &stream) const;

    static Basics::TClassRecord<CXMLDocument> s_class;

    CXMLNode *m_currentNode = nullptr;  // inside the root's tree, while parsing
    CXMLNode *m_rootNode = nullptr;     // referenced
    std::int32_t m_indentLevel = 0;
};

}  // namespace Tessitor::IO
