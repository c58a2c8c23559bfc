// How the streams report a full disk.
#include "foundation/CFileStream.h"
#include "foundation/CTextStream.h"
#include "foundation/CXMLDocument.h"

#include <gtest/gtest.h>

using Tessitor::IO::CFileStream;
using Tessitor::IO::CTextStream;
using Tessitor::IO::EStreamMode;

namespace {

constexpr char fullDisk[] = "/dev/full";

TEST(FullDisk, FailsATextStreamWhenItIsFlushed) {
    CTextStream stream(fullDisk, EStreamMode::Write);
    ASSERT_TRUE(stream.isOpenForWriting());
    stream << Tessitor::Basics::CString("held back");
    EXPECT_FALSE(stream.hasFailed());
    stream.flush();
    EXPECT_TRUE(stream.hasFailed());
    EXPECT_TRUE(stream.isOpenForWriting());
    EXPECT_FALSE(stream.isEndOfFile());
}

TEST(FullDisk, FailsABinaryStreamWhenItIsClosed) {
    CFileStream stream(fullDisk, EStreamMode::Write);
    ASSERT_TRUE(stream.isOpen());
    stream << 'x';
    EXPECT_FALSE(stream.hasFailed());
    stream.close();
    EXPECT_TRUE(stream.hasFailed());
    EXPECT_TRUE(stream.open(fullDisk, EStreamMode::Write));
    EXPECT_FALSE(stream.hasFailed());
}

TEST(FullDisk, RejectsMoreBytesThanTheBufferHolds) {
    CFileStream stream(fullDisk, EStreamMode::Write);
    const std::string bytes(1 << 20, 'x');
    EXPECT_FALSE(stream.write(bytes.data(), bytes.size()));
    EXPECT_FALSE(stream.hasFailed());
}

TEST(FullDisk, FailsADocument) {
    Tessitor::IO::CXMLDocument document;
    document.setRootNode(new Tessitor::IO::CXMLNode("root", nullptr));
    EXPECT_FALSE(document.writeFile(fullDisk));
}

}  // namespace
