#include "foundation/CFileStream.h"

#include "CTemporaryFolder.h"
#include "foundation/ReadFile.h"

#include <bit>
#include <cmath>
#include <fstream>
#include <gtest/gtest.h>
#include <limits>

using Tessitor::Basics::CSystemString;
using Tessitor::IO::CFileStream;
using Tessitor::IO::EStreamMode;

namespace {

class CFileStreamFile : public testing::Test {
protected:
    void write(const std::string &bytes) const {
        std::ofstream(path.getString(), std::ios::binary) << bytes;
    }
    std::string read() const { return readFile(path.getString()); }

    template <typename Value>
    std::string written(Value value, bool fileIsLittleEndian, bool ignoreByteOrder = false) const {
        CFileStream stream;
        stream.open(path, EStreamMode::Write, fileIsLittleEndian, ignoreByteOrder);
        stream << value;
        EXPECT_FALSE(stream.hasFailed());
        stream.close();
        return read();
    }

    CTemporaryFolder folder;
    CSystemString path{(folder / "data.bin").string().c_str()};
};

template <typename Value>
class CFileStreamValue : public CFileStreamFile {};

using Values =
    testing::Types<char, std::int8_t, std::uint8_t, std::int16_t, std::uint16_t, std::int32_t,
                   std::uint32_t, std::int64_t, std::uint64_t, float, double>;
TYPED_TEST_SUITE(CFileStreamValue, Values);

TYPED_TEST(CFileStreamValue, IsReadBackInEitherByteOrder) {
    using Limits = std::numeric_limits<TypeParam>;
    for (const bool fileIsLittleEndian : {false, true}) {
        for (const TypeParam value :
             {Limits::lowest(), TypeParam(1), TypeParam(100), Limits::max()}) {
            {
                CFileStream stream(this->path, EStreamMode::Write, fileIsLittleEndian);
                stream << value << value;
            }
            EXPECT_EQ(this->read().size(), 2 * sizeof(TypeParam));
            CFileStream stream(this->path, EStreamMode::Read, fileIsLittleEndian);
            TypeParam first{}, second{};
            stream >> first >> second;
            EXPECT_EQ(first, value);
            EXPECT_EQ(second, value);
            EXPECT_FALSE(stream.hasFailed());
        }
    }
}

TYPED_TEST(CFileStreamValue, IsUnchangedIfTheFileEndsWithinIt) {
    this->write(std::string(sizeof(TypeParam) - 1, 'x'));
    CFileStream stream(this->path, EStreamMode::Read);
    TypeParam value(7);
    stream >> value;
    EXPECT_EQ(value, TypeParam(7));
    EXPECT_TRUE(stream.hasFailed());
    EXPECT_TRUE(stream.isEndOfFile());
}

TYPED_TEST(CFileStreamValue, FailsInTheWrongDirection) {
    CFileStream stream(this->path, EStreamMode::Write);
    TypeParam value(7);
    stream >> value;
    EXPECT_EQ(value, TypeParam(7));
    EXPECT_TRUE(stream.hasFailed());

    stream.open(this->path, EStreamMode::Read);
    EXPECT_FALSE(stream.hasFailed());
    stream << value;
    EXPECT_TRUE(stream.hasFailed());
    EXPECT_EQ(this->read(), "");
}

TEST_F(CFileStreamFile, FilesAreBigEndianByDefault) {
    CFileStream(path, EStreamMode::Write) << std::int16_t{0x1234};
    EXPECT_EQ(read(), "\x12\x34");
    EXPECT_EQ(written(std::int16_t{0x1234}, false), "\x12\x34");
    EXPECT_EQ(written(std::int16_t{0x1234}, true), "\x34\x12");
    EXPECT_EQ(written(std::uint32_t{0x12345678}, false), "\x12\x34\x56\x78");
    EXPECT_EQ(written(std::uint32_t{0x12345678}, true), "\x78\x56\x34\x12");
    EXPECT_EQ(written(std::int64_t{0x0102030405060708}, false), "\1\2\3\4\5\6\7\10");
    EXPECT_EQ(written(1.0f, false), std::string("\x3f\x80\0\0", 4));
    EXPECT_EQ(written(1.0f, true), std::string("\0\0\x80\x3f", 4));
    EXPECT_EQ(written(-2.0, false), std::string("\xc0\0\0\0\0\0\0\0", 8));
}

TEST_F(CFileStreamFile, TheByteOrderMayBeIgnored) {
    EXPECT_EQ(written(std::int16_t{0x1234}, false, true), "\x34\x12");
    CFileStream stream;
    stream.open(path, EStreamMode::Read, false, true);
    std::int16_t value = 0;
    stream >> value;
    EXPECT_EQ(value, 0x1234);
}

TEST_F(CFileStreamFile, KeepsTheBytesOfAFloatThatIsASignallingNaNWhenSwapped) {
    const auto value =
        std::bit_cast<float>(std::uint32_t{0x0001A07F});  // a signalling NaN with its bytes swapped
    EXPECT_EQ(written(value, false), std::string("\0\x01\xA0\x7F", 4));
    EXPECT_EQ(written(value, true), std::string("\x7F\xA0\x01\0", 4));
    CFileStream stream(path, EStreamMode::Read, false);
    float signalling = 0;
    stream >> signalling;
    EXPECT_TRUE(std::isnan(signalling));
}

TEST_F(CFileStreamFile, ABoolIsOneByteAndTrueOnlyForOne) {
    CFileStream(path, EStreamMode::Write) << true << false;
    EXPECT_EQ(read(), std::string("\1\0", 2));
    write(std::string("\1\0\2\xff", 4));
    CFileStream stream(path, EStreamMode::Read);
    bool one = false, zero = true, two = true, minusOne = true;
    stream >> one >> zero >> two >> minusOne;
    EXPECT_TRUE(one);
    EXPECT_FALSE(zero);
    EXPECT_FALSE(two);
    EXPECT_FALSE(minusOne);
    EXPECT_FALSE(stream.hasFailed());
    bool left = true;
    stream >> left;
    EXPECT_TRUE(left);
    EXPECT_TRUE(stream.hasFailed());
}

TEST(CFileStream, IsClosedAtFirst) {
    CFileStream stream;
    char byte = 'k';
    EXPECT_FALSE(stream.isOpen());
    EXPECT_FALSE(stream.hasFailed());
    EXPECT_TRUE(stream.isEndOfFile());
    EXPECT_FALSE(stream.seekFromStart(0));
    EXPECT_FALSE(stream.seekFromHere(0));
    EXPECT_FALSE(stream.rewind());
    EXPECT_EQ(stream.getStreamLength(), -1);
    EXPECT_FALSE(stream.write(&byte, 1));
    EXPECT_FALSE(stream.read(&byte, 1));
    stream.close();
    EXPECT_FALSE(stream.hasFailed());
    stream >> byte;
    EXPECT_EQ(byte, 'k');
    EXPECT_TRUE(stream.hasFailed());
}

TEST_F(CFileStreamFile, FailsWithoutAFileUntilTheNextOpen) {
    CFileStream stream(path, EStreamMode::Read);
    EXPECT_FALSE(stream.isOpen());
    EXPECT_FALSE(stream.hasFailed());
    stream << 'x';
    EXPECT_TRUE(stream.hasFailed());
    EXPECT_FALSE(stream.open((folder / "none" / "data.bin").string().c_str(), EStreamMode::Write));
    EXPECT_FALSE(stream.hasFailed());
    EXPECT_TRUE(stream.open(path, EStreamMode::Write));
    EXPECT_TRUE(stream.isOpen());
    stream.close();
    EXPECT_FALSE(stream.isOpen());
}

TEST_F(CFileStreamFile, DoesNotOpenAFolder) {
    CFileStream stream;
    EXPECT_FALSE(stream.open(folder.path().string().c_str(), EStreamMode::Read));
    EXPECT_FALSE(stream.open(folder.path().string().c_str(), EStreamMode::Write));
}

TEST_F(CFileStreamFile, RejectsWritingWhileOpenForReadingWithoutAFailure) {
    write("kept");
    CFileStream stream(path, EStreamMode::Read);
    EXPECT_FALSE(stream.write("lost", 4));
    EXPECT_FALSE(stream.write("", 0));
    EXPECT_FALSE(stream.hasFailed());
    char bytes[4] = {};
    EXPECT_TRUE(stream.read(bytes, sizeof bytes));
    EXPECT_EQ(std::string(bytes, sizeof bytes), "kept");
    EXPECT_EQ(read(), "kept");
}

TEST_F(CFileStreamFile, RejectsReadingWhileOpenForWritingWithoutAFailure) {
    CFileStream stream(path, EStreamMode::Write);
    EXPECT_TRUE(stream.write("text", 4));
    EXPECT_TRUE(stream.rewind());
    char byte = 'k';
    EXPECT_FALSE(stream.read(&byte, 1));
    EXPECT_EQ(byte, 'k');
    EXPECT_FALSE(stream.hasFailed());
}

TEST_F(CFileStreamFile, AShortReadReturnsFalse) {
    write("abc");
    CFileStream stream(path, EStreamMode::Read);
    char bytes[4] = {};
    EXPECT_FALSE(stream.read(bytes, 4));
    EXPECT_FALSE(stream.hasFailed());
    EXPECT_TRUE(stream.rewind());
    EXPECT_TRUE(stream.read(bytes, 3));
    EXPECT_TRUE(stream.read(bytes, 0));
}

TEST_F(CFileStreamFile, TheEndShowsOnlyAfterAReadPastIt) {
    write("a");
    CFileStream stream(path, EStreamMode::Read);
    char byte = 0;
    stream >> byte;
    EXPECT_FALSE(stream.isEndOfFile());
    stream >> byte;
    EXPECT_TRUE(stream.isEndOfFile());
}

TEST_F(CFileStreamFile, SeeksFromTheStartAndFromHere) {
    write("abcdef");
    CFileStream stream(path, EStreamMode::Read);
    char byte = 0;
    EXPECT_TRUE(stream.seekFromStart(2));
    stream >> byte;
    EXPECT_EQ(byte, 'c');
    EXPECT_TRUE(stream.seekFromHere(1));
    stream >> byte;
    EXPECT_EQ(byte, 'e');
    EXPECT_TRUE(stream.seekFromHere(-2));
    stream >> byte;
    EXPECT_EQ(byte, 'd');
    EXPECT_TRUE(stream.rewind());
    stream >> byte;
    EXPECT_EQ(byte, 'a');
    EXPECT_FALSE(stream.seekFromStart(-1));
    EXPECT_FALSE(stream.hasFailed());
}

TEST_F(CFileStreamFile, WritesAtThePositionThatWasSought) {
    {
        CFileStream stream(path, EStreamMode::Write);
        stream.write("abcdef", 6);
        stream.seekFromStart(1);
        stream << 'B';
    }
    EXPECT_EQ(read(), "aBcdef");
}

TEST_F(CFileStreamFile, ReturnsTheLengthAndKeepsItsPosition) {
    write("abcdef");
    CFileStream stream(path, EStreamMode::Read);
    stream.seekFromStart(4);
    EXPECT_EQ(stream.getStreamLength(), 6);
    char byte = 0;
    stream >> byte;
    EXPECT_EQ(byte, 'e');
}

TEST_F(CFileStreamFile, HasNoLengthWhileWritingButDoesNotFail) {
    CFileStream stream(path, EStreamMode::Write);
    stream << 'x';
    EXPECT_EQ(stream.getStreamLength(), -1);
    EXPECT_FALSE(stream.hasFailed());
}

TEST_F(CFileStreamFile, ReadsAnEmptyFile) {
    write("");
    CFileStream stream(path, EStreamMode::Read);
    EXPECT_EQ(stream.getStreamLength(), 0);
    char byte = 'k';
    stream >> byte;
    EXPECT_EQ(byte, 'k');
    EXPECT_TRUE(stream.hasFailed());
}

TEST_F(CFileStreamFile, LineEndsAreNotTranslated) {
    const std::string bytes("\r\n\n\x1a\0\r", 6);
    {
        CFileStream stream(path, EStreamMode::Write);
        stream.write(bytes.data(), bytes.size());
    }
    EXPECT_EQ(read(), bytes);
    CFileStream stream(path, EStreamMode::Read);
    std::string back(6, 'x');
    EXPECT_TRUE(stream.read(back.data(), back.size()));
    EXPECT_EQ(back, bytes);
}

TEST_F(CFileStreamFile, CountsItself) {
    const CFileStream one;
    const auto instances = one.getClass().getInstanceCount();
    {
        const CFileStream two(path, EStreamMode::Write);
        EXPECT_EQ(one.getClass().getInstanceCount(), instances + 1);
    }
    EXPECT_EQ(one.getClass().getInstanceCount(), instances);
    EXPECT_TRUE(one.getClass() == "CFileStream");
}

}  // namespace
