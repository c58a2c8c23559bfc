#include "foundation/CXMLDocument.h"

#include "CTemporaryFolder.h"
#include "foundation/ReadFile.h"
#include "foundation/Trace.h"

#include <fstream>
#include <gtest/gtest.h>
#include <random>
#include <sstream>

using Tessitor::Basics::CSystemString;
using Tessitor::IO::CTextStream;
using Tessitor::IO::CXMLAttribute;
using Tessitor::IO::CXMLDocument;
using Tessitor::IO::CXMLNode;
using Tessitor::IO::EStreamMode;
using Tessitor::IO::openTrace;

namespace {

/// A node and its descendants as text: name(attribute=value, ...)[children].
std::string sketch(const CXMLNode *node) {
    if (node == nullptr)
        return "none";
    std::ostringstream text;
    text << node->getName().getString();
    for (int i = 0; i < node->getNumberOfAttributes(); ++i)
        text << (i == 0 ? "(" : ", ") << node->getAttribute(i)->getName().getString() << "="
             << node->getAttribute(i)->getValue().getString();
    text << (node->getNumberOfAttributes() > 0 ? ")" : "");
    for (int i = 0; i < node->getNumberOfChildren(); ++i)
        text << (i == 0 ? "[" : " ") << sketch(node->getChild(i));
    text << (node->getNumberOfChildren() > 0 ? "]" : "");
    return text.str();
}

CXMLNode *addedTo(CXMLNode *parent, const char *name) {
    auto *node = new CXMLNode(name, parent);
    if (parent != nullptr)
        parent->addChild(node);
    return node;
}

class CXMLDocumentFile : public testing::Test {
protected:
    void write(const std::string &text) const {
        std::ofstream(path.getString(), std::ios::binary) << text;
    }

    /// @return the tree read from a declaration and these lines.
    std::string readTree(const std::string &lines) {
        write("<?xml version=\"1.0\"?>\n" + lines);
        EXPECT_TRUE(document.readFile(path));
        return sketch(document.getRootNode());
    }

    /// @return the tree read from a tag with these attributes.
    std::string readAttributes(const std::string &attributes) {
        return readTree("<root>\n<tag " + attributes + "\n");
    }

    std::string written() {
        // Some file systems wait for the disk when an existing file is truncated.
        std::filesystem::remove(path.getString());
        EXPECT_TRUE(document.writeFile(path));
        return readFile(path.getString());
    }

    std::string traced() const { return readFile(tracePath.getString()); }

    ~CXMLDocumentFile() override { openTrace(""); }  // closes it, so the folder can be deleted

