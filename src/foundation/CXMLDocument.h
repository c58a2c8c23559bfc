#pragma once

#include "foundation/CSystemString.h"
#include "foundation/CTextStream.h"
#include "foundation/CXMLNode.h"

namespace Tessitor::IO {

/// A tree of nodes and its file: one tag on each line, and no text between tags. Failures go to the
/// trace and into the results; nothing throws. [one thread at a time]
///
/// The file is read line by line, white space at both ends removed:
/// - What does not begin with "<" is ignored, as are lines that begin with "<!" and "<?".
/// - "</" closes the current node, whatever name follows.
/// - "<name attributes" opens a node inside the current one, and makes it current.
/// - "<name/" without a blank makes a node that does not become current; anything else without one
///   opens a node named by what stands before the line's last ">".
/// - Where there is no root yet, the node becomes it. Beside the root there is nothing to be added
///   to: a tag there is dropped with all inside it.
///
/// Attributes are scanned over what follows the first blank. Every "=" makes what precedes it the
/// name of an attribute, one inside a value as well. A closing quote ends the value and adds the
/// attribute to the node that is then current, and "/" before ">" closes that, in quotes or not.
/// Without an "=" before it a quoted text is dropped, and without a current node an attribute.
/// A name of one letter, of a tag or an attribute, is read as "": CString::getSubString() and the
/// removal of white space leave nothing of one.
class CXMLDocument : public Basics::CCountedObject {
public:
    CXMLDocument();
    CXMLDocument(const CXMLDocument &) = delete;
    CXMLDocument &operator=(const CXMLDocument &) = delete;
    ~CXMLDocument() override;
    Basics::CClass &getClass() const override { return s_class; }

    CXMLNode *getRootNode() const { return m_rootNode; }  ///< null if there is none
    void setRootNode(CXMLNode *node);                     ///< references it; null for none

    /// Drops the old tree and reads one. A file that cannot be opened, or does not begin with
    /// "<?xml", leaves the old one in place.
    /// @return false also if the file could not be read to its end. A line above 2047 bytes ends
    ///         it, and is parsed as far as it goes.
    bool readFile(const Basics::CSystemString &path);
    /// Tags are indented by one tab for each level; the root's closing tag has no line end.
    /// @return false if there is no root, or if not all of the file could be written.
    bool writeFile(const Basics::CSystemString &path);

    /// Reads the first line of a stream.
    /// @return whether it begins with "<?xml", white space aside.
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
