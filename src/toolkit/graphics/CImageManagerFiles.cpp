// The files that list the images of the manager.
#include "foundation/CStringTokeniser.h"
#include "foundation/CTextStream.h"
#include "foundation/CXMLDocument.h"
#include "foundation/Trace.h"
#include "platform/NativeFile.h"
#include "toolkit/graphics/CImageManager.h"

namespace Tessitor::GUI::Graphics {

using Tessitor::Basics::CString;
using Tessitor::Basics::CStringTokeniser;
using Tessitor::Basics::CSystemString;
using Tessitor::IO::CTextStream;
using Tessitor::IO::CXMLAttribute;
using Tessitor::IO::CXMLDocument;
using Tessitor::IO::CXMLNode;
using Tessitor::IO::trace;

namespace {

constexpr const char *imageFailure = "Failed to load image with filename ";

namespace Names {
constexpr const char *root = "image_manager_root", *images = "images", *animations = "animations",
                     *image = "image", *relativePath = "relative_path", *filename = "filename",
                     *referenceName = "reference_name", *frameHeight = "frame_height",
                     *numberOfFrames = "number_of_frames";
}  // namespace Names

/// What a line or node says about an image or animation.
struct SEntry {
    CSystemString relativePath, filename;
    CString referenceName;
    std::int32_t frameHeight = 0, numberOfFrames = 0;  // of an animation