    CTemporaryFolder folder;
    CSystemString path{(folder / "document.xml").string().c_str()};
    CSystemString tracePath{(folder / "trace.txt").string().c_str()};
    CXMLDocument document;
};

// Writing

TEST_F(CXMLDocumentFile, WritesOneTagPerLineAndTabsForLevels) {
    auto *root = new CXMLNode("root", nullptr);
    document.setRootNode(root);
    CXMLNode *strip = addedTo(root, "strip");
    strip->addAttribute(new CXMLAttribute("gain", 1.5));
    strip->addAttribute(new CXMLAttribute("is on", true));
    addedTo(addedTo(strip, "chain"), "slot")->addAttribute(new CXMLAttribute("index", 3));
    addedTo(strip, "empty");
    addedTo(root, "last");
    EXPECT_EQ(written(), "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n"
                         "<root>\n"
                         "\t<strip gain=\"1.500000\" is_on=\"True\">\n"
                         "\t\t<chain>\n"
                         "\t\t\t<slot index=\"3\"/>\n"
                         "\t\t</chain>\n"
                         "\t\t<empty/>\n"
                         "\t</strip>\n"
                         "\t<last/>\n"
                         "</root>");
    EXPECT_EQ(written(), readFile(path.getString())) << "writing again writes the same";
}

TEST_F(CXMLDocumentFile, WritesARootWithoutChildrenAsOneTagWithALineEnd) {
    document.setRootNode(new CXMLNode("root", nullptr));
    EXPECT_EQ(written(), "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n<root/>\n");
}

TEST_F(CXMLDocumentFile, EncodesNamesAndValues) {
    auto *root = new CXMLNode("a<b", nullptr);
    document.setRootNode(root);
    root->addAttribute(new CXMLAttribute("c&d", "\"e\">\r\n"));
    addedTo(root, "child");
    EXPECT_EQ(written(), "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n"
                         "<a&lt;b c&amp;d=\"&quot;e&quot;&gt;&#13;&#10;\">\n"
                         "\t<child/>\n"
                         "</a&lt;b>");
    EXPECT_STREQ(root->getName().getString(), "a<b") << "the tree does not change";
}

TEST_F(CXMLDocumentFile, WritesNothingWithoutARoot) {
    openTrace(tracePath);
    EXPECT_FALSE(document.writeFile(path));
    EXPECT_FALSE(std::filesystem::exists(path.getString()));
    EXPECT_EQ(traced(), "");
}

TEST_F(CXMLDocumentFile, TracesAFileThatCannotBeOpened) {
    openTrace(tracePath);
    document.setRootNode(new CXMLNode("root", nullptr));
    const std::string nowhere = (folder / "none" / "document.xml").string();
    const std::string line = "Failed to open XML stream with path = " + nowhere + "\n";
    EXPECT_FALSE(document.writeFile(nowhere.c_str()));
    EXPECT_EQ(traced(), line);
    EXPECT_FALSE(document.readFile(nowhere.c_str()));
    EXPECT_EQ(traced(), line + line);
    EXPECT_EQ(sketch(document.getRootNode()), "root");
    EXPECT_FALSE(document.readFile(folder.path().string().c_str()));
    EXPECT_EQ(traced(), line + line + "Failed to open XML stream with path = " +
                            folder.path().string() + "\n");
}

// Reading

TEST_F(CXMLDocumentFile, ReadsWhatItWrites) {
    const std::string lines = "<root>\n"
                              "\t<strip gain=\"1.500000\" is_on=\"True\">\n"
                              "\t\t<chain>\n"
                              "\t\t\t<slot index=\"3\"/>\n"
                              "\t\t</chain>\n"
                              "\t\t<empty/>\n"
                              "\t</strip>\n"
                              "\t<last/>\n"
                              "</root>";
    EXPECT_EQ(readTree(lines),
              "root[strip(gain=1.500000, is_on=True)[chain[slot(index=3)] empty] last]");
    EXPECT_EQ(written(), "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n" + lines);
}

TEST_F(CXMLDocumentFile, AValueWithMarkupSurvives) {
    for (const char *value : {"a<b & c", "&<", "<&", "<", "&", "\"quoted\" & more", "line\r\nend",
                              "  blanks  ", "", "/ > ?", "a & b < c > d"}) {
        auto *root = new CXMLNode("root", nullptr);
        root->addAttribute(new CXMLAttribute("value", value));
        document.setRootNode(root);
        ASSERT_TRUE(document.writeFile(path));
        CXMLDocument read;
        ASSERT_TRUE(read.readFile(path));
        EXPECT_STREQ(read.getRootNode()->getAttribute("value")->getValue().getString(), value);
    }
}

TEST_F(CXMLDocumentFile, AnEqualsSignInsideAValueStartsANewAttribute) {
    EXPECT_EQ(readAttributes("gain=\"left=right\">"), "root[tag(left=right)]");
    EXPECT_EQ(readAttributes("gain=\"left=mid=right\" pan=\"1\">"), "root[tag(mid=right, pan=1)]");
}

TEST_F(CXMLDocumentFile, AQuotedTextWithoutANameIsDropped) {
    EXPECT_EQ(readAttributes("\"lost\" gain=\"1\" \"lost\" >"), "root[tag(gain=1)]");
    EXPECT_EQ(readAttributes("\"lost\"=\"1\">"), "root[tag(=1)]");
}

TEST_F(CXMLDocumentFile, ATabInAnAttributeNameIsPartOfIt) {
    EXPECT_EQ(readAttributes("two\tparts=\"x\">"), "root[tag(two\tparts=x)]");
}

TEST_F(CXMLDocumentFile, TagsThatShareALineMakeOneNode) {
    EXPECT_EQ(readTree("<root>\n<first gain=\"1\"><second pan=\"2\">\n"),
              "root[first(gain=1, ><secondpan=2)]");
    EXPECT_EQ(readTree("<root><second>\n<third>\n"), "root><second[third]");
    EXPECT_EQ(readTree("<root>\n<first/><second/>\n<third>\n"), "root[first/><second third]");
}

TEST_F(CXMLDocumentFile, ATagNameOfOneLetterIsReadAsEmpty) {
    EXPECT_EQ(readTree("<r>\n<a/>\n<b gain=\"1\"/>\n<cc/>\n"), "[ (gain=1) cc]");
    EXPECT_EQ(readTree("<r\n"), "");
}

TEST_F(CXMLDocumentFile, AnAttributeNameOfOneLetterIsReadAsEmpty) {
    EXPECT_EQ(readAttributes("x=\"1\" xy=\"2\">"), "root[tag(=1, xy=2)]");
}

TEST_F(CXMLDocumentFile, AClosingTagWithoutACurrentNodeChangesNothing) {
    EXPECT_EQ(readTree("</none>\n<root>\n<child/>\n</root>\n</root>\n</root>\n"), "root[child]");
}

TEST_F(CXMLDocumentFile, AnyClosingTagClosesTheCurrentNode) {
    EXPECT_EQ(readTree("<root>\n<first>\n</other>\n<second>\n"), "root[first second]");
    EXPECT_EQ(readTree("<root>\n<first>\n</>\n<second>\n"), "root[first second]");
}

TEST_F(CXMLDocumentFile, IgnoresCommentsDeclarationsAndText) {
    EXPECT_EQ(readTree("<!-- <no> -->\n<!DOCTYPE x>\n<?more?>\ntext\n\n<root>\ntext <no>\n  <"
                       "child/>\n<\n"),
              "root[child]");
}

TEST_F(CXMLDocumentFile, DropsTagsAfterTheRoot) {
    EXPECT_EQ(readTree("<root>\n</root>\n<other gain=\"1\">\n<inner/>\n</other>\n"), "root");
    EXPECT_EQ(readTree("<root/>\n<other>\n<inner/>\n"), "root") << "an empty root is not current";
    EXPECT_EQ(readTree("<root gain=\"1\"/>\n<other/>\n"), "root(gain=1)");
}

TEST_F(CXMLDocumentFile, DropsAttributesAfterTheEndOfTheRoot) {
    EXPECT_EQ(readTree("<root gain=\"1\"/> pan=\"2\"\n"), "root(gain=1)");
    EXPECT_EQ(readTree("<root>\n<tag gain=\"1\"/> pan=\"2\"\n"), "root(>pan=2)[tag(gain=1)]")
        << "inside the root, the parent gets the attribute";
}

TEST_F(CXMLDocumentFile, ASlashAndABracketCloseEvenInsideQuotes) {
    EXPECT_EQ(readTree("<root>\n<tag path=\"a/>b\">\n<next>\n"), "root(path=a>b)[tag next]");
    EXPECT_EQ(readAttributes("path=\"a/b\" kind=\"/\">"), "root[tag(path=a/b, kind=/)]");
}

TEST_F(CXMLDocumentFile, KeepsBlanksOnlyInsideQuotes) {
    EXPECT_EQ(readAttributes("  gain  =  \" 1 2 \"  pan=\"3\"  >"), "root[tag(gain= 1 2 , pan=3)]");
}

TEST_F(CXMLDocumentFile, TextBeforeAnOpeningQuoteBelongsToTheValue) {
    EXPECT_EQ(readAttributes("gain=1\"2\">"), "root[tag(gain=12)]");
}

TEST_F(CXMLDocumentFile, DecodesNamesAndValues) {
    EXPECT_EQ(
        readTree("<ro&amp;ot>\n<ta&lt;g na&gt;me=\"va&quot;l&#10;u&#13;e\"/>\n<em&amp;pty/>\n"),
        "ro&ot[ta<g(na>me=va\"l\nu\re) em&pty]");
}

TEST_F(CXMLDocumentFile, TracesAnAttributeThatIsNotClosed) {
    openTrace(tracePath);
    EXPECT_EQ(readAttributes("gain=\"1\" pan=\"2 >"), "root[tag(gain=1)]");
    EXPECT_EQ(traced(), "Failed to close XML attribute tag\n");
    EXPECT_EQ(readAttributes("gain= >"), "root[tag]");
    EXPECT_EQ(readAttributes("gain >"), "root[tag]");
    EXPECT_EQ(traced(), "Failed to close XML attribute tag\nFailed to close XML attribute tag\n");
}

TEST_F(CXMLDocumentFile, ReadsWindowsLineEnds) {
    EXPECT_EQ(readTree("<root>\r\n\t<child gain=\"1\"/>\r\n</root>\r\n"), "root[child(gain=1)]");
}

TEST_F(CXMLDocumentFile, RequiresADeclarationInTheFirstLine) {
    openTrace(tracePath);
    const std::string line = std::string("Failed to read XML DTD on path = ") + path.getString();
    document.setRootNode(new CXMLNode("kept", nullptr));
    std::string expected;
    for (const char *text :
         {"", "\n<?xml?>\n<root>", "<?XML?>\n", "<root>\n", "<?xm", "x<?xml?>"}) {
        write(text);
        EXPECT_FALSE(document.readFile(path)) << text;
        EXPECT_EQ(traced(), expected += line + "\n");
    }
    EXPECT_EQ(sketch(document.getRootNode()), "kept");
    for (const char *text : {"<?xml", " \t<?xml version=\"1.0\"?>\n", "<?xmlish>\r\n"}) {
        write(text);
        EXPECT_TRUE(document.readFile(path)) << text;
        EXPECT_EQ(document.getRootNode(), nullptr);
    }
}

TEST_F(CXMLDocumentFile, ChecksAStreamByItsFirstLine) {
    write("<?xml?>\n<root>\n");
    CTextStream stream(path, EStreamMode::Read);
    EXPECT_TRUE(CXMLDocument::isValidXMLFile(stream));
    EXPECT_FALSE(CXMLDocument::isValidXMLFile(stream));
    stream.close();
    EXPECT_FALSE(CXMLDocument::isValidXMLFile(stream));
}

TEST_F(CXMLDocumentFile, ReadsALineOf2047Bytes) {
    const std::string value(2047 - std::string("<tag gain=\"\"/>").size(), 'x');
    EXPECT_EQ(readTree("<root>\n<tag gain=\"" + value + "\"/>\n<last/>\n"),
              "root[tag(gain=" + value + ") last]");
}

TEST_F(CXMLDocumentFile, ALongerLineEndsTheReadingAndItsStartIsParsed) {
    const std::string start = "<tag gain=\"1\" pan=\"", filler(5000, 'x');
    for (const std::size_t length : {2048u, 2049u, 5000u}) {
        const std::string value = filler.substr(start.size() + 3 + filler.size() - length);
        write(std::string("<?xml?>\n<root>\n").append(start).append(value) + "\"/>\n<last/>\n");
        EXPECT_FALSE(document.readFile(path));
        // The two shorter lines lose only the end of the tag, so it stays open.
        EXPECT_EQ(sketch(document.getRootNode()),
                  length <= 2049 ? "root[tag(gain=1, pan=" + value + ")]" : "root[tag(gain=1)]");
    }
    write("<?xml " + filler + "\n<root>\n");
    EXPECT_FALSE(document.readFile(path));
    EXPECT_EQ(document.getRootNode(), nullptr);
}

TEST_F(CXMLDocumentFile, EndsALineAtAZeroByte) {
    EXPECT_EQ(readTree(std::string("<root>\n<ta\0g>\n<last/>\n", 22)), "root[ta[last]]");
}

TEST_F(CXMLDocumentFile, ReplacesTheOldTree) {
    readTree("<root>\n<open>\n");
    EXPECT_EQ(readTree("<next>\n<child/>\n"), "next[child]");
    EXPECT_EQ(document.getRootNode()->getParent(), nullptr);
}

TEST_F(CXMLDocumentFile, MayBeNestedDeeperThanTheStack) {
    constexpr int depth = 20'000;
    std::string lines;
    for (int i = 0; i < depth; ++i)
        lines += "<tag\n";
    write("<?xml?>\n" + lines);
    ASSERT_TRUE(document.readFile(path));
    int found = 0;
    for (const CXMLNode *node = document.getRootNode(); node != nullptr; node = node->getChild(0))
        ++found;
    EXPECT_EQ(found, depth);
}

TEST_F(CXMLDocumentFile, WritesNodesNestedDeeperThanTheStack) {
    constexpr int depth = 3'000;
    auto *root = new CXMLNode("tag", nullptr);
    document.setRootNode(root);
    for (int i = 1; i < depth; ++i)
        root = addedTo(root, "tag");
    ASSERT_TRUE(document.writeFile(path));
    CXMLDocument read;
    EXPECT_FALSE(read.readFile(path)) << "the indent makes the lines too long";
}

// Round trips

/// A text that survives writing and reading: no "=", no single letter, no entities.
std::string randomText(std::mt19937 &random, std::string_view characters, std::size_t atLeast) {
    std::string text(atLeast + random() % 12, ' ');
    for (char &character : text)
        character = characters[random() % characters.size()];
    return text;
}

void addRandomNodes(std::mt19937 &random, CXMLNode *parent, int levels) {
    constexpr std::string_view letters = "abcXYZ019_-.:";
    constexpr std::string_view characters = "ab XY&<>\"\r\n'\t;#/";
    for (auto i = random() % 5; i > 0; --i) {
        CXMLNode *node = addedTo(parent, randomText(random, letters, 2).c_str());
        for (auto j = random() % 4; j > 0; --j)
            node->addAttribute(new CXMLAttribute(randomText(random, letters, 2).c_str(),
                                                 randomText(random, characters, 0).c_str()));
        if (levels > 0)
            addRandomNodes(random, node, levels - 1);
    }
}

TEST_F(CXMLDocumentFile, ReadsGeneratedDocumentsBack) {
    for (unsigned seed = 0; seed < 50; ++seed) {
        std::mt19937 random(seed);
        auto *root = new CXMLNode("root", nullptr);
        document.setRootNode(root);
        addRandomNodes(random, root, 3);
        const std::string tree = sketch(root), bytes = written();
        CXMLDocument read;
        ASSERT_TRUE(read.readFile(path));
        ASSERT_EQ(sketch(read.getRootNode()), tree) << "seed " << seed;
        document.setRootNode(read.getRootNode());
        EXPECT_EQ(written(), bytes) << "seed " << seed;
    }
}

// The tree

TEST_F(CXMLDocumentFile, ReferencesItsRoot) {
    auto *root = new CXMLNode("root", nullptr);
    document.setRootNode(root);
    EXPECT_EQ(root->getReferenceCount(), 1);
    document.setRootNode(root);
    EXPECT_EQ(root->getReferenceCount(), 1);
    root->reference();
    document.setRootNode(new CXMLNode("other", nullptr));
    EXPECT_EQ(root->getReferenceCount(), 1);
    root->dereference();
    document.setRootNode(nullptr);
    EXPECT_EQ(document.getRootNode(), nullptr);
}

TEST_F(CXMLDocumentFile, LeaksNoNodeAndNoAttribute) {
    const auto counted = [](const auto &object) {
        return object.getClass().getInstanceCount() - 1;
    };
    const auto nodes = [&] { return counted(CXMLNode("counter", nullptr)); };
    const auto attributes = [&] { return counted(CXMLAttribute("counter", 0)); };
    const auto nodesBefore = nodes(), attributesBefore = attributes();
    readTree(
        "<root>\n<tag gain=\"1\" =  lost=\"a=b=c\"/> more=\"1\n</root>\n<beside lost=\"1\"/>\n");
    document.setRootNode(nullptr);
    EXPECT_EQ(nodes(), nodesBefore);
    EXPECT_EQ(attributes(), attributesBefore);
}

TEST(CXMLDocument, HasItsOwnRecord) {
    EXPECT_TRUE(CXMLDocument().getClass() == "CXMLDocument");
    EXPECT_EQ(CXMLDocument().getRootNode(), nullptr);
}

}  // namespace
