// The fixtures are files that were written on each system. Both systems must still write the same
// bytes and read each other's files. A test that fails leaves the file that it wrote in the working
// folder, with ".actual" after the name. To record a new fixture, rename that file.
#include "foundation/CFileStream.h"
#include "foundation/CXMLDocument.h"
#include "foundation/ReadFile.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <limits>

using Tessitor::Basics::CString;
using Tessitor::Basics::CSystemString;
using Tessitor::IO::CFileStream;
using Tessitor::IO::CTextStream;
using Tessitor::IO::CXMLAttribute;
using Tessitor::IO::CXMLDocument;
using Tessitor::IO::CXMLNode;
using Tessitor::IO::EStreamMode;

namespace {

constexpr char allBytes[] = "\x01\t\x1a\x7f\x80\xc3\xa9\xff";

class Fixtures : public testing::TestWithParam<const char *> {
protected:
    std::string fixture(const char *name) const {
        return std::string(FIXTURES) + "/" + GetParam() + "/" + name;
    }

    /// @param write  writes a file to a given path.
    template <typename Write>
    void expectSameBytes(const char *name, Write write) const {
        const std::string actual = std::string(GetParam()) + "-" + name + ".actual";
        write(CSystemString(actual.c_str()));
        ASSERT_NE(readFile(actual), "");
        ASSERT_EQ(readFile(actual), readFile(fixture(name)));
        std::filesystem::remove(actual);
    }
};

void writeText(const CSystemString &path) {
    CTextStream stream(path, EStreamMode::Write);
    stream << "text\n" << CString(allBytes) << "\r\n" << true << " " << false << "\n";
    stream << -42 << " " << std::numeric_limits<int>::min() << " " << 2147483647L << "\n";
    stream << 1.5f << " " << 1.0f / 3 << " " << 1e-7f << " " << 1e20f << "\n";
    stream << 0.1 << " " << 2.0 / 3 << " " << 1e100 << " " << -1e-100 << " " << 123456789.0;
}

TEST_P(Fixtures, TextIsWrittenAsRecorded) {
    expectSameBytes("text.txt", writeText);
}

TEST_P(Fixtures, TextIsRead) {
    CTextStream stream(fixture("text.txt").c_str(), EStreamMode::Read);
    CString line;
    stream >> line;
    EXPECT_STREQ(line.getString(), "text");
    stream >> line;
    EXPECT_STREQ(line.getString(), allBytes);
    stream >> line;
    EXPECT_STREQ(line.getString(), "true false");
    int whole = 0, lowest = 0;
    long large = 0;
    stream >> whole >> lowest >> large;
    EXPECT_EQ(whole, -42);
    EXPECT_EQ(lowest, std::numeric_limits<int>::min());
    EXPECT_EQ(large, 2147483647L);
    float singles[4] = {};
    for (float &single : singles)
        stream >> single;
    EXPECT_EQ(singles[0], 1.5f);
    EXPECT_EQ(singles[1], 0.333333f);
    EXPECT_EQ(singles[2], 1e-7f);
    EXPECT_EQ(singles[3], 1e20f);
    double doubles[5] = {};
    for (double &number : doubles)
        stream >> number;
    EXPECT_EQ(doubles[0], 0.1);
    EXPECT_EQ(doubles[1], 0.666667);
    EXPECT_EQ(doubles[2], 1e100);
    EXPECT_EQ(doubles[3], -1e-100);
    EXPECT_EQ(doubles[4], 1.23457e8);
    EXPECT_TRUE(stream.isEndOfFile());
    EXPECT_FALSE(stream.hasFailed());
}

void writeBinary(const CSystemString &path, bool fileIsLittleEndian) {
    CFileStream stream(path, EStreamMode::Write, fileIsLittleEndian);
    stream << true << 'x' << std::int8_t{-2} << std::uint8_t{200} << std::int16_t{-0x1234}
           << std::uint16_t{0xFEDC} << std::int32_t{-0x12345678} << std::uint32_t{0xFEDCBA98}
           << std::int64_t{-0x123456789ABCDEF0} << std::uint64_t{0xFEDCBA9876543210} << 0.1f << 0.1;
    stream.write(allBytes, sizeof allBytes);
}

void expectBinary(const std::string &path, bool fileIsLittleEndian) {
    CFileStream stream(path.c_str(), EStreamMode::Read, fileIsLittleEndian);
    const auto expectNext = [&](auto expected) {
        auto value = decltype(expected){};
        stream >> value;
        EXPECT_EQ(value, expected);
    };
    EXPECT_EQ(stream.getStreamLength(), 53);
    expectNext(true);
    expectNext('x');
    expectNext(std::int8_t{-2});
    expectNext(std::uint8_t{200});
    expectNext(std::int16_t{-0x1234});
    expectNext(std::uint16_t{0xFEDC});
    expectNext(std::int32_t{-0x12345678});
    expectNext(std::uint32_t{0xFEDCBA98});
    expectNext(std::int64_t{-0x123456789ABCDEF0});
    expectNext(std::uint64_t{0xFEDCBA9876543210});
    expectNext(0.1f);
    expectNext(0.1);
    char bytes[sizeof allBytes];
    EXPECT_TRUE(stream.read(bytes, sizeof bytes));
    EXPECT_STREQ(bytes, allBytes);
    EXPECT_FALSE(stream.hasFailed());
}

TEST_P(Fixtures, BinaryDataIsWrittenAsRecorded) {
    expectSameBytes("big.bin", [](const CSystemString &path) { writeBinary(path, false); });
    expectSameBytes("little.bin", [](const CSystemString &path) { writeBinary(path, true); });
}

TEST_P(Fixtures, BinaryDataIsRead) {
    expectBinary(fixture("big.bin"), false);
    expectBinary(fixture("little.bin"), true);
}

void writeDocument(const CSystemString &path) {
    CXMLDocument document;
    auto *root = new CXMLNode("editor", nullptr);
    document.setRootNode(root);
    for (const char *name : {"strip", "meter & scale"}) {
        auto *node = new CXMLNode(name, root);
        root->addChild(node);
        node->addAttribute(new CXMLAttribute("the name", "\"<caf\xc3\xa9>\"\r\n& more"));
        node->addAttribute(new CXMLAttribute("gain", -1.0 / 3));
        node->addAttribute(new CXMLAttribute("pan", 0.1f));
        node->addAttribute(new CXMLAttribute("index", 7));
        node->addAttribute(new CXMLAttribute("colour", 0x7FFFFFFFL));
        node->addAttribute(new CXMLAttribute("shown", true));
    }
    root->getChild(0)->addChild(new CXMLNode("slot", root->getChild(0)));
    EXPECT_TRUE(document.writeFile(path));
}

TEST_P(Fixtures, DocumentsAreWrittenAsRecorded) {
    expectSameBytes("document.xml", writeDocument);
}

TEST_P(Fixtures, DocumentsAreRead) {
    CXMLDocument document;
    ASSERT_TRUE(document.readFile(fixture("document.xml").c_str()));
    ASSERT_NE(document.getRootNode(), nullptr);
    const CXMLNode &root = *document.getRootNode();
    EXPECT_STREQ(root.getName().getString(), "editor");
    ASSERT_EQ(root.getNumberOfChildren(), 2);
    const CXMLNode &strip = *root.getChild(0);
    EXPECT_STREQ(strip.getName().getString(), "strip");
    EXPECT_EQ(strip.getNumberOfChildren(), 1);
    ASSERT_EQ(strip.getNumberOfAttributes(), 6);
    EXPECT_STREQ(strip.getAttribute("the_name")->getValue().getString(),
                 "\"<caf\xc3\xa9>\"\r\n& more");
    EXPECT_EQ(strip.getAttribute("gain")->getValueAsDouble(), -0.333333);
    EXPECT_EQ(strip.getAttribute("pan")->getValueAsFloat(), 0.1f);
    EXPECT_EQ(strip.getAttribute("index")->getValueAsInt(), 7);
    EXPECT_EQ(strip.getAttribute("colour")->getValueAsLong(), 0x7FFFFFFFL);
    EXPECT_TRUE(strip.getAttribute("shown")->getValueAsBool());
    EXPECT_STREQ(root.getChild(1)->getName().getString(), "meter")
        << "the rest of a name with blanks is read as attributes";
}

INSTANTIATE_TEST_SUITE_P(Systems, Fixtures, testing::Values("linux", "windows"));

}  // namespace
