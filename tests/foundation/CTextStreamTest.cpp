#include "foundation/CTextStream.h"

#include "CTemporaryFolder.h"
#include "foundation/CLong.h"
#include "foundation/ReadFile.h"

#include <cstring>
#include <gtest/gtest.h>
#include <locale>

using Tessitor::Basics::CCountedObject;
using Tessitor::Basics::CLong;
using Tessitor::Basics::CString;
using Tessitor::Basics::CSystemString;
using Tessitor::Basics::ICountedObject;
using Tessitor::IO::CTextStream;
using Tessitor::IO::EStreamMode;

namespace {

class CTextStreamFile : public testing::Test {
protected:
    void write(const std::string &text) const {
        std::ofstream(path.getString(), std::ios::binary) << text;
    }
    std::string read() const { return readFile(path.getString()); }

    static std::string line(CTextStream &stream) {
        CString text("unread");
        stream >> text;
        return text.getString();
    }

    CTemporaryFolder folder;
    CSystemString path{(folder / "text.txt").string().c_str()};
};

TEST(CTextStream, IsClosedAtFirst) {
    CTextStream stream;
    EXPECT_FALSE(stream.isOpenForWriting());
    EXPECT_FALSE(stream.isOpenForReading());
    EXPECT_TRUE(stream.isEndOfFile());
    EXPECT_FALSE(stream.hasFailed());
    CString text("kept");
    int number = 7;
    stream << "ignored" << 5 << text;
    stream >> text >> number;
    stream.flush();
    stream.close();
    EXPECT_STREQ(text.getString(), "kept");
    EXPECT_EQ(number, 7);
}

TEST_F(CTextStreamFile, OpensForOneDirection) {
    CTextStream stream(path, EStreamMode::Write);
    EXPECT_TRUE(stream.isOpenForWriting());
    EXPECT_FALSE(stream.isOpenForReading());
    EXPECT_FALSE(stream.isEndOfFile());
    EXPECT_TRUE(stream.open(path, EStreamMode::Read));
    EXPECT_FALSE(stream.isOpenForWriting());
    EXPECT_TRUE(stream.isOpenForReading());
    stream.close();
    EXPECT_FALSE(stream.isOpenForReading());
    EXPECT_TRUE(stream.isEndOfFile());
}

TEST_F(CTextStreamFile, ReturnsFalseIfAFileCannotBeOpened) {
    CTextStream stream(path, EStreamMode::Read);
    EXPECT_FALSE(stream.isOpenForReading());
    EXPECT_FALSE(stream.open((folder / "none" / "text.txt").string().c_str(), EStreamMode::Write));
    EXPECT_FALSE(stream.isOpenForWriting());
    EXPECT_TRUE(stream.open(path, EStreamMode::Write));
}

TEST_F(CTextStreamFile, DoesNotOpenAFolder) {
    CTextStream stream;
    EXPECT_FALSE(stream.open(folder.path().string().c_str(), EStreamMode::Read));
    EXPECT_FALSE(stream.open(folder.path().string().c_str(), EStreamMode::Write));
}

TEST_F(CTextStreamFile, OpeningClosesTheOpenFile) {
    CTextStream stream(path, EStreamMode::Write);
    stream << CString("text");
    EXPECT_FALSE(stream.open((folder / "none").string().c_str(), EStreamMode::Read));
    EXPECT_FALSE(stream.isOpenForWriting());
    EXPECT_EQ(read(), "text");
}

TEST_F(CTextStreamFile, OpeningForWritingEmptiesTheFile) {
    write("old and long");
    CTextStream(path, EStreamMode::Write) << "new";
    EXPECT_EQ(read(), "new");
}

TEST_F(CTextStreamFile, WritesEveryKindOfValue) {
    const CLong object(42);
    CTextStream stream(path, EStreamMode::Write);
    stream << "chars " << CString("string ") << CSystemString("path ") << object << " " << true
           << " " << false << " " << -7 << " " << 123456789L << " " << 1.5f << " " << 0.1;
    stream.close();
    EXPECT_EQ(read(), "chars string path 42 true false -7 123456789 1.5 0.1");
}

TEST_F(CTextStreamFile, IgnoresANullText) {
    CTextStream(path, EStreamMode::Write) << static_cast<const char *>(nullptr) << "text";
    EXPECT_EQ(read(), "text");
}

TEST_F(CTextStreamFile, CutsTheDescriptionOfAStringTo255Bytes) {
    const CString text(std::string(300, 'w').c_str());
    CTextStream(path, EStreamMode::Write) << static_cast<const ICountedObject &>(text);
    EXPECT_EQ(read(), std::string(255, 'w'));
}

TEST_F(CTextStreamFile, WritesADescriptionThatFillsItsBufferWithoutATerminator) {
    class CFilling : public CCountedObject {
        void getObjectDescription(char *array, long size) const override {
            std::memset(array, 'f', static_cast<std::size_t>(size));
        }
    };
    CTextStream(path, EStreamMode::Write) << CFilling();
    EXPECT_EQ(read(), std::string(256, 'f'));
}

TEST_F(CTextStreamFile, OnlyCharacterArraysAreFlushedAtOnce) {
    CTextStream stream(path, EStreamMode::Write);
    stream << "now";
    EXPECT_EQ(read(), "now");
    stream << CString(" later");
    EXPECT_EQ(read(), "now");
    stream.flush();
    EXPECT_EQ(read(), "now later");
}

TEST_F(CTextStreamFile, LineEndsAreNotTranslated) {
    CTextStream(path, EStreamMode::Write) << "a\nb\r\n";
    EXPECT_EQ(read(), "a\nb\r\n");
}

TEST_F(CTextStreamFile, DoesNotReadWhileWriting) {
    CTextStream stream(path, EStreamMode::Write);
    EXPECT_EQ(line(stream), "unread");
}

TEST_F(CTextStreamFile, DoesNotWriteWhileReading) {
    write("text");
    CTextStream(path, EStreamMode::Read) << "more";
    EXPECT_EQ(read(), "text");
}

TEST_F(CTextStreamFile, ReadsLineByLine) {
    write("one\ntwo\r\n\nfour");
    CTextStream stream(path, EStreamMode::Read);
    EXPECT_EQ(line(stream), "one");
    EXPECT_EQ(line(stream), "two");
    EXPECT_EQ(line(stream), "");
    EXPECT_FALSE(stream.isEndOfFile());
    EXPECT_EQ(line(stream), "four");
    EXPECT_TRUE(stream.isEndOfFile());
    EXPECT_EQ(line(stream), "four");
}

TEST_F(CTextStreamFile, RemovesOneCarriageReturnAtTheEndOfALine) {
    write("a\rb\r\r\n\r\n");
    CTextStream stream(path, EStreamMode::Read);
    EXPECT_EQ(line(stream), "a\rb\r");
    EXPECT_EQ(line(stream), "");
}

TEST_F(CTextStreamFile, ReadsAnEmptyFileAsOneEmptyLine) {
    write("");
    CTextStream stream(path, EStreamMode::Read);
    EXPECT_FALSE(stream.isEndOfFile());
    EXPECT_EQ(line(stream), "");
    EXPECT_TRUE(stream.isEndOfFile());
    EXPECT_FALSE(stream.hasFailed());
}

TEST_F(CTextStreamFile, ReadsIntoAPath) {
    write("folder\n");
    CTextStream stream(path, EStreamMode::Read);
    CSystemString text;
    stream >> text;
    EXPECT_STREQ(text.getString(), "folder");
}

TEST_F(CTextStreamFile, ALineOf2047BytesFits) {
    const std::string longest(2047, 'x');
    write(longest + "\nnext\n");
    CTextStream stream(path, EStreamMode::Read);
    EXPECT_EQ(line(stream), longest);
    EXPECT_EQ(line(stream), "next");
    EXPECT_FALSE(stream.hasFailed());
}

TEST_F(CTextStreamFile, ALastLineOf2047BytesNeedsNoLineFeed) {
    const std::string longest(2047, 'x');
    write(longest);
    CTextStream stream(path, EStreamMode::Read);
    EXPECT_EQ(line(stream), longest);
    EXPECT_TRUE(stream.isEndOfFile());
    EXPECT_FALSE(stream.hasFailed());
}

TEST_F(CTextStreamFile, ACarriageReturnCountsInTheLengthOfALine) {
    const std::string fits(2046, 'x'), tooLong(2047, 'x');
    write(fits + "\r\nnext");
    CTextStream stream(path, EStreamMode::Read);
    EXPECT_EQ(line(stream), fits);
    EXPECT_EQ(line(stream), "next");
    write(tooLong + "\r\nnext");
    stream.open(path, EStreamMode::Read);
    EXPECT_EQ(line(stream), tooLong);
    EXPECT_TRUE(stream.hasFailed());
}

class CTextStreamLongLine : public CTextStreamFile, public testing::WithParamInterface<int> {};

TEST_P(CTextStreamLongLine, FailsTheStreamAndIsReadAgain) {
    write(std::string(std::size_t(GetParam()), 'x') + "\nnext\n");
    CTextStream stream(path, EStreamMode::Read);
    EXPECT_EQ(line(stream), std::string(2047, 'x'));
    EXPECT_EQ(line(stream), std::string(2047, 'x'));
    EXPECT_TRUE(stream.hasFailed());
    EXPECT_FALSE(stream.isEndOfFile());
    int number = 7;
    stream >> number;
    EXPECT_EQ(number, 7);
}
INSTANTIATE_TEST_SUITE_P(Lengths, CTextStreamLongLine, testing::Values(2048, 2049, 5000));

TEST_F(CTextStreamFile, AFailedStreamCanBeOpenedAgain) {
    write(std::string(3000, 'x'));
    CTextStream stream(path, EStreamMode::Read);
    line(stream);
    write("fine");
    stream.open(path, EStreamMode::Read);
    EXPECT_EQ(line(stream), "fine");
}

TEST_F(CTextStreamFile, ReadsNumbers) {
    write("-7 123456789\n 1.5\t0.1 none");
    CTextStream stream(path, EStreamMode::Read);
    int whole = 0;
    long large = 0;
    float single = 0;
    double precise = 0;
    stream >> whole >> large >> single >> precise;
    EXPECT_EQ(whole, -7);
    EXPECT_EQ(large, 123456789);
    EXPECT_EQ(single, 1.5f);
    EXPECT_EQ(precise, 0.1);
    EXPECT_FALSE(stream.hasFailed());
    stream >> whole;
    EXPECT_EQ(whole, 0);
    EXPECT_TRUE(stream.hasFailed());
}

TEST_F(CTextStreamFile, ReadsEmptyStringIfItFailsBeforeTheFirstLine) {
    write("none\nline\n");
    CTextStream stream(path, EStreamMode::Read);
    int number = 7;
    stream >> number;
    ASSERT_TRUE(stream.hasFailed());
    EXPECT_EQ(line(stream), "Empty string");
}

TEST_F(CTextStreamFile, NumbersIgnoreTheLocaleOfTheHost) {
    class CCommas : public std::numpunct<char> {
        char do_decimal_point() const override { return ','; }
        char do_thousands_sep() const override { return '.'; }
        std::string do_grouping() const override { return "\3"; }
    };
    const std::locale before =
        std::locale::global(std::locale(std::locale::classic(), new CCommas));
    CTextStream(path, EStreamMode::Write) << 1.5 << " " << 123456;
    double number = 0;
    CTextStream(path, EStreamMode::Read) >> number;
    std::locale::global(before);
    EXPECT_EQ(read(), "1.5 123456");
    EXPECT_EQ(number, 1.5);
}

TEST(CTextStream, HasItsOwnRecord) {
    EXPECT_TRUE(CTextStream().getClass() == "CTextStream");
}

}  // namespace