    bool addImage() const { return CImageManager::addImage(relativePath, filename, referenceName); }
    bool addAnimation() const {
        return CImageManager::addAnimation(relativePath, filename, referenceName, frameHeight,
                                           numberOfFrames);
    }
};

// The definition file

bool readNumber(CStringTokeniser &tokens, std::int32_t &number) {
    CString token;
    if (!tokens.getNextToken(token))
        return false;
    number = CString::toInt(token);
    return true;
}

bool readTexts(CStringTokeniser &tokens, SEntry &entry) {
    return tokens.getNextToken(entry.relativePath) && tokens.getNextToken(entry.filename) &&
           tokens.getNextToken(entry.referenceName);
}

void addImageLine(const CString &line) {
    CStringTokeniser tokens(line, ',');
    SEntry entry;
    if (tokens.countTokens() != 3 || !readTexts(tokens, entry))
        trace(line, "Failed to load image with buffer ");
    else if (!entry.addImage())
        trace(line, imageFailure);
}

void addAnimationLine(const CString &line) {
    CStringTokeniser tokens(line, ',');
    SEntry entry;
    if (tokens.countTokens() != 5 || !readTexts(tokens, entry) ||
        !readNumber(tokens, entry.frameHeight) || !readNumber(tokens, entry.numberOfFrames) ||
        !entry.addAnimation())
        trace(line, "Failed to load animation with buffer ");
}

void addUnknownLine(const CString &line) {
    trace(line, "Unknown line with buffer ");
}

CString nextLine(CTextStream &stream) {
    CString line;
    stream >> line;
    line.removeTrailingAndLeadingWhiteSpace();
    return line;
}

// Reads the lines after the first.
bool readDefinitions(CTextStream &stream) {
    void (*add)(const CString &) = addUnknownLine;
    while (!stream.isEndOfFile()) {
        const CString line = nextLine(stream);
        if (stream.hasFailed())
            return false;
        const bool isAfterLastLine = line == "" && stream.isEndOfFile();
        if (line == "<end_skin>" || isAfterLastLine)
            return true;
        if (line[0] == '#')
            continue;
        if (line == "<images>")
            add = addImageLine;
        else if (line == "<animations>")
            add = addAnimationLine;
        else
            add(line);
    }
    return true;
}

// The XML form

// @return the new node, owned by its parent.
CXMLNode &addNode(CXMLNode &parent, const char *name) {
    auto node = std::make_unique<CXMLNode>(name, &parent);
    parent.addChild(node.get());
    return *node.release();
}

template <typename Value>
void addAttribute(CXMLNode &node, const char *name, const Value &value) {
    auto attribute = std::make_unique<CXMLAttribute>(name, value);
    node.addAttribute(attribute.get());
    static_cast<void>(attribute.release());  // owned by the node now
}

CXMLNode &addImageNode(CXMLNode &list, const CImageManager::CImageReference &reference) {
    CXMLNode &node = addNode(list, Names::image);
    addAttribute(node, Names::relativePath, reference.getRelativePath());
    addAttribute(node, Names::filename, reference.getFilename());
    addAttribute(node, Names::referenceName, reference.getReferenceName());
    return node;
}

void addAnimationNode(CXMLNode &list, const CImageManager::CAnimationReference &reference) {
    CXMLNode &node = addImageNode(list, reference.getImageReference());
    addAttribute(node, Names::frameHeight, reference.getFrameHeight());
    addAttribute(node, Names::numberOfFrames, reference.getNumberOfFrames());
}

CString textOf(const CXMLNode &node, const char *name) {
    const CXMLAttribute *attribute = node.getAttribute(name);
    return attribute != nullptr ? attribute->getValue() : CString();
}

std::int32_t numberOf(const CXMLNode &node, const char *name) {
    const CXMLAttribute *attribute = node.getAttribute(name);
    return attribute != nullptr ? attribute->getValueAsInt() : 0;
}

SEntry entryOf(const CXMLNode &node) {
    return {textOf(node, Names::relativePath), textOf(node, Names::filename),
            textOf(node, Names::referenceName), numberOf(node, Names::frameHeight),
            numberOf(node, Names::numberOfFrames)};
}

// @param list     the name of the node whose children are the entries. Others are ignored.
// @param failure  traced with the file name of each entry that cannot be added.
void loadList(const CXMLNode &root, const char *list, bool (SEntry::*add)() const,
              const char *failure) {
    const CXMLNode *node = root.getChild(list);
    for (int i = 0; node != nullptr && i < node->getNumberOfChildren(); ++i) {
        const CXMLNode &child = *node->getChild(i);
        if (child.getName() != Names::image)
            continue;
        const SEntry entry = entryOf(child);
        if (!(entry.*add)())
            trace(entry.filename, failure);
    }
}

}  // namespace

bool CImageManager::loadFromDefinitionFile(const CSystemString &path) {
    try {
        // Opening a pipe would wait for a writer.
        if (!isNativeRegularFile(path.getString()))
            return false;
        CTextStream stream(path, IO::EStreamMode::Read);
        if (nextLine(stream) == "<start_skin>")
            return readDefinitions(stream);
        stream.close();
        return loadFromXML(path);
    } catch (...) {
        trace("Caught unknown exception in the ImageManager::loadFromDefinitionFile function");
        return false;
    }
}

bool CImageManager::loadFromXML(const CSystemString &path) {
    CXMLDocument document;
    if (s_images == nullptr || !isNativeRegularFile(path.getString()) || !document.readFile(path))
        return false;
    const CXMLNode *root = document.getRootNode();
    if (root == nullptr || root->getName() != Names::root)
        return false;
    loadList(*root, Names::images, &SEntry::addImage, imageFailure);
    loadList(*root, Names::animations, &SEntry::addAnimation,
             "Failed to load animation with filename ");
    return true;
}

bool CImageManager::saveToXML(const CSystemString &path) {
    if (s_images == nullptr)
        return false;
    CXMLDocument document;
    document.setRootNode(new CXMLNode(Names::root, nullptr));
    CXMLNode &images = addNode(*document.getRootNode(), Names::images);
    for (int i = 0; i < s_images->getInsertIndex(); ++i)
        addImageNode(images, *s_images->elementAtIndex(i));
    CXMLNode &animations = addNode(*document.getRootNode(), Names::animations);
    for (int i = 0; i < s_animations->getInsertIndex(); ++i)
        addAnimationNode(animations, *s_animations->elementAtIndex(i));
    return document.writeFile(path);
}

}  // namespace Tessitor::GUI::Graphics
